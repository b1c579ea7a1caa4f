// The layout of Multi, on the control model of the whole program.

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "application.h"
#include "dossier.h"
#include "faces.h"
#include "fichier.h"
#include "formulaire.h"
#include "plateformesimulee.h"

namespace test_ecran {
namespace {

std::string nombre(const testing::TestParamInfo<int>& cas) {
    return "a_" + std::to_string(cas.param) + "_solutions";
}

using ui::Controle;

struct Boite {
    int gauche;
    int haut;
    int droite;
    int bas;
};

Boite contour(const Controle& c) {
    return {c.gauche(), c.haut(), c.gauche() + c.largeur(), c.haut() + c.hauteur()};
}

bool secouvrent(const Controle& a, const Controle& b) {
    const auto x = contour(a);
    const auto y = contour(b);
    return x.gauche < y.droite && y.gauche < x.droite && x.haut < y.bas && y.haut < x.bas;
}

/// A list of so many solutions a rack, on screen.
class Ecran : public testing::TestWithParam<int> {
  protected:
    void SetUp() override {
        banc::garnir(dossier.chemin(), ORVANE_JEU);
        std::string rangee = "ABCDEFGHIJ";
        for (int i = 0; i < GetParam(); ++i)
            rangee += ";ABCDEFGHIJ";
        auto& disque = plateforme.disque();
        ASSERT_FALSE(disque.creerdossier("Essai"));
        for (const auto* vide : {"Essai\\hist.dat", "Essai\\rev-x.txt"})
            ASSERT_FALSE(disque.remplacer(vide, ""));
        ASSERT_FALSE(disque.remplacer("Essai\\settings.dat", "95\r\n80\r\n8\r\n5\r\n1\r\n"));
        ASSERT_FALSE(disque.remplacer("listes\\x.txt", rangee + "\r\n"));
        auto& voisins = programme.voisins();
        plateforme.executer([&] {
            voisins.form3.util = "Essai";
            voisins.form3.toue = "R";  // the criterion is on screen
            static_cast<void>(voisins.menu.fond());
            voisins.multi.coloration();
            voisins.multi.montrer();
            voisins.multi.commencer("listes\\x.txt");
        });
        ASSERT_EQ(plateforme.rapport(), std::nullopt);
        form = plateforme.bureau.trouver("Multi");
        ASSERT_NE(form, nullptr);
    }

