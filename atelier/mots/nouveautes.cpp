#include "nouveautes.h"

#include <algorithm>
#include <iterator>

namespace atelier {

Dictionnaire comparer(const Dictionnaire& ancienne, const Dictionnaire& nouvelle,
                      std::size_t placesmax) {
    Dictionnaire nouveaux;
    std::set_difference(nouvelle.begin(), nouvelle.end(), ancienne.begin(), ancienne.end(),
                        std::back_inserter(nouveaux));
    std::erase_if(nouveaux, [](const Capitales& mot) { return mot.taille() > longueurnouveautes; });
    nouveaux.resize(std::min(nouveaux.size(), placesmax));
    return nouveaux;
}

}  // namespace atelier
