#include <gtest/gtest.h>

#include "compteur.h"
#include "lignes.h"
#include "voisinage.h"

namespace test_compteur {
namespace {

struct Ligne {
    const char* nom;
    const char* contenu;
    std::size_t lignes;
    std::size_t pointsvirgules;  ///< of the last line
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Compteur : public testing::TestWithParam<Ligne> {};

TEST_P(Compteur, compte_quelle_que_soit_la_coupe) {
    const auto& [nom, contenu, lignes, pointsvirgules] = GetParam();
    const std::string_view tout(contenu);
    for (std::size_t taille = 1; taille <= tout.size() + 1; ++taille) {
        menu::Compteur compteur;
        for (std::size_t place = 0; place < tout.size(); place += taille)
            compteur.voir(tout.substr(place, taille));
        EXPECT_EQ(compteur.lignes(), lignes) << taille;
        EXPECT_EQ(compteur.pointsvirgules(), pointsvirgules) << taille;
    }
}

const Ligne lignes[] = {
    {"vide", "", 0, 0},
    {"une_ligne", "AB;BA\r\n", 1, 1},
    {"sans_fin_de_ligne", "AB;BA\r\nCD;DC;XX", 2, 2},
    {"une_ligne_sans_fin", "AB;BA", 1, 1},
    {"saut_de_ligne_seul", "AB;BA;CA\nCD;DC\n", 2, 1},
    {"finit_par_une_ligne_vide", "AB;BA;CA\r\n\r\n", 2, 0},
    {"rien_que_des_lignes_vides", "\r\n\r\n\r\n", 3, 0},
    {"derniere_rangee_de_deux_solutions", "AB;BA\r\nCD;DC;XX\r\n", 2, 2},
    {"derniere_rangee_d_une_solution", "AB;BA;CA\r\nCD;DC\r\n", 2, 1},
    {"rangee_finie_par_un_point_virgule", "AB;BA;\r\n", 1, 2},
    {"sans_point_virgule", "AB\r\n", 1, 0},
};
INSTANTIATE_TEST_SUITE_P(Table, Compteur, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST(Compteur, lit_un_fichier_de_plusieurs_blocs) {
    essai::Machine machine;
    std::string contenu;
    for (int i = 0; i < 15000; ++i)
        contenu += "AEGNR;GRENA;RAGEN\r\n";
    machine.ecrire("listes\\x.txt", contenu);
    menu::Compteur compteur;
    EXPECT_FALSE(menu::compter(machine.disque(), "listes\\x.txt", compteur));
    EXPECT_EQ(compteur.lignes(), 15000U);
    EXPECT_EQ(compteur.pointsvirgules(), 2U);
}

TEST(Compteur, rend_l_erreur_du_systeme) {
    essai::Machine machine;
    menu::Compteur compteur;
    EXPECT_EQ(menu::compter(machine.disque(), "listes\\x.txt", compteur),
              std::errc::no_such_file_or_directory);
    std::filesystem::create_directory(machine.chemin("listes"));
    EXPECT_EQ(menu::compter(machine.disque(), "listes\\", compteur), std::errc::is_a_directory);
}

}  // namespace
}  // namespace test_compteur
