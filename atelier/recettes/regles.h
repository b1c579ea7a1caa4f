#pragma once

// The recipes: what each list of the catalogue holds, and how it is chosen. A recipe stands among
// those of its family of lists, and is found by the file name of its list.

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "contenu.h"
#include "difficulte.h"
#include "nouveautes.h"
#include "vocabulaire.h"

namespace atelier {

/// What recipes choose from.
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
    bool verbeadire = false;  ///< its conjugations do not show their verb, so the notes name it
};

/// The recipes of all lists of the catalogue.
[[nodiscard]] const std::vector<Recette>& toutesrecettes();

/// The recipe of a list. Throws `common::Faute` for a file that has none.
[[nodiscard]] const Recette& recette(std::string_view fichier);

/// New words of 7 and 8 letters with a high-value letter, alone on their rack.
[[nodiscard]] Contenu nouveauteschere(const Vocabulaire& v, const Nouveautes& nouveautes);

// The recipes of each family of lists.
[[nodiscard]] std::vector<Recette> recettesdebase();
[[nodiscard]] std::vector<Recette> recettesconjuguees();
[[nodiscard]] std::vector<Recette> recettesparpoids();  // 6, 7 and 8 letters, none of high value
[[nodiscard]] std::vector<Recette> recetteslettreschere();  // 7 and 8 letters, one of high value
[[nodiscard]] std::vector<Recette> recettesmultiples();     // several solutions a rack, and duos
[[nodiscard]] std::vector<Recette> recettesdifficiles();
[[nodiscard]] std::vector<Recette> recettesrallonges();
[[nodiscard]] std::vector<Recette> recettesdiverses();

}  // namespace atelier