    [[nodiscard]] Controle& controle(std::string_view nom, int index = -1) const {
        return form->controle(nom, index);
    }
    /// What a player sees, frames and the controls that only logic needs left out.
    [[nodiscard]] std::vector<Controle*> visibles() const {
        std::vector<Controle*> liste;
        for (const auto& c : form->controles()) {
            const bool vu = c->visible() && c->genre() != ui::Genre::Cadre &&
                            c->genre() != ui::Genre::Entree && c->nom() != "Command2" &&
                            c->nom() != "cache";
            if (vu)
                liste.push_back(c.get());
        }
        return liste;
    }

    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    application::Application programme{plateforme};
    ui::Formulaire* form = nullptr;
};

INSTANTIATE_TEST_SUITE_P(, Ecran, testing::Values(2, 3, 4, 5), nombre);

TEST_P(Ecran, rien_ne_se_couvre_ni_ne_sort_de_la_fenetre) {
    const auto liste = visibles();
    for (std::size_t i = 0; i < liste.size(); ++i) {
        const auto c = contour(*liste[i]);
        EXPECT_TRUE(c.gauche >= 0 && c.haut >= 0 && c.droite <= form->largeur() &&
                    c.bas <= form->hauteur())
            << liste[i]->nomcomplet();
        EXPECT_TRUE(c.droite > c.gauche && c.bas > c.haut) << liste[i]->nomcomplet();
        for (std::size_t j = 0; j < i; ++j)
            EXPECT_FALSE(secouvrent(*liste[i], *liste[j]))
                << liste[i]->nomcomplet() << " sur " << liste[j]->nomcomplet();
    }
}

TEST_P(Ecran, les_boites_sont_a_leur_place) {
    for (int place = 0; place < 10; ++place) {
        const auto& rack = controle("tirage", place);
        EXPECT_EQ(rack.gauche(), 240);
        EXPECT_EQ(rack.haut(), 840 + 720 * place);
        for (int s = 0; s < 5; ++s) {
            const auto& reponse = controle("solution", s * 10 + place);
            EXPECT_EQ(reponse.visible(), s < GetParam());
            EXPECT_EQ(reponse.gauche(), 3360 + 3240 * s);
            EXPECT_EQ(reponse.haut(), rack.haut());
            EXPECT_EQ(reponse.largeur(), 2700);
            EXPECT_EQ(reponse.hauteur(), 555);
        }
    }
}

TEST_P(Ecran, une_marque_tient_entre_deux_boites_a_leur_hauteur) {
    for (int i = 0; i < GetParam() * 10; ++i) {
        const auto boite = contour(controle("solution", i));
        for (const auto* marque : {"Image1", "Image2", "ImageDemiVbt"}) {
            const auto image = contour(controle(marque, i));
            EXPECT_EQ(image.gauche, boite.droite);
            EXPECT_TRUE(image.haut >= boite.haut && image.bas <= boite.bas);
            EXPECT_LE(image.droite, boite.gauche + 3240);
        }
    }
}

TEST_P(Ecran, chaque_marque_porte_son_image) {
    const std::map<std::string, std::string> images{
        {"Image1", "ods5_28x28"},      {"Image4", "ods6_28x28"},      {"Image5", "ods7_28x28"},
        {"Image2", "ppi_28x28"},       {"Image6", "vbt_28x28"},       {"Image3", "inv_28x28"},
        {"ImageDemiPpi", "ppi_14x28"}, {"ImageDemiVbt", "vbt_14x28"}, {"ImageDemiInv", "inv_14x28"},
    };
    for (const auto& [marque, image] : images) {
        for (int i = 0; i < 50; ++i)
            EXPECT_EQ(controle(marque, i).image(), "images\\" + image + ".bmp") << marque << i;
    }
}

TEST_P(Ecran, la_colonne_des_chronometres_suit_la_derniere_solution) {
    const int derniere = 3360 + 3240 * GetParam();
    EXPECT_GE(controle("corriger").gauche(), derniere);
    EXPECT_LE(controle("corriger").gauche(), std::max(derniere, 3720 + 10455 - 3600));
    EXPECT_EQ(form->largeur(), controle("corriger").gauche() + 3600 + 240);
}

/// On a small screen a box is wide enough for a word of nine wide letters at the size of the list.
TEST_P(Ecran, tient_lisible_sur_un_ecran_de_1366_par_768) {
    constexpr double twipsparpixel = 15;
    constexpr double utile = 768 - 68;  // the title bar, and a panel of the desktop
    const double echelle =
        std::min(1366 * twipsparpixel / form->largeur(), utile * twipsparpixel / form->hauteur());
    EXPECT_GE(echelle, 0.85);
    constexpr double largeurlettre = 0.7;  // of a capital, in ems
    constexpr double twipsparpoint = 20;
    EXPECT_LE(9 * largeurlettre * 20 * twipsparpoint, controle("solution", 0).largeur());
}

TEST_P(Ecran, tab_suit_le_parcours_d_entree_puis_le_pied_et_la_colonne) {
    std::vector<std::string> attendu;
    for (int place = 0; place < 10; ++place)
        for (int s = 0; s < GetParam(); ++s)
            attendu.push_back("solution(" + std::to_string(s * 10 + place) + ")");
    for (const auto* nom : {"recherche", "valider"})
        attendu.emplace_back(nom);
    for (int t = 0; t < 9; ++t)
        attendu.push_back("Command1(" + std::to_string(t) + ")");
    for (const auto* nom :
         {"corriger", "Command5", "Command3", "Command4", "quitter", "seuiltxt", "Check1"})
        attendu.emplace_back(nom);  // "restart" is disabled while a series is open
    std::vector<std::string> suivi;
    for (std::size_t i = 0; i < attendu.size(); ++i) {
        suivi.push_back(form->focus()->nomcomplet());
        form->tabuler(false);
    }
    EXPECT_EQ(suivi, attendu);
    EXPECT_EQ(form->focus()->nomcomplet(), "solution(0)");
    form->tabuler(true);
    EXPECT_EQ(form->focus()->nomcomplet(), "Check1");
}

TEST_P(Ecran, chaque_controle_a_un_nom_pour_l_accessibilite) {
    for (const auto* c : visibles()) {
        const bool muet = c->genre() == ui::Genre::Etiquette || c->genre() == ui::Genre::Image;
        EXPECT_TRUE(muet || !c->accessible().empty() || !c->texte().empty()) << c->nomcomplet();
    }
}

TEST_P(Ecran, les_notes_couvrent_le_pied_puis_laissent_les_tuiles) {
    const auto& notes = controle("InfoSourisText");
    EXPECT_EQ(notes.gauche(), 3720);
    EXPECT_EQ(notes.haut(), 8040);
    EXPECT_EQ(notes.largeur(), 10455);
    EXPECT_EQ(notes.hauteur(), 2895);
    for (int t = 0; t < 9; ++t) {
        EXPECT_EQ(controle("Command1", t).gauche(), 5085 + 840 * t);
        EXPECT_EQ(controle("Command1", t).haut(), 8280);
    }
    for (const auto* c : visibles()) {
        const bool tuile = c->nom() == "Command1";
        EXPECT_EQ(secouvrent(notes, *c), tuile) << c->nomcomplet();
    }
}

}  // namespace
}  // namespace test_ecran
