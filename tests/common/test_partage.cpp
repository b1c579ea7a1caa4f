#include <array>

#include <gmock/gmock.h>

#include "faute.h"
#include "partage.h"

namespace test_partage {
namespace {

struct Taille {
    const char* nom;
    std::int16_t series;
    std::array<int, 5> tailles;
};
class Echantillons : public testing::TestWithParam<Taille> {};
TEST_P(Echantillons, selon_le_nombre_de_series) {
    common::VariablesDialog2 v;
    v.affecterechantillons(GetParam().series);
    EXPECT_THAT((std::array<int, 5>{v.nbechuni, v.nbechduo, v.nbechtri, v.nbechqua, v.nbechqui}),
                testing::ElementsAreArray(GetParam().tailles));
}
INSTANTIATE_TEST_SUITE_P(
    Partage, Echantillons,
    testing::Values(Taille{"cinq_series", 5, {150, 80, 50, 40, 25}},
                    Taille{"deux_series", 2, {60, 32, 20, 16, 10}},
                    Taille{"une_serie", 1, {30, 20, 20, 10, 10}},
                    Taille{"aucune", 0, {30, 20, 20, 10, 10}},
                    Taille{"moins_de_zero", -4, {30, 20, 20, 10, 10}},
                    Taille{"la_plus_grande", 1092, {32760, 17472, 10920, 8736, 5460}}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Partage, une_taille_qui_deborde_est_une_faute) {
    common::VariablesDialog2 v;
    try {
        v.affecterechantillons(1093);
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_STREQ(faute.what(),
                     "Taille des échantillons, 1092 séries au plus (options, ligne 4 de "
                     "« settings.dat ») : la valeur 32790 sort des limites admises (de -32768 à "
                     "32767).");
    }
}

TEST(Partage, la_couleur_est_par_defaut_jusqu_a_ce_qu_on_la_choisisse) {
    EXPECT_EQ(common::VariablesForm3().couleurdufond, "Par défaut");
}

}  // namespace
}  // namespace test_partage
