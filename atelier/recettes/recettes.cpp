#include <algorithm>
#include <iterator>

#include "faute.h"
#include "regles.h"

namespace atelier {

const std::vector<Recette>& toutesrecettes() {
    static const auto toutes = [] {
        std::vector<Recette> recettes;
        for (const auto famille :
             {recettesdebase, recettesconjuguees, recettesparpoids, recetteslettreschere,
              recettesmultiples, recettesdifficiles, recettesrallonges, recettesdiverses})
            std::ranges::move(famille(), std::back_inserter(recettes));
        return recettes;
    }();
    return toutes;
}

const Recette& recette(std::string_view fichier) {
    const auto& toutes = toutesrecettes();
    const auto trouvee = std::ranges::find(toutes, fichier, &Recette::fichier);
    if (trouvee == toutes.end())
        throw common::Faute("Fabrication des listes : aucune règle ne dit comment faire « " +
                            std::string(fichier) + " ».");
    return *trouvee;
}

}  // namespace atelier
