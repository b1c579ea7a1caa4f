// The entry of answers as rules on a series: keys, pool of letters, what a rack shows.

#include <string>

#include <gmock/gmock.h>

#include "saisie.h"
#include "serieessai.h"
#include "valeurs.h"

namespace test_saisie {
namespace {

using essai::tiree;
using series::Nature;

const auto regle = [](const auto& cas) { return cas.param.regle; };

struct Assistance {
    const char* regle;
    Nature nature;
    bool ouverte;
    bool option;
    bool assistee;
};

class Assistee : public testing::TestWithParam<Assistance> {};

TEST_P(Assistee, est_la_saisie) {
    auto serie = tiree("AB;BA\r\n", GetParam().nature);
    serie.ouverte = GetParam().ouverte;
    EXPECT_EQ(saisieassistee(serie, GetParam().option), GetParam().assistee);
}

INSTANTIATE_TEST_SUITE_P(
    Saisie, Assistee,
    testing::Values(Assistance{"liste_ordinaire", Nature::Simple, true, true, true},
                    Assistance{"sans_l_option", Nature::Simple, true, false, false},
                    Assistance{"serie_corrigee", Nature::Simple, false, true, false},
                    Assistance{"rallonges", Nature::Rallongesavant, true, true, false},
                    Assistance{"benjamins", Nature::Benjamins, true, true, false},
                    Assistance{"benjamins_en_revision", Nature::Benjaminsenrevision, true, true,
                               true}),
    regle);

struct Touche {
    const char* regle;
    const char* tirage;
    int code;
    bool ouverte;
    bool assistee;
    int rendu;
    bool bip;
    const char* affiche;
};

class Frapper : public testing::TestWithParam<Touche> {};

TEST_P(Frapper, une_touche) {
    const auto& cas = GetParam();
    auto serie = tiree(std::string(cas.tirage) + ";X\r\n");
    serie.ouverte = cas.ouverte;
    series::Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres(cas.tirage));
    const auto frappe = frapper(serie, lettres, 0, cas.code, cas.assistee);
    EXPECT_EQ(frappe.code, cas.rendu);
    EXPECT_EQ(frappe.bip, cas.bip);
    EXPECT_EQ(serie.places[0].affiche, cas.affiche);
    EXPECT_EQ(serie.places[0].entame, std::string(cas.tirage) != cas.affiche);
}

INSTANTIATE_TEST_SUITE_P(
    Saisie, Frapper,
    testing::Values(
        Touche{"une_minuscule_monte", "AB", 'a', true, false, 'A', false, "AB"},
        Touche{"une_lettre_du_tirage_le_quitte", "AAB", 'A', true, true, 'A', false, "AB"},
        Touche{"une_lettre_hors_du_tirage_bipe", "AB", 'Z', true, true, 0, true, "AB"},
        Touche{"sans_assistance_toute_lettre_passe", "AB", 'Z', true, false, 'Z', false, "AB"},
        Touche{"les_annotations_partent_avec_la_premiere_lettre", "AB(C)", 'C', true, true, 'C',
               false, "AB"},
        Touche{"un_chiffre_bipe", "AB", '1', true, false, 0, true, "AB"},
        Touche{"un_blanc_bipe", "AB", ' ', true, true, 0, true, "AB"},
        Touche{"une_accentuee_bipe", "AB", 0xC9, true, false, 0, true, "AB"},
        Touche{"le_degre_bipe", "AB", 176, true, false, 0, true, "AB"},
        Touche{"retour_passe", "AB", 8, true, true, 8, false, "AB"},
        Touche{"corrigee_une_lettre_tombe_sans_bip", "AB", 'a', false, false, 0, false, "AB"},
        Touche{"corrigee_un_chiffre_passe", "AB", '1', false, false, '1', false, "AB"}),
    regle);

struct Remplacement {
    const char* regle;
    int code;
    bool remplacetout;
    bool libere;
};

class Remplacer : public testing::TestWithParam<Remplacement> {};

TEST_P(Remplacer, la_reponse_libere_les_lettres) {
    EXPECT_EQ(series::remplacelareponse(GetParam().code, GetParam().remplacetout),
              GetParam().libere);
}

INSTANTIATE_TEST_SUITE_P(Saisie, Remplacer,
                         testing::Values(Remplacement{"lettre", 'A', true, true},
                                         Remplacement{"minuscule", 'a', true, true},
                                         Remplacement{"au_milieu", 'A', false, false},
                                         Remplacement{"chiffre", '1', true, false},
                                         Remplacement{"accentuee", 0xC9, true, false}),
                         regle);

struct Effacement {
    const char* regle;
    const char* tirage;
    const char* reponse;
    const char* affiche;
};

class Recalculer : public testing::TestWithParam<Effacement> {};

TEST_P(Recalculer, le_tirage) {
    const auto& cas = GetParam();
    auto serie = tiree(std::string(cas.tirage) + ";X\r\n");
    series::Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres(cas.tirage));
    recalculer(serie, lettres, 0, cas.reponse);
    EXPECT_EQ(serie.places[0].affiche, cas.affiche);
}

