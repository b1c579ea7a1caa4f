#include <stdexcept>

#include <gmock/gmock.h>

#include "formulairetemoin.h"

namespace test_formulaire_clavier {
namespace {

using testing::ElementsAre;
namespace touches = ui::touches;

class Clavier : public testing::Test {
  protected:
    Clavier() { form.donnerfocus(boite); }
    banc::PlateformeSimulee plateforme{"."};
    essais::FormulaireTemoin form{plateforme};
    ui::Controle& boite = form.boite(0);
};

// Who hears a key.

TEST_F(Clavier, le_formulaire_voit_la_touche_avant_le_controle) {
    form.toucheenfoncee = [&](ui::Touche&) { form.noter("formulaire"); };
    boite.toucheenfoncee = [&](ui::Touche&) { form.noter("boîte"); };
    form.journal();
    form.touche(touches::f12);
    EXPECT_THAT(form.journal(), ElementsAre("formulaire", "boîte"));
}

TEST_F(Clavier, le_formulaire_entend_les_touches_sans_focus) {
    boite.actif = false;
    int code = 0;
    form.toucheenfoncee = [&](ui::Touche& touche) { code = touche.code; };
    form.touche(touches::f8);
    EXPECT_EQ(code, touches::f8);
}

TEST_F(Clavier, une_touche_avalee_par_le_formulaire_ne_va_pas_plus_loin) {
    form.toucheenfoncee = [](ui::Touche& touche) { touche.avalee = true; };
    form.taper("A");
    form.touche(touches::tab);
    EXPECT_EQ(boite.texte(), "");
    EXPECT_EQ(form.focus(), &boite);
}

TEST_F(Clavier, une_touche_avalee_par_la_boite_n_ecrit_rien) {
    boite.texte = "AB";
    boite.toucheenfoncee = [](ui::Touche& touche) { touche.avalee = true; };
    form.taper("C");
    form.touche(touches::suppr);
    EXPECT_EQ(boite.texte(), "AB");
}

TEST_F(Clavier, touche_enfoncee_caractere_changement_touche_relachee) {
    boite.toucheenfoncee = [&](ui::Touche&) { form.noter("enfoncée"); };
    boite.caractere = [&](int&) { form.noter("caractère"); };
    boite.change = [&] { form.noter("change"); };
    boite.toucherelachee = [&](int) { form.noter("relâchée"); };
    form.journal();
    form.taper("A");
    EXPECT_THAT(form.journal(), ElementsAre("enfoncée", "caractère", "change", "relâchée"));
}

TEST_F(Clavier, une_touche_qui_deplace_le_focus_n_ecrit_pas_et_se_relache_la_ou_il_est) {
    boite.toucheenfoncee = [&](ui::Touche&) { form.donnerfocus(form.boite(1)); };
    form.boite(1).toucherelachee = [&](int) { form.noter("relâchée"); };
    form.journal();
    form.taper("A");
    EXPECT_EQ(boite.texte(), "");
    EXPECT_EQ(form.boite(1).texte(), "");
    EXPECT_THAT(form.journal(), ElementsAre("solution(0)-", "solution(1)+", "relâchée"));
}

// What a key writes.

TEST_F(Clavier, le_gestionnaire_change_le_caractere) {
    boite.caractere = [](int& code) { code -= 'a' - 'A'; };
    form.taper("ab");
    EXPECT_EQ(boite.texte(), "AB");
}

TEST_F(Clavier, zero_laisse_tomber_le_caractere) {
    boite.caractere = [](int& code) { code = 0; };
    form.taper("ab");
    EXPECT_EQ(boite.texte(), "");
}

TEST_F(Clavier, le_caractere_a_le_numero_occidental) {
    std::vector<int> codes;
    boite.caractere = [&](int& code) { codes.push_back(code); };
    form.enfoncer({}, U'é');
    form.enfoncer({}, U'€');
    EXPECT_THAT(codes, ElementsAre(0xE9, 0x80));
    EXPECT_EQ(boite.texte(), "é€");
}

TEST_F(Clavier, un_caractere_que_rien_ne_peut_ecrire_est_refuse_d_un_bip) {
    form.enfoncer({}, U'ő');
    EXPECT_EQ(boite.texte(), "");
    EXPECT_EQ(plateforme.journal.bips, 1);
}

TEST_F(Clavier, ctrl_n_ecrit_pas) {
    form.enfoncer({'B', false, true}, U'b');
    EXPECT_EQ(boite.texte(), "");
}

TEST_F(Clavier, une_etiquette_ou_un_bouton_n_ecrivent_pas) {
    form.donnerfocus(form.valider());
    form.taper("A");
    EXPECT_EQ(form.valider().texte(), "");
}

TEST_F(Clavier, Retour_passe_par_le_gestionnaire) {
    boite.texte = "AB";
    form.touche(touches::fin);
    std::vector<int> codes;
    boite.caractere = [&](int& code) { codes.push_back(code); };
    form.touche(touches::retour);
    EXPECT_EQ(boite.texte(), "A");
    EXPECT_THAT(codes, ElementsAre(touches::retour));
    boite.caractere = [](int& code) { code = 0; };
    form.touche(touches::retour);
    EXPECT_EQ(boite.texte(), "A");
}

struct Edition {
    const char* nom;
    std::vector<ui::Touche> touches;
    const char* texte;
};
class EditionDe : public Clavier, public testing::WithParamInterface<Edition> {};
TEST_P(EditionDe, ABC_au_bout) {
    form.taper("ABC");
    for (const auto& touche : GetParam().touches)
        form.touche(touche.code, touche.maj, touche.ctrl);
    form.taper("X");
    EXPECT_EQ(boite.texte(), GetParam().texte);
}
INSTANTIATE_TEST_SUITE_P(
    Clavier, EditionDe,
    testing::Values(
        Edition{"rien", {}, "ABCX"}, Edition{"gauche", {{touches::gauche}}, "ABXC"},
        Edition{"gauche_et_droite", {{touches::gauche}, {touches::droite}}, "ABCX"},
        Edition{"droite_au_bout", {{touches::droite}}, "ABCX"},
        Edition{"origine", {{touches::origine}}, "XABC"},
        Edition{"gauche_a_l_origine", {{touches::origine}, {touches::gauche}}, "XABC"},
        Edition{"origine_puis_fin", {{touches::origine}, {touches::fin}}, "ABCX"},
        Edition{"retour", {{touches::retour}}, "ABX"},
        Edition{"retour_a_l_origine", {{touches::origine}, {touches::retour}}, "XABC"},
        Edition{"suppr_au_bout", {{touches::suppr}}, "ABCX"},
        Edition{"suppr_a_l_origine", {{touches::origine}, {touches::suppr}}, "XBC"},
        Edition{"maj_gauche_choisit", {{touches::gauche, true}}, "ABX"},
        Edition{"maj_origine_choisit_tout", {{touches::origine, true}}, "X"},
        Edition{"maj_gauche_puis_retour",
                {{touches::gauche, true}, {touches::gauche, true}, {touches::retour}},
                "AX"},
        Edition{"maj_gauche_puis_suppr", {{touches::gauche, true}, {touches::suppr}}, "ABX"},
        Edition{
            "gauche_oublie_la_selection", {{touches::origine, true}, {touches::gauche}}, "XABC"},
        Edition{"ctrl_A_choisit_tout", {{'A', false, true}}, "X"}),
    [](const auto& rangee) { return rangee.param.nom; });

// A locked box.

TEST_F(Clavier, une_boite_verrouillee_ne_prend_aucun_caractere_mais_entend_les_touches) {
    boite.texte = "AB";
    boite.verrou = true;
    boite.toucheenfoncee = [&](ui::Touche& t) { form.noter(std::to_string(t.code)); };
    boite.caractere = [&](int&) { form.noter("caractère"); };
    form.journal();
    form.taper("C");
    form.touche(touches::retour);
    form.touche(touches::suppr);
    form.touche(touches::bas);
    EXPECT_EQ(boite.texte(), "AB");
    EXPECT_THAT(form.journal(), ElementsAre("67", "8", "46", "40"));
}

// The clipboard.

TEST_F(Clavier, coller_tape_caractere_par_caractere) {
    std::string recus;
    boite.caractere = [&](int& code) {
        recus += static_cast<char>(code);
        if (code == 'b')
            code = 0;
    };
    form.coller("abc");
    EXPECT_EQ(recus, "abc");
    EXPECT_EQ(boite.texte(), "ac");
}

TEST_F(Clavier, coller_prend_la_place_de_la_selection) {
    form.taper("ABC");
    boite.toutselectionner();
    form.coller("xy");
    EXPECT_EQ(boite.texte(), "xy");
}

TEST_F(Clavier, coller_s_arrete_si_le_focus_s_en_va) {
    boite.caractere = [&](int& code) {
        if (code == 'b')
            form.donnerfocus(form.boite(1));
    };
    form.coller("abc");
    EXPECT_EQ(boite.texte(), "ab");
    EXPECT_EQ(form.boite(1).texte(), "");
}

TEST_F(Clavier, coller_ecrit_et_change_une_fois) {
    form.taper("XY");
    form.touche(touches::gauche);
    std::vector<std::string> textes;
    boite.change = [&] { textes.push_back(boite.texte()); };
    form.coller("abc");
    EXPECT_THAT(textes, ElementsAre("XabcY"));
    EXPECT_EQ(boite.curseur(), 4U);
    boite.caractere = [](int& code) { code = 0; };
    form.coller("abc");
    EXPECT_THAT(textes, ElementsAre("XabcY"));
}

TEST_F(Clavier, coller_qui_echoue_ne_garde_rien_de_ce_qu_il_avait_pris) {
    boite.caractere = [](int& code) {
        if (code == 'b')
            throw std::runtime_error("rien ne va");
    };
    EXPECT_THROW(form.coller("abc"), std::runtime_error);
    EXPECT_TRUE(boite.remplacetout());
    form.coller("xy");
    EXPECT_EQ(boite.texte(), "xy");
}

TEST_F(Clavier, coller_ne_fait_qu_un_bip) {
    boite.caractere = [&](int& code) {
        if (code == 'x')
            plateforme.bip();
    };
    form.coller("axxőxb");
    EXPECT_EQ(plateforme.journal.bips, 1);
    form.coller("ab");
    EXPECT_EQ(plateforme.journal.bips, 1);
    form.taper("xx");
    EXPECT_EQ(plateforme.journal.bips, 3);
}

TEST_F(Clavier, ce_que_l_on_colle_remplace_tout_jusqu_a_la_premiere_lettre_prise) {
    form.taper("ABC");
    boite.toutselectionner();
    std::string remplacants;
    boite.caractere = [&](int& code) {
        if (boite.remplacetout())
            remplacants += static_cast<char>(code);
        if (code == 'x')
            code = 0;
    };
    form.coller("xabx");
    EXPECT_EQ(remplacants, "xa");
    EXPECT_EQ(boite.texte(), "ab");
    form.taper("c");
    EXPECT_EQ(remplacants, "xa");
}

TEST_F(Clavier, une_faute_en_collant_laisse_les_bips_suivants) {
    boite.caractere = [](int&) { throw std::runtime_error("essai"); };
    EXPECT_THROW(form.coller("a"), std::runtime_error);
    plateforme.bip();
    EXPECT_EQ(plateforme.journal.bips, 1);
}

TEST_F(Clavier, deux_cents_milliers_de_lettres_se_collent_d_une_ecriture) {
    int changements = 0;
    boite.change = [&] { ++changements; };
    const std::string lettres(200000, 'A');
    form.coller(lettres + "ő" + lettres);
    EXPECT_EQ(boite.texte().size(), 400000U);
    EXPECT_EQ(changements, 1);
    EXPECT_EQ(plateforme.journal.bips, 1);
}

TEST_F(Clavier, coller_laisse_tomber_les_fins_de_ligne) {
    form.coller("a\r\nb");
    EXPECT_EQ(boite.texte(), "ab");
}

TEST_F(Clavier, couper_rend_la_selection_et_l_efface) {
    form.taper("ABC");
    boite.selectionner(1, 3);
    EXPECT_EQ(form.couper(), "BC");
    EXPECT_EQ(boite.texte(), "A");
    EXPECT_EQ(form.couper(), "");
}

TEST_F(Clavier, ni_couper_ni_coller_dans_une_boite_verrouillee_ou_sans_presse_papiers) {
    form.taper("ABC");
    boite.toutselectionner();
    boite.verrou = true;
    EXPECT_EQ(form.couper(), "");
    form.coller("x");
    boite.verrou = false;
    boite.pressepapiers = false;
    EXPECT_EQ(form.couper(), "");
    form.coller("x");
    EXPECT_EQ(boite.texte(), "ABC");
}

}  // namespace
}  // namespace test_formulaire_clavier
