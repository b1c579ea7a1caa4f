#include <gtest/gtest.h>

#include "chemin.h"
#include "dossiertemporaire.h"

namespace test_chemin {
namespace {

TEST(Chemin, rend_le_texte_dont_il_est_fait) {
    for (const auto* texte : {"", "a.txt", "Zoé d'été", "œuf", "日本", "𝄞"})
        EXPECT_EQ(common::chemin(texte).string(), texte);
}

TEST(Chemin, nomme_un_fichier_hors_de_toute_page_de_codes) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("Zoé 日本.txt", "x");
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"Zoé 日本.txt"});
}

}  // namespace
}  // namespace test_chemin
