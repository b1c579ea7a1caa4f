#include <filesystem>
#include <string>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "programme.h"
#include "sortie.h"

namespace test_sortie {
namespace {

using namespace atelier;
using essais::DossierTemporaire;
using testing::HasSubstr;

const std::vector<Fichier> neufs{{"listes/a.txt", "neuf a\r\n"},
                                 {"listes/b.txt", "neuf b\r\n"},
                                 {"infosouris.txt", "neuf\r\n"},
                                 {"images/i.png", "image"}};

/// A folder as an earlier run and a player left it.
class Sortie : public testing::Test {
  protected:
    Sortie() {
        std::filesystem::create_directories(dossier.chemin() / "listes");
        std::filesystem::create_directories(dossier.chemin() / "images");
        dossier.ecrire("listes/a.txt", "vieux a\r\n");
        dossier.ecrire("listes/perso.txt", "du joueur\r\n");
        dossier.ecrire("infosouris.txt", "vieux\r\n");
        dossier.ecrire("images/autre.bmp", "autre");
        dossier.ecrire("users.dat", "joueur");
    }
    [[nodiscard]] std::size_t entrees() const {
        return static_cast<std::size_t>(
            std::distance(std::filesystem::directory_iterator(dossier.chemin()), {}));
    }
    DossierTemporaire dossier;
};

TEST_F(Sortie, met_les_neufs_a_la_place_des_vieux_et_ne_laisse_rien_trainer) {
    installer(neufs, dossier.chemin());
    EXPECT_EQ(dossier.lire("listes/a.txt"), "neuf a\r\n");
    EXPECT_EQ(dossier.lire("listes/b.txt"), "neuf b\r\n");
    EXPECT_EQ(dossier.lire("infosouris.txt"), "neuf\r\n");
    EXPECT_EQ(dossier.lire("images/i.png"), "image");
    EXPECT_EQ(entrees(), 4U);
}

TEST_F(Sortie, garde_ce_qui_n_est_pas_d_elle) {
    installer(neufs, dossier.chemin());
    EXPECT_EQ(dossier.lire("listes/perso.txt"), "du joueur\r\n");
    EXPECT_EQ(dossier.lire("images/autre.bmp"), "autre");
    EXPECT_EQ(dossier.lire("users.dat"), "joueur");
}

TEST_F(Sortie, fait_le_dossier_qui_manque) {
    const auto nouveau = dossier.chemin() / "un" / "deux";
    installer(neufs, nouveau);
    EXPECT_TRUE(std::filesystem::exists(nouveau / "listes" / "a.txt"));
}

TEST_F(Sortie, un_disque_plein_laisse_les_vieux) {
    for (std::size_t places = 0; places < neufs.size(); ++places) {
        std::size_t ecrits = 0;
        const auto plein = [&](const std::filesystem::path& chemin, std::string_view octets) {
            if (ecrits++ == places)
                return std::make_error_code(std::errc::no_space_on_device);
            return ecrirefichier(chemin, octets);
        };
        try {
            installer(neufs, dossier.chemin(), plein);
            FAIL() << "pas de faute";
        } catch (const common::Faute& faute) {
            EXPECT_THAT(faute.what(), HasSubstr("le disque est plein"));
            EXPECT_THAT(faute.what(),
                        HasSubstr(common::chemin(neufs[places].chemin).filename().string()));
        }
        EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux a\r\n");
        EXPECT_EQ(dossier.lire("infosouris.txt"), "vieux\r\n");
        EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "listes/b.txt"));
        EXPECT_EQ(entrees(), 4U);
    }
}

TEST_F(Sortie, ce_qu_une_fabrication_tuee_a_laisse_ne_gene_pas) {
    std::filesystem::create_directories(dossier.chemin() / ".nouvelles-listes/listes");
    dossier.ecrire(".nouvelles-listes/listes/debris.txt", "debris");
    installer(neufs, dossier.chemin());
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "listes/debris.txt"));
    EXPECT_EQ(entrees(), 4U);
}

TEST_F(Sortie, deux_fabrications_ne_se_melent_pas) {
    bool refusee = false;
    installer(neufs, dossier.chemin(),
              [&](const std::filesystem::path& chemin, std::string_view octets) {
                  EXPECT_THROW(installer(neufs, dossier.chemin()), common::Faute);
                  EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux a\r\n");
                  refusee = true;
                  return ecrirefichier(chemin, octets);
              });
    EXPECT_TRUE(refusee);
    EXPECT_EQ(dossier.lire("listes/a.txt"), "neuf a\r\n");
    EXPECT_NO_THROW(installer(neufs, dossier.chemin()));
}

