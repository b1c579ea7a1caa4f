#include "regles.h"

namespace atelier {

std::vector<Recettes> toutesrecettes() {
    std::vector<Recettes> toutes;
    recettesdebase(toutes);
    recettesconjuguees(toutes);
    recettesparpoids(toutes);
    recetteslettreschere(toutes);
    recettesmultiples(toutes);
    recettesdifficiles(toutes);
    recettesrallonges(toutes);
    recettesdiverses(toutes);
    return toutes;
}

}  // namespace atelier
