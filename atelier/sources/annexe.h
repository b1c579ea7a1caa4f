#pragma once

// The judgements that no rule gives: words left out, words kept, verbs everybody knows, and the
// ordinary endings of the three kinds of verbs.

#include <span>
#include <string_view>
#include <unordered_set>

namespace atelier {

/// Entries of the lexicon that are no words of the game: abbreviations, foreign words that live in
/// phrases only, pieces of phrases. Accents are left out.
[[nodiscard]] bool ecarte(std::string_view capitales);

/// Words that the lexicon knows in phrases only and that players may put down all the same.
[[nodiscard]] bool admisenlocution(std::string_view capitales);

/// Verbs everybody uses, which a thesaurus says too little of.
[[nodiscard]] bool verbefrequent(std::string_view capitales);

/// Lemmas that offend, from exclus.txt: lower case, accents kept.
[[nodiscard]] bool exclu(std::string_view lemme);

/// Ordinary endings behind the stem of a verb: of the infinitives in -ER, of the second group, of
/// the others (which may take any of the first two as well).
[[nodiscard]] std::span<const std::string_view> terminaisonser();
[[nodiscard]] std::span<const std::string_view> terminaisonsgroupe2();
[[nodiscard]] std::span<const std::string_view> terminaisonsautres();

}  // namespace atelier
