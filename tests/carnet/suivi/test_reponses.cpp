// What the carnet answers without a window.

#include <optional>
#include <string>
#include <variant>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "reponses.h"

namespace test_reponses {
namespace {

using testing::HasSubstr;

class Reponses : public testing::Test {
  protected:
    Reponses() { std::filesystem::create_directory(dossier.chemin() / u8"Zoé"); }

    std::string echeances(const char* jour, std::optional<int> plafond = std::nullopt) {
        return std::get<std::string>(
            carnet::echeances(disque, "Zoé", *carnet::lirejour(jour), plafond, avis));
    }

    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
    std::string avis;
};

constexpr const char* journal =
    "24/08/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\n"
    "24/08/2019 - 14:35:10;3lc.txt;T;AB;BA;1;BA\r\n"
    "24/08/2019 - 14:35:10;2p4.txt;T;\xC9H;HE,EH;0;HE,\r\n"
    "25/08/2019 - 09:00:00;3lc.txt;R;AEX;AXE;1;AXE\r\n";

TEST_F(Reponses, echeances_dans_l_ordre_du_jour) {
    dossier.ecrire("Zoé/journal.txt", journal);
    EXPECT_EQ(echeances("2019-08-24"), "");
    EXPECT_EQ(echeances("2019-08-25"), "2019-08-25;1;ÉH;HE,EH\n");
    EXPECT_EQ(echeances("2019-08-28"), "2019-08-25;1;ÉH;HE,EH\n2019-08-28;2;AEX;AXE\n");
    EXPECT_EQ(echeances("9999-12-31", 1), "2019-08-25;1;ÉH;HE,EH\n");
    EXPECT_EQ(avis, "");
}

TEST_F(Reponses, sans_journal_rien_n_est_du) {
    EXPECT_EQ(echeances("2019-08-28"), "");
}

TEST_F(Reponses, les_lignes_sautees_sont_dites) {
    dossier.ecrire("Zoé/journal.txt", std::string(journal) + "n'importe quoi\r\n24/08/2019 - 1");
    EXPECT_EQ(echeances("2019-08-25"), "2019-08-25;1;ÉH;HE,EH\n");
    EXPECT_THAT(avis, HasSubstr("2 lignes illisibles sur 6."));
}

TEST_F(Reponses, un_journal_illisible_est_un_refus) {
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé" / "journal.txt");
    const auto reponse = carnet::echeances(disque, "Zoé", 0, std::nullopt, avis);
    ASSERT_TRUE(std::holds_alternative<carnet::Refus>(reponse));
    EXPECT_THAT(std::get<carnet::Refus>(reponse).raison, HasSubstr("c'est un dossier"));
}

TEST_F(Reponses, un_joueur_inconnu_est_un_refus) {
    dossier.ecrire("fichier", "");
    for (const char* nom : {"listes", "images"})
        std::filesystem::create_directory(dossier.chemin() / nom);
    for (const char* nom : {"Paul", "", ".", "..", "Zoé/", "a\\b", "fichier", "listes", "images"}) {
        EXPECT_TRUE(std::holds_alternative<carnet::Refus>(carnet::progres(disque, nom))) << nom;
        EXPECT_TRUE(std::holds_alternative<carnet::Refus>(
            carnet::echeances(disque, nom, 0, std::nullopt, avis)))
            << nom;
    }
}

TEST_F(Reponses, progres_une_ligne_par_liste) {
    dossier.ecrire("Zoé/hist.dat",
                   "24/08/2019 - 14:35 - 95.3% - T - vb6.txt\r\n"
                   "25/08/2019 - 14:35 - 80% - T - vb6.txt\r\n"
                   "24/08/2019 - 14:35 - 100% - T - 3lc.txt\r\n");
    EXPECT_EQ(std::get<std::string>(carnet::progres(disque, "Zoé")),
              "3lc.txt;1;100;100;2019-08-24\nvb6.txt;2;80;95.3;2019-08-25\n");
}

TEST_F(Reponses, progres_refuse_des_resultats_illisibles) {
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé" / "hist.dat");
    const auto reponse = carnet::progres(disque, "Zoé");
    ASSERT_TRUE(std::holds_alternative<carnet::Refus>(reponse));
    EXPECT_THAT(std::get<carnet::Refus>(reponse).raison, HasSubstr("hist.dat"));
}

TEST(Jours, de_la_ligne_de_commande) {
    EXPECT_EQ(carnet::lirejour("1970-01-01"), 0);
    EXPECT_EQ(carnet::lirejour("2020-02-29"), 18321);
    EXPECT_EQ(carnet::lirejour("9999-12-31"), 2932896);
    for (const char* faux :
         {"", "2019-02-29", "2019-13-01", "2019-00-01", "2019-01-00", "0000-01-01", "2019/01/01",
          "19-01-01", "2019-01-1x", "2019-01-011", "-019-01-01"})
        EXPECT_EQ(carnet::lirejour(faux), std::nullopt) << faux;
}

TEST(Plafond, de_la_ligne_de_commande) {
    EXPECT_EQ(carnet::lireplafond("1"), 1);
    EXPECT_EQ(carnet::lireplafond("900"), 900);
    for (const char* faux : {"", "0", "901", "-1", "1.5", "99999999999", "dix", " 1"})
        EXPECT_EQ(carnet::lireplafond(faux), std::nullopt) << faux;
}

TEST(Jours, s_ecrivent) {
    EXPECT_EQ(carnet::textejour(18321), "2020-02-29");
    EXPECT_EQ(carnet::textejour(-25567), "1900-01-01");
    EXPECT_EQ(carnet::textejour(2932897), "10000-01-01");
}

}  // namespace
}  // namespace test_reponses
