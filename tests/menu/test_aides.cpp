#include <gtest/gtest.h>

#include "aides.h"
#include "attendu.h"
#include "lignes.h"

namespace test_aides {
namespace {

class Aides : public testing::TestWithParam<essai::Rangee> {};

TEST_P(Aides, de_la_rangee) {
    const auto& rangee = GetParam();
    EXPECT_EQ(menu::aidetout(menu::panneau(rangee.panneau), rangee.rang), rangee.aidetout);
    EXPECT_EQ(menu::aidelibelle(menu::panneau(rangee.panneau), rangee.rang), rangee.aidelibelle);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Aides,
                         testing::ValuesIn(essai::lesrangees().begin(), essai::lesrangees().end()),
                         essai::nomderangee);

class Aidespanneaux : public testing::TestWithParam<essai::Panneau> {};

TEST_P(Aidespanneaux, a_l_ouverture) {
    EXPECT_EQ(menu::panneau(GetParam().cle)->aide, GetParam().aide);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Aidespanneaux,
                         testing::ValuesIn(essai::lespanneaux().begin(),
                                           essai::lespanneaux().end()),
                         essai::nomdepanneau);

TEST(Aides, n_existent_pas_hors_des_rangees) {
    for (const auto* cle : {"lc78", "", "78", "duos", "7 8"}) {
        for (std::size_t r = 0; r < 8; ++r) {
            EXPECT_EQ(menu::aidetout(menu::panneau(cle), r), "") << cle;
            EXPECT_EQ(menu::aidelibelle(menu::panneau(cle), r), "") << cle;
        }
    }
    EXPECT_EQ(menu::aidetout(menu::panneau("autres"), 7), "");
    EXPECT_EQ(menu::aidelibelle(menu::panneau("autres"), 7), "");
    EXPECT_EQ(menu::aidelibelle(menu::panneau("bt"), 6), "");
    EXPECT_EQ(menu::aidelibelle(menu::panneau("conjm"), 7), "");
}

TEST(Bienvenue, nomme_l_utilisateur) {
    EXPECT_EQ(menu::bienvenue("Zoé"),
              "Bienvenue Zoé.\nPassez votre souris sur les boutons et les infos utiles "
              "s'afficheront ici.\nBon entraînement !");
}

}  // namespace
}  // namespace test_aides
