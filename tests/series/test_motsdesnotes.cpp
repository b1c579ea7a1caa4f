#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "form1.h"

namespace test_motsdesnotes {
namespace {

using testing::ElementsAreArray;

struct Cas {
    const char* regle;
    const char* tirage;
    const char* solution;
    const char* typ;
    const char* titre;
    std::vector<std::string> mots;
};

class Motsdesnotes : public testing::TestWithParam<Cas> {};

TEST_P(Motsdesnotes, sont) {
    const auto& cas = GetParam();
    EXPECT_THAT(
        series::motsdesnotes(cas.tirage, cas.solution, series::naturedelaliste(cas.typ, cas.titre)),
        ElementsAreArray(cas.mots));
}

constexpr const char* avant = "Rallonges avant de 4 lettres";
constexpr const char* arriere = "Rallonges arrière de 4 lettres";

INSTANTIATE_TEST_SUITE_P(
    , Motsdesnotes,
    testing::Values(
        Cas{"la_solution_hors_des_rallonges", "AB", "BA", "", avant, {"BA"}},
        Cas{"un_joker_hors_des_rallonges_est_du_texte", "?AB", "BAC", "", avant, {"BAC"}},
        Cas{"avant_sans_joker", "RAT", "DE", "rallong", avant, {"DERAT"}},
        Cas{"avant_joker_en_tete_un_mot_par_lettre",
            "?RAT",
            "EP",
            "rallong",
            avant,
            {"ERAT", "PRAT"}},
        Cas{"avant_joker_a_la_fin_est_du_texte", "RAT?", "E", "rallong", avant, {"ERAT?"}},
        Cas{"arriere_sans_joker", "RAT", "ER", "rallong", arriere, {"RATER"}},
        Cas{"arriere_joker_a_la_fin_un_mot_par_lettre",
            "RAT?",
            "ES",
            "rallong",
            arriere,
            {"RATE", "RATS"}},
        Cas{"arriere_joker_en_tete_est_du_texte", "?RAT", "E", "rallong", arriere, {"?RATE"}},
        Cas{"une_lettre_en_double_deux_fois", "?RAT", "EE", "rallong", avant, {"ERAT", "ERAT"}},
        Cas{"joker_sans_lettre", "?RAT", "", "rallong", avant, {}},
        Cas{"autre_titre_aucun_mot", "RAT", "DE", "rallong", "Personnelle", {}},
        Cas{"titre_de_revision", "RAT", "DE", "rallong", "Rallonges avant (révisions)", {"DERAT"}},
        Cas{"lettre_accentuee", "?RAT", "ÉA", "rallong", avant, {"ÉRAT", "ARAT"}}),
    [](const auto& cas) { return cas.param.regle; });

TEST(Limitedesnotes, un_mot_de_plus_que_la_limite_dit_qu_il_y_en_a_trop) {
    const std::string tirage = "?" + std::string(30000, 'A');
    const auto mots =
        series::motsdesnotes(tirage, std::string(900000, 'B'), series::Nature::Rallongesavant);
    EXPECT_EQ(mots.size(), series::limitevariantes + 1);
}

}  // namespace
}  // namespace test_motsdesnotes
