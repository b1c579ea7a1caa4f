// The judgement of the answers of a series with one solution a rack, on a plain value.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "correction.h"
#include "serieessai.h"

namespace test_serie_correction {
namespace {

using essai::tiree;
using series::Etatreponse;
using series::Etattirage;
using series::Motsfaux;
using series::Nature;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

using Textes = std::vector<std::string>;

const auto regle = [](const auto& cas) { return cas.param.regle; };

constexpr const char* trois = "AB;BA\r\nCD;DC\r\nEF;FE\r\n";

struct Cas {
    const char* regle;
    Nature nature;
    const char* reponse;
    Etatreponse etat;
    const char* boite;
    std::optional<std::string> infobulle;
    bool barree;
    bool solutionmontree;
};

class Reponse : public testing::TestWithParam<Cas> {};

TEST_P(Reponse, montre) {
    const auto& cas = GetParam();
    auto serie = tiree("AB;BA\r\n", cas.nature);
    Motsfaux motsfaux;
    const auto correction = corriger(serie, motsfaux, Textes{cas.reponse, "", ""}, 0);
    ASSERT_EQ(correction.boites.size(), 1U);
    const auto& boite = correction.boites.front();
    EXPECT_EQ(boite.etat, cas.etat);
    EXPECT_EQ(boite.texte, cas.boite);
    EXPECT_EQ(boite.infobulle, cas.infobulle);
    EXPECT_EQ(boite.barree, cas.barree);
    EXPECT_EQ(serie.verdicts[0], cas.etat);
    ASSERT_EQ(correction.tirages.size(), cas.solutionmontree ? 1U : 0U);
    for (const auto& tirage : correction.tirages) {
        EXPECT_EQ(tirage.etat, Etattirage::Solution);
        EXPECT_EQ(tirage.texte, "BA");
    }
}

constexpr auto juste = Etatreponse::Juste;
constexpr auto fausse = Etatreponse::Fausse;
const std::optional<std::string> sansbulle;

INSTANTIATE_TEST_SUITE_P(
    Serie, Reponse,
    testing::Values(Cas{"juste", Nature::Simple, "BA", juste, "BA", sansbulle, false, false},
                    Cas{"fausse_barree_et_dit_le_tirage", Nature::Simple, "XY", fausse, "XY",
                        "Tirage: AB", true, true},
                    Cas{"vide_montre_le_tirage", Nature::Simple, "", fausse, "AB", sansbulle, false,
                        true},
                    Cas{"un_blanc_de_trop_est_faux", Nature::Simple, "BA ", fausse, "BA ",
                        "Tirage: AB", true, true},
                    Cas{"fausse_dans_les_rallonges_dit_la_saisie", Nature::Rallongesavant, "XY",
                        fausse, "AB", "Vous aviez saisi: XY", false, true},
                    Cas{"fausse_dans_les_benjamins", Nature::Benjamins, "XY", fausse, "XY",
                        "Tirage: AB", true, true}),
    regle);

TEST(Corriger, retient_chaque_tirage_tel_que_dans_la_liste_et_sa_saisie) {
    auto serie = tiree(trois);
    serie.places[1].affiche = "C";
    Motsfaux motsfaux;
    static_cast<void>(corriger(serie, motsfaux, Textes{"BA", "XY", ""}, 0));
    EXPECT_EQ(serie.rangees.tirage(0), "");  // eliminated
    Textes retenus;
    for (const auto& juge : jugements(serie))
        retenus.push_back(juge.tirage + ";" + juge.solutions.at(0) + ";" + juge.saisis.at(0));
    EXPECT_THAT(retenus, ElementsAre("AB;BA;BA", "CD;DC;XY", "EF;FE;"));
}

TEST(Corriger, ferme_la_serie_et_compte) {
    auto serie = tiree(trois);
    Motsfaux motsfaux;
    const auto correction = corriger(serie, motsfaux, Textes{"BA", "X", ""}, 0);
    EXPECT_FALSE(serie.ouverte);
    EXPECT_EQ(correction.nombre, 3);
    EXPECT_EQ(correction.justes, 1);
    EXPECT_EQ(motsfaux.nombre(), 2);
    EXPECT_THAT(correction.ratees,
                ElementsAre(series::Ratee{1, "CD;DC"}, series::Ratee{2, "EF;FE"}));
    EXPECT_FALSE(correction.atemps);
    EXPECT_FALSE(correction.pleine);
}

TEST(Corriger, un_tirage_entame_se_dit_tel_qu_il_est_affiche) {
    auto serie = tiree(trois);
    serie.places[1].affiche = "D";
    Motsfaux motsfaux;
    const auto correction = corriger(serie, motsfaux, Textes{"BA", "X", "FE"}, 0);
    EXPECT_EQ(correction.boites[1].infobulle, "Tirage: D");
    EXPECT_EQ(correction.ratees.front().ligne, "CD;DC");
}

struct Elimination {
    const char* regle;
    double seuil;
    int series;
    int reste;
};

class Reussites : public testing::TestWithParam<Elimination> {};

TEST_P(Reussites, eliminent) {
    auto serie = tiree("AB;BA\r\n");
    serie.critere.seuil = GetParam().seuil;
    Motsfaux motsfaux;
    for (int i = 0; i < GetParam().series; ++i) {
        static_cast<void>(corriger(serie, motsfaux, Textes{"BA", "", ""}, 0));
        if (!finir(serie, 1, 0)) {
            essai::Suite hasard({0});
            tirer(serie, hasard);
        }
    }
    EXPECT_EQ(serie.rangees.nbmots(), GetParam().reste);
}

INSTANTIATE_TEST_SUITE_P(Serie, Reussites,
                         testing::Values(Elimination{"a_la_premiere", 1, 1, 0},
                                         Elimination{"pas_avant_la_deuxieme", 2, 1, 1},
                                         Elimination{"a_la_deuxieme", 2, 2, 0},
                                         Elimination{"un_seuil_vide_vaut_zero", 0, 1, 0},
                                         Elimination{"au_seuil_non_entier_depasse", 1.5, 2, 0}),
                         regle);

struct Rapide {
    const char* regle;
    Textes reponses;
    std::int16_t tempsmot;
    double seuil;
    std::optional<bool> atemps;
    int reste;
};

class Secondes : public testing::TestWithParam<Rapide> {};

TEST_P(Secondes, jugent_la_derniere_boite_a_la_correction) {
    const auto& cas = GetParam();
    auto serie = tiree(trois);
    serie.critere = {.secondes = true, .seuil = cas.seuil};
    Motsfaux motsfaux;
    EXPECT_EQ(corriger(serie, motsfaux, cas.reponses, cas.tempsmot).atemps, cas.atemps);
    static_cast<void>(finir(serie, 3, 0));
    EXPECT_EQ(serie.rangees.nbmots(), cas.reste);
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Secondes,
    testing::Values(Rapide{"juste_a_temps", {"BA", "DC", "FE"}, 4, 5, true, 2},
                    Rapide{"le_seuil_est_deja_trop_tard", {"BA", "DC", "FE"}, 5, 5, false, 3},
                    Rapide{"fausse", {"BA", "DC", "X"}, 0, 5, false, 3},
                    Rapide{"un_seuil_vide_ne_passe_jamais", {"BA", "DC", "FE"}, 0, 0, false, 3}),
    regle);

TEST(Corriger, une_boite_quittee_juste_puis_faussee_perd_quand_meme_sa_rangee) {
    auto serie = tiree(trois);
    serie.critere = {.secondes = true, .seuil = 5};
    EXPECT_EQ(jugerboite(serie, 0, "BA", 1), true);
    Motsfaux motsfaux;
    const auto correction = corriger(serie, motsfaux, Textes{"X", "", ""}, 0);
    EXPECT_EQ(correction.ratees.size(), 3U);
    static_cast<void>(finir(serie, 3, 0));
    EXPECT_EQ(serie.rangees.tirage(0), "CD");
}

TEST(Corriger, une_serie_vide_ne_juge_rien) {
    auto serie = tiree("");
    serie.critere.secondes = true;
    Motsfaux motsfaux;
    const auto correction = corriger(serie, motsfaux, Textes{"", "", ""}, 0);
    EXPECT_EQ(correction.nombre, 0);
    EXPECT_THAT(correction.boites, IsEmpty());
    EXPECT_FALSE(correction.atemps);
}

TEST(Corriger, une_table_pleine_garde_ce_qui_est_juge_avant_elle) {
    auto serie = tiree(trois);
    Motsfaux motsfaux;
    for (std::size_t i = 1; i < Motsfaux::limite; ++i)
        ASSERT_TRUE(motsfaux.ajouter(std::to_string(i)));
    const auto correction = corriger(serie, motsfaux, Textes{"X", "Y", "FE"}, 0);
    EXPECT_THAT(correction.ratees, ElementsAre(series::Ratee{0, "AB;BA"}));
    EXPECT_EQ(correction.boites.size(), 1U);
    ASSERT_TRUE(correction.pleine);
    EXPECT_EQ(correction.pleine->place, 1);
    EXPECT_EQ(correction.pleine->limite, 5001U);
}

TEST(Motsfaux, une_rangee_fausse_deux_fois_compte_une_fois) {
    Motsfaux motsfaux;
    for (std::size_t i = 0; i < Motsfaux::limite; ++i)
        ASSERT_TRUE(motsfaux.ajouter(std::to_string(i)));
    EXPECT_TRUE(motsfaux.ajouter("0"));
    EXPECT_FALSE(motsfaux.ajouter("une de plus"));
    EXPECT_EQ(motsfaux.nombre(), 5001);
}

struct Revision {
    const char* regle;
    std::vector<bool> presentes;
    Textes lignes;
    Textes nouvelles;
    std::vector<bool> marquees;
};

class Revisions : public testing::TestWithParam<Revision> {};

TEST_P(Revisions, nouvelles) {
    auto serie = tiree(trois);
    std::vector<series::Ratee> ratees;
    for (const auto& ligne : GetParam().lignes)
        ratees.push_back({static_cast<int>(ratees.size()), ligne});
    EXPECT_THAT(nouvellesrevisions(serie, ratees, GetParam().presentes),
                ElementsAreArray(GetParam().nouvelles));
    std::vector<bool> marquees;
    for (const auto& place : serie.places)
        marquees.push_back(place.enrevision);
    EXPECT_EQ(marquees, GetParam().marquees);
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Revisions,
    testing::Values(
        Revision{"absentes", {false, false}, {"A;B", "C;D"}, {"A;B", "C;D"}, {true, true, false}},
        Revision{"deja_presente", {true, false}, {"A;B", "C;D"}, {"C;D"}, {false, true, false}},
        Revision{"deux_fois_la_meme_ne_marque_que_la_premiere",
                 {false, false},
                 {"A;B", "A;B"},
                 {"A;B"},
                 {true, false, false}}),
    regle);

TEST(Montrelemot, la_boite_juste_ou_le_tirage_qui_montre_la_solution) {
    auto serie = tiree(trois);
    Motsfaux motsfaux;
    static_cast<void>(corriger(serie, motsfaux, Textes{"BA", "X", "FE"}, 0));
    EXPECT_TRUE(montrelemot(serie, 0, false));
    EXPECT_FALSE(montrelemot(serie, 0, true));
    EXPECT_FALSE(montrelemot(serie, 1, false));
    EXPECT_TRUE(montrelemot(serie, 1, true));
}

}  // namespace
}  // namespace test_serie_correction
