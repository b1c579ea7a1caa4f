#include <cmath>
#include <limits>

#include <gmock/gmock.h>

#include "faute.h"
#include "nombre.h"

namespace test_nombre {
namespace {

constexpr double infini = std::numeric_limits<double>::infinity();
constexpr double enorme = std::numeric_limits<double>::max();

struct Lecture {
    const char* nom;
    std::string texte;
    double valeur;
};
class Valeur : public testing::TestWithParam<Lecture> {};
TEST_P(Valeur, du_texte) {
    EXPECT_EQ(common::valeur(GetParam().texte), GetParam().valeur);
}
INSTANTIATE_TEST_SUITE_P(
    Nombre, Valeur,
    testing::Values(Lecture{"entier", "12", 12}, Lecture{"vide", "", 0},
                    Lecture{"blancs", " \t ", 0}, Lecture{"blancs_devant", " \t12", 12},
                    Lecture{"blanc_dedans", "1 2", 1}, Lecture{"signe_plus", "+3", 3},
                    Lecture{"signe_moins", "-3.5", -3.5}, Lecture{"signe_seul", "-", 0},
                    Lecture{"deux_signes", "--3", 0}, Lecture{"blanc_derriere_le_signe", "- 3", 0},
                    Lecture{"point_devant", ".5", 0.5}, Lecture{"moins_et_point", "-.5", -0.5},
                    Lecture{"point_derriere", "5.", 5}, Lecture{"point_seul", ".", 0},
                    Lecture{"deux_points", "1.2.3", 1.2}, Lecture{"virgule", "9,3", 9},
                    Lecture{"lettres_derriere", "8 lettres", 8}, Lecture{"lettres", "abc", 0},
                    Lecture{"sans_exposant", "1e3", 1}, Lecture{"ni_hexadecimal", "0x10", 0},
                    Lecture{"ni_infini", "inf", 0}, Lecture{"ni_nan", "nan", 0},
                    Lecture{"zeros_devant", "007", 7},
                    Lecture{"trop_grand", std::string(400, '9'), enorme},
                    Lecture{"trop_petit_negatif", "-" + std::string(400, '9'), -enorme},
                    Lecture{"trop_fin", "0." + std::string(400, '0') + "1", 0}),
    [](const auto& rangee) { return rangee.param.nom; });

struct Arrondi {
    const char* nom;
    double nombre;
    int entier;
};
class Entier16 : public testing::TestWithParam<Arrondi> {};
TEST_P(Entier16, au_plus_proche) {
    EXPECT_EQ(common::entier16(GetParam().nombre, "essai"), GetParam().entier);
}
INSTANTIATE_TEST_SUITE_P(
    Nombre, Entier16,
    testing::Values(Arrondi{"zero_et_demi", 0.5, 0}, Arrondi{"un_et_demi", 1.5, 2},
                    Arrondi{"deux_et_demi", 2.5, 2}, Arrondi{"moins_un_et_demi", -1.5, -2},
                    Arrondi{"moins_deux_et_demi", -2.5, -2}, Arrondi{"juste_au_dessus", 2.51, 3},
                    Arrondi{"plus_haut", 32767.4, 32767}, Arrondi{"plus_bas", -32768.5, -32768}),
    [](const auto& rangee) { return rangee.param.nom; });

class HorsDe16 : public testing::TestWithParam<double> {};
TEST_P(HorsDe16, est_une_faute_qui_dit_quoi_et_les_limites) {
    try {
        static_cast<void>(common::entier16(GetParam(), "Le seuil"));
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), testing::StartsWith("Le seuil"));
        EXPECT_THAT(faute.what(), testing::HasSubstr("32767"));
    }
}
INSTANTIATE_TEST_SUITE_P(Nombre, HorsDe16,
                         testing::Values(32767.5, 32768, -32768.51, 1e300, infini, -infini,
                                         std::nan("")));

TEST(Entier16, d_un_entier) {
    EXPECT_EQ(common::entier16(std::int64_t{32767}, "essai"), 32767);
    EXPECT_EQ(common::entier16(std::int64_t{-32768}, "essai"), -32768);
    EXPECT_THROW(static_cast<void>(common::entier16(std::int64_t{32768}, "essai")), common::Faute);
    EXPECT_THROW(static_cast<void>(common::entier16(std::int64_t{-32769}, "essai")), common::Faute);
}

