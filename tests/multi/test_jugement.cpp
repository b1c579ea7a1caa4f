#include <optional>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "jugement.h"

namespace test_jugement {
namespace {

const auto regle = [](const auto& cas) { return cas.param.regle; };

using multi::Boitejugee;
using multi::Rack;
using multi::Ratages;
using series::Etattirage;
using testing::ElementsAreArray;

using Mots = std::vector<std::string>;

constexpr const char* riendefaux = "Vous n'aviez pas saisi de mot faux.";

Boitejugee bonne(const char* mot) {
    return {true, mot, std::nullopt};
}

/// A box that was blank.
Boitejugee blanche(const char* attendu) {
    return {false, attendu, std::nullopt};
}

Boitejugee fausse(const std::string& saisi, const char* attendu) {
    return {false, attendu, "Vous aviez saisi : " + saisi};
}

struct Cas {
    const char* regle;
    Mots solutions;
    Mots saisis;
    bool juste;
    std::vector<Boitejugee> boites;
    Etattirage etat;
    std::string infobulle;
    int fautes;
};

class Jugement : public testing::TestWithParam<Cas> {};

TEST_P(Jugement, rend) {
    const auto& cas = GetParam();
    Ratages ratages;
    const auto verdict =
        multi::corrigertirage({"TIRAGE", Etattirage::Repos, cas.saisis, cas.solutions}, ratages);
    EXPECT_EQ(verdict.juste, cas.juste);
    EXPECT_THAT(verdict.boites, ElementsAreArray(cas.boites));
    EXPECT_EQ(verdict.etat, cas.etat);
    EXPECT_EQ(verdict.infobulle, cas.infobulle);
    EXPECT_EQ(ratages.nbfautes(), cas.fautes);
    EXPECT_EQ(ratages.tiragedejarate("TIRAGE"), !cas.juste);
    EXPECT_EQ(verdict.debordement, multi::Debordement::Aucun);
}

INSTANTIATE_TEST_SUITE_P(
    , Jugement,
    testing::Values(Cas{"dans_l_ordre_de_la_rangee",
                        {"A", "B"},
                        {"A", "B"},
                        true,
                        {bonne("A"), bonne("B")},
                        Etattirage::Repos,
                        "",
                        0},
                    Cas{"l_ordre_des_mots_ne_compte_pas",
                        {"A", "B"},
                        {"B", "A"},
                        true,
                        {bonne("B"), bonne("A")},
                        Etattirage::Repos,
                        "",
                        0},
                    Cas{"une_boite_vide_prend_la_solution_manquee_et_rosit_le_tirage",
                        {"A", "B"},
                        {"A", ""},
                        false,
                        {bonne("A"), blanche("B")},
                        Etattirage::Incomplet,
                        riendefaux,
                        1},
                    Cas{"un_mot_faux_rougit_le_tirage_qui_le_dit",
                        {"A", "B"},
                        {"X", "A"},
                        false,
                        {fausse("X", "B"), bonne("A")},
                        Etattirage::Faux,
                        "Vous aviez saisi : X",
                        1},
                    Cas{"deux_mots_faux_se_suivent_dans_la_bulle_du_tirage",
                        {"A", "B", "C"},
                        {"X", "Y", "C"},
                        false,
                        {fausse("X", "A"), fausse("Y", "B"), bonne("C")},
                        Etattirage::Faux,
                        "Vous aviez saisi : X - Y",
                        2},
                    Cas{"un_blanc_apres_un_mot_faux_garde_le_rouge",
                        {"A", "B"},
                        {"X", ""},
                        false,
                        {fausse("X", "A"), blanche("B")},
                        Etattirage::Faux,
                        "Vous aviez saisi : X",
                        2},
                    Cas{"un_mot_faux_apres_un_blanc_rougit_le_rose",
                        {"A", "B"},
                        {"", "X"},
                        false,
                        {blanche("A"), fausse("X", "B")},
                        Etattirage::Faux,
                        "Vous aviez saisi : X",
                        2},
                    Cas{"rien_de_saisi",
                        {"A", "B", "C"},
                        {"", "", ""},
                        false,
                        {blanche("A"), blanche("B"), blanche("C")},
                        Etattirage::Incomplet,
                        riendefaux,
                        3},
                    Cas{"une_solution_saisie_deux_fois_fait_deux_egalites",
                        {"A", "B"},
                        {"A", "A"},
                        true,
                        {bonne("A"), bonne("A")},
                        Etattirage::Repos,
                        "",
                        1},
                    Cas{"trois_fois_la_meme_dans_un_trio_fait_trois_egalites",
                        {"A", "B", "C"},
                        {"B", "B", "B"},
                        true,
                        {bonne("B"), bonne("B"), bonne("B")},
                        Etattirage::Repos,
                        "",
                        2},
                    Cas{"une_double_et_un_blanc_ne_montrent_que_la_premiere_manquee",
                        {"A", "B", "C"},
                        {"A", "A", ""},
                        false,
                        {bonne("A"), bonne("A"), blanche("B")},
                        Etattirage::Incomplet,
                        riendefaux,
                        2},
                    Cas{"les_solutions_attendues_viennent_dans_l_ordre_de_la_rangee",
                        {"A", "B", "C", "D", "E"},
                        {"", "D", "X", "", "B"},
                        false,
                        {blanche("A"), bonne("D"), fausse("X", "C"), blanche("E"), bonne("B")},
                        Etattirage::Faux,
                        "Vous aviez saisi : X",
                        3},
                    Cas{"les_boites_en_trop_d_une_rangee_courte_ne_sont_pas_lues",
                        {"A", "B"},
                        {"A", "B", "X"},
                        true,
                        {bonne("A"), bonne("B")},
                        Etattirage::Repos,
                        "",
                        0},
                    Cas{"une_solution_vide_arrete_le_compte",
                        {"A", "", "C"},
                        {"A", "X", "C"},
                        true,
                        {bonne("A")},
                        Etattirage::Repos,
                        "",
                        0},
                    Cas{"sans_solution_le_tirage_est_juste",
                        {},
                        {"X", "Y"},
                        true,
                        {},
                        Etattirage::Repos,
                        "",
                        0},
                    Cas{"les_mots_se_comparent_lettre_pour_lettre",
                        {"A", "B"},
                        {"A ", "b"},
                        false,
                        {fausse("A ", "A"), fausse("b", "B")},
                        Etattirage::Faux,
                        "Vous aviez saisi : A  - b",
                        2},
                    Cas{"une_solution_deux_fois_dans_la_rangee_fait_deux_egalites_d_une_saisie",
                        {"A", "A"},
                        {"A", ""},
                        true,
                        {bonne("A"), blanche("")},
                        Etattirage::Incomplet,
                        riendefaux,
                        0},
                    Cas{"une_solution_deux_fois_dans_la_rangee_manquee_fait_une_faute",
                        {"A", "A"},
                        {"", ""},
                        false,
                        {blanche("A"), blanche("A")},
                        Etattirage::Incomplet,
                        riendefaux,
                        1}),
    regle);

/// What a first judgement shows, to judge again.
Rack rejuger(const Rack& rack, const multi::Verdict& verdict) {
    Rack suite{rack.texte, verdict.etat, {}, rack.solutions};
    for (const auto& boite : verdict.boites)
        suite.saisis.push_back(boite.texte);
    return suite;
}

TEST(Rejugement, un_second_jugement_trouve_les_mots_attendus_et_rend_juste) {
    Ratages ratages;
    const Rack rack{"AB", Etattirage::Repos, {"X", ""}, {"A", "B"}};
    const auto premier = multi::corrigertirage(rack, ratages);
    ASSERT_FALSE(premier.juste);
    const auto second = multi::corrigertirage(rejuger(rack, premier), ratages);
    EXPECT_TRUE(second.juste);
    EXPECT_THAT(second.boites, ElementsAreArray({bonne("A"), bonne("B")}));
    EXPECT_EQ(second.etat, Etattirage::Faux);
    EXPECT_EQ(second.infobulle, "");
    EXPECT_EQ(ratages.nbfautes(), 2);
}

TEST(Rejugement, un_second_jugement_d_un_tirage_rose_redit_qu_il_n_y_avait_rien_de_faux) {
    Ratages ratages;
    const Rack rack{"AB", Etattirage::Repos, {"A", ""}, {"A", "B"}};
    const auto second =
        multi::corrigertirage(rejuger(rack, multi::corrigertirage(rack, ratages)), ratages);
    EXPECT_TRUE(second.juste);
    EXPECT_EQ(second.etat, Etattirage::Incomplet);
    EXPECT_EQ(second.infobulle, riendefaux);
}

TEST(Rejugement, un_tirage_juste_garde_sa_couleur) {
    Ratages ratages;
    const auto verdict =
        multi::corrigertirage({"AB", Etattirage::Courant, {"A", "B"}, {"A", "B"}}, ratages);
    EXPECT_EQ(verdict.etat, Etattirage::Courant);
}

struct Compte {
    const char* regle;
    Mots solutions;
    std::size_t juges;
};

class Nombre : public testing::TestWithParam<Compte> {};

TEST_P(Nombre, de_solutions_jugees) {
    EXPECT_EQ(multi::nombrejuge(GetParam().solutions), GetParam().juges);
}

INSTANTIATE_TEST_SUITE_P(Jugement, Nombre,
                         testing::Values(Compte{"aucune", {}, 0}, Compte{"duo", {"A", "B"}, 2},
                                         Compte{"quintet", {"A", "B", "C", "D", "E"}, 5},
                                         Compte{"quatre_et_une_vide", {"A", "B", "C", "D", ""}, 4},
                                         Compte{"une_vide_au_milieu", {"A", "", "C"}, 1},
                                         Compte{"une_vide_en_tete", {"", "B"}, 0}),
                         regle);

}  // namespace
}  // namespace test_jugement
