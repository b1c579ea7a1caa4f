#pragma once

// A search, from its text: criteria `key=value` separated by blanks, all of which must hold, and
// how to order and show what is found.

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "glossaire.h"

namespace recherche {

/// Why a search cannot be done: the criterion, and what is wrong in French.
struct Refus {
    std::string critere;
    std::string ennui;

    [[nodiscard]] std::string texte() const { return critere + " : " + ennui + "."; }
};

/// A range, both ends included.
struct Plage {
    std::uint32_t min = 0;
    std::uint32_t max = 0;
    [[nodiscard]] bool contient(std::size_t valeur) const { return valeur >= min && valeur <= max; }
};

/// Whether the word at this place in the glossary is kept.
using Passe = std::function<bool(const Fiche& fiche, std::uint32_t place)>;

enum class Forme : std::uint8_t { liste, mots };

struct Demande {
    std::vector<Passe> criteres;
    Ordre ordre = Ordre::alphabet;
    std::optional<std::uint64_t> graine;  ///< of `Ordre::hasard`; none: any
    std::optional<std::size_t> max;       ///< words kept, from the first of the order
    Forme forme = Forme::liste;
    std::optional<Plage> par;  ///< words found on a rack

    /// Criteria that can never hold, so far as the files tell: French sentences.
    std::vector<std::string> remarques;
};

/// The words of a list of the folder `listes`, or what is wrong with it in French.
using Motsdeliste = std::variant<std::vector<std::string>, std::string>;
using Lireliste = std::function<Motsdeliste(std::string_view fichier)>;

/// What criteria need to know beside the word.
struct Contexte {
    const Glossaire& glossaire;
    Lireliste liste;  ///< any list, whole or a part, reference lists included
};

/// Reads the text of a search. A value between double quotes may hold blanks. Keys come in any
/// order; a filter given twice holds twice.
[[nodiscard]] std::variant<Demande, Refus> liredemande(std::string_view texte,
                                                       const Contexte& contexte);

/// The keys, in the order of the manual.
[[nodiscard]] std::vector<std::string_view> cles();

}  // namespace recherche
