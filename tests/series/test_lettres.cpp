#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "lettres.h"

namespace test_lettres {
namespace {

using series::Lettres;

const auto regle = [](const auto& cas) { return cas.param.regle; };

struct Balisage {
    const char* regle;
    const char* tirage;
    const char* net;
};

class Net : public testing::TestWithParam<Balisage> {};

TEST_P(Net, est_le_tirage_sans_balisage) {
    Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres(GetParam().tirage));
    EXPECT_EQ(lettres.tiragenet(), GetParam().net);
    EXPECT_EQ(lettres.restantes(), GetParam().net);
}

INSTANTIATE_TEST_SUITE_P(
    Lettres, Net,
    testing::Values(Balisage{"sans_balisage", "AABC", "AABC"}, Balisage{"vide", "", ""},
                    Balisage{"plus_et_parentheses_sautes", "A+B(CD)", "ABCD"},
                    Balisage{"chiffres_1_a_8_sautes", "1A2B3C4D5E6F7G8", "ABCDEFG"},
                    Balisage{"chiffres_9_et_0_gardes", "A9B0", "A9B0"},
                    Balisage{"joker_garde", "AB?", "AB?"},
                    Balisage{"trait_coupe", "ABC-DEF", "ABC"},
                    Balisage{"balisage_devant_le_trait_garde", "A+B(1)-CD", "A+B(1)"},
                    Balisage{"balisage_derriere_le_trait_coupe_avec", "AB-C+D", "AB"},
                    Balisage{"deux_traits_le_premier_coupe", "A-B-C", "A"},
                    Balisage{"trait_en_tete", "-ABC", ""}, Balisage{"balisage_seul", "+()12", ""},
                    Balisage{"lettre_accentuee_un_caractere", "ÉA", "ÉA"},
                    Balisage{"quinze_lettres", "ABCDEFGHIJKLMNO", "ABCDEFGHIJKLMNO"},
                    Balisage{"quinze_lettres_balisees", "(ABCDEFG)+HIJKLMNO", "ABCDEFGHIJKLMNO"},
                    Balisage{"quinze_lettres_accentuees", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ", "ÉÉÉÉÉÉÉÉÉÉÉÉÉÉÉ"}),
    regle);

class Trop : public testing::TestWithParam<Balisage> {};

TEST_P(Trop, de_lettres_refuse) {
    Lettres lettres;
    EXPECT_FALSE(lettres.lirelettres(GetParam().tirage));
}

INSTANTIATE_TEST_SUITE_P(Lettres, Trop,
                         testing::Values(Balisage{"seize", "ABCDEFGHIJKLMNOP", ""},
                                         Balisage{"seize_avec_balisage_devant_le_trait",
                                                  "(BCDEFGHIJKLMNO)-P", ""}),
                         regle);

struct Saisie {
    const char* regle;
    const char* tirage;
    std::vector<const char*> tapees;
    std::vector<bool> prises;
    const char* restantes;
};

class Reserve : public testing::TestWithParam<Saisie> {};

TEST_P(Reserve, donne_ses_lettres_une_a_une) {
    const auto& cas = GetParam();
    Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres(cas.tirage));
    std::vector<bool> prises;
    for (const auto* lettre : cas.tapees)
        prises.push_back(lettres.prendre(lettre));
    EXPECT_EQ(prises, cas.prises);
    EXPECT_EQ(lettres.restantes(), cas.restantes);
}

INSTANTIATE_TEST_SUITE_P(
    Lettres, Reserve,
    testing::Values(
        Saisie{"les_doubles_s_usent_une_a_une", "AABC", {"A", "A", "A"}, {true, true, false}, "BC"},
        Saisie{"la_premiere_egale_part", "ABA", {"A"}, {true}, "BA"},
        Saisie{"une_lettre_hors_du_tirage", "AB", {"Z"}, {false}, "AB"},
        Saisie{"deux_E_pris_le_troisieme_refuse", "EXE", {"E", "E", "E"}, {true, true, false}, "X"},
        Saisie{"rien_ne_se_prend_d_un_texte_vide", "AB", {""}, {false}, "AB"},
        Saisie{"d_un_tirage_vide", "", {"A"}, {false}, ""}),
    regle);

struct Calcul {
    const char* regle;
    const char* tirage;
    const char* reponse;
    const char* restantes;
};

class Recalcul : public testing::TestWithParam<Calcul> {};

TEST_P(Recalcul, part_de_toutes_les_lettres) {
    const auto& cas = GetParam();
    Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres(cas.tirage));
    lettres.prendre("A");  // forgotten by the recalculation
    lettres.recalculer(cas.reponse);
    EXPECT_EQ(lettres.restantes(), cas.restantes);
}

INSTANTIATE_TEST_SUITE_P(
    Lettres, Recalcul,
    testing::Values(Calcul{"sans_reponse_toutes", "ABC", "", "ABC"},
                    Calcul{"chaque_lettre_de_la_reponse_une_fois", "AABC", "CA", "AB"},
                    Calcul{"une_lettre_hors_du_tirage_passe", "ABC", "ZAZ", "BC"},
                    Calcul{"plus_de_doubles_que_le_tirage", "AAB", "AAAA", "B"},
                    Calcul{"le_balisage_garde_devant_le_trait_disparait", "A+B-CD", "B", "A"},
                    Calcul{"lettre_accentuee", "ÉAÉ", "É", "AÉ"}),
    regle);

TEST(Lettres, une_annonce_n_a_pas_de_lettre_a_jouer) {
    Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres("ABC"));
    lettres.annoncer("BRAVO!");
    EXPECT_EQ(lettres.tiragenet(), "BRAVO!");
    EXPECT_EQ(lettres.restantes(), "");
    EXPECT_FALSE(lettres.prendre("B"));
}

TEST(Lettres, un_tirage_plus_court_efface_le_precedent) {
    Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres("ABCDEF"));
    ASSERT_TRUE(lettres.lirelettres("XY"));
    EXPECT_EQ(lettres.restantes(), "XY");
    EXPECT_FALSE(lettres.prendre("C"));
}

}  // namespace
}  // namespace test_lettres
