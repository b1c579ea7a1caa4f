#include <array>
#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "form1.h"
#include "rangees.h"

namespace test_rangees {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::ThrowsMessage;

using Textes = std::vector<std::pair<std::string, std::string>>;

const auto regle = [](const auto& cas) { return cas.param.regle; };

/// The rows of a file of these bytes.
class Liste : public testing::Test {
  protected:
    void lire(const std::string& octets) {
        dossier.ecrire("liste.txt", octets);
        rangees.lire(disque, "liste.txt");
    }
    [[nodiscard]] Textes textes() const {
        Textes lues;
        for (int rang = 0; rang < rangees.nbmots(); ++rang)
            lues.emplace_back(rangees.tirage(rang), rangees.suite(rang));
        return lues;
    }

    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
    series::Rangees rangees{common::rangeesform1};
};

struct Lecture {
    const char* regle;
    std::string octets;
    Textes rangees;
    std::size_t longueurdernier;
};

class Rangees : public Liste, public testing::WithParamInterface<Lecture> {};

TEST_P(Rangees, se_lisent) {
    lire(GetParam().octets);
    EXPECT_THAT(textes(), ElementsAreArray(GetParam().rangees));
    EXPECT_EQ(rangees.longueurdernier(), GetParam().longueurdernier);
}

INSTANTIATE_TEST_SUITE_P(
    , Rangees,
    testing::Values(
        Lecture{"fichier_vide", "", {}, 0}, Lecture{"une", "AB;BA\r\n", {{"AB", "BA"}}, 2},
        Lecture{"sans_fin_de_ligne", "AB;BA\r\nCD;DC", {{"AB", "BA"}, {"CD", "DC"}}, 2},
        Lecture{"saut_de_ligne_seul", "AB;BA\nCDE;DC\n", {{"AB", "BA"}, {"CDE", "DC"}}, 3},
        Lecture{"coupe_entre_CR_et_LF", "AB;BA\r", {{"AB", "BA"}}, 2},
        Lecture{"seul_le_premier_point_virgule_separe", "AB;BA;AB;\r\n", {{"AB", "BA;AB;"}}, 2},
        Lecture{"rien_n_est_rogne", " A B ; b,a \r\n", {{" A B ", " b,a "}}, 5},
        Lecture{"tirage_vide", ";A\r\n", {{"", "A"}}, 0},
        Lecture{"solution_vide", "A;\r\n", {{"A", ""}}, 1},
        Lecture{"la_longueur_est_celle_du_dernier_tirage",
                "ABCDEFGHI;A\r\nAB;A\r\n",
                {{"ABCDEFGHI", "A"}, {"AB", "A"}},
                2},
        Lecture{"un_octet_est_un_caractere", "\xC9\xC0\x9C;A\r\n", {{"ÉÀœ", "A"}}, 3},
        Lecture{"octets_sans_caractere", "\x81;\x9D\r\n", {{"\xC2\x81", "\xC2\x9D"}}, 1}),
    regle);

struct Refus {
    const char* regle;
    std::string octets;
    const char* ligne;
    const char* ennui;
};

class Mauvaise : public Liste, public testing::WithParamInterface<Refus> {};

TEST_P(Mauvaise, est_une_faute_qui_nomme_le_fichier_et_la_ligne) {
    EXPECT_THAT(
        [this] { lire(GetParam().octets); },
        ThrowsMessage<common::Faute>(AllOf(HasSubstr("liste.txt"), HasSubstr(GetParam().ligne),
                                           HasSubstr(GetParam().ennui))));
}

std::string repetees(std::size_t nombre) {
    std::string octets;
    for (std::size_t i = 0; i < nombre; ++i)
        octets += "AB;BA\r\n";
    return octets;
}

INSTANTIATE_TEST_SUITE_P(
    Rangees, Mauvaise,
    testing::Values(Refus{"sans_point_virgule", "AB;BA\r\nCD\r\n", "ligne 2 ", "« ; »"},
                    Refus{"ligne_vide", "AB;BA\r\n\r\nCD;DC\r\n", "ligne 2 ", "« ; »"},
                    Refus{"ligne_vide_a_la_fin", "AB;BA\r\n\r\n", "ligne 2 ", "« ; »"},
                    Refus{"point_virgule_en_place_32768", std::string(32767, 'A') + ";B\r\n",
                          "ligne 1 ", "limite est la position 32767"},
                    Refus{"la_15001e", repetees(15001), "ligne 15001 ", "limite est de 15000"}),
    regle);

TEST_F(Liste, absente_est_une_faute) {
    EXPECT_THAT([this] { rangees.lire(disque, "rien.txt"); },
                ThrowsMessage<common::Faute>(
                    AllOf(HasSubstr("rien.txt"), HasSubstr("fichier introuvable"))));
}

TEST_F(Liste, de_15000_rangees_se_lit) {
    lire(repetees(common::rangeesform1));
    EXPECT_EQ(rangees.nbmots(), 15000);
    EXPECT_EQ(rangees.ligne(14999), 15000U);
}

TEST_F(Liste, point_virgule_en_place_32767_se_lit) {
    lire(std::string(32766, 'A') + ";B\r\n");
    EXPECT_EQ(rangees.suite(0), "B");
}

TEST_F(Liste, le_compactage_garde_l_ordre_les_reussites_et_les_lignes) {
    lire("A;1\r\nB;2\r\nC;3\r\nD;4\r\n");
    EXPECT_EQ(rangees.reussir(3), 1);
    EXPECT_EQ(rangees.reussir(3), 2);
    rangees.eliminer(0);
    rangees.eliminer(2);
    EXPECT_EQ(rangees.tirage(2), "");
    EXPECT_EQ(rangees.suite(2), "");
    EXPECT_EQ(rangees.nbmots(), 4);
    rangees.compacter();
    EXPECT_THAT(textes(), ElementsAre(std::pair("B", "2"), std::pair("D", "4")));
    EXPECT_EQ(rangees.ligne(1), 4U);
    EXPECT_EQ(rangees.reussir(0), 1);
    EXPECT_EQ(rangees.reussir(1), 3);
}

TEST_F(Liste, le_compactage_vide_une_liste_toute_eliminee) {
    lire("A;1\r\nB;2\r\n");
    rangees.eliminer(0);
    rangees.eliminer(1);
    rangees.compacter();
    EXPECT_EQ(rangees.nbmots(), 0);
}

TEST_F(Liste, garder_prend_ces_rangees_dans_cet_ordre) {
    lire("A;1\r\nB;2\r\nC;3\r\n");
    rangees.garder(std::array{2, 0});
    EXPECT_THAT(textes(), ElementsAre(std::pair("C", "3"), std::pair("A", "1")));
    rangees.garder(std::vector<int>{});
    EXPECT_EQ(rangees.nbmots(), 0);
}

TEST_F(Liste, une_nouvelle_lecture_remplace_tout) {
    lire("A;1\r\nB;2\r\n");
    EXPECT_EQ(rangees.reussir(0), 1);
    lire("A;1\r\n");
    EXPECT_EQ(rangees.nbmots(), 1);
    EXPECT_EQ(rangees.reussir(0), 1);
}

}  // namespace
}  // namespace test_rangees
