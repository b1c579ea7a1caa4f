#pragma once

// How values are written in a scenario.

#include <string>
#include <string_view>
#include <vector>

namespace banc {

/// The text on one line: each line end becomes the two characters `\n`.
[[nodiscard]] std::string enligne(std::string_view texte);
/// The text without the double quotes around it, if any.
[[nodiscard]] std::string sansguillemets(std::string_view texte);
/// A value equals the expected one, which may stand between double quotes.
[[nodiscard]] bool concorde(std::string_view lu, std::string_view attendu);
/// The same, but "...TEXT" expects a value that ends with TEXT, and "...TEXT..." one that contains
/// it.
[[nodiscard]] bool concordepartie(std::string_view lu, std::string_view attendu);
/// The words of a text, which blanks separate.
[[nodiscard]] std::vector<std::string> mots(std::string_view texte);
/// The texts in one, with " | " between them.
[[nodiscard]] std::string joindre(const std::vector<std::string>& textes);

}  // namespace banc
