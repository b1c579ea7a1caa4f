#pragma once

// The rules of the lists: for each panel of the menu, row by row, what its list holds and how it is
// chosen.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "difficulte.h"
#include "nouveautes.h"
#include "rangees.h"
#include "vocabulaire.h"

namespace atelier {

/// What the rules choose from.
struct Matiere {
    const Vocabulaire& mots;
    const Difficulte& difficulte;
    const Nouveautes& nouveautes;
};

/// How a list is made.
struct Recette {
    std::string description;  ///< one French sentence
    std::function<Contenu(const Matiere&)> faire;
};

/// The recipes of a panel, in the order of its rows.
struct Recettes {
    std::string_view panneau;  ///< key of the panel in the catalogue
    std::vector<Recette> recettes;
};

/// The recipes of all panels.
[[nodiscard]] std::vector<Recettes> toutesrecettes();

/// New words of 7 and 8 letters with a dear letter, alone on their rack.
[[nodiscard]] Contenu nouveauteschere(const Vocabulaire& v, const Nouveautes& nouveautes);

// One function a family of panels.
void recettesdebase(std::vector<Recettes>& toutes);        // bt, ta
void recettesconjuguees(std::vector<Recettes>& toutes);    // conja
void recettesparpoids(std::vector<Recettes>& toutes);      // 6, 7, 8
void recetteslettreschere(std::vector<Recettes>& toutes);  // 78lca, 78lcb
void recettesmultiples(std::vector<Recettes>& toutes);     // duos7 to conjm
void recettesdifficiles(std::vector<Recettes>& toutes);    // formdif
void recettesrallonges(std::vector<Recettes>& toutes);     // rallong
void recettesdiverses(std::vector<Recettes>& toutes);      // autres

}  // namespace atelier
