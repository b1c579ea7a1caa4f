#include <gtest/gtest.h>

#include "dimensions.h"
#include "lignes.h"
#include "voisinage.h"

namespace test_dimensions {
namespace {

using dialogs::Dimensions;
using namespace std::string_literals;

const std::string png = "\x89PNG\r\n\x1a\n\0\0\0\x0dIHDR"s;
const std::string bmp = "BM\0\0\0\0\0\0\0\0\0\0\0\0\x28\0\0\0"s;

/// The bytes of a file, and the size that they tell.
struct Ligne {
    const char* nom;
    std::string octets;
    std::optional<Dimensions> attendu;
};

void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Tete : public testing::TestWithParam<Ligne> {};

TEST_P(Tete, dit_la_taille) {
    essai::Disque disque;
    disque.fichiers["images\\essai"] = GetParam().octets;
    EXPECT_EQ(dialogs::dimensions(disque, "images\\essai"), GetParam().attendu);
}

const Ligne lignes[] = {
    {"png", png + "\0\0\x02\x80\0\0\x01\xe0\x08\x06"s, Dimensions{640, 480}},
    {"bmp", bmp + "\x80\x02\0\0\xe0\x01\0\0"s, Dimensions{640, 480}},
    {"bmp_dont_la_premiere_rangee_est_en_haut", bmp + "\x80\x02\0\0\x20\xfe\xff\xff"s,
     Dimensions{640, 480}},
    {"bmp_au_plus_grand", bmp + "\x10\x27\0\0\x10\x27\0\0"s, Dimensions{10000, 10000}},
    {"bmp_trop_large", bmp + "\x11\x27\0\0\x10\x27\0\0"s, std::nullopt},
    {"bmp_plus_bas_que_tout", bmp + "\x80\x02\0\0\0\0\0\x80"s, std::nullopt},
    {"bmp_de_largeur_negative", bmp + "\xff\xff\xff\xff\x01\0\0\0"s, std::nullopt},
    {"bmp_nul", bmp + "\0\0\0\0\x01\0\0\0"s, std::nullopt},
    {"bmp_coupe", bmp + "\x80\x02\0\0\xe0\x01\0"s, std::nullopt},
    {"png_coupe", png, std::nullopt},
    {"autre_format", "GIF89a"s + std::string(40, '\1'), std::nullopt},
    {"vide", "", std::nullopt},
};

INSTANTIATE_TEST_SUITE_P(Dimensions, Tete, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST(Tete, d_un_fichier_absent_ne_dit_rien) {
    essai::Disque disque;
    EXPECT_EQ(dialogs::dimensions(disque, "images\\absent.png"), std::nullopt);
}

}  // namespace
}  // namespace test_dimensions
