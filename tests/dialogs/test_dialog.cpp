#include <array>

#include <gtest/gtest.h>

#include "dialog.h"
#include "voisinage.h"

namespace test_dialog {
namespace {

class Dialog : public testing::Test {
  protected:
    essai::Voisinage v;
    int decharges = 0;
    dialogs::Dialog form{v.plateforme, [this] { ++decharges; }};
    ui::Controle& boite = form.controle("Text1");

    static constexpr std::array<const char*, 2> records{"24/08/2019 - 14:35 - 95.3% - T",
                                                        "25/08/2019 - 09:02 - 100% - R"};
    std::array<std::string, 2> lignes{records[0], records[1]};
};

TEST_F(Dialog, s_ouvre_avec_le_nom_de_la_liste) {
    form.montrer("Verbes de 6 lettres");
    EXPECT_TRUE(form.visible());
    EXPECT_EQ(form.texte(), "Historique des scores - Verbes de 6 lettres");
    EXPECT_EQ(boite.texte(), "");
}

TEST_F(Dialog, une_rangee_sans_liste_donne_le_trait_seul) {
    form.montrer("");
    EXPECT_EQ(form.texte(), "Historique des scores - ");
}

TEST_F(Dialog, montre_une_ligne_par_resultat) {
    form.montrer("3LC");
    form.ajouter(lignes);
    EXPECT_EQ(boite.texte(), lignes[0] + "\n" + lignes[1] + "\n");
}

TEST_F(Dialog, reste_ouvert_et_s_allonge) {
    form.montrer("3LC");
    form.ajouter(lignes);
    form.montrer("3LT");
    form.ajouter(std::array{lignes[1]});
    EXPECT_EQ(form.texte(), "Historique des scores - 3LC - 3LT");
    EXPECT_EQ(boite.texte(), lignes[0] + "\n" + lignes[1] + "\n" + lignes[1] + "\n");
}

TEST_F(Dialog, ce_que_l_on_tape_reste_devant_la_suite) {
    form.montrer("3LC");
    form.focaliser(boite);
    form.enfoncer({'X'}, U'x');
    form.ajouter(lignes);
    EXPECT_EQ(boite.texte(), "x" + lignes[0] + "\n" + lignes[1] + "\n");
}

TEST_F(Dialog, la_case_de_fermeture_le_decharge) {
    form.montrer("3LC");
    form.fermer();
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(decharges, 1);
}

TEST_F(Dialog, echap_le_decharge_aussi) {
    form.montrer("3LC");
    form.enfoncer({ui::touches::echap});
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(decharges, 1);
    EXPECT_EQ(boite.texte(), "");
}

TEST_F(Dialog, cacher_garde_le_titre_et_le_texte) {
    form.montrer("3LC");
    form.ajouter(lignes);
    form.cacher();
    EXPECT_FALSE(form.visible());
    EXPECT_EQ(decharges, 0);
    EXPECT_EQ(form.texte(), "Historique des scores - 3LC");
    EXPECT_NE(boite.texte(), "");
}

TEST_F(Dialog, la_boite_remplit_la_fenetre) {
    EXPECT_TRUE(boite.multiligne);
    EXPECT_TRUE(boite.ascenseur);
    EXPECT_EQ(boite.gauche(), 0);
    EXPECT_EQ(boite.haut(), 0);
    EXPECT_EQ(boite.largeur(), form.largeur());
    EXPECT_EQ(boite.hauteur(), form.hauteur());
}

}  // namespace
}  // namespace test_dialog
