// The judgement of a series with several solutions a rack, on a plain value.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "correctionmulti.h"
#include "rangeesmulti.h"
#include "serieessai.h"

namespace test_correctionmulti {
namespace {

using essai::tiree;
using multi::Ratages;
using multi::Saisis;
using series::Etatreponse;
using series::Etattirage;
using testing::ElementsAre;
using testing::IsEmpty;

const auto regle = [](const auto& cas) { return cas.param.regle; };

/// Two racks of two solutions: boxes 0 and 1 are the first words, 2 and 3 the second ones.
const series::Regles duos{.nbplaces = 2,
                          .nbboites = 4,
                          .limiterangees = 100,
                          .comblement = series::Comblement::Suivants,
                          .enligne =
                              [](std::string_view tirage, std::string_view suite, std::size_t n) {
                                  return multi::lignederangee(tirage, multi::solutions(suite), n);
                              },
                          .rendlettresnues = true,
                          .jugesiaffiche = true,
                          .marquesgardees = "-"};

series::Serie deux() {
    return tiree("AB;A;B\r\nCD;C;D\r\n", series::Nature::Simple, duos);
}

TEST(Corriger, juge_chaque_tirage_par_ses_boites) {
    auto serie = deux();
    Ratages ratages;
    const auto correction = multi::corriger(serie, ratages, {"B", "X", "A", "D"}, 0);
    EXPECT_FALSE(serie.ouverte);
    EXPECT_EQ(correction.nombre, 2);
    EXPECT_EQ(correction.justes, 1);
    EXPECT_EQ(ratages.nbfautes(), 1);
    EXPECT_THAT(serie.verdicts, ElementsAre(Etatreponse::Juste, Etatreponse::Attendue,
                                            Etatreponse::Juste, Etatreponse::Juste));
    EXPECT_THAT(correction.ratees, ElementsAre(series::Ratee{1, "CD;C;D"}));
    ASSERT_EQ(correction.tirages.size(), 2U);
    EXPECT_EQ(correction.tirages[0].etat, std::nullopt);
    EXPECT_EQ(correction.tirages[1].etat, Etattirage::Faux);
    EXPECT_EQ(correction.tirages[1].infobulle, "Vous aviez saisi : X");
}

TEST(Corriger, la_rangee_ratee_a_le_tirage_affiche_et_ses_seules_solutions) {
    auto serie = tiree("AB+C;A;B\r\nCD;C\r\n", series::Nature::Simple, duos);
    serie.places[0].affiche = "ABC";
    Ratages ratages;
    const auto correction = multi::corriger(serie, ratages, {"", "", "", ""}, 0);
    EXPECT_THAT(correction.ratees,
                ElementsAre(series::Ratee{0, "ABC;A;B"}, series::Ratee{1, "CD;C"}));
    EXPECT_EQ(serie.places[1].texte, "CD;C;");
    EXPECT_EQ(serie.verdicts[3], Etatreponse::Repos);
}

/// What a series keeps of its judgements: rack, solutions, what was typed, and whether it was
/// found.
std::vector<std::string> retenus(const series::Serie& serie) {
    std::vector<std::string> lignes;
    for (const auto& juge : jugements(serie)) {
        auto ligne = juge.tirage;
        for (const auto* mots : {&juge.solutions, &juge.saisis})
            for (const auto& mot : *mots)
                ligne += (&mot == &mots->front() ? ";" : ",") + mot;
        lignes.push_back(ligne + (juge.trouve() ? ";1" : ";0"));
    }
    return lignes;
}

TEST(Corriger, retient_les_saisies_d_avant_les_solutions_montrees) {
    auto serie = tiree("AB+C;A;B\r\nCD;C\r\n", series::Nature::Simple, duos);
    serie.places[0].affiche = "ABC";
    Ratages ratages;
    static_cast<void>(multi::corriger(serie, ratages, {"X", "C", "", "Z"}, 0));
    EXPECT_THAT(retenus(serie), ElementsAre("AB+C;A,B;X,;0", "CD;C;C;1"));
}

TEST(Corriger, retient_le_premier_jugement_rate) {
    auto serie = deux();
    serie.critere = {.secondes = true, .seuil = 5};
    Ratages ratages;
    static_cast<void>(multi::jugerboite(serie, ratages, {"A", "", "", ""}, 0, 0));
    static_cast<void>(multi::corriger(serie, ratages, {"A", "X", "B", "D"}, 0));
    EXPECT_THAT(retenus(serie), ElementsAre("AB;A,B;A,;0", "CD;C,D;X,D;0"));
}

TEST(Corriger, sous_les_secondes_le_dernier_tirage_est_juge_deux_fois) {
    auto serie = deux();
    serie.critere = {.secondes = true, .seuil = 5};
    Ratages ratages;
    const auto correction = multi::corriger(serie, ratages, {"A", "X", "B", "D"}, 0);
    EXPECT_EQ(correction.atemps, false);
    EXPECT_EQ(correction.justes, 2);
    EXPECT_EQ(ratages.nbfautes(), 1);
    EXPECT_THAT(correction.ratees, ElementsAre(series::Ratee{1, "CD;C;D"}));
    ASSERT_EQ(correction.tirages.size(), 3U);
    EXPECT_EQ(correction.tirages.front().etat, Etattirage::Faux);
    EXPECT_EQ(correction.tirages.back().etat, std::nullopt);
    EXPECT_EQ(correction.tirages.back().infobulle, "");
    EXPECT_EQ(serie.verdicts[1], Etatreponse::Juste);
}

TEST(Corriger, une_serie_vide_ne_juge_rien) {
    auto serie = tiree("", series::Nature::Simple, duos);
    serie.critere.secondes = true;
    Ratages ratages;
    const auto correction = multi::corriger(serie, ratages, {"", "", "", ""}, 0);
    EXPECT_EQ(correction.nombre, 0);
    EXPECT_THAT(correction.tirages, IsEmpty());
    EXPECT_FALSE(correction.atemps);
}

struct Elimination {
    const char* regle;
    double premierseuil;
    double secondseuil;
    int reste;
};

class Reussites : public testing::TestWithParam<Elimination> {};

/// Two series of one rack, right each time.
TEST_P(Reussites, eliminent_quand_leur_nombre_est_le_seuil) {
    auto serie = tiree("AB;A;B\r\n", series::Nature::Simple, duos);
    Ratages ratages;
    for (const double seuil : {GetParam().premierseuil, GetParam().secondseuil}) {
        serie.critere.seuil = seuil;
        static_cast<void>(multi::corriger(serie, ratages, {"A", "", "B", ""}, 0));
        static_cast<void>(finir(serie, 2, 0));
        essai::Suite hasard({0});
        tirer(serie, hasard);
    }
    EXPECT_EQ(serie.rangees.nbmots(), GetParam().reste);
}

INSTANTIATE_TEST_SUITE_P(
    Multi, Reussites,
    testing::Values(Elimination{"un_a_la_premiere", 1, 1, 0},
                    Elimination{"deux_a_la_deuxieme", 2, 2, 0},
                    Elimination{"trois_pas_encore", 3, 3, 1},
                    Elimination{"un_seuil_abaisse_sous_le_nombre_n_elimine_pas", 3, 1, 1}),
    regle);

TEST(Jugerboite, juge_le_tirage_de_la_boite_et_retient_pour_elle) {
    auto serie = deux();
    serie.critere = {.secondes = true, .seuil = 5};
    Ratages ratages;
    const auto juste = multi::jugerboite(serie, ratages, {"A", "", "B", ""}, 2, 4);
    EXPECT_EQ(juste.atemps, true);
    EXPECT_EQ(serie.rapides[2], series::Rapide::Atemps);
    EXPECT_EQ(serie.rapides[0], series::Rapide::Nonjugee);
    EXPECT_TRUE(serie.ouverte);
    const auto tard = multi::jugerboite(serie, ratages, {"A", "C", "B", "D"}, 1, 5);
    EXPECT_EQ(tard.atemps, false);
    EXPECT_THAT(tard.ratees, IsEmpty());
}

TEST(Jugerboite, une_boite_quittee_trop_tot_montre_les_mots_attendus) {
    auto serie = deux();
    serie.critere = {.secondes = true, .seuil = 5};
    Ratages ratages;
    const auto correction = multi::jugerboite(serie, ratages, {"A", "", "", ""}, 0, 0);
    EXPECT_EQ(correction.atemps, false);
    ASSERT_EQ(correction.boites.size(), 2U);
    EXPECT_EQ(correction.boites[1].boite, 2);
    EXPECT_EQ(correction.boites[1].texte, "B");
    EXPECT_EQ(correction.tirages.front().etat, Etattirage::Incomplet);
    EXPECT_THAT(correction.ratees, ElementsAre(series::Ratee{0, "AB;A;B"}));
}

TEST(Corriger, une_table_pleine_arrete_tout_et_garde_les_tirages_d_avant) {
    auto serie = deux();
    Ratages ratages;
    for (std::size_t i = 2; i < Ratages::limitemots; ++i)
        ASSERT_TRUE(ratages.raterlemot("MOT"));
    const auto correction = multi::corriger(serie, ratages, {"", "", "", ""}, 0);
    EXPECT_THAT(correction.ratees, ElementsAre(series::Ratee{0, "AB;A;B"}));
    ASSERT_TRUE(correction.pleine);
    EXPECT_EQ(correction.pleine->place, 1);
    EXPECT_EQ(correction.pleine->limite, Ratages::limitemots);
    EXPECT_EQ(correction.tirages.size(), 2U);
}

TEST(Jugerboite, une_table_pleine_ne_retient_rien) {
    auto serie = deux();
    serie.critere = {.secondes = true, .seuil = 5};
    Ratages ratages;
    for (std::size_t i = 0; i < Ratages::limitemots; ++i)
        ASSERT_TRUE(ratages.raterlemot("MOT"));
    const auto correction = multi::jugerboite(serie, ratages, {"", "", "", ""}, 0, 0);
    EXPECT_TRUE(correction.pleine);
    EXPECT_FALSE(correction.atemps);
    EXPECT_THAT(correction.ratees, IsEmpty());
    EXPECT_EQ(serie.rapides[0], series::Rapide::Nonjugee);
}

}  // namespace
}  // namespace test_correctionmulti
