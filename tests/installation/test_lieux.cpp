#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "lieux.h"

namespace {

namespace fs = std::filesystem;

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

class Choisir : public testing::Test {
  protected:
    Choisir() { fs::create_directories(programme); }
    [[nodiscard]] installation::Lieu choisir() {
        return installation::choisir(appels, {programme, donnees});
    }
    void installer() const {
        fs::create_directories(fournis);
        dossier.ecrire("usr/share/games/orvane/inventaire.txt", "1\n");
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

TEST_F(Choisir, sans_maison_c_est_une_faute) {
    installer();
    donnees.clear();
    EXPECT_THROW(static_cast<void>(choisir()), common::Faute);
}

}  // namespace
