// Racks made into the two lists that the personal row plays, and the players of a folder.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chemin.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "joueurs.h"
#include "listedujour.h"
#include "maliste.h"

namespace test_listedujour {
namespace {

using carnet::Echeance;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Casliste {
    const char* liste;
    bool jouable;
};
void PrintTo(const Casliste& cas, std::ostream* sortie) {
    *sortie << cas.liste;
}
class Surlarangee : public testing::TestWithParam<Casliste> {};
TEST_P(Surlarangee, ou_pas) {
    EXPECT_EQ(carnet::surlarangee(GetParam().liste), GetParam().jouable);
}
INSTANTIATE_TEST_SUITE_P(Listes, Surlarangee,
                         testing::Values(Casliste{"3lc.txt", true}, Casliste{"dujour.txt", true},
                                         Casliste{"mes mots.txt", true},
                                         Casliste{"benj_uni.txt", false},
                                         Casliste{"rallonge_av_7a8L.txt", false},
                                         Casliste{"rallonge_ar_5a6L.txt", false},
                                         Casliste{"vb6_a.txt", true}),
                         [](const auto& cas) {
                             std::string nom = cas.param.liste;
                             std::erase_if(nom, [](char c) { return c == '.' || c == ' '; });
                             return nom;
                         });

TEST(Listedujour, partage_selon_les_solutions_et_s_arrete_au_plafond) {
    const std::vector<Echeance> dues{{1, 0, "A;B", "3lc.txt"},
                                     {1, 0, "C;D,E", "duos7.txt"},
                                     {1, 0, "F;G", "rallonge_av_7a8L.txt"},
                                     {1, 0, "(\xC9);H", "mes mots.txt"},
                                     {1, 0, "I;J", "3lc.txt"},
                                     {1, 0, "K;L", "benj_uni.txt"}};
    const auto paire = carnet::listedujour(dues, 3);
    EXPECT_THAT(paire.simple, ElementsAre("A;B", "(É);H"));
    EXPECT_THAT(paire.multiple, ElementsAre("C;D;E"));
    EXPECT_EQ(paire.attendent, 1U);
    EXPECT_EQ(paire.laisses, 2U);
}

TEST(Listedujour, plus_de_cinq_solutions_ne_se_jouent_pas) {
    const std::vector<Echeance> dues{{1, 0, "A;B,C,D,E,F", "x.txt"},
                                     {1, 0, "A;B,C,D,E,F,G", "x.txt"}};
    const auto paire = carnet::listedujour(dues, 60);
    EXPECT_THAT(paire.multiple, ElementsAre("A;B;C;D;E;F"));
    EXPECT_EQ(paire.laisses, 1U);
}

class Ecrite : public testing::Test {
  protected:
    Ecrite() { std::filesystem::create_directory(dossier.chemin() / "listes"); }
    [[nodiscard]] bool existe(const char* nom) const {
        return std::filesystem::exists(dossier.chemin() / "listes" / nom);
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Ecrite, chaque_liste_dans_son_fichier) {
    carnet::Paire paire;
    paire.simple = {"A;B", "(É);H"};
    paire.multiple = {"C;D;E"};
    EXPECT_EQ(carnet::ecrirepaire(disque, paire, carnet::nomsdujour), "");
    EXPECT_EQ(dossier.lire("listes/dujour.txt"), "A;B\r\n(\xC9);H\r\n");
    EXPECT_EQ(dossier.lire("listes/dujour-multi.txt"), "C;D;E\r\n");
    const auto dit = carnet::commentjouerpaire(paire, carnet::nomsdujour);
    EXPECT_THAT(dit, HasSubstr("AUTRES LISTES"));
    EXPECT_THAT(dit, HasSubstr("tapez dujour.txt"));
    EXPECT_THAT(dit, HasSubstr("de même dujour-multi.txt"));
}

TEST_F(Ecrite, une_liste_vide_est_otee) {
    dossier.ecrire("listes/dujour.txt", "VIEUX;VIEUX\r\n");
    carnet::Paire paire;
    paire.multiple = {"C;D;E"};
    EXPECT_EQ(carnet::ecrirepaire(disque, paire, carnet::nomsdujour), "");
    EXPECT_FALSE(existe("dujour.txt"));
    EXPECT_TRUE(existe("dujour-multi.txt"));
    EXPECT_THAT(carnet::commentjouerpaire(paire, carnet::nomsdujour),
                Not(HasSubstr("tapez dujour.txt")));
    EXPECT_EQ(carnet::ecrirepaire(disque, {}, carnet::nomsdujour), "");
    EXPECT_FALSE(existe("dujour-multi.txt"));
    EXPECT_EQ(carnet::commentjouerpaire({}, carnet::nomsdujour), "");
}

TEST_F(Ecrite, un_refus_du_disque_est_dit) {
    std::filesystem::create_directories(dossier.chemin() / "listes" / "dujour.txt");
    carnet::Paire paire;
    paire.simple = {"A;B"};
    EXPECT_THAT(carnet::ecrirepaire(disque, paire, carnet::nomsdujour), HasSubstr("dujour.txt"));
}

TEST(Nomsducarnet, ne_sont_pas_pour_une_liste_du_joueur) {
    for (const auto* nom : {"dujour.txt", "Dujour-Multi.txt", "difficiles.txt"})
        EXPECT_THAT(carnet::refusdunom(nom), HasSubstr("le carnet refait")) << nom;
}

TEST_F(Ecrite, les_joueurs_qui_ont_un_dossier_le_dernier_venu_d_abord) {
    for (const auto* nom : {"Zoé", "Anne", "Léa"})
        std::filesystem::create_directory(dossier.chemin() / common::chemin(nom));
    dossier.ecrire("users.dat",
                   "Zo\xE9\r\nParti\r\n..\r\nAnne\r\nAnne\r\nL\xE9"
                   "a\r\n");
    EXPECT_THAT(carnet::joueurs(disque), ElementsAre("Léa", "Anne", "Zoé"));
    std::filesystem::remove(dossier.chemin() / "users.dat");
    EXPECT_THAT(carnet::joueurs(disque), IsEmpty());
}

TEST_F(Ecrite, le_plafond_d_un_joueur_est_garde) {
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé");
    EXPECT_EQ(carnet::lireplafonddejoueur(disque, "Zoé"), 60);
    EXPECT_FALSE(carnet::ecrireplafonddejoueur(disque, "Zoé", 30));
    EXPECT_EQ(carnet::lireplafonddejoueur(disque, "Zoé"), 30);
    for (const auto* faux : {"", "0", "901", "beaucoup\r\n", "-3"}) {
        dossier.ecrire("Zoé/carnet.dat", faux);
        EXPECT_EQ(carnet::lireplafonddejoueur(disque, "Zoé"), 60) << faux;
    }
}

}  // namespace
}  // namespace test_listedujour
