#pragma once

// The forms of all words in the lexicon, with what it says of each.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "affixes.h"
#include "capitales.h"
#include "grammaire.h"
#include "retouches.h"
#include "thesaurus.h"

namespace atelier {

/// The base form of a word, under which a dictionary lists its other forms.
struct Lemme {
    std::string texte;      ///< lower case, accents kept, UTF-8
    std::string capitales;  ///< any length
    std::uint32_t frequence = 0;
    std::uint64_t cases = 0;      ///< cells of the conjugation that its forms fill
    bool participe = false;       ///< has a past participle
    bool participevarie = false;  ///< has a past participle that agrees

    bool injurieux = false;  ///< offensive: no list asks for it

    /// The cells of a full conjugation that no form of the verb fills.
    [[nodiscard]] std::uint64_t manquantes() const;
    /// The verb lacks a quarter or more of its conjugation.
    [[nodiscard]] bool defectif() const;
    /// The verb has past participles, and none of them agrees.
    [[nodiscard]] bool participesinvariables() const { return participe && !participevarie; }
};

/// One way to read a form; a form may have several.
struct Lecture {
    std::uint32_t lemme = 0;  ///< index in the lemmas
    Traits traits;
    Nature nature = Nature::autre;
    CodeVerbe code;  ///< for a verb only

    [[nodiscard]] bool aunnombre(Nombre nombre) const { return traits.nombre == nombre; }
    [[nodiscard]] bool nonverbale() const { return nature != Nature::verbe; }
    [[nodiscard]] bool al(std::uint16_t temps) const {
        return nature == Nature::verbe && (traits.temps & temps) != 0;
    }
    /// A form of a verb that is neither an infinitive nor a participle.
    [[nodiscard]] bool finie() const {
        return nature == Nature::verbe &&
               (traits.temps & (infinitif | participepresent | participepasse)) == 0;
    }
};

struct Forme {
    Capitales mot;
    Lecture lecture;
};

/// Every form of 2 to 15 letters that may be a word of the game.
struct Lexique {
    std::vector<Forme> formes;
    std::vector<Lemme> lemmes;
    std::size_t expansees = 0;  ///< number of forms, of any length, made from the entries kept
};

/// Makes all forms from the text of a dictionary (format: hunspell) and its affixes, with the
/// changes of `retouches`. Reports call the text `chemin`. Throws `common::Faute`, with the line,
/// for a text that is not a dictionary or is cut short, and for an added verb if the dictionary
/// lacks the verb that it is conjugated like.
[[nodiscard]] Lexique lirelexique(std::string_view texte, std::string_view chemin,
                                  const Affixes& affixes, const Thesaurus& thesaurus,
                                  const Retouches& retouches);

}  // namespace atelier
