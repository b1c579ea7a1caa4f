#include <string>

#include <gtest/gtest.h>

#include "jugement.h"

namespace test_ratages {
namespace {

using multi::Debordement;
using multi::Ratages;
using series::Etattirage;

/// A rack of two solutions that is missed whole.
multi::Rack manque(const std::string& tirage, const std::string& a, const std::string& b) {
    return {tirage, Etattirage::Repos, {"", ""}, {a, b}};
}

TEST(Ratages, un_mot_manque_deux_fois_fait_une_faute_et_deux_entrees) {
    Ratages ratages;
    for (std::size_t i = 0; i < Ratages::limitemots; ++i)
        ASSERT_TRUE(ratages.raterlemot("MOT"));
    EXPECT_EQ(ratages.nbfautes(), 1);
    EXPECT_FALSE(ratages.raterlemot("MOT"));
    EXPECT_FALSE(ratages.raterlemot("AUTRE"));
    EXPECT_EQ(ratages.nbfautes(), 1);
}

TEST(Ratages, un_tirage_rate_deux_fois_compte_une_fois) {
    Ratages ratages;
    for (std::size_t i = 0; i < Ratages::limitetirages; ++i) {
        ASSERT_TRUE(ratages.raterletirage("T" + std::to_string(i)));
        ASSERT_TRUE(ratages.raterletirage("T" + std::to_string(i)));
    }
    EXPECT_TRUE(ratages.raterletirage("T0"));
    EXPECT_FALSE(ratages.raterletirage("TROP"));
    EXPECT_FALSE(ratages.tiragedejarate("TROP"));
}

TEST(Ratages, la_3002e_solution_manquee_deborde) {
    Ratages ratages;
    for (std::size_t i = 1; i < Ratages::limitemots; ++i)
        ASSERT_TRUE(ratages.raterlemot("MOT"));
    const auto verdict = multi::corrigertirage(manque("T", "A", "B"), ratages);
    EXPECT_EQ(verdict.debordement, Debordement::Motsfaux);
    EXPECT_TRUE(ratages.motdejarate("A"));
    EXPECT_FALSE(ratages.motdejarate("B"));
    EXPECT_FALSE(ratages.tiragedejarate("T"));
}

TEST(Ratages, le_1502e_tirage_manque_deborde) {
    Ratages ratages;
    for (std::size_t i = 0; i < Ratages::limitetirages; ++i)
        ASSERT_TRUE(ratages.raterletirage("T" + std::to_string(i)));
    EXPECT_EQ(multi::corrigertirage(manque("T0", "A", "B"), ratages).debordement,
              Debordement::Aucun);
    EXPECT_EQ(multi::corrigertirage(manque("T", "A", "B"), ratages).debordement,
              Debordement::Tiragesfaux);
}

}  // namespace
}  // namespace test_ratages
