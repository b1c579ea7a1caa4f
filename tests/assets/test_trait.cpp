#include <stdexcept>

#include <gtest/gtest.h>

#include "alphabet.h"
#include "trait.h"

namespace assets {
namespace test_trait {
namespace {

constexpr Couleur noir = rvb(0);

struct Cas {
    const char* nom;
    Trait trait;
    Point point;
    double attendu;
};

class Distance : public testing::TestWithParam<Cas> {};

TEST_P(Distance, IsMeasuredToTheEdge) {
    EXPECT_DOUBLE_EQ(distance(GetParam().trait, GetParam().point), GetParam().attendu);
}

const std::vector<Point> carre = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

INSTANTIATE_TEST_SUITE_P(
    Trait, Distance,
    testing::Values(
        Cas{"BesideALine", {{{0, 0}, {10, 0}}, false, 1, noir, noir, 0}, {5, 3}, 2},
        Cas{"PastTheEndOfALine", {{{0, 0}, {10, 0}}, false, 1, noir, noir, 0}, {13, 4}, 4},
        Cas{"OnALine", {{{0, 0}, {10, 0}}, false, 1, noir, noir, 0}, {5, 0}, -1},
        Cas{"AnOpenLineDoesNotClose", {carre, false, 0, noir, noir, 0}, {1, 5}, 5},
        Cas{"AFilledOneDoes", {carre, true, 0, noir, noir, 0}, {1, 5}, -1},
        Cas{"OutsideAFilledOne", {carre, true, 2, noir, noir, 0}, {-5, 5}, 3},
        Cas{"RoundCorner", {carre, true, 2, noir, noir, 0}, {-3, -4}, 3},
        Cas{"OnePointIsADisc", {{{0, 0}}, true, 2, noir, noir, 0}, {3, 4}, 3}),
    [](const auto& cas) { return cas.param.nom; });

TEST(Courbe, AnArcBeginsAndEndsAtItsAngles) {
    const auto points = courbe({{{5, 5}, 2, 3, 0, 90}});
    EXPECT_NEAR(points.front().x, 7, 1e-9);
    EXPECT_NEAR(points.front().y, 5, 1e-9);
    EXPECT_NEAR(points.back().x, 5, 1e-9);
    EXPECT_NEAR(points.back().y, 8, 1e-9);
}

TEST(Ajouter, TurnsScalesAndPlacesThePart) {
    Dessin dessin{100, 100, {}};
    const Dessin partie{10, 10, {{{{10, 5}}, false, 1, noir, noir, 0.5}}};
    ajouter(dessin, partie, {{50, 50}, 2, 90});
    ASSERT_EQ(dessin.traits.size(), 1U);
    EXPECT_NEAR(dessin.traits[0].points[0].x, 50, 1e-9);
    EXPECT_NEAR(dessin.traits[0].points[0].y, 60, 1e-9);
    EXPECT_DOUBLE_EQ(dessin.traits[0].rayon, 2);
    EXPECT_DOUBLE_EQ(dessin.traits[0].flou, 1);
}

TEST(Mot, EveryLetterKeepsInsideItsFrame) {
    for (const char c : std::string("ABCDEFGHIJKLMNOPQRSTUVWXYZb0123456789")) {
        const Dessin lettre = mot({&c, 1}, 10, 1, noir);
        for (const Trait& trait : lettre.traits) {
            for (const Point& point : trait.points) {
                EXPECT_GE(point.x, 0.5 - 1e-9) << c;
                EXPECT_LE(point.x, lettre.largeur - 0.5 + 1e-9) << c;
                EXPECT_GE(point.y, 0.5 - 1e-9) << c;
                EXPECT_LE(point.y, 9.5 + 1e-9) << c;
            }
        }
    }
}

TEST(Mot, LettersStandOnePenApart) {
    EXPECT_DOUBLE_EQ(mot("II", 10, 1, noir).largeur, 3);
}

TEST(Mot, ASignWithoutALetterIsRefused) {
    EXPECT_THROW((void)mot("A!", 10, 1, noir), std::out_of_range);
}

}  // namespace
}  // namespace test_trait
}  // namespace assets
