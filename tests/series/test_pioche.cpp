#include <deque>
#include <vector>

#include <gmock/gmock.h>

#include "pioche.h"
#include "serieessai.h"

namespace test_pioche {
namespace {

using series::Comblement;
using testing::ElementsAreArray;

const auto regle = [](const auto& cas) { return cas.param.regle; };

constexpr double presqueun = 1.0 - 1.0 / 9007199254740992.0;

struct Cas {
    const char* regle;
    std::deque<double> nombres;
    int total;
    int nombre;
    Comblement comblement;
    std::vector<int> tires;
};

class Tirage : public testing::TestWithParam<Cas> {};

TEST_P(Tirage, sans_remise) {
    const auto& cas = GetParam();
    essai::Suite hasard(cas.nombres);
    EXPECT_THAT(series::tirersansremise(hasard, cas.total, cas.nombre, cas.comblement),
                ElementsAreArray(cas.tires));
}

INSTANTIATE_TEST_SUITE_P(
    , Tirage,
    testing::Values(
        Cas{"dernier_le_dernier_comble_la_place", {0}, 5, 5, Comblement::Dernier, {0, 4, 3, 2, 1}},
        Cas{"suivants_les_suivants_descendent", {0}, 5, 5, Comblement::Suivants, {0, 1, 2, 3, 4}},
        Cas{"dernier_par_la_fin", {presqueun}, 4, 4, Comblement::Dernier, {3, 2, 1, 0}},
        Cas{"suivants_par_la_fin", {presqueun}, 4, 4, Comblement::Suivants, {3, 2, 1, 0}},
        Cas{"dernier_au_milieu", {0.25, 0.5, 0}, 4, 3, Comblement::Dernier, {1, 3, 0}},
        Cas{"suivants_au_milieu", {0.25, 0.5, 0}, 4, 3, Comblement::Suivants, {1, 2, 0}},
        Cas{"la_partie_entiere_decide", {0.4999, 0.5}, 2, 2, Comblement::Dernier, {0, 1}},
        Cas{"moins_que_le_total", {0.25}, 100, 2, Comblement::Suivants, {25, 24}},
        Cas{"aucun", {0}, 3, 0, Comblement::Dernier, {}},
        Cas{"d_un_total_nul", {0}, 0, 0, Comblement::Suivants, {}}),
    regle);

class Uniforme : public testing::TestWithParam<Comblement> {};

/// No index twice, none left out, and each index as likely as any other to come first.
TEST_P(Uniforme, chaque_indice_a_sa_chance) {
    constexpr int total = 10;
    constexpr int essais = 20000;
    common::HasardReel hasard;
    std::vector<int> premiers(total);
    for (int i = 0; i < essais; ++i) {
        auto tires = series::tirersansremise(hasard, total, total, GetParam());
        ++premiers[static_cast<std::size_t>(tires.front())];
        ASSERT_THAT(tires, testing::UnorderedElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9));
    }
    // The expected count is 2000, its standard deviation 42.
    for (const int nombre : premiers)
        EXPECT_NEAR(nombre, essais / total, 250);
}

INSTANTIATE_TEST_SUITE_P(Tirage, Uniforme,
                         testing::Values(Comblement::Dernier, Comblement::Suivants));

}  // namespace
}  // namespace test_pioche