INSTANTIATE_TEST_SUITE_P(
    Saisie, Recalculer,
    testing::Values(Effacement{"sans_les_lettres_de_la_reponse", "ABC", "CA", "B"},
                    Effacement{"avec_les_lettres_effacees", "ABC", "", "ABC"},
                    Effacement{"annote_d_un_chiffre_perd_le_chiffre", "A1B", "", "AB"},
                    Effacement{"annote_reste_tel_quel", "AB(C)", "A", "AB(C)"}),
    regle);

struct Depart {
    const char* regle;
    bool nues;
    int boite;
    bool assistee;
    bool entame;
    const char* affiche;
};

class Rendretirage : public testing::TestWithParam<Depart> {};

/// A list of one rack, "AB+C", of which "A" shows; the pool has its three letters.
TEST_P(Rendretirage, au_depart) {
    const auto& cas = GetParam();
    auto regles = essai::reglesdessai;
    regles.rendlettresnues = cas.nues;
    auto serie = tiree("AB+C;X\r\n", Nature::Simple, regles);
    auto& place = serie.place(cas.boite);
    place.affiche = "A";
    place.entame = cas.entame;
    series::Lettres lettres;
    ASSERT_TRUE(lettres.lirelettres("AB+C"));
    rendretirage(serie, lettres, cas.boite, cas.assistee);
    EXPECT_EQ(place.affiche, cas.affiche);
    EXPECT_FALSE(place.entame);
}

INSTANTIATE_TEST_SUITE_P(
    Saisie, Rendretirage,
    testing::Values(Depart{"assiste_rend_celui_de_la_liste", false, 0, true, true, "AB+C"},
                    Depart{"assiste_rend_les_lettres_nues", true, 0, true, true, "ABC"},
                    Depart{"entame_rend_meme_sans_l_option", false, 0, false, true, "AB+C"},
                    Depart{"ni_l_un_ni_l_autre_ne_rend_rien", false, 0, false, false, "A"},
                    Depart{"une_place_vide_prend_les_lettres", false, 1, true, false, "ABC"}),
    regle);

TEST(Ajuger, une_place_sans_rangee_ne_se_juge_pas) {
    auto regles = essai::reglesdessai;
    auto serie = tiree("AB;BA\r\n", Nature::Simple, regles);
    EXPECT_TRUE(ajuger(serie, 0));
    EXPECT_FALSE(ajuger(serie, 1));
    serie.places[0].affiche = "";
    EXPECT_TRUE(ajuger(serie, 0));
    serie.regles.jugesiaffiche = true;
    EXPECT_FALSE(ajuger(serie, 0));
}

struct Recherche {
    const char* regle;
    Nature nature;
    const char* texte;
    std::size_t entrop;
};

class Lettresentrop : public testing::TestWithParam<Recherche> {};

TEST_P(Lettresentrop, pour_un_tirage_de_trois) {
    const auto serie = tiree("ABC;BAC\r\n", GetParam().nature);
    EXPECT_EQ(lettresentrop(serie, 0, GetParam().texte), GetParam().entrop);
}

INSTANTIATE_TEST_SUITE_P(Saisie, Lettresentrop,
                         testing::Values(Recherche{"moins", Nature::Simple, "AB", 0},
                                         Recherche{"autant", Nature::Simple, "ABC", 0},
                                         Recherche{"deux_de_plus", Nature::Simple, "ABCDE", 2},
                                         Recherche{"une_accentuee_en_est_une", Nature::Simple,
                                                   "ABCÉ", 1},
                                         Recherche{"les_rallonges_n_ont_pas_de_limite",
                                                   Nature::Rallongesavant, "ABCDE", 0}),
                         regle);

struct Pas {
    const char* regle;
    int boite;
    int touche;
    std::optional<int> arrivee;
};

class Parcours : public testing::TestWithParam<Pas> {};

TEST_P(Parcours, de_trente_boites) {
    EXPECT_EQ(series::parcours(GetParam().boite, GetParam().touche, 30), GetParam().arrivee);
}

INSTANTIATE_TEST_SUITE_P(
    Saisie, Parcours,
    testing::Values(Pas{"entree", 4, ui::touches::entree, 5}, Pas{"bas", 4, ui::touches::bas, 5},
                    Pas{"bas_de_la_derniere", 29, ui::touches::bas, 0},
                    Pas{"haut", 4, ui::touches::haut, 3},
                    Pas{"haut_de_la_premiere", 0, ui::touches::haut, 29},
                    Pas{"droite_ne_mene_nulle_part", 4, ui::touches::droite, std::nullopt}),
    regle);

}  // namespace
}  // namespace test_saisie
