#include <algorithm>
#include <cmath>
#include <cstdlib>

#include <gtest/gtest.h>

#include "son.h"

namespace assets {
namespace test_son {
namespace {

std::uint32_t entier(const std::string& octets, std::size_t place, int nombre) {
    std::uint32_t valeur = 0;
    for (int i = nombre - 1; i >= 0; --i)
        valeur =
            valeur << 8U | static_cast<std::uint8_t>(octets[place + static_cast<std::size_t>(i)]);
    return valeur;
}

TEST(Son, IsAWaveFileOfOneChannelAnd16Bits) {
    const std::string fichier = wav({1, -2, 3});
    EXPECT_EQ(fichier.substr(0, 4), "RIFF");
    EXPECT_EQ(entier(fichier, 4, 4), fichier.size() - 8);
    EXPECT_EQ(fichier.substr(8, 8), "WAVEfmt ");
    EXPECT_EQ(entier(fichier, 20, 2), 1U);
    EXPECT_EQ(entier(fichier, 22, 2), 1U);
    EXPECT_EQ(entier(fichier, 24, 4), 44100U);
    EXPECT_EQ(entier(fichier, 28, 4), 88200U);
    EXPECT_EQ(entier(fichier, 32, 2), 2U);
    EXPECT_EQ(entier(fichier, 34, 2), 16U);
    EXPECT_EQ(fichier.substr(36, 4), "data");
    EXPECT_EQ(entier(fichier, 40, 4), 6U);
    ASSERT_EQ(fichier.size(), 50U);
    EXPECT_EQ(entier(fichier, 44, 2), 1U);
    EXPECT_EQ(entier(fichier, 46, 2), 0xFFFEU);
    EXPECT_EQ(entier(fichier, 48, 2), 3U);
}

TEST(Son, LastsBetweenOneAndTwoSeconds) {
    const auto nombre = phrase().size();
    EXPECT_GE(nombre, static_cast<std::size_t>(cadence));
    EXPECT_LE(nombre, static_cast<std::size_t>(cadence) * 2);
}

TEST(Son, IsLoudEnoughAndNeverClips) {
    int crete = 0;
    for (const std::int16_t valeur : phrase())
        crete = std::max(crete, std::abs(static_cast<int>(valeur)));
    EXPECT_GE(crete, INT16_MAX / 2);
    EXPECT_LE(crete, INT16_MAX * 9 / 10);
}

TEST(Son, BeginsAndEndsInSilence) {
    const auto valeurs = phrase();
    EXPECT_EQ(valeurs.front(), 0);
    EXPECT_LE(std::abs(static_cast<int>(valeurs.back())), 2);
}

TEST(Son, HasNoClick) {
    // A full-scale tone of 4 kHz, well above the notes, moves by this much between two samples.
    const int saut = static_cast<int>(INT16_MAX * 2 * 3.15 * 4000 / cadence);
    const auto valeurs = phrase();
    for (std::size_t i = 1; i < valeurs.size(); ++i)
        ASSERT_LE(std::abs(valeurs[i] - valeurs[i - 1]), saut) << "sample " << i;
}

}  // namespace
}  // namespace test_son
}  // namespace assets
