#pragma once

// The thesaurus, for two things: how common a lemma is, and the synonyms that notes quote.

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace atelier {

class Thesaurus {
  public:
    /// Without a thesaurus every lemma is rare and has no synonym.
    Thesaurus() = default;
    /// Takes the text of a thesaurus (format: MyThes, UTF-8); `chemin` names it in reports. Throws
    /// `common::Faute` with the line where the text is broken.
    Thesaurus(std::string texte, std::string_view chemin);

    /// How often a lower-case word is given as a synonym, plus how many synonyms it is given;
    /// 0 for a word that the thesaurus does not know.
    [[nodiscard]] std::uint32_t frequence(std::string_view mot) const;
    /// The synonyms of a word that are one word of letters each, in the order of the thesaurus.
    [[nodiscard]] std::vector<std::string_view> synonymes(std::string_view mot) const;

  private:
    struct Fiche {
        std::uint32_t frequence = 0;
        std::size_t sens = 0;  ///< lines of meanings, from `debut`
        std::size_t debut = 0;
    };

    std::unique_ptr<const std::string> texte_;  // the keys of `fiches_` point into it
    std::unordered_map<std::string_view, Fiche> fiches_;
};

}  // namespace atelier
