#include <algorithm>

#include <gmock/gmock.h>

#include "chemin.h"
#include "envigueur.h"
#include "fabrique.h"
#include "faute.h"
#include "petitchantier.h"
#include "processus.h"

namespace test_fabrique {
namespace {

using namespace carnet;
using essais::contenu;
using essais::perso;
using testing::HasSubstr;

/// A play folder with the lists of the small lexicon and a list of the player's own.
class Fabrique : public testing::Test {
  protected:
    Fabrique() {
        EXPECT_TRUE(fabriquer(essais::petitschemins(), {}, dossier.chemin(), essais::continuer));
        dossier.ecrire("listes/mienne.txt", "AB;BA\r\n");
        dossier.ecrire("users.dat", "Zoé\r\n");
    }
    [[nodiscard]] std::string envigueur() const { return dossier.lire("listes/dictionnaire.dat"); }
    bool faire(const Commande& commande, const Avance& avance = essais::continuer) {
        return fabriquer(essais::petitschemins(), commande, dossier.chemin(), avance);
    }
    essais::DossierTemporaire dossier;
};

TEST_F(Fabrique, met_le_dictionnaire_du_joueur_en_vigueur_et_garde_ses_fichiers) {
    EXPECT_EQ(envigueur(), "libre\r\n17\r\n\r\n");
    EXPECT_THAT(dossier.lire("listes/3lc.txt"), HasSubstr("(Z)EN;ZEN"));
    EXPECT_TRUE(faire(perso({"NEZ", "XYSTE"})));
    EXPECT_EQ(envigueur(), "perso\r\n2\r\nmiens.txt\r\n");
    EXPECT_EQ(dossier.lire("listes/3lc.txt"), "ENZ;NEZ\r\n");
    EXPECT_EQ(dossier.lire("listes/mienne.txt"), "AB;BA\r\n");
    EXPECT_EQ(dossier.lire("users.dat"), "Zoé\r\n");
}

TEST_F(Fabrique, le_retour_au_lexique_libre_rend_les_memes_octets) {
    const auto avant = contenu(dossier);
    ASSERT_TRUE(faire(perso({"NEZ", "XYSTE"})));
    ASSERT_NE(contenu(dossier), avant);
    EXPECT_TRUE(faire({}));
    EXPECT_EQ(contenu(dossier), avant);
}

TEST_F(Fabrique, des_editions_font_les_listes_de_reference) {
    dossier.ecrire("2008.txt", "nez\n");
    dossier.ecrire("2012.txt", "nez\nwok\nporte-clé\n");
    common::DisqueReel disque;
    auto commande = perso({"NEZ", "WOK"});
    const auto chemin = [&](const char* nom) { return (dossier.chemin() / nom).string(); };
    comparereditions(disque, {"", chemin("2008.txt"), chemin("2012.txt"), ""}, commande);
    EXPECT_TRUE(faire(commande));
    EXPECT_EQ(dossier.lire("listes/ods6.txt"), "WOK\r\n");
    EXPECT_EQ(dossier.lire("listes/ods5.txt"), "");
    EXPECT_EQ(envigueur(), "perso\r\n2\r\nmiens.txt\r\n2012=2008.txt, 2012.txt\r\n");
}

TEST_F(Fabrique, une_edition_illisible_est_une_faute_qui_la_nomme) {
    common::DisqueReel disque;
    Commande commande;
    try {
        comparereditions(disque, {"nulle.txt", "part.txt", "", ""}, commande);
        FAIL() << "no fault";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), HasSubstr("nulle.txt"));
    }
}

TEST_F(Fabrique, avance_sans_jamais_reculer_jusqu_a_la_fin) {
    std::vector<int> faits;
    EXPECT_TRUE(faire({}, [&](int millemes, std::string_view) {
        faits.push_back(millemes);
        return true;
    }));
    EXPECT_TRUE(std::is_sorted(faits.begin(), faits.end()));
    EXPECT_GT(faits.size(), 100U);
    EXPECT_EQ(faits.front(), 0);
    EXPECT_GT(faits.back(), 950);
    EXPECT_LE(faits.back(), 1000);
}

TEST_F(Fabrique, arretee_a_tout_moment_ne_change_rien) {
    const auto avant = contenu(dossier);
    std::size_t pas = 0;
    ASSERT_TRUE(faire({}, [&](int, std::string_view) {
        ++pas;
        return true;
    }));
    // Every step but the writing of file after file, of which some.
    for (std::size_t arret = 0; arret < pas; arret += arret < 125 ? 5 : 40) {
        std::size_t faits = 0;
        EXPECT_FALSE(
            faire(perso({"NEZ", "WOK"}), [&](int, std::string_view) { return faits++ < arret; }));
        EXPECT_EQ(faits, arret + 1);
        ASSERT_EQ(contenu(dossier), avant) << arret;
    }
}

TEST_F(Fabrique, un_disque_plein_ne_change_rien) {
    const auto avant = contenu(dossier);
    int reste = 30;
    const auto plein = [&](const std::filesystem::path& chemin, std::string_view octets) {
        return --reste < 0 ? std::make_error_code(std::errc::no_space_on_device)
                           : atelier::ecrirefichier(chemin, octets);
    };
    EXPECT_THROW((void)fabriquer(essais::petitschemins(), perso({"NEZ"}), dossier.chemin(),
                                 essais::continuer, plein),
                 common::Faute);
    EXPECT_EQ(contenu(dossier), avant);
}

/// Makes lists in a folder until a file of that rank is half written.
int mourirenecrivant(const essais::Mots& mots) {
    int reste = std::stoi(mots[1]);
    const auto ecrire = [&](const std::filesystem::path& chemin, std::string_view octets) {
        const auto moitie = atelier::ecrirefichier(chemin, octets.substr(0, octets.size() / 2));
        if (reste-- == 0)
            essais::mourir();
        return moitie;
    };
    (void)fabriquer(essais::petitschemins(), perso({"NEZ"}), common::chemin(mots[0]),
                    essais::continuer, ecrire);
    return 0;
}

TEST_F(Fabrique, tuee_a_une_ecriture_laisse_les_listes_comme_avant) {
    const auto avant = contenu(dossier);
    for (const int mort : {0, 1, 120, 250}) {
        ASSERT_EQ(
            essais::enfant(mourirenecrivant, {dossier.chemin().string(), std::to_string(mort)}),
            essais::tue)
            << mort;
        auto apres = contenu(dossier);
        std::erase_if(apres, [](const auto& fichier) {
            return fichier.first.starts_with(".nouvelles-listes/");
        });
        EXPECT_EQ(apres, avant) << mort;
    }
    EXPECT_TRUE(faire(perso({"NEZ"})));
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / ".nouvelles-listes"));
}

TEST_F(Fabrique, des_sources_qui_manquent_sont_une_faute_qui_ne_change_rien) {
    const auto avant = contenu(dossier);
    EXPECT_THROW((void)fabriquer({"nul.dic", "nul.aff", "nul.dat"}, perso({"NEZ"}),
                                 dossier.chemin(), essais::continuer),
                 common::Faute);
    EXPECT_EQ(contenu(dossier), avant);
}

}  // namespace
}  // namespace test_fabrique
