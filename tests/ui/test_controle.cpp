#include <stdexcept>
#include <tuple>

#include <gmock/gmock.h>

#include "formulairetemoin.h"

namespace test_controle {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class Vue : public ui::VueControle {
  public:
    void modifie(ui::Champ champ) override { champs.push_back(champ); }
    std::vector<ui::Champ> champs;
};

class VueDeForme : public ui::VueFormulaire {
  public:
    void modifie(ui::ChampFormulaire champ) override { champs.push_back(champ); }
    void adieu() override {}
    std::vector<ui::ChampFormulaire> champs;
};

class Controle : public testing::Test {
  protected:
    Controle() { boite.vue = &vue; }
    banc::PlateformeSimulee plateforme{"."};
    essais::FormulaireTemoin form{plateforme};
    ui::Controle& boite = form.boite(0);
    Vue vue;
};

TEST_F(Controle, se_trouve_par_nom_et_index) {
    EXPECT_EQ(form.controle("solution", 2).nomcomplet(), "solution(2)");
    EXPECT_EQ(form.controle("valider").nomcomplet(), "valider");
    EXPECT_EQ(form.trouver("solution"), nullptr);
    EXPECT_THAT([&] { std::ignore = form.controle("solucion"); },
                testing::ThrowsMessage<std::out_of_range>(testing::HasSubstr("« solucion »")));
    EXPECT_THAT([&] { std::ignore = form.controle("solution", 9); },
                testing::ThrowsMessage<std::out_of_range>(testing::HasSubstr("« solution(9) »")));
    EXPECT_EQ(form.trouver("solution", 3), nullptr);
    EXPECT_EQ(form.trouver("valider", 0), nullptr);
}

TEST_F(Controle, une_ecriture_qui_ne_change_rien_ne_previent_personne) {
    int changements = 0;
    boite.change = [&] { ++changements; };
    boite.texte = "";
    boite.visible = true;
    boite.gauche = 0;
    boite.fond = ui::Couleur::fenetre();
    EXPECT_THAT(vue.champs, IsEmpty());
    EXPECT_EQ(changements, 0);
}

TEST_F(Controle, une_autre_couleur_se_dit) {
    std::vector<std::string> dites;
    boite.repeint = [&] { dites.push_back(boite.fond().nom() + " " + boite.couleur().nom()); };
    boite.fond = ui::couleurs::juste;
    boite.fond = ui::couleurs::juste;
    boite.couleur = ui::couleurs::faux;
    boite.texte = "A";
    EXPECT_THAT(dites, ElementsAre("#80FF80 #000000", "#80FF80 #FF8080"));
}

TEST_F(Controle, chaque_changement_previent_la_vue) {
    boite.texte = "A";
    boite.visible = false;
    boite.placer({1, 2, 0, 4});
    EXPECT_THAT(vue.champs, ElementsAre(ui::Champ::Texte, ui::Champ::Visible, ui::Champ::Gauche,
                                        ui::Champ::Haut, ui::Champ::Hauteur));
}

TEST_F(Controle, un_texte_ecrit_par_le_programme_declenche_change_comme_la_frappe) {
    std::vector<std::string> textes;
    boite.change = [&] { textes.push_back(boite.texte()); };
    boite.texte = "A";
    boite.inserer("B");
    EXPECT_THAT(textes, ElementsAre("A", "BA"));
}

TEST_F(Controle, une_entree_choisie_change_le_texte_puis_clique) {
    auto& liste = form.ajouter(ui::Genre::Liste, "liste");
    liste.change = [&] { form.noter("change " + liste.texte()); };
    liste.clic = [&] { form.noter("clic " + liste.texte()); };
    ui::Formulaire::choisir(liste, "Vert");
    ui::Formulaire::choisir(liste, "Vert");
    EXPECT_THAT(form.journal(), ElementsAre("change Vert", "clic Vert", "clic Vert"));
}

// The caret.

TEST_F(Controle, un_texte_raccourci_par_le_programme_laisse_le_curseur_au_bout) {
    boite.inserer("ABCD");
    boite.selectionner(1, 1);
    boite.texte = "XYZ";
    EXPECT_EQ(boite.curseur(), 3U);
    EXPECT_EQ(boite.selection(), 0U);
}

TEST_F(Controle, un_texte_de_meme_longueur_ou_plus_long_laisse_le_curseur_a_sa_place) {
    boite.inserer("ABC");
    boite.selectionner(1, 1);
    boite.texte = "XYZ";
    EXPECT_EQ(boite.curseur(), 1U);
    boite.texte = "XYZT";
    EXPECT_EQ(boite.curseur(), 1U);
}

TEST_F(Controle, une_ecriture_du_programme_oublie_la_selection) {
    boite.inserer("ABC");
    boite.toutselectionner();
    boite.texte = "XYZT";
    EXPECT_EQ(boite.selection(), 0U);
}

TEST_F(Controle, un_changement_qui_raccourcit_pendant_la_frappe_met_le_curseur_au_bout) {
    boite.change = [&] {
        if (boite.texte().size() > 2)
            boite.texte = boite.texte().substr(0, 2);
    };
    boite.inserer("ABCD");
    EXPECT_EQ(boite.texte(), "AB");
    EXPECT_EQ(boite.curseur(), 2U);
}

TEST_F(Controle, la_selection_compte_les_caracteres) {
    boite.inserer("éàç");
    boite.selectionner(1, 9);
    EXPECT_EQ(boite.selection(), 2U);
    EXPECT_EQ(boite.texteselectionne(), "àç");
    boite.selectionner(3, 1);
    EXPECT_EQ(boite.texteselectionne(), "àç");
    boite.inserer("x");
    EXPECT_EQ(boite.texte(), "éx");
    EXPECT_EQ(boite.curseur(), 2U);
}

TEST_F(Controle, entrer_dans_une_boite_garde_son_curseur_et_ne_choisit_rien) {
    boite.inserer("ABC");
    boite.selectionner(1, 1);
    form.donnerfocus(boite);
    EXPECT_EQ(boite.curseur(), 1U);
    EXPECT_EQ(boite.selection(), 0U);
}

// Colours, menus.

TEST(Couleur, son_nom) {
    EXPECT_EQ(ui::Couleur(0x80FF80).nom(), "#80FF80");
    EXPECT_EQ(ui::couleurs::noir.nom(), "#000000");
    EXPECT_EQ(ui::Couleur::fenetre().nom(), "systeme:fenetre");
    EXPECT_EQ(ui::Couleur::bouton().nom(), "systeme:bouton");
    EXPECT_NE(ui::Couleur(1), ui::Couleur::fenetre());
}

TEST_F(Controle, le_menu_ouvert_se_ferme_avant_que_l_entree_agisse) {
    auto& menu = form.ajoutermenu("menumot");
    auto& entree = form.ajouter(ui::Genre::Entree, "ajouter");
    menu.entrees = {&entree};
    bool ouvert = true;
    entree.clic = [&] { ouvert = form.menuouvert() != nullptr; };
    form.choisirentree(entree);
    EXPECT_TRUE(ouvert) << "sans menu ouvert, rien n'est choisi";
    form.ouvrirmenu(menu);
    EXPECT_EQ(form.menuouvert(), &menu);
    entree.actif = false;
    form.choisirentree(entree);
    EXPECT_EQ(form.menuouvert(), &menu) << "une entrée grisée ne se choisit pas";
    entree.actif = true;
    form.choisirentree(entree);
    EXPECT_FALSE(ouvert);
}

TEST_F(Controle, la_case_de_fermeture_cache_le_formulaire_ou_fait_ce_qui_est_dit) {
    form.visible = true;
    form.fermer();
    EXPECT_FALSE(form.visible());
    form.visible = true;
    form.fermeture = [&] { form.noter("fermeture"); };
    form.fermer();
    EXPECT_TRUE(form.visible());
    EXPECT_THAT(form.journal(), ElementsAre("fermeture"));
}

TEST_F(Controle, un_formulaire_deja_montre_que_l_on_montre_encore_previent_sa_vue) {
    VueDeForme surveillant;
    form.vue = &surveillant;
    form.montrer();
    EXPECT_TRUE(form.visible());
    EXPECT_THAT(std::exchange(surveillant.champs, {}),
                ElementsAre(ui::ChampFormulaire::Visible, ui::ChampFormulaire::Montre));
    form.montrer();
    EXPECT_THAT(surveillant.champs, ElementsAre(ui::ChampFormulaire::Montre));
    form.vue = nullptr;
}

TEST_F(Controle, le_premier_plan_passe_devant_tous_et_derriere_ceux_qui_viennent_apres) {
    EXPECT_EQ(form.boite(1).plan(), form.boite(0).plan());
    boite.premierplan();
    EXPECT_GT(boite.plan(), form.score().plan());
    EXPECT_THAT(vue.champs, ElementsAre(ui::Champ::PremierPlan));
    const auto& nouveau = form.ajouter(ui::Genre::Bouton, "nouveau");
    EXPECT_EQ(nouveau.plan(), boite.plan());
    form.score().premierplan();
    EXPECT_GT(form.score().plan(), nouveau.plan());
}

TEST_F(Controle, une_minuterie_ne_dit_que_ses_departs_et_ses_arrets) {
    auto& minuterie = form.ajouterminuterie("Timer1");
    int changements = 0;
    minuterie.surchangement = [&](ui::Minuterie&) { ++changements; };
    minuterie.actif = false;
    minuterie.actif = true;
    minuterie.actif = true;
    minuterie.actif = false;
    EXPECT_EQ(changements, 2);
}

}  // namespace
}  // namespace test_controle
