#include <algorithm>
#include <array>
#include <functional>
#include <map>
#include <numeric>
#include <stdexcept>
#include <string>
#include <zlib.h>

#include <gtest/gtest.h>

#include "dessins.h"
#include "image.h"

namespace assets {
namespace test_images {
namespace {

std::uint32_t petit(const std::string& octets, std::size_t place, int nombre) {
    std::uint32_t valeur = 0;
    for (int i = nombre - 1; i >= 0; --i)
        valeur =
            valeur << 8U | static_cast<std::uint8_t>(octets[place + static_cast<std::size_t>(i)]);
    return valeur;
}

std::uint32_t gros(const std::string& octets, std::size_t place) {
    std::uint32_t valeur = 0;
    for (std::size_t i = 0; i < 4; ++i)
        valeur = valeur << 8U | static_cast<std::uint8_t>(octets[place + i]);
    return valeur;
}

const std::map<std::string, Tableau>& parnom() {
    static const auto table = [] {
        std::map<std::string, Tableau> noms;
        for (Tableau& tableau : tableaux()) {
            const std::string nom = tableau.nom;
            noms.emplace(nom, std::move(tableau));
        }
        return noms;
    }();
    return table;
}

struct Mesure {
    std::string nom;
    std::uint32_t largeur;
    std::uint32_t hauteur;
};

void PrintTo(const Mesure& mesure, std::ostream* flux) {
    *flux << mesure.nom;
}

class Bitmap : public testing::TestWithParam<Mesure> {};

TEST_P(Bitmap, MeasuresWhatItsNameSaysAndItsTwinsMore) {
    for (const std::uint32_t finesse : {1U, 2U, 4U}) {
        const std::string suffixe = finesse > 1 ? "@" + std::to_string(finesse) + "x" : "";
        const auto trouve = parnom().find(GetParam().nom + suffixe + ".bmp");
        ASSERT_NE(trouve, parnom().end()) << suffixe;
        const std::string octets = fichier(trouve->second);
        EXPECT_EQ(octets.substr(0, 2), "BM");
        EXPECT_EQ(petit(octets, 2, 4), octets.size());
        EXPECT_EQ(petit(octets, 18, 4), GetParam().largeur * finesse);
        EXPECT_EQ(petit(octets, 22, 4), GetParam().hauteur * finesse);
        EXPECT_EQ(petit(octets, 28, 2), 32U);
        EXPECT_EQ(octets.size() - petit(octets, 10, 4),
                  std::size_t{4} * GetParam().largeur * GetParam().hauteur * finesse * finesse);
    }
}

INSTANTIATE_TEST_SUITE_P(Images, Bitmap,
                         testing::Values(Mesure{"ods5_28x28", 28, 28}, Mesure{"ods6_28x28", 28, 28},
                                         Mesure{"ods7_28x28", 28, 28}, Mesure{"ppi_28x28", 28, 28},
                                         Mesure{"vbt_28x28", 28, 28}, Mesure{"inv_28x28", 28, 28},
                                         Mesure{"ppi_14x28", 14, 28}, Mesure{"vbt_14x28", 14, 28},
                                         Mesure{"inv_14x28", 14, 28}, Mesure{"vb_30x30", 30, 30},
                                         Mesure{"jkq_30x30", 30, 30}),
                         [](const auto& cas) { return cas.param.nom; });

TEST(Bmp, HoldsBlueGreenRedOpacityFromTheFoot) {
    const Image image{1, 2, {1, 2, 3, 4, 5, 6, 7, 8}};
    const std::string octets = bmp(image);
    EXPECT_EQ(octets.substr(petit(octets, 10, 4)), "\7\6\5\10\3\2\1\4");
}

TEST(Dib, HoldsBlueGreenRedFromTheFootInRowsOfFourBytes) {
    const Image image{1, 2, {1, 2, 3, 255, 10, 20, 30, 51}};
    const std::string octets = dib(image);
    EXPECT_EQ(octets.substr(0, 2), "BM");
    EXPECT_EQ(petit(octets, 2, 4), octets.size());
    EXPECT_EQ(petit(octets, 14, 4), 40U);
    EXPECT_EQ(petit(octets, 28, 2), 24U);
    EXPECT_EQ(octets.substr(petit(octets, 10, 4)), std::string("\6\4\2\0\3\2\1\0", 8));
}

TEST(Png, HoldsItsRowsUnfilteredAndCompressed) {
    const Image image{1, 2, {1, 2, 3, 4, 5, 6, 7, 8}};
    const std::string octets = png(image);
    EXPECT_EQ(octets.substr(0, 8), "\x89PNG\r\n\x1a\n");
    EXPECT_EQ(gros(octets, 8), 13U);
    EXPECT_EQ(gros(octets, 16), 1U);
    EXPECT_EQ(gros(octets, 20), 2U);
    constexpr std::size_t contenu = 41;  // behind the signature, IHDR and the head of IDAT
    std::array<Bytef, 11> lignes{};
    uLongf taille = lignes.size();
    ASSERT_EQ(
        uncompress(lignes.data(), &taille, reinterpret_cast<const Bytef*>(octets.data()) + contenu,
                   gros(octets, contenu - 8)),
        Z_OK);
    EXPECT_EQ(std::string(lignes.begin(), lignes.begin() + taille),
              std::string("\0\1\2\3\4\0\5\6\7\10", 10));
    EXPECT_EQ(gros(octets, octets.size() - 4), 0xAE426082U) << "the known sum of an empty IEND";
}

TEST(Images, TheLoginPictureAndTheIconsAreThere) {
    EXPECT_EQ(parnom().at("connexion.png").largeur, 408);
    EXPECT_EQ(parnom().at("connexion@4x.png").largeur, 1632);
    for (const int cote : {16, 24, 32, 48, 64, 128, 256})
        EXPECT_EQ(parnom().at("orvane_" + std::to_string(cote) + ".png").hauteur, cote);
}

TEST(Icones, ComeInEveryUsualSizeAndOneThatScales) {
    std::vector<std::string> noms;
    for (const Tableau& tableau : icones()) {
        noms.push_back(tableau.nom);
        const auto octets = fichier(tableau);
        if (tableau.nom.ends_with(".png")) {
            EXPECT_EQ(std::to_string(gros(octets, 16)) + ".png", tableau.nom);
        }
    }
    EXPECT_EQ(noms, (std::vector<std::string>{"16.png", "24.png", "32.png", "48.png", "64.png",
                                              "128.png", "256.png", "512.png", "orvane.svg",
                                              "orvane.ico", "installeur.dib"}));
}

// An entry of an ICO file: where its picture is and how large it says to be.
struct Entree {
    std::uint32_t cote;
    std::string octets;
};

std::vector<Entree> entrees(const std::string& ico) {
    std::vector<Entree> liste;
    for (std::size_t i = 0; i < petit(ico, 4, 2); ++i) {
        const auto place = 6 + 16 * i;
        EXPECT_EQ(petit(ico, place + 1, 1), petit(ico, place, 1)) << "a square";
        EXPECT_EQ(petit(ico, place + 6, 2), 32U);
        liste.push_back({petit(ico, place, 1),
                         ico.substr(petit(ico, place + 12, 4), petit(ico, place + 8, 4))});
    }
    return liste;
}

TEST(Ico, HoldsPixelsAndMaskFromTheFootAndTheLargestAsPng) {
    const Image petite{2, 2, {1, 2, 3, 0, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 0}};
    const Image grande{256, 256, std::vector<std::uint8_t>(std::size_t{4} * 256 * 256, 9)};
    const auto octets = ico({petite, grande});
    EXPECT_EQ(octets.substr(0, 6), std::string("\0\0\1\0\2\0", 6));
    const auto images = entrees(octets);
    ASSERT_EQ(images.size(), 2U);
    EXPECT_EQ(images[0].cote, 2U);
    EXPECT_EQ(petit(images[0].octets, 0, 4), 40U);
    EXPECT_EQ(petit(images[0].octets, 8, 4), 4U) << "the mask counts as height";
    EXPECT_EQ(images[0].octets.substr(40), std::string("\13\12\11\14\17\16\15\0\3\2\1\0\7\6\5\10"
                                                       "\100\0\0\0\200\0\0\0",
                                                       24));
    EXPECT_EQ(images[1].cote, 0U) << "256";
    EXPECT_EQ(images[1].octets, png(grande));
    EXPECT_EQ(octets.size(), 6 + 2 * 16 + images[0].octets.size() + images[1].octets.size());
}

TEST(Ico, RefusesWhatItsHeaderCannotTell) {
    const auto image = [](int largeur, int hauteur) {
        return Image{largeur, hauteur,
                     std::vector<std::uint8_t>(static_cast<std::size_t>(largeur * hauteur * 4))};
    };
    EXPECT_THROW(static_cast<void>(ico({image(257, 257)})), std::length_error);
    EXPECT_THROW(static_cast<void>(ico({image(16, 24)})), std::length_error);
    EXPECT_THROW(static_cast<void>(ico({image(0, 0)})), std::length_error);
}

TEST(Ico, IsDrawnInEverySizeThatWindowsShows) {
    std::vector<std::uint32_t> cotes;
    for (const Tableau& tableau : icones())
        if (tableau.nom == "orvane.ico")
            for (const Entree& entree : entrees(fichier(tableau)))
                cotes.push_back(entree.cote);
    EXPECT_EQ(cotes, (std::vector<std::uint32_t>{16, 24, 32, 48, 64, 128, 0}));
}

TEST(Svg, DrawsEachStrokeWithItsWidthColoursOpacityAndEdge) {
    Dessin dessin{64, 32, {}};
    dessin.traits.push_back(
        {{{1, 2}, {3.5, 2}, {3.5, 4}}, true, .5, rvb(0x102030, .25), rvb(0x405060, .25), 0});
    dessin.traits.push_back({{{8, 9}}, false, 2, rvb(0xFFFFFF), rvb(0xFFFFFF), 4});
    EXPECT_EQ(svg(dessin), R"svg(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="64" height="32" viewBox="0 0 64 32">
<linearGradient id="c0" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="1.5" y2="4.5"><stop offset="0" stop-color="#102030"/><stop offset="1" stop-color="#405060"/></linearGradient>
<path d="M1 2L3.5 2L3.5 4Z" fill="url(#c0)" fill-rule="evenodd" stroke="url(#c0)" stroke-width="1" stroke-linecap="round" stroke-linejoin="round" opacity="0.25"/>
<linearGradient id="c1" gradientUnits="userSpaceOnUse" x1="0" x2="0" y1="7" y2="11"><stop offset="0" stop-color="#FFFFFF"/><stop offset="1" stop-color="#FFFFFF"/></linearGradient>
<filter id="f1" x="-50%" y="-50%" width="200%" height="200%"><feGaussianBlur stdDeviation="1"/></filter>
<path d="M8 9h0" fill="none" fill-rule="evenodd" stroke="url(#c1)" stroke-width="4" stroke-linecap="round" stroke-linejoin="round" filter="url(#f1)"/>
</svg>
)svg");
}

// What is left of a sign without its colour: light (its letters and rim) or dark (its background),
// and where nothing is.
std::vector<int> gris(const std::string& nom) {
    const Tableau& tableau = parnom().at(nom + ".bmp");
    const Image image = peindre(tableau.dessin, tableau.largeur, tableau.hauteur);
    std::vector<int> formes;
    for (std::size_t i = 0; i < image.pixels.size(); i += 4) {
        const int clarte =
            (image.pixels[i] * 3 + image.pixels[i + 1] * 6 + image.pixels[i + 2]) / 10;
        formes.push_back(image.pixels[i + 3] < 128 ? 0 : clarte > 160 ? 2 : 1);
    }
    return formes;
}

class Signes : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(Signes, AreToldApartWithoutColour) {
    const auto& noms = GetParam();
    for (std::size_t i = 0; i < noms.size(); ++i) {
        for (std::size_t j = i + 1; j < noms.size(); ++j) {
            const auto a = gris(noms[i]);
            const auto b = gris(noms[j]);
            const auto egaux = std::inner_product(a.begin(), a.end(), b.begin(), std::size_t{0},
                                                  std::plus<>(), std::equal_to<>());
            EXPECT_GE(a.size() - egaux, a.size() / 8) << noms[i] << " and " << noms[j];
        }
    }
}

INSTANTIATE_TEST_SUITE_P(
    Images, Signes,
    testing::Values(std::vector<std::string>{"ods5_28x28", "ods6_28x28", "ods7_28x28", "ppi_28x28",
                                             "vbt_28x28", "inv_28x28"},
                    std::vector<std::string>{"ppi_14x28", "vbt_14x28", "inv_14x28"},
                    std::vector<std::string>{"vb_30x30", "jkq_30x30"}));

// On the left half of a dated mark a half mark may stand.
TEST(Images, TheDatedMarksAreToldApartByTheirRightHalf) {
    const std::vector<std::string> noms = {"ods5_28x28", "ods6_28x28", "ods7_28x28"};
    for (std::size_t i = 0; i < noms.size(); ++i) {
        const auto a = gris(noms[i]);
        const auto b = gris(noms[(i + 1) % noms.size()]);
        std::size_t differents = 0;
        for (std::size_t p = 0; p < a.size(); ++p)
            differents += p % 28 >= 14 && a[p] != b[p] ? 1U : 0U;
        EXPECT_GE(differents, a.size() / 2 / 8) << noms[i];
    }
}

}  // namespace
}  // namespace test_images
}  // namespace assets
