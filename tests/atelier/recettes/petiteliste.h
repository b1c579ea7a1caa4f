#pragma once

// The lists of a small lexicon.

#include <string>
#include <string_view>
#include <vector>

#include "petitlexique.h"
#include "regles.h"

namespace essais {

/// The rows of a list, named by its file.
inline std::vector<std::string> liste(std::string_view fichier, const atelier::Vocabulaire& v) {
    const atelier::Difficulte difficulte(v);
    const atelier::Nouveautes nouveautes;
    std::vector<std::string> lignes;
    for (const auto& r : atelier::recette(fichier).faire({v, difficulte, nouveautes}).rangees)
        lignes.push_back(r.texte());
    return lignes;
}

}  // namespace essais
