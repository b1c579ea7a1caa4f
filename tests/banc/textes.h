#pragma once

// How values are written in a scenario.

#include <string>
#include <string_view>
#include <vector>

namespace banc {

/// The text on one line: each line end becomes `\n`, written out.
[[nodiscard]] std::string enligne(std::string_view texte);
/// The text without the double quotes that stand around it, if they do.
[[nodiscard]] std::string sansguillemets(std::string_view texte);
/// A value read is the one expected, as it stands or between double quotes.
[[nodiscard]] bool concorde(std::string_view lu, std::string_view attendu);
/// The same; an expected value that begins with "..." is compared with the end, and looked for
/// inside if it also ends so.
[[nodiscard]] bool concordepartie(std::string_view lu, std::string_view attendu);
/// The words of a text.
[[nodiscard]] std::vector<std::string> mots(std::string_view texte);
/// Texts, with " | " between them.
[[nodiscard]] std::string joindre(const std::vector<std::string>& textes);

}  // namespace banc
