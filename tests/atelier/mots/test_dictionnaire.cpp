#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "dictionnaire.h"
#include "faute.h"

namespace test_dictionnaire {
namespace {

using atelier::liredictionnaire;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> lire(const std::string& octets) {
    std::vector<std::string> textes;
    for (const auto& mot : liredictionnaire(octets, "mots.txt"))
        textes.emplace_back(mot.texte());
    return textes;
}

struct Encodage {
    const char* nom;
    std::string octets;
};
void PrintTo(const Encodage& e, std::ostream* os) {
    *os << e.nom;
}
class Encodages : public testing::TestWithParam<Encodage> {};
TEST_P(Encodages, donne_les_memes_mots) {
    EXPECT_THAT(lire(GetParam().octets), ElementsAre("ETE", "NOEL", "OEUF"));
}
INSTANTIATE_TEST_SUITE_P(
    Dictionnaire, Encodages,
    testing::Values(Encodage{"utf8_lf", "été\nœuf\nnoël\n"},
                    Encodage{"utf8_crlf", "été\r\nœuf\r\nnoël\r\n"},
                    Encodage{"utf8_marque", "\xEF\xBB\xBFété\nœuf\nnoël\n"},
                    Encodage{"occidental_crlf", "\xE9t\xE9\r\n\x9Cuf\r\nno\xEBl\r\n"},
                    Encodage{"occidental_lf", "\xE9t\xE9\n\x9Cuf\nno\xEBl\n"},
                    Encodage{"capitales_sans_accent", "ETE\nOEUF\nNOEL\n"},
                    Encodage{"capitales_accentuees", "ÉTÉ\nŒUF\nNOËL\n"},
                    Encodage{"capitales_accentuees_occidental", "\xC9T\xC9\n\x8CUF\nNO\xCBL\n"},
                    Encodage{"sans_derniere_fin", "noel\nete\noeuf"},
                    Encodage{"blancs_et_lignes_vides", " ete \n\n\toeuf\n\nnoel\n"},
                    Encodage{"doublons", "ete\nETE\nété\noeuf\nnoel\n"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Dictionnaire, les_longueurs_injouables_sont_laissees) {
    EXPECT_THAT(lire("a\nas\nabcdefghijklmno\nabcdefghijklmnop\n"),
                ElementsAre("AS", "ABCDEFGHIJKLMNO"));
}

struct Casse {
    const char* nom;
    std::string octets;
    const char* ennui;
};
class DictionnaireCasse : public testing::TestWithParam<Casse> {};
TEST_P(DictionnaireCasse, est_une_faute) {
    try {
        lire(GetParam().octets);
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), AllOf(HasSubstr("« mots.txt »"), HasSubstr(GetParam().ennui)));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Dictionnaire, DictionnaireCasse,
    testing::Values(Casse{"vide", "", "aucun mot"},
                    Casse{"rien_que_des_blancs", " \n\n", "aucun mot"},
                    Casse{"phrase", "as\nbonjour le monde\n", "ligne 2 : on attend un mot"},
                    Casse{"chiffre", "as\nas2\n", "ligne 2 : on attend un mot"},
                    Casse{"utf16",
                          std::string("\xFF\xFE"
                                      "a\0s\0\n\0",
                                      8),
                          "ligne 1 : on attend"},
                    Casse{"binaire", std::string("as\n\0\1\2\n", 7), "ligne 2 : on attend un mot"}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_dictionnaire
