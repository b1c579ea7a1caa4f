#include <filesystem>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "programme.h"

namespace test_programme {
namespace {

class Dossierprogramme : public testing::Test {
  protected:
    [[nodiscard]] std::string chercher(const std::filesystem::path& executable) {
        return common::dossierprogramme(appels, executable, courant.chemin());
    }

    essais::DossierTemporaire courant;
    essais::DossierTemporaire programme;
    essais::AppelsDessai appels;
};

TEST_F(Dossierprogramme, est_celui_de_l_executable) {
    const auto devant = chercher(programme.chemin());
    common::DisqueReel disque(courant.chemin());
    EXPECT_FALSE(disque.remplacer(devant + "f.txt", "x"));
    EXPECT_EQ(programme.lire("f.txt"), "x");
    EXPECT_EQ(chercher(programme.chemin() / ""), devant);
    EXPECT_FALSE(std::filesystem::exists(courant.chemin() / "f.txt"));
}

TEST_F(Dossierprogramme, est_le_dossier_de_travail_s_ils_se_confondent) {
    EXPECT_EQ(chercher(courant.chemin()), "");
    EXPECT_EQ(chercher(courant.chemin() / "."), "");
}

TEST_F(Dossierprogramme, est_le_dossier_de_travail_si_rien_ne_s_ecrit_dans_l_autre) {
    appels.prevoir(essais::Panne::Refus, 1);
    EXPECT_EQ(chercher(programme.chemin()), "");
    EXPECT_EQ(chercher(programme.chemin() / "absent"), "");
    EXPECT_EQ(chercher(""), "");
}

TEST_F(Dossierprogramme, ne_garde_rien_de_l_essai) {
    EXPECT_NE(chercher(programme.chemin()), "");
    EXPECT_TRUE(std::filesystem::is_empty(programme.chemin()));
}

TEST_F(Dossierprogramme, ne_garde_rien_d_un_essai_interrompu) {
    int morts = 0;
    for (int statut = essais::tue; statut == essais::tue; ++morts) {
        statut = essais::encopie([&] {
            appels.prevoir(essais::Panne::Avant, morts + 1);
            static_cast<void>(chercher(programme.chemin()));
            return 0;
        });
        appels.prevoir(essais::Panne::Aucune, 0);  // for this program, if it was no copy
    }
    EXPECT_GT(morts, 2);
    EXPECT_NE(chercher(programme.chemin()), "");
    EXPECT_TRUE(std::filesystem::is_empty(programme.chemin()));
}

class Remettrelistes : public testing::Test {
  protected:
    Remettrelistes() {
        std::filesystem::create_directories(dossier.chemin() / ".nouvelles-listes" /
                                            "listes-anciennes");
        dossier.ecrire(".nouvelles-listes/listes-anciennes/a.txt", "vieux");
    }
    essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
};

TEST_F(Remettrelistes, rend_celles_qu_une_fabrication_tuee_avait_ecartees) {
    EXPECT_FALSE(common::remettrelistes(appels, dossier.chemin()));
    EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux");
    EXPECT_FALSE(common::remettrelistes(appels, dossier.chemin()));
    EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux");
}

TEST_F(Remettrelistes, laisse_celles_qui_sont_venues) {
    std::filesystem::create_directory(dossier.chemin() / "listes");
    dossier.ecrire("listes/a.txt", "neuf");
    EXPECT_FALSE(common::remettrelistes(appels, dossier.chemin()));
    EXPECT_EQ(dossier.lire("listes/a.txt"), "neuf");
}

TEST_F(Remettrelistes, ne_fait_rien_d_un_dossier_sans_listes) {
    EXPECT_FALSE(common::remettrelistes(appels, dossier.chemin() / "absent"));
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "absent"));
}

}  // namespace
}  // namespace test_programme
