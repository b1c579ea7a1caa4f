#include "partage.h"

#include "nombre.h"

namespace common {

void VariablesDialog2::affecterechantillons(std::int16_t nbser) {
    const auto taille = [nbser](int parserie, int seule) {
        const std::int64_t produit = nbser >= 2 ? std::int64_t{parserie} * nbser : seule;
        return entier16(produit, "Taille des échantillons");
    };
    nbechuni = taille(30, 30);
    nbechduo = taille(16, 20);
    nbechtri = taille(10, 20);
    nbechqua = taille(8, 10);
    nbechqui = taille(5, 10);
}

}  // namespace common
