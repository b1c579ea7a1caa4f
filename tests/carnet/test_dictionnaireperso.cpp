#include <gmock/gmock.h>

#include "chemin.h"
#include "dictionnaireperso.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "petitglossaire.h"

namespace test_dictionnaireperso {
namespace {

using namespace carnet;
using testing::ElementsAre;
using testing::HasSubstr;

Motslus lus(std::string_view octets) {
    return std::get<Motslus>(liremots(octets));
}

std::vector<std::string> textes(const Motslus& motslus) {
    std::vector<std::string> mots;
    for (const auto& mot : motslus.mots)
        mots.emplace_back(mot.texte());
    return mots;
}

struct Texte {
    const char* nom;
    std::string octets;
    Encodage encodage;
    std::vector<std::string> mots;
};
void PrintTo(const Texte& texte, std::ostream* os) {
    *os << texte.nom;
}
class Lisible : public testing::TestWithParam<Texte> {};
TEST_P(Lisible, texte_de_mots) {
    const auto l = lus(GetParam().octets);
    EXPECT_EQ(textes(l), GetParam().mots);
    EXPECT_EQ(l.encodage, GetParam().encodage);
    EXPECT_EQ(l.refusees, 0U);
}
INSTANTIATE_TEST_SUITE_P(
    Dictionnaireperso, Lisible,
    testing::Values(
        Texte{"sans accents", "nez\nZEN\n", Encodage::ascii, {"NEZ", "ZEN"}},
        Texte{"CR LF et blancs", "  nez \r\n\r\nzen", Encodage::ascii, {"NEZ", "ZEN"}},
        Texte{"UTF-8", "été\ncœur\n", Encodage::utf8, {"ETE", "COEUR"}},
        Texte{"UTF-8 avec sa marque", "\xEF\xBB\xBFnez\n", Encodage::utf8, {"NEZ"}},
        Texte{"Windows-1252", "\xE9t\xE9\nc\x9Cur\n", Encodage::windows1252, {"ETE", "COEUR"}},
        Texte{"mêlés", "été\n\xE9pi\n", Encodage::meles, {"EPI", "ETE"}}));

TEST(Dictionnaireperso, refuse_une_ligne_par_son_numero_et_prend_le_reste) {
    const auto l = lus("nez\nporte-clé\nun deux\nl'été\n3lc\na\nabcdefghijklmnop\nzen\nnez\n");
    EXPECT_THAT(textes(l), ElementsAre("NEZ", "ZEN"));
    EXPECT_EQ(l.doubles, 1U);
    EXPECT_EQ(l.refusees, 6U);
    std::vector<std::string> refus;
    for (const auto& ligne : l.montrees)
        refus.push_back(std::to_string(ligne.numero) + ' ' + ligne.extrait + " : " + ligne.ennui);
    EXPECT_THAT(refus,
                ElementsAre("2 porte-clé : un trait d'union", HasSubstr("3 un deux : un blanc"),
                            "4 l'été : une apostrophe", "5 3lc : autre chose que des lettres",
                            HasSubstr("6 a : 1 lettre"), HasSubstr("16 lettre")));
}

TEST(Dictionnaireperso, compte_les_mots_par_longueur) {
    const auto l = lus("nez\nzen\nquart\n");
    EXPECT_EQ(l.parlongueur[3], 2U);
    EXPECT_EQ(l.parlongueur[5], 1U);
}

TEST(Dictionnaireperso, un_mot_d_un_megaoctet_est_une_ligne_refusee) {
    const auto l = lus("nez\n" + std::string(1 << 20, 'e') + "\nzen\n");
    EXPECT_THAT(textes(l), ElementsAre("NEZ", "ZEN"));
    ASSERT_EQ(l.montrees.size(), 1U);
    EXPECT_EQ(l.montrees[0].numero, 2U);
    EXPECT_THAT(l.montrees[0].ennui, HasSubstr("trop long"));
    EXPECT_LT(l.montrees[0].extrait.size(), 100U);
}

TEST(Dictionnaireperso, ne_montre_que_les_premieres_lignes_refusees) {
    std::string octets = "nez\n";
    for (std::size_t i = 0; i < refusmontres + 5; ++i)
        octets += "1\n";
    const auto l = lus(octets);
    EXPECT_EQ(l.refusees, refusmontres + 5);
    EXPECT_EQ(l.montrees.size(), refusmontres);
}

struct Illisible {
    const char* nom;
    std::string octets;
    const char* ennui;
};
void PrintTo(const Illisible& cas, std::ostream* os) {
    *os << cas.nom;
}
class Refuse : public testing::TestWithParam<Illisible> {};
TEST_P(Refuse, le_fichier) {
    const auto lu = liremots(GetParam().octets);
    ASSERT_TRUE(std::holds_alternative<std::string>(lu));
    EXPECT_THAT(std::get<std::string>(lu), HasSubstr(GetParam().ennui));
}
INSTANTIATE_TEST_SUITE_P(
    Dictionnaireperso, Refuse,
    testing::Values(Illisible{"vide", "", "est vide"},
                    Illisible{"binaire", std::string("nez\n\0\1", 6), "pas un texte"},
                    Illisible{"UTF-16", std::string("\xFF\xFEn\0", 4), "UTF-16"},
                    Illisible{"sans mot", "1\n2\n- -\n", "aucun mot"},
                    Illisible{"lignes vides", "\n\n\r\n", "aucun mot"}));

class Fichier : public testing::Test {
  protected:
    std::string ennui(const std::string& nom) {
        const auto lu =
            lirefichierdemots(disque, (dossier.chemin() / common::chemin(nom)).string());
        return std::holds_alternative<std::string>(lu) ? std::get<std::string>(lu) : "lu";
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque;
};

TEST_F(Fichier, qui_n_est_plus_la_est_nomme) {
    EXPECT_THAT(ennui("parti.txt"), HasSubstr("parti.txt : "));
    EXPECT_NE(ennui("."), "lu");
}

TEST_F(Fichier, trop_gros_est_refuse_avec_la_limite) {
    dossier.ecrire("gros.txt", "");
    std::filesystem::resize_file(dossier.chemin() / "gros.txt", 100 << 20U);
    EXPECT_THAT(ennui("gros.txt"), HasSubstr("la limite est de 32 Mo"));
    dossier.ecrire("bon.txt", "nez\n");
    EXPECT_EQ(ennui("bon.txt"), "lu");
}

TEST(Dictionnaireperso, se_compare_au_lexique) {
    const auto g = essais::glossaire(essais::vocabulaire(essais::seuls({"nez", "zen", "zut"})));
    const auto ecart = comparer(lus("nez\nxyste\nabc\n").mots, g);
    EXPECT_EQ(ecart.communs, 1U);
    EXPECT_EQ(ecart.inconnus, 2U);
    EXPECT_EQ(ecart.manquants, 2U);
    EXPECT_THAT(ecart.exemplesinconnus, ElementsAre("ABC", "XYSTE"));
    EXPECT_THAT(ecart.exemplesmanquants, ElementsAre("ZEN", "ZUT"));
}

}  // namespace
}  // namespace test_dictionnaireperso
