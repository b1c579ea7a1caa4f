#pragma once

// The suffix rules of the lexicon's affix file (format: hunspell, "FLAG long", UTF-8).

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "grammaire.h"

namespace atelier {

/// What a word must end with: a set of letters for each of its last places.
class Condition {
  public:
    /// Reads "." or a run of letters and [..] or [^..] sets; false if a bracket is left open.
    [[nodiscard]] bool lire(std::u32string_view texte);
    [[nodiscard]] bool convient(std::u32string_view mot) const;

  private:
    struct Place {
        std::u32string lettres;
        bool sauf = false;
    };
    std::vector<Place> places_;
};

/// Replaces the ending `retrait` of a word by `ajout`; the form that results has these traits.
struct Regle {
    std::u32string retrait;
    std::string ajout;  ///< capitals
    Condition condition;
    Traits traits;
};

class Affixes {
  public:
    /// Reads the text of an affix file, which reports call `chemin`. Throws `common::Faute`, with
    /// the line, for a text that is not a UTF-8 affix file with long flags, or that is cut short.
    Affixes(std::string_view texte, std::string_view chemin);

    /// The suffix rules of a flag (two characters); empty for a prefix flag.
    [[nodiscard]] const std::vector<Regle>& suffixes(std::string_view drapeau) const;
    /// The file defines this flag: as suffix, prefix or mark.
    [[nodiscard]] bool connait(std::string_view drapeau) const;

  private:
    friend class LecteurAffixes;
    std::unordered_map<std::string, std::vector<Regle>> drapeaux_;
};

/// Flags that say something of an entry instead of giving it forms.
constexpr std::string_view drapeausansforme = "()";  ///< the entry itself is not a word
constexpr std::string_view drapeaucasse = "||";      ///< a symbol, whose case matters
constexpr std::string_view drapeauunite = "Um";      ///< a unit of measure that takes prefixes
constexpr std::string_view drapeauunitefixe = "Ui";  ///< a unit without a plural

}  // namespace atelier
