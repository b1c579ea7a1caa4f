#include <gmock/gmock.h>

#include "formulairetemoin.h"

namespace test_focus {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Focus : public testing::Test {
  protected:
    banc::PlateformeSimulee plateforme{"."};
    essais::FormulaireTemoin form{plateforme};
};

TEST_F(Focus, l_ancien_est_quitte_puis_le_nouveau_est_entre) {
    form.donnerfocus(form.boite(0));
    EXPECT_THAT(form.journal(), ElementsAre("solution(0)+"));
    form.donnerfocus(form.boite(1));
    EXPECT_THAT(form.journal(), ElementsAre("solution(0)-", "solution(1)+"));
    EXPECT_EQ(form.focus(), &form.boite(1));
}

TEST_F(Focus, le_donner_a_qui_l_a_ne_fait_rien) {
    form.donnerfocus(form.boite(0));
    form.journal();
    form.donnerfocus(form.boite(0));
    EXPECT_THAT(form.journal(), IsEmpty());
}

TEST_F(Focus, un_controle_grise_ou_cache_le_laisse_a_personne) {
    form.boite(1).actif = false;
    form.boite(2).visible = false;
    for (const int index : {1, 2}) {
        form.donnerfocus(form.boite(0));
        form.journal();
        form.donnerfocus(form.boite(index));
        EXPECT_THAT(form.journal(), ElementsAre("solution(0)-"));
        EXPECT_EQ(form.focus(), nullptr);
    }
}

TEST_F(Focus, qui_est_grise_ou_cache_le_rend_a_personne) {
    form.donnerfocus(form.boite(0));
    form.journal();
    form.boite(0).actif = false;
    EXPECT_EQ(form.focus(), nullptr);
    EXPECT_THAT(form.journal(), ElementsAre("solution(0)-"));
    form.donnerfocus(form.boite(1));
    form.boite(1).visible = false;
    EXPECT_EQ(form.focus(), nullptr);
}

TEST_F(Focus, griser_un_autre_controle_le_laisse_ou_il_est) {
    form.donnerfocus(form.boite(0));
    form.boite(1).actif = false;
    EXPECT_EQ(form.focus(), &form.boite(0));
}

TEST_F(Focus, il_survit_au_formulaire_cache) {
    form.visible = true;
    form.donnerfocus(form.boite(0));
    form.journal();
    form.visible = false;
    EXPECT_EQ(form.focus(), &form.boite(0));
    EXPECT_THAT(form.journal(), IsEmpty());
}

TEST_F(Focus, une_sortie_qui_le_donne_ailleurs_l_emporte) {
    form.donnerfocus(form.boite(0));
    form.boite(0).sortie = [&] { form.donnerfocus(form.boite(2)); };
    form.journal();
    form.donnerfocus(form.boite(1));
    EXPECT_EQ(form.focus(), &form.boite(2));
    EXPECT_THAT(form.journal(), testing::Not(testing::Contains("solution(1)+")));
}

TEST_F(Focus, un_clic_y_mene_d_abord) {
    form.cliquer(form.valider());
    EXPECT_THAT(form.journal(), ElementsAre("valider+", "valider!"));
}

TEST_F(Focus, un_double_clic_y_mene_d_abord) {
    form.boite(1).doubleclic = [&] { form.noter("double"); };
    form.doublecliquer(form.boite(1));
    EXPECT_THAT(form.journal(), ElementsAre("solution(1)+", "double"));
}

TEST_F(Focus, une_etiquette_se_clique_sans_le_prendre) {
    form.donnerfocus(form.boite(0));
    form.journal();
    form.cliquer(form.score());
    EXPECT_THAT(form.journal(), ElementsAre("score!"));
    EXPECT_EQ(form.focus(), &form.boite(0));
}

TEST_F(Focus, un_controle_grise_ou_cache_ne_se_clique_pas) {
    form.valider().actif = false;
    form.app().visible = false;
    form.cliquer(form.valider());
    form.doublecliquer(form.valider());
    form.cliquer(form.app());
    EXPECT_THAT(form.journal(), IsEmpty());
    EXPECT_FALSE(form.app().coche());
}

TEST_F(Focus, un_clic_coche_et_decoche) {
    form.cliquer(form.app());
    EXPECT_TRUE(form.app().coche());
    form.cliquer(form.app());
    EXPECT_FALSE(form.app().coche());
}

// Tab.

TEST_F(Focus, Tab_suit_l_ordre_et_fait_le_tour) {
    form.donnerfocus(form.boite(2));
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.valider());
    form.touche(ui::touches::tab);
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.boite(0));
    form.touche(ui::touches::tab, true);
    EXPECT_EQ(form.focus(), &form.app());
}

