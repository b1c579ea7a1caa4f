// The carnet without a window, as a script runs it.

#include <filesystem>
#include <string>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "dossiertemporaire.h"
#include "processus.h"

namespace test_programme {
namespace {

using essais::Fin;
using testing::HasSubstr;

class Programme : public testing::Test {
  protected:
    Programme() {
        std::filesystem::create_directories(dossier.chemin() / "jeu" / u8"Zoé");
        dossier.ecrire("jeu/Zoé/journal.txt",
                       "24/08/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\n"
                       "24/08/2019 - 14:35:10;3lc.txt;T;AB;BA;0;\r\nmoiti");
        dossier.ecrire("jeu/Zoé/hist.dat", "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt\r\n");
    }
    [[nodiscard]] Fin lancer(essais::Mots arguments) const {
        arguments.insert(arguments.begin(), {"--dossier", "jeu"});
        return essais::lancer(ORVANE_CARNET, arguments, dossier.chemin());
    }
    essais::DossierTemporaire dossier;
};

TEST_F(Programme, dit_les_echeances_sans_ecran) {
    const auto fin = lancer({"--echeances", "Zoé", "--jour", "2019-08-25"});
    EXPECT_EQ(fin.etat, 0);
    EXPECT_EQ(fin.sortie, "2019-08-25;1;AB;BA\n2019-08-25;1;AEX;AXE\n");
    EXPECT_THAT(fin.erreurs, HasSubstr("1 ligne illisible sur 3."));
}

TEST_F(Programme, aujourd_hui_est_passe_le_jour_du_journal) {
    EXPECT_EQ(lancer({"--echeances", "Zoé", "--plafond", "1"}).sortie, "2019-08-25;1;AB;BA\n");
}

TEST_F(Programme, dit_les_progres) {
    const auto fin = lancer({"--progres", "Zoé"});
    EXPECT_EQ(fin.etat, 0);
    EXPECT_EQ(fin.sortie, "3lc.txt;1;95.3;95.3;2019-08-24\n");
    EXPECT_EQ(fin.erreurs, "");
}

TEST_F(Programme, un_refus_est_dit_et_finit_par_1) {
    for (const char* demande : {"--progres", "--echeances"}) {
        const auto fin = lancer({demande, "Paul"});
        EXPECT_EQ(fin.etat, 1);
        EXPECT_EQ(fin.sortie, "");
        EXPECT_THAT(fin.erreurs, HasSubstr("Pas de joueur « Paul »"));
    }
}

TEST_F(Programme, un_mauvais_usage_finit_par_2) {
    const auto fin = lancer({"--echeances", "Zoé", "--jour", "demain"});
    EXPECT_EQ(fin.etat, 2);
    EXPECT_EQ(fin.sortie, "");
    EXPECT_THAT(fin.erreurs, HasSubstr("« demain »"));
}

}  // namespace
}  // namespace test_programme
