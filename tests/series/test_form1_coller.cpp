// What is pasted into the boxes of Form1 obeys the rules of typing, and is written once.

#include <string>

#include <gtest/gtest.h>

#include "form1dessai.h"

namespace test_form1_coller {
namespace {

class Form1coller : public essai::Form1dessai {
  protected:
    void SetUp() override {
        v.dialog2.saisieassistee = 1;
        commencer("AABC;CABA\r\n");
        ASSERT_EQ(rapport(), "aucun");
        controle("solution", 0).change = [this] { ++changements; };
    }
    void coller(const std::string& texte) {
        machine.plateforme.executer([&] { form->coller(texte); });
    }
    [[nodiscard]] int bips() const { return machine.plateforme.journal.bips; }

    int changements = 0;
};

TEST_F(Form1coller, les_lettres_du_tirage_entrent_et_les_autres_font_un_seul_bip) {
    coller("c a-béxaa");
    EXPECT_EQ(controle("solution", 0).texte(), "CABA");
    EXPECT_EQ(controle("tirage", 0).texte(), "");
    EXPECT_EQ(changements, 1);
    EXPECT_EQ(bips(), 1);
}

TEST_F(Form1coller, une_reponse_choisie_rend_ses_lettres_une_fois) {
    coller("aac");
    EXPECT_EQ(controle("tirage", 0).texte(), "B");
    controle("solution", 0).toutselectionner();
    coller("caaa");
    EXPECT_EQ(controle("solution", 0).texte(), "CAA");
    EXPECT_EQ(controle("tirage", 0).texte(), "B");
    EXPECT_EQ(bips(), 1);
}

TEST_F(Form1coller, rien_apres_la_correction) {
    cliquer("corriger");
    const auto texte = controle("solution", 0).texte();
    machine.plateforme.executer([&] { form->focaliser(controle("solution", 0)); });
    coller("1A");
    EXPECT_EQ(controle("solution", 0).texte(), texte);
    EXPECT_EQ(bips(), 0);
}

TEST_F(Form1coller, recherche_est_coupee_au_tirage_avec_un_bip) {
    cliquer("recherche");
    coller("xyzuvw");
    EXPECT_EQ(controle("recherche").texte(), "XYZU");
    EXPECT_EQ(controle("recherche").curseur(), 4U);
    EXPECT_EQ(bips(), 1);
}

TEST_F(Form1coller, deux_cents_milliers_de_lettres_dans_chaque_boite) {
    const std::string lettres(200000, 'a');
    coller(lettres);
    EXPECT_EQ(controle("solution", 0).texte(), "AA");
    EXPECT_EQ(bips(), 1);
    cliquer("recherche");
    coller(lettres);
    EXPECT_EQ(controle("recherche").texte(), "AAAA");
    v.dialog2.saisieassistee = 0;
    machine.plateforme.executer([&] { form->focaliser(controle("solution", 2)); });
    coller(lettres);
    EXPECT_EQ(controle("solution", 2).texte().size(), lettres.size());
}

}  // namespace
}  // namespace test_form1_coller
