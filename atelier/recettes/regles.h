#pragma once

// The rules of the lists: what each list of the catalogue holds and how that is chosen. A recipe is
// a row of the family that its list belongs to, and is looked up by the file of the list.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "contenu.h"
#include "difficulte.h"
#include "nouveautes.h"
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
    std::string fichier;      ///< name of the list in the catalogue
    std::string description;  ///< one French sentence
    std::function<Contenu(const Matiere&)> faire;
    bool verbeadire = false;  ///< its conjugations do not show their verb: the notes say it
};

/// The recipes of all lists of the catalogue.
[[nodiscard]] const std::vector<Recette>& toutesrecettes();

/// The recipe of a list. Throws `common::Faute` for a file that has none.
[[nodiscard]] const Recette& recette(std::string_view fichier);

/// New words of 7 and 8 letters with a dear letter, alone on their rack.
[[nodiscard]] Contenu nouveauteschere(const Vocabulaire& v, const Nouveautes& nouveautes);

// One function a family of lists.
[[nodiscard]] std::vector<Recette> recettesdebase();
[[nodiscard]] std::vector<Recette> recettesconjuguees();
[[nodiscard]] std::vector<Recette> recettesparpoids();  // 6, 7 and 8 letters, none of high value
[[nodiscard]] std::vector<Recette> recetteslettreschere();  // 7 and 8 letters, one of high value
[[nodiscard]] std::vector<Recette> recettesmultiples();     // several solutions a rack, and duos
[[nodiscard]] std::vector<Recette> recettesdifficiles();
[[nodiscard]] std::vector<Recette> recettesrallonges();
[[nodiscard]] std::vector<Recette> recettesdiverses();

}  // namespace atelier
