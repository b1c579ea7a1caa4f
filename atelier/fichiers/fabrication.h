#pragma once

// From the recipes to the files.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "regles.h"
#include "thesaurus.h"

namespace atelier {

/// A file of the output: its path from the output folder, with "/", and its bytes.
struct Fichier {
    std::string chemin;
    std::string octets;
};

/// Says what is being made.
using Progression = std::function<void(std::string_view)>;

/// The rows of a part of a list cut in `parties` slices of one size, give or take a row.
[[nodiscard]] std::span<const Rangee> partie(std::span<const Rangee> rangees, std::size_t parties,
                                             std::size_t rang);

struct Production {
    std::vector<Fichier> fichiers;
    std::vector<std::string> avertissements;  ///< French: lists that were cut to fit their form
};

/// Every file that the program needs: the lists of the catalogue and their parts, the reference
/// lists, the notes, the tables and their pictures, and the licences of the sources.
[[nodiscard]] Production fabriquer(const Matiere& matiere, const Thesaurus& thesaurus,
                                   const Progression& progression);

/// What a list holds, for a player.
struct Description {
    std::string fichier;
    std::string libelle;  ///< caption in the menu, empty for the lists that it does not show
    std::string regle;    ///< one French sentence
    std::size_t rangees = 0;
};

/// The lists named `nom` (with or without its extension), or all of them for the empty name.
[[nodiscard]] std::vector<Description> decrire(const Matiere& matiere, std::string_view nom);

}  // namespace atelier
