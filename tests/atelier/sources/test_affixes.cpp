#include <string>

#include <gmock/gmock.h>

#include "affixes.h"
#include "faute.h"
#include "petitlexique.h"

namespace test_affixes {
namespace {

using atelier::Affixes;
using atelier::Condition;
using testing::AllOf;
using testing::HasSubstr;

struct Fin {
    const char* nom;
    const char32_t* condition;
    const char32_t* mot;
    bool convient;
};
void PrintTo(const Fin& fin, std::ostream* os) {
    *os << fin.nom;
}
class Conditions : public testing::TestWithParam<Fin> {};
TEST_P(Conditions, regarde_la_fin_du_mot) {
    Condition condition;
    ASSERT_TRUE(condition.lire(GetParam().condition));
    EXPECT_EQ(condition.convient(GetParam().mot), GetParam().convient);
}
INSTANTIATE_TEST_SUITE_P(Affixes, Conditions,
                         testing::Values(Fin{"point", U".", U"mot", true},
                                         Fin{"point_mot_vide", U".", U"", true},
                                         Fin{"lettres", U"er", U"chanter", true},
                                         Fin{"lettres_ailleurs", U"er", U"erable", false},
                                         Fin{"ensemble", U"[ul]", U"cheval", true},
                                         Fin{"hors_ensemble", U"[ul]", U"chevau ", false},
                                         Fin{"sauf", U"[^sxz]", U"chat", true},
                                         Fin{"sauf_refuse", U"[^sxz]", U"nez", false},
                                         Fin{"melange", U"[^cg]er", U"chanter", true},
                                         Fin{"melange_refuse", U"[^cg]er", U"manger", false},
                                         Fin{"point_dedans", U".valoir", U"prévaloir", true},
                                         Fin{"point_manque", U".valoir", U"valoir", false},
                                         Fin{"accent_compte_un", U"[^e]é", U"créé", true},
                                         Fin{"mot_trop_court", U"quérir", U"rir", false}),
                         [](const auto& rangee) { return rangee.param.nom; });

TEST(Affixes, une_regle_dit_ce_qu_elle_ote_ce_qu_elle_met_et_ce_qu_est_la_forme) {
    const Affixes lus(essais::affixes, "petit.aff");
    const auto& regles = lus.suffixes("X.");
    ASSERT_EQ(regles.size(), 2U);
    EXPECT_EQ(regles[0].retrait, U"");
    EXPECT_EQ(regles[0].ajout, "");
    EXPECT_EQ(regles[1].retrait, U"al");
    EXPECT_EQ(regles[1].ajout, "AUX");
    EXPECT_EQ(regles[1].traits.nombre, atelier::Nombre::pluriel);
}

TEST(Affixes, un_drapeau_de_prefixe_est_connu_et_ne_donne_pas_de_suffixe) {
    const Affixes lus(essais::affixes, "petit.aff");
    EXPECT_TRUE(lus.connait("L'"));
    EXPECT_TRUE(lus.suffixes("L'").empty());
    EXPECT_TRUE(lus.connait("()"));
    EXPECT_FALSE(lus.connait("zz"));
}

TEST(Affixes, un_suffixe_qui_n_est_pas_fait_de_lettres_ne_donne_pas_de_mot) {
    const Affixes lus(
        "SET UTF-8\nFLAG long\nSFX aA Y 2\nSFX aA aller vas-y aller po:impe\n"
        "SFX aA aller va aller po:impe\n",
        "petit.aff");
    ASSERT_EQ(lus.suffixes("aA").size(), 1U);
    EXPECT_EQ(lus.suffixes("aA")[0].ajout, "VA");
}

TEST(Affixes, une_ligne_de_commentaire_peut_etre_longue) {
    std::string ligne = "#";
    for (int i = 0; i < 40; ++i)
        ligne += " mot";
    const Affixes lus("SET UTF-8\nFLAG long\n" + ligne + "\n", "petit.aff");
    EXPECT_FALSE(lus.connait("S."));
}

struct Casse {
    const char* nom;
    std::string texte;
    const char* ligne;
    const char* ennui;
};
void PrintTo(const Casse& casse, std::ostream* os) {
    *os << casse.nom;
}
class AffixesCasses : public testing::TestWithParam<Casse> {};
TEST_P(AffixesCasses, est_une_faute_avec_fichier_et_ligne) {
    try {
        const Affixes lus(GetParam().texte, "a.aff");
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), AllOf(HasSubstr("« a.aff »"), HasSubstr(GetParam().ligne),
                                        HasSubstr(GetParam().ennui)));
    }
}
std::string repete(const std::string& texte, int fois) {
    std::string resultat;
    while (fois-- > 0)
        resultat += texte;
    return resultat;
}
const std::string entete = "SET UTF-8\nFLAG long\n";
INSTANTIATE_TEST_SUITE_P(
    Affixes, AffixesCasses,
    testing::Values(
        Casse{"vide", "", "ligne 0", "SET UTF-8"},
        Casse{"sans_encodage", "FLAG long\n", "ligne 1", "SET UTF-8"},
        Casse{"autre_encodage", "SET ISO8859-1\nFLAG long\n", "ligne 2", "SET UTF-8"},
        Casse{"drapeaux_courts", "SET UTF-8\n", "ligne 1", "FLAG long"},
        Casse{"coupe_dans_un_bloc", entete + "SFX S. Y 2\nSFX S. 0 s . is:pl\n", "ligne 4",
              "il manque 1 règle(s) du drapeau « S. »"},
        Casse{"bloc_suivant_trop_tot",
              entete + "SFX S. Y 2\nSFX S. 0 s . is:pl\nSFX X. Y 1\nSFX X. 0 x .\n", "ligne 5",
              "il manque 1 règle(s) du drapeau « S. »"},
        Casse{"coupe_dans_une_ligne", entete + "SFX S. Y 1\nSFX S. 0 s", "ligne 4", "incomplète"},
        Casse{"nombre_manquant", entete + "SFX S. Y\n", "ligne 3", "le nombre des règles"},
        Casse{"nombre_illisible", entete + "SFX S. Y 2x\n", "ligne 3", "le nombre des règles"},
        Casse{"condition_ouverte", entete + "SFX S. Y 1\nSFX S. 0 s [^sx is:pl\n", "ligne 4",
              "n'est pas fermée"},
        Casse{"trop_de_champs", entete + "SFX S. Y 1\nSFX S. 0 s ." + repete(" po:nom", 20) + "\n",
              "ligne 4", "trop de champs ; la limite est de 24"},
        Casse{"pas_utf8", entete + "SFX S. Y 1\nSFX S. 0 \xE9 . is:pl\n", "ligne 4", "UTF-8"}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_affixes
