#include "parcours.h"

#include "valeurs.h"

namespace multi {

std::optional<int> parcours(int rang, int code, int nbsolutions) {
    const int dernierecolonne = (nbsolutions - 1) * nbtirages;
    const int derniere = nbsolutions * nbtirages - 1;
    switch (code) {
        case ui::touches::entree:
        case ui::touches::droite:
            return rang < dernierecolonne ? rang + nbtirages : rang - dernierecolonne + 1;
        case ui::touches::gauche:
            return rang >= nbtirages ? rang - nbtirages : dernierecolonne + rang;
        case ui::touches::bas:
            return rang < derniere ? rang + 1 : dernierecolonne;
        case ui::touches::haut:
            return rang > 0 ? rang - 1 : nbtirages - 1;
        default:
            return std::nullopt;
    }
}

}  // namespace multi