struct Ecriture {
    const char* nom;
    std::string lu;
    const char* attendu;
};
class Texte : public testing::TestWithParam<Ecriture> {};
TEST_P(Texte, du_nombre) {
    EXPECT_EQ(GetParam().lu, GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Duree, Texte,
    testing::Values(Ecriture{"zero", common::CalcDuree(0), "00:00"},
                    Ecriture{"une_seconde", common::CalcDuree(1), "00:01"},
                    Ecriture{"quatre_minutes", common::CalcDuree(240), "04:00"},
                    Ecriture{"une_heure_et_plus", common::CalcDuree(3661), "61:01"},
                    Ecriture{"la_plus_longue", common::CalcDuree(32767), "546:07"},
                    Ecriture{"negative", common::CalcDuree(-1), "00:00"}),
    [](const auto& rangee) { return rangee.param.nom; });
INSTANTIATE_TEST_SUITE_P(
    Nombre, Texte,
    testing::Values(Ecriture{"une_decimale", common::textenombre(92.9), "92.9"},
                    Ecriture{"cent", common::textenombre(100), "100"},
                    Ecriture{"trois_dixiemes", common::textenombre(0.1 * 3), "0.3"},
                    Ecriture{"zero", common::textenombre(0), "0"},
                    Ecriture{"negatif", common::textenombre(-2.5), "-2.5"},
                    Ecriture{"deux_chiffres", common::deuxchiffres(7), "07"},
                    Ecriture{"trois_chiffres", common::deuxchiffres(123), "123"}),
    [](const auto& rangee) { return rangee.param.nom; });
INSTANTIATE_TEST_SUITE_P(
    Decimales, Texte,
    testing::Values(Ecriture{"demi_s_eloigne_de_zero", common::decimales(0.0625, 3), "0.063"},
                    Ecriture{"demi_negatif", common::decimales(-0.0625, 3), "-0.063"},
                    Ecriture{"treize_quatorziemes", common::decimales(13.0 / 14, 3), "0.929"},
                    Ecriture{"zero", common::decimales(0, 3), "0.000"},
                    Ecriture{"un", common::decimales(1, 3), "1.000"},
                    Ecriture{"presque_un", common::decimales(0.99996, 3), "1.000"},
                    Ecriture{"retenue_jusqu_au_bout", common::decimales(99.96, 1), "100.0"},
                    Ecriture{"demi_exact", common::decimales(2.25, 1), "2.3"},
                    Ecriture{"un_peu_moins_qu_un_demi", common::decimales(0.15, 1), "0.1"},
                    Ecriture{"un_peu_plus_qu_un_demi", common::decimales(0.05, 1), "0.1"},
                    Ecriture{"sans_decimale", common::decimales(3, 0), "3"},
                    Ecriture{"demi_sans_decimale", common::decimales(2.5, 0), "3"},
                    Ecriture{"retenue_sans_decimale", common::decimales(-9.5, 0), "-10"},
                    Ecriture{"rien_sans_decimale", common::decimales(-0.4, 0), "0"},
                    Ecriture{"negatif_qui_s_annule", common::decimales(-0.0001, 3), "0.000"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Decimales, au_plus_59) {
    EXPECT_EQ(common::decimales(0.5, 99), "0.5" + std::string(58, '0'));
    EXPECT_EQ(common::decimales(2.5, -1), "3");
}

TEST(Entierdechiffres, ne_lit_que_des_chiffres) {
    EXPECT_EQ(common::entierdechiffres("0"), 0);
    EXPECT_EQ(common::entierdechiffres("007"), 7);
    EXPECT_EQ(common::entierdechiffres("2147483647"), 2147483647);
    for (const char* texte :
         {"", "-1", "+1", " 1", "1 ", "1.", "2147483648", "99999999999999999999"})
        EXPECT_EQ(common::entierdechiffres(texte), std::nullopt) << texte;
}

}  // namespace
}  // namespace test_nombre
