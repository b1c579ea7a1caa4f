#pragma once

// The thesaurus, which tells how common a lemma is, and gives notes their synonyms.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace atelier {

class Thesaurus {
  public:
    /// An empty thesaurus: every lemma is rare and has no synonyms.
    Thesaurus() = default;
    /// Reads the text of a thesaurus (format: MyThes, UTF-8), which reports call `chemin`. Throws
    /// `common::Faute`, with the line, for a malformed text.
    Thesaurus(std::string texte, std::string_view chemin);

    /// How many times a lower-case word is a synonym of others, plus how many synonyms it has; 0
    /// for a word that the thesaurus lacks.
    [[nodiscard]] std::uint32_t frequence(std::string_view mot) const;
    /// The synonyms of a word, in the order of the thesaurus, except those of several words or with
    /// other signs than letters.
    [[nodiscard]] std::vector<std::string_view> synonymes(std::string_view mot) const;

  private:
    struct Fiche {
        std::uint32_t frequence = 0;
        std::size_t sens = 0;  ///< number of lines of meanings, from `debut` on
        std::size_t debut = 0;
    };

    std::unique_ptr<const std::string> texte_;  // the keys of `fiches_` point into it
    std::unordered_map<std::string_view, Fiche> fiches_;
};

}  // namespace atelier
