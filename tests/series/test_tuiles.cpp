#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "dossier.h"
#include "plateformesimulee.h"
#include "tuiles.h"

namespace test_tuiles {
namespace {

/// Nine tiles of 100 twips, from 40 on.
class Tuiles : public testing::Test {
  protected:
    Tuiles() {
        int rang = 0;
        for (auto* tuile : tuiles.controles())
            tuile->placer({40 + 100 * rang++, 0, 100, 100});
        tuiles.relever();
        tuiles.surclic = [this] { ++clics; };
    }
    void cliquer(std::size_t rang) { form.cliquer(*tuiles.controles()[rang]); }
    /// The captions from left to right.
    [[nodiscard]] std::string lues() const {
        std::string texte(tuiles.controles().size(), ' ');
        for (const auto* tuile : tuiles.controles())
            if (!tuile->texte().empty())
                texte[static_cast<std::size_t>((tuile->gauche() - 40) / 100)] = tuile->texte()[0];
        return texte;
    }

    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    ui::Formulaire form{plateforme, "Essai"};
    series::Tuiles tuiles{form};
    int clics = 0;
};

TEST_F(Tuiles, montrent_un_texte_de_1_a_9_caracteres) {
    tuiles.afficher("ABC");
    EXPECT_EQ(lues(), "ABC      ");
    tuiles.afficher("ABCDEFGHI");
    EXPECT_EQ(lues(), "ABCDEFGHI");
    tuiles.afficher("BRAVO!");
    EXPECT_EQ(lues(), "BRAVO!   ");
}

TEST_F(Tuiles, gardent_leur_texte_pour_un_vide_ou_un_de_10) {
    tuiles.afficher("ABC");
    tuiles.afficher("");
    EXPECT_EQ(lues(), "ABC      ");
    tuiles.afficher("ABCDEFGHIJ");
    EXPECT_EQ(lues(), "ABC      ");
}

TEST_F(Tuiles, deux_clics_en_echangent_deux) {
    tuiles.afficher("ABCD");
    cliquer(0);
    EXPECT_EQ(lues(), "ABCD     ");
    cliquer(2);
    EXPECT_EQ(lues(), "CBAD     ");
    cliquer(0);  // the tile, wherever it stands now
    cliquer(3);
    EXPECT_EQ(lues(), "CBDA     ");
    EXPECT_EQ(clics, 4);
}

TEST_F(Tuiles, une_tuile_vide_ne_s_echange_pas_et_oublie_l_autre) {
    tuiles.afficher("AB");
    cliquer(0);
    cliquer(5);
    EXPECT_EQ(lues(), "AB       ");
    cliquer(0);
    cliquer(1);
    EXPECT_EQ(lues(), "BA       ");
}

TEST_F(Tuiles, la_meme_tuile_deux_fois_reste_en_place) {
    tuiles.afficher("AB");
    cliquer(0);
    cliquer(0);
    EXPECT_EQ(lues(), "AB       ");
}

TEST_F(Tuiles, afficher_remet_les_tuiles_dans_l_ordre) {
    tuiles.afficher("AB");
    cliquer(0);
    cliquer(1);
    tuiles.afficher("AB");
    EXPECT_EQ(lues(), "AB       ");
}

TEST_F(Tuiles, oublier_la_tuile_choisie) {
    tuiles.afficher("ABC");
    cliquer(0);
    tuiles.oublier();
    cliquer(1);
    EXPECT_EQ(lues(), "ABC      ");
    cliquer(2);
    EXPECT_EQ(lues(), "ACB      ");
}

TEST_F(Tuiles, un_caractere_accentue_tient_sur_une_tuile) {
    tuiles.afficher("ÉA");
    EXPECT_EQ(tuiles.controles()[0]->texte(), "É");
    EXPECT_EQ(tuiles.controles()[1]->texte(), "A");
}

}  // namespace
}  // namespace test_tuiles
