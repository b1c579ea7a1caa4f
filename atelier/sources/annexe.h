#pragma once

// The judgements that no rule gives: words kept, verbs everybody knows, and the ordinary
// endings of the three kinds of verbs.

#include <span>
#include <string_view>
#include <unordered_set>

namespace atelier {

/// Words that the lexicon knows in phrases only and that players may put down all the same.
[[nodiscard]] bool admisenlocution(std::string_view capitales);

/// Verbs everybody uses, which a thesaurus says too little of.
[[nodiscard]] bool verbefrequent(std::string_view capitales);

/// Ordinary endings behind the stem of a verb: of the infinitives in -ER, of the second group, of
/// the others (which may take any of the first two as well).
[[nodiscard]] std::span<const std::string_view> terminaisonser();
[[nodiscard]] std::span<const std::string_view> terminaisonsgroupe2();
[[nodiscard]] std::span<const std::string_view> terminaisonsautres();

}  // namespace atelier
