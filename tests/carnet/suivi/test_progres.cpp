// The results of the lists, from the records.

#include <string>

#include <gtest/gtest.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "progres.h"

namespace test_progres {
namespace {

std::string texte(const carnet::Bilans& bilans) {
    std::string lignes;
    for (const auto& [nom, b] : bilans)
        lignes += nom + " " + std::to_string(b.passages) + " " + b.dernier + " " + b.meilleur +
                  " " + b.derniereon + "\n";
    return lignes;
}

struct Cas {
    const char* nom;
    std::string records;
    std::string attendu;
};
void PrintTo(const Cas& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Bilans : public testing::TestWithParam<Cas> {};

TEST_P(Bilans, des_records) {
    const essais::DossierTemporaire dossier;
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé");
    dossier.ecrire("Zoé/hist.dat", GetParam().records);
    common::DisqueReel disque(dossier.chemin());
    EXPECT_EQ(texte(carnet::lirebilans(disque, "Zoé")), GetParam().attendu);
}

const Cas lescas[] = {
    {"aucun", "", ""},
    {"un_seul", "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt\r\n", "3lc.txt 1 95.3 95.3 2019-08-24\n"},
    {"le_dernier_et_le_meilleur",
     "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt\r\n25/08/2019 - 14:35 - 100% - E - 3lc.txt\r\n"
     "26/08/2019 - 14:35 - 9.5% - R - 3lc.txt\r\n",
     "3lc.txt 3 9.5 100 2019-08-26\n"},
    {"une_partie_a_son_nom", "24/08/2019 - 14:35 - 80% - vb6_a.txt\r\n",
     "vb6_a.txt 1 80 80 2019-08-24\n"},
    {"une_liste_dont_le_nom_semble_un_mode", "24/08/2019 - 14:35 - 80% - T.txt\r\n",
     "T.txt 1 80 80 2019-08-24\n"},
    {"par_nom",
     "24/08/2019 - 14:35 - 80% - T - vb6.txt\r\n24/08/2019 - 14:36 - 81% - T - 3lc.txt\r\n",
     "3lc.txt 1 81 81 2019-08-24\nvb6.txt 1 80 80 2019-08-24\n"},
    {"un_nom_accentue", "24/08/2019 - 14:35 - 80% - T - \xE9t\xE9.txt\r\n",
     "été.txt 1 80 80 2019-08-24\n"},
    {"records_abimes",
     "24/08/2019 - 14:35 - 80%\r\n24/08/2019\r\n% - % - %\r\nx4/08/2019 - 14:35 - 80% - T - a\r\n"
     "24/08/2019 - 14:35 - % - T - a\r\n24/08/2019 - 14:35 - 80% - T - \r\n",
     ""},
};
INSTANTIATE_TEST_SUITE_P(Progres, Bilans, testing::ValuesIn(lescas),
                         [](const auto& cas) { return cas.param.nom; });

TEST(Progres, sans_fichier_rien_n_a_ete_joue) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    EXPECT_TRUE(carnet::lirebilans(disque, "Zoé").empty());
}

TEST(Progres, un_fichier_illisible_est_une_faute) {
    const essais::DossierTemporaire dossier;
    std::filesystem::create_directories(dossier.chemin() / u8"Zoé" / "hist.dat");
    common::DisqueReel disque(dossier.chemin());
    EXPECT_THROW(static_cast<void>(carnet::lirebilans(disque, "Zoé")), common::Faute);
}

}  // namespace
}  // namespace test_progres
