#pragma once

// The words of the lexicon, form by form, with what it says of each.

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

/// A word as the head of its forms.
struct Lemme {
    std::string texte;      ///< lower case, accents kept, UTF-8
    std::string capitales;  ///< any length
    std::uint32_t frequence = 0;
    std::uint64_t cases = 0;      ///< of the conjugation, as `cases` tells
    bool participe = false;       ///< has a past participle
    bool participevarie = false;  ///< has a past participle that agrees

    bool injurieux = false;  ///< offends: no list asks it

    /// The cells of a full conjugation that the verb lacks.
    [[nodiscard]] std::uint64_t manquantes() const;
    /// A verb that lacks a quarter or more of its conjugation.
    [[nodiscard]] bool defectif() const;
    /// A verb with past participles, none of which agrees.
    [[nodiscard]] bool participesinvariables() const { return participe && !participevarie; }
};

/// One thing that a form may be.
struct Lecture {
    std::uint32_t lemme = 0;  ///< place in the lemmas
    Traits traits;
    Nature nature = Nature::autre;
    CodeVerbe code;  ///< of a verb only

    [[nodiscard]] bool aunnombre(Nombre nombre) const { return traits.nombre == nombre; }
    [[nodiscard]] bool nonverbale() const { return nature != Nature::verbe; }
    [[nodiscard]] bool al(std::uint16_t temps) const {
        return nature == Nature::verbe && (traits.temps & temps) != 0;
    }
    /// Neither an infinitive nor a participle.
    [[nodiscard]] bool finie() const {
        return nature == Nature::verbe &&
               (traits.temps & (infinitif | participepresent | participepasse)) == 0;
    }
};

struct Forme {
    Capitales mot;
    Lecture lecture;
};

/// Every form of 2 to 15 letters that the game may know.
struct Lexique {
    std::vector<Forme> formes;
    std::vector<Lemme> lemmes;
    std::size_t expansees = 0;  ///< forms made from the entries kept, of any length
};

/// Expands the text of a dictionary (format: hunspell) by its affixes, changed by hand as
/// `retouches` says. A verb added whose model the dictionary lacks is left out. `chemin` names the
/// text in reports. Throws `common::Faute`, with the line, for a text that is no dictionary or that
/// is cut.
[[nodiscard]] Lexique lirelexique(std::string_view texte, std::string_view chemin,
                                  const Affixes& affixes, const Thesaurus& thesaurus,
                                  const Retouches& retouches);

}  // namespace atelier
