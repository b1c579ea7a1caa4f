#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "lieux.h"

namespace test_lieux {
namespace {

namespace fs = std::filesystem;

class Choisir : public testing::Test {
  protected:
    Choisir() { fs::create_directories(programme); }
    [[nodiscard]] installation::Lieu choisir() {
        return installation::choisir(appels, {programme, donnees});
    }
    void installer(const char* ou = "usr/share/games/orvane") const {
        fs::create_directories(dossier.chemin() / ou);
        dossier.ecrire(std::string(ou) + "/inventaire.txt", "1\n");
    }

    essais::DossierTemporaire dossier;
    fs::path programme = dossier.chemin() / "usr/games";
    fs::path donnees = dossier.chemin() / "maison/orvane";
    fs::path fournis = dossier.chemin() / "usr/share/games/orvane";
    essais::AppelsDessai appels;
};

TEST_F(Choisir, un_programme_du_chantier_reste_ou_il_est_lance) {
    EXPECT_EQ(choisir(), installation::Lieu{});
}

TEST_F(Choisir, un_programme_installe_va_chez_le_joueur) {
    installer();
    const auto lieu = choisir();
    EXPECT_EQ(lieu.dossier, donnees);
    EXPECT_TRUE(fs::equivalent(lieu.fournis, fournis));
}

TEST_F(Choisir, un_programme_installe_ou_son_joueur_peut_ecrire_va_chez_lui) {
    installer("usr/games/fournis");
    fs::create_directory(programme / "fournis" / "listes");
    const auto lieu = choisir();
    EXPECT_EQ(lieu.dossier, donnees);
    EXPECT_TRUE(fs::equivalent(lieu.fournis, programme / "fournis"));
}

TEST_F(Choisir, des_listes_a_cote_de_lui_l_emportent_sur_ce_qui_est_fourni) {
    installer("usr/games/fournis");
    fs::create_directory(programme / "listes");
    EXPECT_EQ(choisir().dossier, programme);
    EXPECT_TRUE(choisir().fournis.empty());
}

TEST_F(Choisir, des_listes_qu_une_fabrication_tuee_avait_ecartees_reviennent) {
    installer();
    fs::create_directories(programme / ".nouvelles-listes" / "listes-anciennes");
    dossier.ecrire("usr/games/.nouvelles-listes/listes-anciennes/a.txt", "A");
    EXPECT_EQ(choisir().dossier, programme);
    EXPECT_EQ(dossier.lire("usr/games/listes/a.txt"), "A");
}

TEST_F(Choisir, un_programme_dans_son_dossier_de_jeu_y_reste) {
    installer();
    fs::create_directory(programme / "listes");
    const auto lieu = choisir();
    EXPECT_EQ(lieu.dossier, programme);
    EXPECT_EQ(lieu.fournis, "");
}

TEST_F(Choisir, un_dossier_de_jeu_qui_ne_s_ecrit_pas_est_apporte_chez_le_joueur) {
    fs::create_directory(programme / "listes");
    dossier.ecrire("usr/games/inventaire.txt", "1\n");
    // The calls: is `listes` there, then the file that is tried.
    appels.prevoir(essais::Panne::Refus, 2);
    const auto lieu = choisir();
    EXPECT_EQ(lieu.dossier, donnees);
    EXPECT_TRUE(fs::equivalent(lieu.fournis, programme));
}

TEST_F(Choisir, un_fichier_nomme_listes_n_est_pas_un_dossier_de_jeu) {
    installer();
    dossier.ecrire("usr/games/listes", "");
    EXPECT_EQ(choisir().dossier, donnees);
}

TEST_F(Choisir, sans_maison_c_est_une_faute_qui_dit_pourquoi) {
    installer();
    try {
        static_cast<void>(
            installation::choisir(appels, {programme, {}, "LIEU n'est pas un dossier"}));
        FAIL() << "no fault";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), testing::HasSubstr("(LIEU n'est pas un dossier)"));
    }
}

TEST(Environs, disent_ou_sont_les_donnees_du_joueur) {
    const auto ici = installation::environs("ici");
    EXPECT_EQ(ici.programme, "ici");
    EXPECT_TRUE(ici.donnees.is_absolute());
    EXPECT_THAT(ici.donnees.filename().string(), testing::StrCaseEq("orvane"));
    EXPECT_NE(ici.sansdonnees, "");
}

}  // namespace
}  // namespace test_lieux
