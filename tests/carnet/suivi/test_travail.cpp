// What a player has worked, and the tables that tell it.

#include <random>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "suivi.h"
#include "tableaux.h"

namespace test_travail {
namespace {

using carnet::Jour;
using carnet::Travail;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

void prendre(Travail& travail, Jour jour, std::string_view identifiant, bool trouve,
             std::string_view liste = "3lc.txt") {
    profiles::Lignejournal ligne;
    ligne.jour = jour;
    ligne.identifiant = identifiant;
    ligne.trouve = trouve;
    ligne.liste = liste;
    travail.prendre(ligne);
}

std::vector<std::string> noms(const std::vector<carnet::Tiragedur>& durs) {
    std::vector<std::string> lus;
    for (const auto& dur : durs)
        lus.emplace_back(dur.identifiant);
    return lus;
}

TEST(Travail, compte_les_tirages_de_chaque_jour) {
    Travail travail;
    prendre(travail, 18000, "A;A", true);
    prendre(travail, 18000, "B;B", false);
    prendre(travail, 17999, "A;A", true);
    EXPECT_THAT(carnet::tableaujournees(travail.journees(), 17999, 18001).rangees,
                ElementsAre(ElementsAre("13/04/2019", "1", "1", "100 %"),
                            ElementsAre("14/04/2019", "2", "1", "50 %")));
    EXPECT_THAT(carnet::tableaujournees(travail.journees(), 18001, 19000).rangees, IsEmpty());
}

TEST(Travail, les_plus_durs_d_abord) {
    Travail travail;
    prendre(travail, 1, "JAMAIS;X", true);
    for (const char* rack : {"TROIS;X", "TROIS;X", "TROIS;X", "SOUVENT;X", "RARE;X", "TARD;X"})
        prendre(travail, 2, rack, false);
    prendre(travail, 3, "SOUVENT;X", true);
    prendre(travail, 9, "TARD;X", false);
    prendre(travail, 2, "EGAL;X", false);
    EXPECT_THAT(noms(travail.durs(10)),
                ElementsAre("TROIS;X", "TARD;X", "EGAL;X", "RARE;X", "SOUVENT;X"));
    EXPECT_THAT(noms(travail.durs(1)), ElementsAre("TROIS;X"));
    EXPECT_THAT(noms(travail.durs(0)), IsEmpty());
}

TEST(Travail, la_table_des_plus_durs_dit_leurs_solutions_et_leur_part) {
    Travail travail;
    prendre(travail, 18000, "\xC9T\xC9;A,B", false, "mes mots.txt");
    prendre(travail, 18001, "\xC9T\xC9;A,B", true, "mes mots.txt");
    prendre(travail, 18001, "\xC9T\xC9;A,B", true, "mes mots.txt");
    EXPECT_THAT(
        carnet::tableaudurs(travail.durs(5)).rangees,
        ElementsAre(ElementsAre("ÉTÉ", "A B", "1 fois", "66,7 %", "15/04/2019", "mes mots.txt")));
}

TEST(Tableaux, des_jours_qui_viennent_et_des_paliers) {
    const std::vector<std::size_t> nombres{4, 0, 1};
    EXPECT_THAT(carnet::tableauprevision(nombres, 18000).rangees,
                ElementsAre(ElementsAre("Aujourd'hui", "4"), ElementsAre("15/04/2019", "0"),
                            ElementsAre("16/04/2019", "1")));
    EXPECT_THAT(carnet::tableaupaliers(nombres).rangees,
                ElementsAre(ElementsAre("1", "1 jour", "4"), ElementsAre("2", "3 jours", "0"),
                            ElementsAre("3", "7 jours", "1")));
}

TEST(Tableaux, des_resultats_par_liste) {
    carnet::Bilans bilans;
    ASSERT_TRUE(carnet::prendrerecord("13/04/2019 - 14:35 - 95.3% - T - 3lc.txt", bilans));
    ASSERT_TRUE(carnet::prendrerecord("14/04/2019 - 14:35 - 80% - vb6_a.txt", bilans));
    ASSERT_TRUE(carnet::prendrerecord("15/04/2019 - 14:35 - 70% - R - vb6_a.txt", bilans));
    ASSERT_TRUE(carnet::prendrerecord("31/02/2019 - 14:35 - 60% - E - vb6_a.txt", bilans));
    EXPECT_THAT(carnet::tableaulistes(bilans, 18000).rangees,
                ElementsAre(ElementsAre("3lc.txt", "1", "95,3 %", "95,3 %", "13/04/2019", "1 jour"),
                            ElementsAre("vb6_a.txt", "3", "60 %", "80 %", "", "")));
    EXPECT_THAT(carnet::tableaupassages(bilans["vb6_a.txt"].points).rangees,
                ElementsAre(ElementsAre("15/04/2019", "70 %", "Révision"),
                            ElementsAre("14/04/2019", "80 %", "Partie")));
}

TEST(Tableaux, un_fichier_pour_un_tableur_garde_chaque_cellule) {
    const carnet::Tableau tableau{{"A", "B"}, {{"x;y", "dit \"z\""}, {"=1+1", "été"}}};
    EXPECT_EQ(carnet::encsv(tableau),
              "\xEF\xBB\xBF"
              "A;B\r\n\"x;y\";\"dit \"\"z\"\"\"\r\n'=1+1;été\r\n");
}

class Lecture : public testing::Test {
  protected:
    Lecture() {
        std::filesystem::create_directory(dossier.chemin() / u8"Zoé");
        suivi.util = "Zoé";
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
    carnet::Suivi suivi;
};

TEST_F(Lecture, lit_journal_et_resultats_d_un_coup) {
    dossier.ecrire("Zoé/journal.txt",
                   "13/04/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\nn'importe quoi\r\n");
    dossier.ecrire("Zoé/hist.dat", "13/04/2019 - 14:35 - 95.3% - T - 3lc.txt\r\n");
    ASSERT_TRUE(carnet::liresuivi(disque, suivi, [](std::size_t) { return true; }));
    EXPECT_EQ(suivi.echelle.taille(), 1U);
    EXPECT_EQ(suivi.travail.journees().size(), 1U);
    EXPECT_EQ(suivi.bilans.size(), 1U);
    EXPECT_EQ(suivi.lecture.sautees, 1U);
    EXPECT_EQ(suivi.ennui, "");
}

TEST_F(Lecture, un_joueur_dont_le_dossier_a_disparu_n_a_rien_fait) {
    suivi.util = "Paul";
    ASSERT_TRUE(carnet::liresuivi(disque, suivi, [](std::size_t) { return true; }));
    EXPECT_EQ(suivi.echelle.taille(), 0U);
    EXPECT_EQ(suivi.ennui, "");
}

TEST_F(Lecture, un_journal_qui_ne_peut_se_lire_est_dit) {
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé" / "journal.txt");
    ASSERT_TRUE(carnet::liresuivi(disque, suivi, [](std::size_t) { return true; }));
    EXPECT_THAT(suivi.ennui, HasSubstr("journal.txt"));
}

TEST_F(Lecture, s_arrete_quand_on_le_demande) {
    dossier.ecrire("Zoé/journal.txt", "13/04/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\n");
    EXPECT_FALSE(carnet::liresuivi(disque, suivi, [](std::size_t) { return false; }));
}

/// A journal of years in which many lines are damaged, and what is whole of it.
TEST_F(Lecture, ne_prend_que_les_lignes_entieres_d_un_journal_abime) {
    std::mt19937 hasard(7);
    std::string journal;
    std::size_t bonnes = 0;
    for (int i = 0; i < 5000; ++i) {
        std::string ligne = "13/04/2019 - 14:35:10;3lc.txt;T;R" + std::to_string(i) + ";S;0;";
        if (hasard() % 3 == 0)
            ligne.erase(hasard() % (ligne.size() - 1));  // one field less, or half a field
        else
            ++bonnes;
        journal += ligne + "\r\n";
    }
    dossier.ecrire("Zoé/journal.txt", journal);
    ASSERT_TRUE(carnet::liresuivi(disque, suivi, [](std::size_t) { return true; }));
    EXPECT_EQ(suivi.lecture.lues, bonnes);
    EXPECT_EQ(suivi.lecture.sautees, 5000 - bonnes);
    EXPECT_EQ(suivi.echelle.taille(), bonnes);
}

TEST(Calendrier, nomme_les_jours) {
    EXPECT_EQ(carnet::textejour(0), "1970-01-01");
    EXPECT_EQ(carnet::datefrancaise(-25567), "01/01/1900");
    EXPECT_EQ(carnet::datefrancaise(2932896), "31/12/9999");
    EXPECT_EQ(carnet::jourdesemaine(0), 3);
    EXPECT_EQ(carnet::jourdesemaine(4), 0);
    EXPECT_EQ(carnet::annee(18000), 2019);
    EXPECT_EQ(carnet::mois(18000), 4);
    EXPECT_EQ(carnet::lirejour("2019-04-14"), 18000);
}

}  // namespace
}  // namespace test_travail
