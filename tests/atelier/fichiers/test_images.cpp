#include <cstdint>
#include <string>

#include <gmock/gmock.h>

#include "images.h"

namespace test_images {
namespace {

using atelier::dessinertable;
using atelier::Rangee;

std::uint32_t nombre(const std::string& png, std::size_t place) {
    std::uint32_t n = 0;
    for (std::size_t i = 0; i < 4; ++i)
        n = n << 8U | static_cast<unsigned char>(png.at(place + i));
    return n;
}

const std::vector<Rangee> rangees{{"AEINRST", "AEINRST", "RATINES;RIANTES;SATINER"},
                                  {"EEIRSTV", "EEIRSTV", "ESTIVER"}};

TEST(Images, sont_des_png) {
    const auto png = dessinertable("TITRE", rangees, 1);
    EXPECT_TRUE(png.starts_with("\x89PNG\r\n\x1a\n"));
    EXPECT_EQ(png.substr(png.size() - 8, 4), "IEND");
}

TEST(Images, sont_deux_fois_plus_grandes_a_la_finesse_deux) {
    const auto une = dessinertable("TITRE", rangees, 1);
    const auto deux = dessinertable("TITRE", rangees, 2);
    EXPECT_EQ(nombre(deux, 16), 2 * nombre(une, 16));
    EXPECT_EQ(nombre(deux, 20), 2 * nombre(une, 20));
}

TEST(Images, s_allongent_avec_les_rangees_et_s_elargissent_avec_les_mots) {
    const auto table = dessinertable("T", rangees, 1);
    const auto courte = dessinertable("T", std::span(rangees).subspan(1), 1);
    EXPECT_GT(nombre(table, 16), nombre(courte, 16));
    EXPECT_GT(nombre(table, 20), nombre(courte, 20));
}

TEST(Images, sont_comprimees) {
    const auto png = dessinertable("TITRE", rangees, 2);
    constexpr std::size_t compression = 8;  // pixels a byte; stored, a byte has two
    EXPECT_LT(png.size() * compression, std::size_t{nombre(png, 16)} * nombre(png, 20));
}

TEST(Images, une_table_vide_n_a_que_son_titre) {
    EXPECT_GT(nombre(dessinertable("TIRAGES DE 7 LETTRES", {}, 1), 16), 100U);
}

TEST(Images, d_autres_lettres_font_une_autre_image) {
    auto autres = rangees;
    autres[0].solutions = "RATINES;RIANTES;TANISER";
    EXPECT_NE(dessinertable("TITRE", rangees, 1), dessinertable("TITRE", autres, 1));
}

}  // namespace
}  // namespace test_images
