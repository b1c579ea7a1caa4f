#pragma once

// The suffix rules of the lexicon's affix file (format: hunspell, "FLAG long", UTF-8).

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "grammaire.h"

namespace atelier {

/// What a word must end with: one set of letters for each place, the last place last.
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

/// Takes `retrait` off the end of a word, puts `ajout` there, and says what the form is.
struct Regle {
    std::u32string retrait;
    std::string ajout;  ///< capitals
    Condition condition;
    Traits traits;
};

class Affixes {
  public:
    /// Reads the text of an affix file; `chemin` names it in reports. Throws `common::Faute`, with
    /// the line, for a file that is no UTF-8 affix file with long flags, or that is cut.
    Affixes(std::string_view texte, std::string_view chemin);

    /// The suffix rules of a flag of two characters; none for a prefix flag.
    [[nodiscard]] const std::vector<Regle>& suffixes(std::string_view drapeau) const;
    /// The file defines this flag, as a suffix, as a prefix, or as a mark.
    [[nodiscard]] bool connait(std::string_view drapeau) const;

  private:
    friend class LecteurAffixes;
    std::unordered_map<std::string, std::vector<Regle>> drapeaux_;
};

/// Flags that mark an entry instead of giving it forms.
constexpr std::string_view drapeausansforme = "()";  ///< the entry itself is not a form
constexpr std::string_view drapeaucasse = "||";      ///< lower case kept: a symbol
constexpr std::string_view drapeauunite = "Um";      ///< a unit of measure, with prefixes
constexpr std::string_view drapeauunitefixe = "Ui";  ///< a unit that has no plural form

}  // namespace atelier
