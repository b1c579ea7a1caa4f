#include "partage.h"

#include "listes.h"
#include "nombre.h"

namespace common {

void VariablesDialog2::affecterechantillons(std::int16_t nbser) {
    const auto quoi = "Taille des échantillons, " + std::to_string(plusgrand16 / tiragesform1) +
                      " séries au plus (options, ligne 4 de « settings.dat »)";
    const auto taille = [nbser, &quoi](int parserie, int seule) {
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
