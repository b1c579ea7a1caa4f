#include <bit>

#include <gmock/gmock.h>

#include "grammaire.h"
#include "lexique.h"

namespace test_grammaire {
namespace {

using namespace atelier;

struct Forme {
    const char* nom;
    std::uint16_t temps;
    std::uint8_t personnes;
    int cases;
};
void PrintTo(const Forme& forme, std::ostream* os) {
    *os << forme.nom;
}
class Cases : public testing::TestWithParam<Forme> {};
TEST_P(Cases, en_remplit_autant) {
    Traits traits;
    traits.temps = GetParam().temps;
    traits.personnes = GetParam().personnes;
    EXPECT_EQ(std::popcount(cases(traits)), GetParam().cases);
}
INSTANTIATE_TEST_SUITE_P(Grammaire, Cases,
                         testing::Values(Forme{"infinitif", infinitif, sanspersonne, 1},
                                         Forme{"participe_passe", participepasse, sanspersonne, 1},
                                         Forme{"present_je_il", present, je | il, 2},
                                         Forme{"present_et_subjonctif", present | subjonctif,
                                               je | il, 4},
                                         Forme{"imperatif_tu", imperatif, tu, 1},
                                         Forme{"imperatif_sans_je", imperatif, je | il | ils, 0},
                                         Forme{"devant_son_pronom", present, inversee, 0}),
                         [](const auto& rangee) { return rangee.param.nom; });

TEST(Grammaire, un_verbe_complet_remplit_toutes_les_cases) {
    Traits tout;
    for (const auto* champ : {"po:infi", "po:ppre", "po:ppas", "po:ipre", "po:iimp", "po:ipsi",
                              "po:ifut", "po:cond", "po:spre", "po:simp", "po:impe", "po:1sg",
                              "po:2sg", "po:3sg", "po:1pl", "po:2pl", "po:3pl!"})
        EXPECT_TRUE(tout.lire(champ)) << champ;
    EXPECT_EQ(std::popcount(cases(tout)), static_cast<int>(nombredecases));
}

TEST(Grammaire, un_verbe_est_defectif_quand_il_lui_manque_douze_cases) {
    Lemme lemme;
    lemme.cases = (1ULL << nombredecases) - 1;
    EXPECT_FALSE(lemme.defectif());
    lemme.cases >>= 11U;
    EXPECT_FALSE(lemme.defectif());
    lemme.cases >>= 1U;
    EXPECT_TRUE(lemme.defectif());
    EXPECT_EQ(lemme.manquantes(), 0xFFFULL << (nombredecases - 12));
}

TEST(Grammaire, le_code_d_un_verbe_se_lit_place_par_place) {
    CodeVerbe code;
    ASSERT_TRUE(lirecode("v3_itnq__a", code));
    EXPECT_EQ(code.groupe, '3');
    EXPECT_TRUE(code.transitif);
    ASSERT_TRUE(lirecode("v0ei_____a", code));
    EXPECT_EQ(code.groupe, '0');
    EXPECT_FALSE(code.transitif);
    EXPECT_TRUE(code.decrit);
    ASSERT_TRUE(lirecode("v3_i____zz", code));
    EXPECT_FALSE(code.decrit);
    EXPECT_FALSE(lirecode("nom", code));
    EXPECT_FALSE(lirecode("v4_it____a", code));
}

}  // namespace
}  // namespace test_grammaire
