#include "partage.h"

#include "listes.h"
#include "nombre.h"

namespace common {

void VariablesDialog2::affecterechantillons(std::int16_t nbser) {
    // 32767 racks in series of 30.
    constexpr std::string_view quoi =
        "Taille des échantillons, 1092 séries au plus (options, ligne 4 de « settings.dat »)";
    const auto taille = [nbser, quoi](int parserie, int seule) {
        const std::int64_t produit = nbser >= 2 ? std::int64_t{parserie} * nbser : seule;
        return entier16(produit, quoi);
    };
    nbechuni = taille(tiragesform1, tiragesform1);
    nbechduo = taille(16, 20);
    nbechtri = taille(10, 20);
    nbechqua = taille(8, 10);
    nbechqui = taille(5, 10);
}

}  // namespace common