TEST_F(Focus, Tab_passe_par_dessus_ce_qui_est_grise_ou_cache) {
    form.boite(1).actif = false;
    form.boite(2).visible = false;
    form.donnerfocus(form.boite(0));
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.valider());
    form.touche(ui::touches::tab, true);
    EXPECT_EQ(form.focus(), &form.boite(0));
}

TEST_F(Focus, Tab_part_de_la_place_de_qui_l_a_perdu) {
    form.donnerfocus(form.boite(1));
    form.boite(1).actif = false;
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.boite(2));
    form.boite(2).visible = false;
    form.touche(ui::touches::tab, true);
    EXPECT_EQ(form.focus(), &form.boite(0));
}

TEST_F(Focus, Tab_part_de_la_place_de_qui_n_a_pas_pu_le_prendre) {
    form.boite(1).actif = false;
    form.donnerfocus(form.boite(0));
    form.donnerfocus(form.boite(1));
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.boite(2));
}

TEST_F(Focus, Tab_du_dehors_entre_au_debut_et_MajTab_a_la_fin) {
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.boite(0));
    form.tabulation({&form.boite(1), &form.boite(2)});
    form.touche(ui::touches::tab, true);
    EXPECT_EQ(form.focus(), &form.boite(2));
}

TEST_F(Focus, Tab_reste_ou_il_est_si_tout_le_reste_est_grise) {
    form.donnerfocus(form.boite(0));
    for (auto* autre : {&form.boite(1), &form.boite(2), &form.valider(), &form.app()})
        autre->actif = false;
    form.journal();
    form.touche(ui::touches::tab);
    EXPECT_EQ(form.focus(), &form.boite(0));
    EXPECT_THAT(form.journal(), IsEmpty());
}

// Default button.

TEST_F(Focus, Entree_d_une_boite_clique_le_bouton_par_defaut_sans_lui_donner_le_focus) {
    form.mettredefaut(form.valider());
    form.donnerfocus(form.boite(0));
    form.journal();
    form.touche(ui::touches::entree);
    EXPECT_THAT(form.journal(), ElementsAre("valider!"));
    EXPECT_EQ(form.focus(), &form.boite(0));
}

TEST_F(Focus, Entree_ne_clique_pas_un_bouton_par_defaut_grise) {
    form.mettredefaut(form.valider());
    form.valider().actif = false;
    form.donnerfocus(form.boite(0));
    form.journal();
    form.touche(ui::touches::entree);
    EXPECT_THAT(form.journal(), IsEmpty());
}

TEST_F(Focus, Entree_ne_clique_rien_quand_le_bouton_par_defaut_est_retire) {
    form.mettredefaut(form.valider());
    form.sansdefaut();
    form.donnerfocus(form.boite(0));
    form.journal();
    form.touche(ui::touches::entree);
    EXPECT_THAT(form.journal(), IsEmpty());
}

TEST_F(Focus, Entree_et_le_blanc_cliquent_le_bouton_qui_l_a) {
    form.mettredefaut(form.boite(0));
    form.donnerfocus(form.valider());
    form.journal();
    form.touche(ui::touches::entree);
    form.touche(ui::touches::espace);
    EXPECT_THAT(form.journal(), ElementsAre("valider!", "valider!"));
}

TEST_F(Focus, le_blanc_coche_la_case_et_Entree_va_au_bouton_par_defaut) {
    form.mettredefaut(form.valider());
    form.donnerfocus(form.app());
    form.journal();
    form.touche(ui::touches::espace);
    EXPECT_TRUE(form.app().coche());
    form.touche(ui::touches::entree);
    EXPECT_TRUE(form.app().coche());
    EXPECT_THAT(form.journal(), ElementsAre("app!", "valider!"));
}

}  // namespace
}  // namespace test_focus