/// A disk that cannot give two folders each other's name.
class Sansechange : public essais::AppelsDessai {
    std::error_code echanger(const Chemin& /*un*/, const Chemin& /*autre*/) override {
        return std::make_error_code(std::errc::function_not_supported);
    }
};

/// Killed before any of its changes to what is in place, and taken up by the next start or the
/// next making.
TEST_F(Sortie, tuee_en_echangeant_laisse_toutes_les_vieilles_ou_toutes_les_neuves) {
    const auto etat = [&] {
        return dossier.lire("listes/a.txt") + dossier.lire("listes/perso.txt");
    };
    const std::string vieilles = "vieux a\r\ndu joueur\r\n";
    const std::string neuves = "neuf a\r\ndu joueur\r\n";
    int absentes = 0;
    int rang = 1;
    for (int statut = essais::tue; statut == essais::tue; ++rang) {
        SCOPED_TRACE(rang);
        std::filesystem::remove_all(dossier.chemin() / "listes");
        std::filesystem::remove_all(dossier.chemin() / ".nouvelles-listes");
        std::filesystem::create_directory(dossier.chemin() / "listes");
        dossier.ecrire("listes/a.txt", "vieux a\r\n");
        dossier.ecrire("listes/perso.txt", "du joueur\r\n");
        statut = essais::encopie([&] {
            Sansechange appels;
            appels.prevoir(essais::Panne::Avant, rang);
            installer(neufs, dossier.chemin(), ecrirefichier, abriter, appels);
            return 0;
        });
        absentes += std::filesystem::exists(dossier.chemin() / "listes") ? 0 : 1;
        EXPECT_FALSE(common::remettrelistes(common::appelsdusysteme(), dossier.chemin()));
        EXPECT_THAT(etat(), testing::AnyOf(vieilles, neuves));
        installer(neufs, dossier.chemin());
        EXPECT_EQ(etat(), neuves);
        EXPECT_EQ(entrees(), 4U);
    }
    EXPECT_EQ(absentes, 1);
    EXPECT_GT(rang, 4);
}

TEST_F(Sortie, qu_un_disque_refuse_au_milieu_remet_les_vieilles) {
    class Unefois : public Sansechange {
        std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
            return ++nombre_ == 2 ? std::make_error_code(std::errc::io_error)
                                  : Sansechange::renommer(ancien, nouveau);
        }
        int nombre_ = 0;
    } appels;
    EXPECT_THROW(installer(neufs, dossier.chemin(), ecrirefichier, abriter, appels), common::Faute);
    EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux a\r\n");
    EXPECT_EQ(entrees(), 4U);
}

TEST_F(Sortie, les_neufs_sont_a_l_abri_avant_l_echange_et_les_noms_apres) {
    std::vector<std::string> vus;
    installer(neufs, dossier.chemin(), ecrirefichier, [&](const std::filesystem::path& ou) {
        vus.push_back(dossier.lire("listes/a.txt"));
        EXPECT_TRUE(std::filesystem::exists(ou));
        return std::error_code();
    });
    EXPECT_EQ(vus, (std::vector<std::string>{"vieux a\r\n", "neuf a\r\n"}));
}

TEST_F(Sortie, un_disque_qui_ne_met_rien_a_l_abri_laisse_les_vieux) {
    const auto refuser = [](const std::filesystem::path& /*ou*/) {
        return std::make_error_code(std::errc::io_error);
    };
    EXPECT_THROW(installer(neufs, dossier.chemin(), ecrirefichier, refuser), common::Faute);
    EXPECT_EQ(dossier.lire("listes/a.txt"), "vieux a\r\n");
    EXPECT_EQ(dossier.lire("infosouris.txt"), "vieux\r\n");
    EXPECT_EQ(entrees(), 4U);
}

TEST_F(Sortie, un_dossier_du_disque_se_met_a_l_abri) {
    EXPECT_FALSE(abriter(dossier.chemin()));
    EXPECT_EQ(abriter(dossier.chemin() / "absent"), std::errc::no_such_file_or_directory);
}

TEST_F(Sortie, un_fichier_a_la_place_du_dossier_est_une_faute) {
    EXPECT_THROW(installer(neufs, dossier.chemin() / "users.dat"), common::Faute);
    EXPECT_EQ(dossier.lire("users.dat"), "joueur");
}

}  // namespace
}  // namespace test_sortie
