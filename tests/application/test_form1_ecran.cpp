// The two layouts of Form1, on the control model of the whole program.

#include <string>

#include <gmock/gmock.h>

#include "application.h"
#include "contours.h"
#include "dossier.h"
#include "plateformesimulee.h"

namespace test_form1_ecran {
namespace {

struct Disposition {
    const char* nom;
    bool compact;
    bool listefinie;
};

std::string nommer(const testing::TestParamInfo<Disposition>& cas) {
    return cas.param.nom;
}

/// A list of one row with a note, in a layout, running or worked to its end.
class Form1Ecran : public testing::TestWithParam<Disposition> {
  protected:
    void SetUp() override {
        banc::garnir(dossier.chemin(), ORVANE_JEU);
        auto& disque = plateforme.disque();
        ASSERT_FALSE(disque.creerdossier("Essai"));
        for (const auto* vide : {"Essai\\hist.dat", "Essai\\rev-x.txt"})
            ASSERT_FALSE(disque.remplacer(vide, ""));
        ASSERT_FALSE(disque.remplacer("Essai\\settings.dat", "95\r\n80\r\n8\r\n5\r\n1\r\n"));
        ASSERT_FALSE(disque.remplacer("listes\\x.txt", "AB;BA\r\n"));
        ASSERT_FALSE(disque.remplacer("infosouris.txt", "BA\r\nNote\r\n"));
        plateforme.executer([&] {
            auto& voisins = programme.voisins();
            voisins.form3.util = "Essai";
            voisins.form3.toue = "R";  // the criterion is on screen
            static_cast<void>(voisins.menu.fond());
            voisins.form1.coloration();
            voisins.form1.montrer();
            voisins.form1.commencer("listes\\x.txt");
        });
        ASSERT_EQ(plateforme.rapport(), std::nullopt);
        form = plateforme.bureau.trouver("Form1");
        ASSERT_NE(form, nullptr);
        plateforme.executer([&] {
            if (GetParam().compact)
                form->cliquer(controle("Command6"));
            if (!GetParam().listefinie)
                return;
            controle("solution", 0).texte = "BA";
            form->cliquer(controle("corriger"));
        });
    }

    [[nodiscard]] ui::Controle& controle(std::string_view nom, int index = -1) const {
        return form->controle(nom, index);
    }

    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    application::Application programme{plateforme};
    ui::Formulaire* form = nullptr;
};

INSTANTIATE_TEST_SUITE_P(, Form1Ecran,
                         testing::Values(Disposition{"normal_en_cours", false, false},
                                         Disposition{"normal_a_la_fin", false, true},
                                         Disposition{"compact_en_cours", true, false},
                                         Disposition{"compact_a_la_fin", true, true}),
                         nommer);

TEST_P(Form1Ecran, rien_ne_se_couvre_ni_ne_sort_de_la_fenetre) {
    const auto liste = banc::vus(*form);
    ASSERT_EQ(controle("InfoSourisText").visible(), GetParam().listefinie);
    for (std::size_t i = 0; i < liste.size(); ++i) {
        EXPECT_TRUE(banc::danslafenetre(*liste[i])) << liste[i]->nomcomplet();
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(banc::secouvrent(*liste[i], *liste[j]))
                << liste[i]->nomcomplet() << " sur " << liste[j]->nomcomplet();
    }
}

TEST_P(Form1Ecran, trois_colonnes_de_dix_et_les_tuiles_qui_se_touchent) {
    for (int i = 0; i < 30; ++i) {
        const auto& rack = controle("tirage", i);
        EXPECT_EQ(rack.haut(), controle("tirage", i % 10).haut());
        EXPECT_EQ(rack.gauche(), controle("tirage", i / 10 * 10).gauche());
        EXPECT_EQ(controle("solution", i).haut(), rack.haut());
        EXPECT_GT(controle("solution", i).gauche(), rack.gauche());
        EXPECT_EQ(controle("Image1", i).gauche(),
                  controle("solution", i).gauche() + controle("solution", i).largeur());
        EXPECT_LT(rack.haut(), controle("Command1", 0).haut());
    }
    for (int i = 1; i < 9; ++i)
        EXPECT_EQ(controle("Command1", i).gauche(),
                  controle("Command1", i - 1).gauche() + controle("Command1", i - 1).largeur());
}

TEST_P(Form1Ecran, le_retour_remet_les_notes_a_leur_place) {
    const auto haut = controle("InfoSourisText").haut();
    const auto hauteur = controle("InfoSourisText").hauteur();
    plateforme.executer([&] { form->cliquer(controle("quitter")); });
    if (!GetParam().listefinie) {
        EXPECT_EQ(controle("InfoSourisText").haut(), haut);
        EXPECT_EQ(controle("InfoSourisText").hauteur(), hauteur);
        return;
    }
    // At the end of a list the notes are a low strip below the tiles.
    EXPECT_GE(haut, controle("Command1", 0).haut() + controle("Command1", 0).hauteur());
    EXPECT_LT(hauteur, controle("InfoSourisText").hauteur());
    EXPECT_LE(controle("InfoSourisText").haut(), haut);
}

}  // namespace
}  // namespace test_form1_ecran
