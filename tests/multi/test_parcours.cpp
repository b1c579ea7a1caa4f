#include <string>

#include <gtest/gtest.h>

#include "parcours.h"
#include "valeurs.h"

namespace test_parcours {
namespace {

std::string nombre(const testing::TestParamInfo<int>& cas) {
    return "a_" + std::to_string(cas.param) + "_solutions";
}

const auto regle = [](const auto& cas) { return cas.param.regle; };

using multi::parcours;
namespace touches = ui::touches;

constexpr int dernierplace = multi::nbtirages - 1;

int boite(int place, int solution) {
    return solution * multi::nbtirages + place;
}

/// The walk, for a number of solutions a rack.
class Parcours : public testing::TestWithParam<int> {
  protected:
    [[nodiscard]] static int n() { return GetParam(); }
    /// Calls `verifier` for every box.
    template <class V>
    static void partout(const V& verifier) {
        for (int place = 0; place <= dernierplace; ++place)
            for (int solution = 0; solution < n(); ++solution)
                verifier(place, solution);
    }
};

INSTANTIATE_TEST_SUITE_P(, Parcours, testing::Values(2, 3, 4, 5), nombre);

TEST_P(Parcours, entree_et_droite_suivent_le_tirage_puis_passent_au_suivant) {
    for (const int touche : {touches::entree, touches::droite}) {
        partout([&](int place, int solution) {
            int attendue = boite(0, 1);  // from the very last box
            if (solution < n() - 1)
                attendue = boite(place, solution + 1);
            else if (place < dernierplace)
                attendue = boite(place + 1, 0);
            EXPECT_EQ(parcours(boite(place, solution), touche, n()), attendue)
                << "de " << boite(place, solution);
        });
    }
}

TEST_P(Parcours, gauche_recule_dans_le_tirage_et_en_fait_le_tour) {
    partout([&](int place, int solution) {
        const int attendue = boite(place, solution > 0 ? solution - 1 : n() - 1);
        EXPECT_EQ(parcours(boite(place, solution), touches::gauche, n()), attendue)
            << "de " << boite(place, solution);
    });
}

TEST_P(Parcours, bas_suit_les_colonnes_et_reste_dans_la_derniere) {
    partout([&](int place, int solution) {
        const int colonne = solution < n() - 1 ? solution + 1 : solution;
        const int attendue = place < dernierplace ? boite(place + 1, solution) : boite(0, colonne);
        EXPECT_EQ(parcours(boite(place, solution), touches::bas, n()), attendue)
            << "de " << boite(place, solution);
    });
}

TEST_P(Parcours, haut_remonte_a_travers_les_colonnes_et_de_la_premiere_boite_va_a_la_9) {
    partout([&](int place, int solution) {
        const int rang = boite(place, solution);
        EXPECT_EQ(parcours(rang, touches::haut, n()), rang == 0 ? 9 : rang - 1) << "de " << rang;
    });
}

TEST_P(Parcours, les_autres_touches_ne_menent_nulle_part) {
    partout([&](int place, int solution) {
        for (const int touche : {touches::suppr, touches::retour, touches::f8, touches::f12,
                                 touches::tab, static_cast<int>('A'), 0})
            EXPECT_EQ(parcours(boite(place, solution), touche, n()), std::nullopt);
    });
}

struct Pas {
    const char* regle;
    int de;
    int touche;
    int solutions;
    int a;
};

class Exemple : public testing::TestWithParam<Pas> {};

TEST_P(Exemple, mene) {
    const auto& pas = GetParam();
    EXPECT_EQ(parcours(pas.de, pas.touche, pas.solutions), pas.a);
}

INSTANTIATE_TEST_SUITE_P(
    Parcours, Exemple,
    testing::Values(Pas{"duo_entree_de_0_a_10", 0, touches::entree, 2, 10},
                    Pas{"duo_entree_de_10_a_1", 10, touches::entree, 2, 1},
                    Pas{"duo_entree_de_19_a_10", 19, touches::entree, 2, 10},
                    Pas{"duo_bas_de_9_a_10", 9, touches::bas, 2, 10},
                    Pas{"duo_bas_de_19_a_10", 19, touches::bas, 2, 10},
                    Pas{"duo_haut_de_10_a_9", 10, touches::haut, 2, 9},
                    Pas{"duo_gauche_de_3_a_13", 3, touches::gauche, 2, 13},
                    Pas{"quintet_entree_de_49_a_10", 49, touches::entree, 5, 10},
                    Pas{"quintet_bas_de_49_a_40", 49, touches::bas, 5, 40},
                    Pas{"quintet_gauche_de_0_a_40", 0, touches::gauche, 5, 40}),
    regle);

}  // namespace
}  // namespace test_parcours
