#include <gtest/gtest.h>

#include "couleurs.h"
#include "lignes.h"

namespace test_couleurs {
namespace {

struct Ligne {
    const char* nom;
    const char* couleur;
    std::uint32_t rvb;
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Couleurs : public testing::TestWithParam<Ligne> {};

TEST_P(Couleurs, donne) {
    EXPECT_EQ(profiles::couleurdufond(GetParam().couleur), ui::Couleur(GetParam().rvb));
}

const Ligne lignes[] = {
    {"par_defaut", "Par défaut", 0xFFE0C0},
    {"jaune", "Jaune", 0xFFFF80},
    {"orange", "Orange", 0xFFC080},
    {"vert", "Vert", 0x80FF80},
    {"bleu", "Bleu", 0xC0C0FF},
    {"gris", "Gris", 0xE0E0E0},
    {"vide_comme_par_defaut", "", 0xFFE0C0},
    {"inconnue_comme_par_defaut", "Mauve", 0xFFE0C0},
    {"la_casse_compte", "gris", 0xFFE0C0},
    {"un_blanc_de_trop", "Gris ", 0xFFE0C0},
};
INSTANTIATE_TEST_SUITE_P(Noms, Couleurs, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST(Couleurs, sont_offertes_dans_l_ordre) {
    std::vector<std::string_view> noms;
    for (const auto& couleur : profiles::couleursdufond())
        noms.push_back(couleur.nom);
    EXPECT_EQ(noms, (std::vector<std::string_view>{"Par défaut", "Jaune", "Orange", "Vert", "Bleu",
                                                   "Gris"}));
}

}  // namespace
}  // namespace test_couleurs
