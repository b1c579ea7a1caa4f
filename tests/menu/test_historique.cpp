#include <gtest/gtest.h>

#include "historique.h"
#include "lignes.h"
#include "texte.h"

namespace test_historique {
namespace {

struct Ligne {
    const char* nom;
    const char* record;
    menu::Liste liste;
    const char* attendu;  ///< null: the record belongs to another list
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Lignehistorique : public testing::TestWithParam<Ligne> {};

TEST_P(Lignehistorique, donne) {
    const auto& [nom, record, liste, attendu] = GetParam();
    const auto ligne = menu::lignehistorique(common::vers1252(record), liste);
    EXPECT_EQ(ligne.value_or("(aucune)"), attendu == nullptr ? "(aucune)" : attendu);
}

const Ligne lignes[] = {
    {"liste_entiere",
     "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt",
     {"3lc.txt", 0},
     "24/08/2019 - 14:35 - 95.3% - T"},
    {"revision",
     "24/08/2019 - 14:35 - 95.3% - R - 3lc.txt",
     {"3lc.txt", 0},
     "24/08/2019 - 14:35 - 95.3% - R"},
    {"partie",
     "24/08/2019 - 14:35 - 95.3% - vb6_a.txt",
     {"vb6.txt", 3},
     "24/08/2019 - 14:35 - 95.3% - vb6_a"},
    {"derniere_partie",
     "24/08/2019 - 14:35 - 95.3% - vb6_c.txt",
     {"vb6.txt", 3},
     "24/08/2019 - 14:35 - 95.3% - vb6_c"},
    {"partie_que_la_liste_n_a_pas",
     "24/08/2019 - 14:35 - 95.3% - vb6_d.txt",
     {"vb6.txt", 3},
     nullptr},
    {"autre_liste", "24/08/2019 - 14:35 - 95.3% - T - 3lt.txt", {"3lc.txt", 0}, nullptr},
    {"sans_pourcent_garde",
     "24/08/2019 - 14:35 - 95.3 - T - 3lc.txt",
     {"3lc.txt", 0},
     "24/08/2019 - 14:35 - 95.3 - T"},
    {"nom_seul", "3lc.txt", {"3lc.txt", 0}, ""},
    {"nom_vide_rien", "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt", {"", 0}, nullptr},
    {"nom_accentue",
     "24/08/2019 - 14:35 - 95.3% - T - mes é.txt",
     {"mes é.txt", 0},
     "24/08/2019 - 14:35 - 95.3% - T"},
    {"fin_de_nom_a_la_lettre",
     "24/08/2019 - 14:35 - 95.3% - T - mon3lc.txt",
     {"3lc.txt", 0},
     "24/08/2019 - 14:35 - 95.3% - T - "},
};
INSTANTIATE_TEST_SUITE_P(Table, Lignehistorique, testing::ValuesIn(lignes), essai::nommer<Ligne>);

}  // namespace
}  // namespace test_historique
