#include <filesystem>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "maliste.h"
#include "verification.h"

namespace test_maliste {
namespace {

using namespace carnet;
using testing::HasSubstr;
using testing::IsEmpty;

struct Nom {
    const char* tape;
    const char* fichier;
};
void PrintTo(const Nom& nom, std::ostream* os) {
    *os << nom.tape;
}
class Permis : public testing::TestWithParam<Nom> {};
TEST_P(Permis, nom_de_liste) {
    EXPECT_EQ(fichierdenom(GetParam().tape), GetParam().fichier);
    EXPECT_EQ(refusdunom(GetParam().fichier), "");
}
INSTANTIATE_TEST_SUITE_P(Maliste, Permis,
                         testing::Values(Nom{"perso", "perso.txt"}, Nom{"  été 7 ", "été 7.txt"},
                                         Nom{"scrabbles.TXT", "scrabbles.TXT"},
                                         Nom{"console", "console.txt"}, Nom{"a.b", "a.b.txt"}));

struct Refuse {
    const char* tape;
    const char* ennui;
};
void PrintTo(const Refuse& refuse, std::ostream* os) {
    *os << refuse.tape;
}
class Refusenom : public testing::TestWithParam<Refuse> {};
TEST_P(Refusenom, et_dit_pourquoi) {
    EXPECT_THAT(refusdunom(fichierdenom(GetParam().tape)), HasSubstr(GetParam().ennui));
}
INSTANTIATE_TEST_SUITE_P(
    Maliste, Refusenom,
    testing::Values(Refuse{"", "Donnez un nom"}, Refuse{"   ", "Donnez un nom"},
                    Refuse{".txt", "Donnez un nom"}, Refuse{"a/b", "« / »"},
                    Refuse{"..\\a", "« \\ »"}, Refuse{"a;b", "« ; »"}, Refuse{"a,b", "« , »"},
                    Refuse{"слово", "« с »"}, Refuse{"a\nb", "ne peut être"},
                    Refuse{".cache", "ne commence ni ne finit"}, Refuse{"fin .txt", "un blanc"},
                    Refuse{"CON", "réservé"}, Refuse{"nul.liste", "réservé"},
                    Refuse{"3lc", "liste du programme"}, Refuse{"3LC.TXT", "liste du programme"},
                    Refuse{"vb6_a", "liste du programme"}, Refuse{"ods7", "liste du programme"},
                    Refuse{"mienne_b", "partie de liste"},
                    Refuse{"0123456789012345678901234567890123456789012345678901234567890123",
                           "trop long"}));

class Ecriture : public testing::Test {
  protected:
    Ecriture() { std::filesystem::create_directories(dossier.chemin() / "listes"); }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Ecriture, met_la_liste_dans_le_dossier_des_listes) {
    EXPECT_FALSE(existeliste(disque, "été.txt"));
    EXPECT_FALSE(enregistrer(disque, "été.txt", {"(N)EZ;NEZ", "AQRTU;QUART"}));
    EXPECT_TRUE(existeliste(disque, "été.txt"));
    EXPECT_EQ(dossier.lire("listes/été.txt"), "(N)EZ;NEZ\r\nAQRTU;QUART\r\n");
    EXPECT_THAT(atelier::verifierfichier((dossier.chemin() / u8"listes/été.txt").string()),
                IsEmpty());
}

TEST_F(Ecriture, un_refus_du_disque_est_dit_et_ne_change_rien) {
    ASSERT_FALSE(enregistrer(disque, "a.txt", {"AB;BA"}));
    common::DisqueReel absent(dossier.chemin() / "nulle part");
    EXPECT_TRUE(enregistrer(absent, "a.txt", {"CD;DC"}));
    EXPECT_EQ(dossier.lire("listes/a.txt"), "AB;BA\r\n");
}

TEST(Maliste, dit_comment_la_jouer) {
    EXPECT_THAT(commentjouer("été.txt"),
                testing::AllOf(HasSubstr("AUTRES LISTES"), HasSubstr("été.txt"), HasSubstr("OK")));
}

}  // namespace
}  // namespace test_maliste
