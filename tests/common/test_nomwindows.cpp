#include <string>

#include <gtest/gtest.h>

#include "disque.h"
#include "nomwindows.h"

namespace test_nomwindows {
namespace {

using common::Ennui;

struct Cas {
    const char* nom;
    std::string fichier;
    int ennui;  ///< 0: none
};
void PrintTo(const Cas& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
constexpr int bon = 0;
constexpr int reserve = static_cast<int>(Ennui::NomReserve);
constexpr int interdit = static_cast<int>(Ennui::NomInterdit);

class Nompourwindows : public testing::TestWithParam<Cas> {};

TEST_P(Nompourwindows, se_juge) {
    const auto erreur = common::nompourwindows(GetParam().fichier);
    EXPECT_EQ(erreur.value(), GetParam().ennui);
    EXPECT_EQ(static_cast<bool>(erreur), GetParam().ennui != bon);
}

const Cas table[] = {
    {"ordinaire", "Zoé", bon},
    {"extension", "users.dat", bon},
    {"blanc_au_milieu", "Zoé d'été", bon},
    {"point_devant", ".version", bon},
    {"vide", "", bon},
    {"ce_dossier", ".", bon},
    {"dossier_parent", "..", bon},
    {"trois_points", "...", interdit},
    {"CON", "CON", reserve},
    {"PRN", "PRN", reserve},
    {"AUX", "AUX", reserve},
    {"NUL", "NUL", reserve},
    {"minuscules", "nul", reserve},
    {"casse_melee", "Aux", reserve},
    {"COM1", "COM1", reserve},
    {"COM9", "COM9", reserve},
    {"LPT5", "lpt5", reserve},
    {"COM_exposant_un", "COM¹", reserve},
    {"LPT_exposant_trois", "LPT³", reserve},
    {"CONIN", "conin$", reserve},
    {"CONOUT", "CONOUT$", reserve},
    {"avec_extension", "nul.txt", reserve},
    {"avec_deux_extensions", "con.rev.txt", reserve},
    {"avec_flux", "NUL:", reserve},
    {"blanc_derriere_un_appareil", "NUL ", reserve},
    {"blanc_avant_l_extension", "nul .txt", reserve},
    {"point_derriere_un_appareil", "aux.", reserve},
    {"COM0", "COM0", bon},
    {"COM10", "COM10", bon},
    {"COM_seul", "COM", bon},
    {"appareil_suivi_de_lettres", "Connie", bon},
    {"appareil_precede", "un con", bon},
    {"appareil_en_extension", "a.nul", bon},
    {"blanc_devant_un_appareil", " NUL", bon},
    {"deux_points", "a:b", interdit},
    {"inferieur", "a<b", interdit},
    {"superieur", "a>b", interdit},
    {"guillemet", "a\"b", interdit},
    {"barre", "a/b", interdit},
    {"barre_inverse", "a\\b", interdit},
    {"barre_droite", "a|b", interdit},
    {"question", "a?", interdit},
    {"etoile", "*", interdit},
    {"tabulation", "a\tb", interdit},
    {"octet_nul", std::string("a\0b", 3), interdit},
    {"blanc_a_la_fin", "Paul ", interdit},
    {"point_a_la_fin", "Paul.", interdit},
    {"supprime", "a\x7F", bon},
};
INSTANTIATE_TEST_SUITE_P(Table, Nompourwindows, testing::ValuesIn(table),
                         [](const auto& cas) { return std::string(cas.param.nom); });

TEST(Longueurs, comptent_les_unites_de_windows) {
    const auto fois = [](const char* texte, int n) {
        std::string nom;
        for (int i = 0; i < n; ++i)
            nom += texte;
        return common::nompourwindows(nom);
    };
    EXPECT_FALSE(fois("z", 255));
    EXPECT_EQ(fois("z", 256), std::errc::filename_too_long);
    EXPECT_FALSE(fois("é", 255));
    EXPECT_EQ(fois("日", 256), std::errc::filename_too_long);
    EXPECT_FALSE(fois("𝄞", 127));
    EXPECT_EQ(fois("𝄞", 128), std::errc::filename_too_long);
}

TEST(Nompourwindows, se_dit_au_joueur) {
    EXPECT_EQ(common::raison(Ennui::NomReserve), "ce nom est réservé par Windows");
    EXPECT_EQ(common::raison(Ennui::NomInterdit),
              "Windows refuse ce nom : un nom n'a ni < > : \" / \\ | ? * ni, à la fin, un point ou "
              "une espace");
}

}  // namespace
}  // namespace test_nomwindows
