#include "acces.h"

#include <array>

namespace menu {
namespace {

constexpr auto aucun = Groupe::Aucun;
constexpr auto uniques = Groupe::Uniques;
constexpr auto multiples = Groupe::Multiples;
constexpr auto autres = Groupe::Autres;
constexpr auto chere = Groupe::Chere;

// Twips: five wide buttons, and under them a line of narrower ones.
constexpr int marge = 150;
constexpr int ecart = 90;
constexpr int largeurgroupe = 2628;

constexpr ui::Cadrage premier(int rang) {
    return {marge + rang * (largeurgroupe + ecart), 660, largeurgroupe, 600};
}
constexpr ui::Cadrage second(int gauche, int largeur) {
    return {marge + gauche, 1410, largeur, 510};
}

constexpr std::array tous{
    Acces{"Command1", -1, "BASES TECHNIQUES", "bt", aucun, aucun, premier(0)},
    Acces{"Command2", -1, "TECHNIQUE APPROFONDIE", "ta", aucun, aucun, premier(1)},
    Acces{"Command3", -1, "SCRABBLES UNIQUES", "", uniques, aucun, premier(2)},
    Acces{"Command4", -1, "SCRABBLES MULTIPLES", "", multiples, aucun, premier(3)},
    Acces{"Command5", -1, "AUTRES LISTES", "", autres, aucun, premier(4)},
    Acces{"Command7", 0, "Conjugaisons et 1 seul non conjugué", "conja", uniques, uniques,
          second(0, 3510)},
    Acces{"Command7", 1, "6 lettres", "6", uniques, uniques, second(3600, 1350)},
    Acces{"Command7", 2, "7 lettres", "7", uniques, uniques, second(5040, 1350)},
    Acces{"Command7", 3, "8 lettres", "8", uniques, uniques, second(6480, 1350)},
    Acces{"Command7", 4, "Lettre chère   7 et 8 L", "lc78", chere, uniques, second(7920, 2460)},
    Acces{"Command7", 5, "Duos 7 lettres", "duos7", multiples, multiples, second(0, 2340)},
    Acces{"Command7", 6, "Duos 8 lettres", "duos8", multiples, multiples, second(2430, 2340)},
    Acces{"Command7", 7, "Trios 7 et 8 L", "trios", multiples, multiples, second(4860, 2340)},
    Acces{"Command7", 8, "Quatuors et plus  7 et 8 L", "quatquin", multiples, multiples,
          second(7290, 3510)},
    Acces{"Command7", 9, "Conjugaisons", "conjm", multiples, multiples, second(10890, 2610)},
    Acces{"Command8", -1, "poids < 12", "78lca", chere, chere, second(10470, 1470)},
    Acces{"Command9", -1, "poids > 11", "78lcb", chere, chere, second(12030, 1470)},
    Acces{"Command15", 0, "Formations difficiles", "formdif", autres, autres, second(0, 4440)},
    Acces{"Command15", 1, "Rallonges d'une lettre", "rallong", autres, autres, second(4530, 4440)},
    Acces{"Command15", 2, "Listes diverses", "autres", autres, autres, second(9060, 4440)},
};

}  // namespace

std::span<const Acces> lesacces() {
    return tous;
}

bool danslegroupe(const Acces& acces, Groupe groupe) {
    if (groupe == aucun)
        return false;
    return acces.groupe == groupe || (groupe == chere && acces.montre == chere);
}

}  // namespace menu
