#include <gtest/gtest.h>

#include "lieux.h"

namespace test_lieux_posix {
namespace {

struct Maison {
    const char* nom;
    const char* donnees;
    const char* maison;
    const char* attendu;
};
class Donneesxdg : public testing::TestWithParam<Maison> {};
TEST_P(Donneesxdg, est_le_dossier) {
    EXPECT_EQ(installation::donneesxdg(GetParam().donnees, GetParam().maison), GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Lieux, Donneesxdg,
    testing::Values(Maison{"dites", "/d", "/home/a", "/d/orvane"},
                    Maison{"non_dites", nullptr, "/home/a", "/home/a/.local/share/orvane"},
                    Maison{"vides", "", "/home/a", "/home/a/.local/share/orvane"},
                    Maison{"relatives", "d", "/home/a", "/home/a/.local/share/orvane"},
                    Maison{"accents", nullptr, "/home/zoé d'été",
                           "/home/zoé d'été/.local/share/orvane"},
                    Maison{"sans_maison", nullptr, nullptr, ""},
                    Maison{"maison_relative", nullptr, "ici", ""}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_lieux_posix
