#include <gmock/gmock.h>

#include "hasard.h"
#include "horloge.h"

namespace test_horloge {
namespace {

TEST(Horloge, date_et_heure_en_deux_chiffres) {
    const common::Instant instant{2024, 2, 9, 7, 5, 3};
    EXPECT_EQ(instant.date(), "09/02/2024");
    EXPECT_EQ(instant.heuredujour(), "07:05:03");
    EXPECT_EQ(instant.secondesdepuisminuit(), 7 * 3600 + 5 * 60 + 3);
}

TEST(Horloge, une_annee_courte_garde_quatre_chiffres) {
    EXPECT_EQ((common::Instant{987, 12, 31}.date()), "31/12/0987");
}

TEST(Horloge, bornes_d_un_jour) {
    EXPECT_EQ((common::Instant{2024, 1, 1}.secondesdepuisminuit()), 0);
    EXPECT_EQ((common::Instant{2024, 1, 1, 23, 59, 59}.secondesdepuisminuit()), 86399);
}

TEST(Hasard, tire_de_zero_compris_a_un_exclu) {
    common::HasardReel hasard;
    hasard.amorcer(12);
    double moyenne = 0;
    constexpr int tirages = 10000;
    for (int i = 0; i < tirages; ++i) {
        const double nombre = hasard.tirer();
        ASSERT_GE(nombre, 0);
        ASSERT_LT(nombre, 1);
        moyenne += nombre / tirages;
    }
    EXPECT_NEAR(moyenne, 0.5, 0.05);
}

TEST(Hasard, deux_amorces_de_la_meme_seconde_different) {
    common::HasardReel hasard;
    hasard.amorcer(12);
    const double premier = hasard.tirer();
    hasard.amorcer(12);
    EXPECT_NE(hasard.tirer(), premier);
}

}  // namespace
}  // namespace test_horloge
