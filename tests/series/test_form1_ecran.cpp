// What Form1 sets up once: pictures of the marks, what lies in front, fonts, the order of Tab.

#include <algorithm>
#include <array>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "form1dessai.h"
#include "lignes.h"

namespace test_form1_ecran {
namespace {

using Form1ecran = essai::Form1dessai;

struct Imagedemarque {
    const char* nom;  ///< of the control
    const char* image;
};
void PrintTo(const Imagedemarque& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Imagesdesmarques : public Form1ecran, public testing::WithParamInterface<Imagedemarque> {};

TEST_P(Imagesdesmarques, les_30_boites_portent_la_meme) {
    ASSERT_EQ(rapport(), "aucun");
    for (int i = 0; i < 30; ++i)
        EXPECT_EQ(controle(GetParam().nom, i).image(), GetParam().image) << i;
}

constexpr Imagedemarque images[] = {
    {"Image1", "images\\ods5_28x28.bmp"},      {"Image4", "images\\ods6_28x28.bmp"},
    {"Image5", "images\\ods7_28x28.bmp"},      {"Image2", "images\\ppi_28x28.bmp"},
    {"ImageDemiPpi", "images\\ppi_14x28.bmp"}, {"Image6", "images\\vbt_28x28.bmp"},
    {"ImageDemiVbt", "images\\vbt_14x28.bmp"}, {"Image3", "images\\inv_28x28.bmp"},
    {"ImageDemiInv", "images\\inv_14x28.bmp"},
};
INSTANTIATE_TEST_SUITE_P(Table, Imagesdesmarques, testing::ValuesIn(images),
                         essai::nommer<Imagedemarque>);

/// Controls lie in the order in which they were made.
TEST_F(Form1ecran, les_demi_marques_sont_devant_les_marques_de_leur_boite) {
    const auto rang = [this](const char* nom, int boite) {
        const auto& controles = form->controles();
        return std::find_if(controles.begin(), controles.end(),
                            [&](const auto& c) { return c.get() == &controle(nom, boite); }) -
               controles.begin();
    };
    for (int i = 0; i < 30; ++i) {
        for (const auto* demie : {"ImageDemiPpi", "ImageDemiVbt", "ImageDemiInv"}) {
            for (const auto* pleine : {"Image1", "Image2", "Image3", "Image4", "Image5", "Image6"})
                EXPECT_GT(rang(demie, i), rang(pleine, i)) << demie << " " << pleine << " " << i;
        }
    }
}

/// Counts how often its control comes to the front while it is shown.
class Temoin final : public ui::VueControle {
  public:
    explicit Temoin(ui::Controle& controle) : controle_(controle) { controle.vue = this; }
    ~Temoin() override { controle_.vue = nullptr; }
    void modifie(ui::Champ champ) override {
        if (champ == ui::Champ::PremierPlan && controle_.visible())
            ++devant;
    }
    int devant = 0;

  private:
    ui::Controle& controle_;
};

TEST_F(Form1ecran, les_notes_viennent_devant_a_chaque_correction_qui_en_montre) {
    Temoin temoin(controle("InfoSourisText"));
    commencer("AB;BA\r\n");
    cliquer("corriger");
    EXPECT_EQ(temoin.devant, 0);
    for (const int fois : {1, 2}) {
        machine.ecrire("infosouris.txt", "BA\r\nNote\r\n");
        cliquer("restart");
        cliquer("corriger");
        EXPECT_TRUE(controle("InfoSourisText").visible());
        EXPECT_EQ(temoin.devant, fois);
    }
}

TEST_F(Form1ecran, les_notes_du_mode_compact_sont_sous_les_boites_et_de_leur_largeur) {
    const auto& notes = controle("InfoSourisText");
    const auto& derniere = controle("solution", 29);
    const auto& marque = controle("Image1", 29);
    commencer("AB;BA\r\n");
    cliquer("Command6");
    for (const auto* moment : {"passage", "liste suivante"}) {
        EXPECT_EQ(notes.gauche(), controle("Label5").gauche()) << moment;
        EXPECT_EQ(notes.gauche(), controle("tirage", 0).gauche()) << moment;
        const int bord = notes.gauche() + notes.largeur();
        EXPECT_GE(bord, derniere.gauche() + derniere.largeur()) << moment;
        EXPECT_LE(bord, marque.gauche() + marque.largeur()) << moment;
        EXPECT_GE(notes.haut(), derniere.haut() + derniere.hauteur()) << moment;
        commencer("AB;BA\r\n");
    }
}

TEST_F(Form1ecran, seules_les_deux_dernieres_polices_redressent_l_italique) {
    commencer("AB;BA\r\n");
    const auto boites = [this] {
        std::vector<ui::Controle*> toutes;
        for (int i = 0; i < 30; ++i)
            toutes.insert(toutes.end(), {&controle("tirage", i), &controle("solution", i)});
        return toutes;
    }();
    constexpr std::array<std::pair<const char*, bool>, 6> cycle{{{"Arial", true},
                                                                 {"Verdana", true},
                                                                 {"Times New Roman", true},
                                                                 {"Lucida Sans", false},
                                                                 {"Georgia", false},
                                                                 {"Arial", true}}};
    for (const auto& [police, penchee] : cycle) {
        for (auto* boite : boites)
            boite->italique = true;
        cliquer("Command3");
        for (const auto* boite : boites) {
            EXPECT_EQ(boite->police(), police) << boite->nomcomplet();
            EXPECT_EQ(boite->italique(), penchee) << boite->nomcomplet() << " en " << police;
        }
    }
}

TEST_F(Form1ecran, tab_suit_les_boites_comme_entree_puis_le_pied) {
    v.form3.toue = "R";  // the criterion is on screen
    std::string lignes;
    for (int i = 0; i < 30; ++i)
        lignes += "AB;BA\r\n";
    commencer(lignes);
    ASSERT_EQ(focus(), "solution(0)");
    std::vector<std::string> parentree;
    for (int i = 0; i < 30; ++i) {
        entrer();
        parentree.push_back(focus());
    }
    std::vector<std::string> attendu;
    const auto ranger = [&attendu](const std::string& nom, int premier, int fin) {
        for (int i = premier; i < fin; ++i)
            attendu.push_back(nom + "(" + std::to_string(i) + ")");
    };
    ranger("solution", 1, 30);
    ranger("solution", 0, 1);
    EXPECT_EQ(parentree, attendu);
    attendu.pop_back();
    ranger("tirage", 10, 30);
    for (const auto* nom : {"recherche", "valider"})
        attendu.emplace_back(nom);
    ranger("Command1", 0, 9);
    for (const auto* nom : {"corriger", "Command5", "Command3", "Command6", "Command4", "quitter",
                            "seuiltxt", "Check1"})
        attendu.emplace_back(nom);  // "restart" is disabled while a series is open
    ranger("tirage", 0, 10);
    ranger("solution", 0, 1);
    std::vector<std::string> partab;
    for (std::size_t i = 0; i < attendu.size(); ++i) {
        form->tabuler(false);
        partab.push_back(focus());
    }
    EXPECT_EQ(partab, attendu);
}

}  // namespace
}  // namespace test_form1_ecran
