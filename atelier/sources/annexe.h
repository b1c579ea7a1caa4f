#pragma once

// Decisions that follow from no rule: words kept, verbs that everybody uses, and the regular
// endings of the three kinds of verbs.

#include <span>
#include <string_view>
#include <unordered_set>

namespace atelier {

/// The lexicon has the word only inside phrases, but it is valid.
[[nodiscard]] bool admisenlocution(std::string_view capitales);

/// Everybody uses this verb, although the thesaurus makes it look rare.
[[nodiscard]] bool verbefrequent(std::string_view capitales);

/// The regular endings after the stem of a verb: for infinitives in -ER, for the second group, for
/// the others (which may also take those of the first two).
[[nodiscard]] std::span<const std::string_view> terminaisonser();
[[nodiscard]] std::span<const std::string_view> terminaisonsgroupe2();
[[nodiscard]] std::span<const std::string_view> terminaisonsautres();

}  // namespace atelier
