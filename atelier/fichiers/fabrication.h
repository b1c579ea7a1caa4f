#pragma once

// Makes the files from the recipes.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "regles.h"
#include "thesaurus.h"

namespace atelier {

/// An output file: its path in the output folder, with "/", and its bytes.
struct Fichier {
    std::string chemin;
    std::string octets;
};

/// Called with what is about to be made, in French.
using Progression = std::function<void(std::string_view)>;

/// The rows of part `rang`, from 0, of a list cut into `parties` parts, whose sizes differ by one
/// row at most.
[[nodiscard]] std::span<const Rangee> partie(std::span<const Rangee> rangees, std::size_t parties,
                                             std::size_t rang);

struct Production {
    std::vector<Fichier> fichiers;
    std::vector<std::string> avertissements;  ///< in French: lists cut to what their form can hold
};

/// Makes every file that the program needs: the lists of the catalogue and their parts, the
/// reference lists, the notes, the tables with their pictures, and the licences of the sources.
[[nodiscard]] Production fabriquer(const Matiere& matiere, const Thesaurus& thesaurus,
                                   const Progression& progression);

/// A description of a list, for a player.
struct Description {
    std::string fichier;
    std::string libelle;  ///< caption in the menu; empty for a list that is not in the menu
    std::string regle;    ///< one French sentence
    std::size_t rangees = 0;
};

/// The lists named `nom`, with or without extension; all lists if `nom` is empty.
[[nodiscard]] std::vector<Description> decrire(const Matiere& matiere, std::string_view nom);

}  // namespace atelier
