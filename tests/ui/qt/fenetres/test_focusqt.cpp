// The focus: the model has it, Qt follows.

#include <QApplication>
#include <QTest>

#include "bureauqt.h"

namespace test_focusqt {
namespace {

using essais::BureauQt;

class Focus : public BureauQt {
  protected:
    /// The name of the widget that has Qt's focus.
    [[nodiscard]] std::string deqt() const {
        const auto* widget = QApplication::focusWidget();
        return widget == nullptr ? "" : widget->objectName().toStdString();
    }
};

TEST_F(Focus, au_depart_la_fenetre_entend_les_touches) {
    EXPECT_EQ(forme->focus(), nullptr);
    EXPECT_EQ(deqt(), "Form1");
    int code = 0;
    forme->toucheenfoncee = [&code](ui::Touche& t) { code = t.code; };
    touche(Qt::Key_F8);
    EXPECT_EQ(code, ui::touches::f8);
}

TEST_F(Focus, la_pression_donne_le_focus_avant_le_clic) {
    QTest::mousePress(&widget(*valider), Qt::LeftButton);
    EXPECT_EQ(forme->focus(), valider);
    EXPECT_EQ(journal, std::vector<std::string>{"valider+"});
    QTest::mouseRelease(&widget(*valider), Qt::LeftButton);
    EXPECT_EQ(journal, (std::vector<std::string>{"valider+", "valider!", "valider^"}));
    EXPECT_EQ(deqt(), "valider");
}

TEST_F(Focus, qt_suit_le_modele) {
    forme->donnerfocus(*solution[1]);
    fenetrier->rafraichir();
    EXPECT_EQ(deqt(), "solution(1)");
    forme->donnerfocus(*app);
    fenetrier->rafraichir();
    EXPECT_EQ(deqt(), "app");
}

TEST_F(Focus, tab_suit_l_ordre_du_modele_dans_les_deux_sens) {
    std::vector<std::string> ordre;
    for (std::size_t i = 0; i < forme->tabulation().size(); ++i) {
        touche(Qt::Key_Tab);
        ordre.push_back(deqt());
        EXPECT_EQ(forme->focus()->nomcomplet(), deqt());
    }
    const std::vector<std::string> attendu{"solution(0)", "solution(1)",   "solution(2)",
                                           "valider",     "Command1(0)",   "app",
                                           "user",        "InfoSourisText"};
    EXPECT_EQ(ordre, attendu);
    touche(Qt::Key_Tab);
    EXPECT_EQ(deqt(), "solution(0)");
    touche(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(deqt(), "InfoSourisText");
}

TEST_F(Focus, un_controle_hors_de_l_ordre_ne_vient_que_par_la_souris) {
    cliquer(*tirage[1]);
    EXPECT_EQ(forme->focus(), tirage[1]);
    EXPECT_EQ(deqt(), "tirage(1)");
}

TEST_F(Focus, ce_qui_ne_prend_pas_le_focus_le_laisse_ou_il_est) {
    forme->donnerfocus(*solution[0]);
    fenetrier->rafraichir();
    for (auto* controle : {etiquette, marque, cadre, ligne})
        cliquer(*controle);
    QTest::mouseClick(&fenetre(), Qt::LeftButton, Qt::NoModifier, QPoint(590, 390));
    EXPECT_EQ(forme->focus(), solution[0]);
    EXPECT_EQ(deqt(), "solution(0)");
}

TEST_F(Focus, un_controle_desactive_ou_cache_le_rend_a_la_fenetre_et_personne_d_autre_n_entre) {
    for (const bool cache : {false, true}) {
        forme->donnerfocus(*solution[1]);
        fenetrier->rafraichir();
        journal.clear();
        if (cache)
            solution[1]->visible = false;
        else
            solution[1]->actif = false;
        fenetrier->rafraichir();
        EXPECT_EQ(forme->focus(), nullptr);
        EXPECT_EQ(deqt(), "Form1");
        EXPECT_EQ(journal, std::vector<std::string>{"solution(1)-"});
        touche(Qt::Key_Tab);
        EXPECT_EQ(deqt(), "solution(2)");
        solution[1]->visible = true;
        solution[1]->actif = true;
    }
}

TEST_F(Focus, un_bouton_qui_se_desactive_au_clic_rend_le_focus) {
    valider->clic = [this] { valider->actif = false; };
    cliquer(*valider);
    EXPECT_EQ(forme->focus(), nullptr);
    EXPECT_EQ(deqt(), "Form1");
}

TEST_F(Focus, un_controle_rendu_actif_et_choisi_d_un_coup_l_a) {
    solution[2]->actif = false;
    fenetrier->rafraichir();
    solution[2]->actif = true;
    forme->donnerfocus(*solution[2]);
    fenetrier->rafraichir();
    EXPECT_EQ(deqt(), "solution(2)");
}

TEST_F(Focus, ce_que_fait_une_technologie_d_assistance_va_au_modele) {
    widget(*solution[1]).setFocus(Qt::OtherFocusReason);
    EXPECT_EQ(forme->focus(), solution[1]);
    EXPECT_EQ(journal, std::vector<std::string>{"solution(1)+"});
}

TEST_F(Focus, le_modele_peut_renvoyer_le_focus_ailleurs) {
    solution[1]->entree = [this] { forme->donnerfocus(*solution[2]); };
    cliquer(*solution[1]);
    EXPECT_EQ(forme->focus(), solution[2]);
    EXPECT_EQ(deqt(), "solution(2)");
}

TEST_F(Focus, une_autre_fenetre_devant_n_est_pas_un_changement_de_focus) {
    forme->donnerfocus(*solution[1]);
    fenetrier->rafraichir();
    journal.clear();
    int desactivations = 0;
    forme->desactivation = [&desactivations] { ++desactivations; };
    ui::Formulaire autre(plateforme, "Form3");
    autre.largeur = 100 * twips;
    autre.hauteur = 100 * twips;
    auto& boite = autre.ajouter(ui::Genre::Boite, "Text1");
    boite.placer({0, 0, 50 * twips, 20 * twips});
    fenetrier->accueillir(autre);
    montrer(autre);
    EXPECT_EQ(desactivations, 1);
    EXPECT_EQ(forme->focus(), solution[1]);
    EXPECT_EQ(journal, std::vector<std::string>{});
    // While it is behind, the model moves the focus: Qt follows at the return.
    forme->donnerfocus(*solution[0]);
    fenetrier->rafraichir();
    fenetre().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
    EXPECT_EQ(deqt(), "solution(0)");
    EXPECT_EQ(desactivations, 1);
}

TEST_F(Focus, l_anneau_dit_ou_est_le_clavier) {
    const QPoint bord(75, 1);
    for (auto* controle : {solution[0], valider, app, user, notes, tirage[0]}) {
        if (controle == app)
            continue;
        const auto avant = couleur(*controle, bord);
        forme->donnerfocus(*controle);
        fenetrier->rafraichir();
        EXPECT_NE(couleur(*controle, bord), avant) << controle->nomcomplet();
        forme->donnerfocus(*solution[2]);
        fenetrier->rafraichir();
        EXPECT_EQ(couleur(*controle, bord), avant) << controle->nomcomplet();
    }
}

}  // namespace
}  // namespace test_focusqt
