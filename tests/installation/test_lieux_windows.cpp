#include <cstdlib>

#include <gtest/gtest.h>

#include "lieux.h"

namespace test_lieux_windows {
namespace {

TEST(Environs, mettent_les_donnees_dans_celles_du_poste) {
    const std::filesystem::path locales = ::_wgetenv(L"LOCALAPPDATA");
    EXPECT_EQ(installation::environs("ici").donnees, locales / "Orvane");
}

}  // namespace
}  // namespace test_lieux_windows
