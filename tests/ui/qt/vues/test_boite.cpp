// Text boxes: caret, selection, clipboard, input methods.

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QTest>

#include "bureauqt.h"

namespace test_boite {
namespace {

using essais::BureauQt;

class Boites : public BureauQt {
  protected:
    void SetUp() override {
        BureauQt::SetUp();
        forme->donnerfocus(*solution[0]);
        fenetrier->rafraichir();
        QGuiApplication::clipboard()->clear();
    }
    [[nodiscard]] QLineEdit& saisie(const ui::Controle& controle) const {
        return static_cast<QLineEdit&>(widget(controle));
    }
    void ecrire(const std::string& texte) {
        solution[0]->texte = texte;
        const auto bout = std::string::npos;
        solution[0]->selectionner(bout, bout);
        fenetrier->rafraichir();
    }
    /// Opens the menu of the first box.
    void deroulermenu() const {
        auto& boite = widget(*solution[0]);
        QContextMenuEvent demande(QContextMenuEvent::Mouse, QPoint(10, 10),
                                  boite.mapToGlobal(QPoint(10, 10)));
        QApplication::sendEvent(&boite, &demande);
    }
    /// Entry of the box's own menu.
    static QAction* entree(const QString& texte) {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (auto* action : menu == nullptr ? QList<QAction*>() : menu->actions()) {
            if (action->text() == texte)
                return action;
        }
        return nullptr;
    }
};

TEST_F(Boites, curseur_et_selection_du_modele_se_montrent) {
    ecrire("ABCDE");
    EXPECT_EQ(saisie(*solution[0]).cursorPosition(), 5);
    solution[0]->selectionner(1, 4);
    fenetrier->rafraichir();
    EXPECT_EQ(saisie(*solution[0]).selectedText(), "BCD");
    solution[0]->selectionner(2, 2);
    fenetrier->rafraichir();
    EXPECT_FALSE(saisie(*solution[0]).hasSelectedText());
    EXPECT_EQ(saisie(*solution[0]).cursorPosition(), 2);
}

TEST_F(Boites, la_souris_pose_le_curseur_et_selectionne) {
    ecrire("ABCDE");
    cliquer(*solution[0], QPoint(2, 20));
    EXPECT_EQ(solution[0]->curseur(), 0U);
    cliquer(*solution[0], QPoint(148, 20));
    EXPECT_EQ(solution[0]->curseur(), 5U);
    cliquer(*solution[0], QPoint(75, 20));
    EXPECT_GE(solution[0]->curseur(), 2U);
    EXPECT_LE(solution[0]->curseur(), 3U);
    EXPECT_EQ(solution[0]->selection(), 0U);
    cliquer(*solution[0], QPoint(148, 20), Qt::ShiftModifier);
    EXPECT_EQ(solution[0]->curseur(), 5U);
    EXPECT_GE(solution[0]->selection(), 2U);
}

TEST_F(Boites, la_souris_qui_glisse_etend_la_selection) {
    ecrire("ABCDE");
    auto& boite = widget(*solution[0]);
    QTest::mousePress(&boite, Qt::LeftButton, Qt::NoModifier, QPoint(2, 20));
    QTest::mouseMove(&boite, QPoint(148, 20));
    QMouseEvent glisse(QEvent::MouseMove, QPointF(148, 20), boite.mapToGlobal(QPointF(148, 20)),
                       Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&boite, &glisse);
    EXPECT_EQ(solution[0]->texteselectionne(), "ABCDE");
    QTest::mouseRelease(&boite, Qt::LeftButton, Qt::NoModifier, QPoint(148, 20));
    EXPECT_EQ(solution[0]->texteselectionne(), "ABCDE");
}

TEST_F(Boites, entrer_dans_une_boite_ne_selectionne_rien) {
    solution[1]->texte = "MOT";
    forme->donnerfocus(*solution[1]);
    fenetrier->rafraichir();
    EXPECT_FALSE(saisie(*solution[1]).hasSelectedText());
    EXPECT_EQ(solution[1]->selection(), 0U);
}

TEST_F(Boites, y_venir_par_tab_ne_selectionne_rien) {
    solution[1]->texte = "MOT";
    fenetrier->rafraichir();
    touche(Qt::Key_Tab);
    ASSERT_EQ(forme->focus(), solution[1]);
    EXPECT_FALSE(saisie(*solution[1]).hasSelectedText());
    EXPECT_EQ(solution[1]->selection(), 0U);
    widget(*solution[2]).setFocus(Qt::TabFocusReason);
    solution[2]->texte = "AUTRE";
    fenetrier->rafraichir();
    widget(*solution[1]).setFocus(Qt::TabFocusReason);
    ASSERT_EQ(forme->focus(), solution[1]);
    EXPECT_FALSE(saisie(*solution[1]).hasSelectedText());
}

TEST_F(Boites, une_boite_quittee_garde_sa_selection) {
    ecrire("AB");
    touche(Qt::Key_A, Qt::ControlModifier);
    touche(Qt::Key_Tab);
    ASSERT_EQ(forme->focus(), solution[1]);
    EXPECT_EQ(solution[0]->selection(), 2U);
    EXPECT_EQ(saisie(*solution[0]).selectedText(), "AB");
    touche(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(solution[0]->selection(), 2U);
    EXPECT_EQ(saisie(*solution[0]).selectedText(), "AB");
}

TEST_F(Boites, le_texte_d_une_technologie_d_assistance_suit_les_regles_de_la_boite) {
    solution[1]->texte = "VIEUX";
    solution[1]->caractere = [](int& code) {
        if (code >= 'a' && code <= 'z')
            code -= 'a' - 'A';
        if (code == '1')
            code = 0;
    };
    fenetrier->rafraichir();
    auto* interface = QAccessible::queryAccessibleInterface(&widget(*solution[1]));
    interface->setText(QAccessible::Value, "mo1t");
    EXPECT_EQ(solution[1]->texte(), "MOT");
    EXPECT_EQ(saisie(*solution[1]).text(), "MOT");
    EXPECT_EQ(forme->focus(), solution[1]);
    EXPECT_EQ(interface->text(QAccessible::Value), "MOT");
    interface->setText(QAccessible::Value, "");
    EXPECT_EQ(solution[1]->texte(), "");
}

TEST_F(Boites, une_technologie_d_assistance_n_ecrit_pas_ou_l_usager_ne_le_peut) {
    const auto ecrire = [this](ui::Controle& boite) {
        boite.texte = "ABC";
        fenetrier->rafraichir();
        QAccessible::queryAccessibleInterface(&widget(boite))->setText(QAccessible::Value, "X");
        EXPECT_EQ(boite.texte(), "ABC") << boite.nomcomplet();
        EXPECT_EQ(saisie(boite).text(), "ABC") << boite.nomcomplet();
    };
    ecrire(*tirage[0]);
    solution[1]->pressepapiers = false;
    ecrire(*solution[1]);
    solution[2]->actif = false;
    ecrire(*solution[2]);
    EXPECT_EQ(forme->focus(), solution[0]);
}

TEST_F(Boites, la_selection_d_une_technologie_d_assistance_va_au_modele) {
    ecrire("ABCDE");
    auto* interface = QAccessible::queryAccessibleInterface(&widget(*solution[0]));
    interface->textInterface()->setSelection(0, 1, 4);
    EXPECT_EQ(solution[0]->texteselectionne(), "BCD");
    interface->textInterface()->setCursorPosition(2);
    EXPECT_EQ(solution[0]->selection(), 0U);
    EXPECT_EQ(solution[0]->curseur(), 2U);
}

TEST_F(Boites, seule_la_boite_qui_le_demande_montre_toujours_son_ascenseur) {
    ui::Formulaire autre(plateforme, "Dialog");
    autre.largeur = 200 * twips;
    autre.hauteur = 100 * twips;
    std::vector<ui::Controle*> boites;
    for (const bool toujours : {true, false}) {
        auto& boite = autre.ajouter(ui::Genre::Boite, "Text1", toujours ? 1 : 0);
        boite.placer({toujours ? 0 : 100 * twips, 0, 100 * twips, 100 * twips});
        boite.multiligne = true;
        boite.ascenseur = toujours;
        boites.push_back(&boite);
    }
    fenetrier->accueillir(autre);
    montrer(autre);
    for (const auto* boite : boites) {
        const auto& longue = static_cast<QPlainTextEdit&>(widget(*boite));
        EXPECT_EQ(longue.verticalScrollBar()->isVisible(), boite->ascenseur);
    }
}

TEST_F(Boites, un_double_clic_sans_autre_sens_selectionne_le_texte) {
    ecrire("ABCDE");
    doublecliquer(*solution[0]);
    EXPECT_EQ(solution[0]->texteselectionne(), "ABCDE");
    ecrire("ABCDE");
    int menus = 0;
    solution[0]->doubleclic = [&menus] { ++menus; };
    doublecliquer(*solution[0]);
    EXPECT_EQ(menus, 1);
    EXPECT_EQ(solution[0]->selection(), 0U);
}

TEST_F(Boites, copier_couper_coller_passent_par_le_modele) {
    std::string tapes;
    solution[0]->caractere = [&tapes](int& code) {
        tapes += static_cast<char>(code);
        if (code == '1')
            code = 0;
    };
    QGuiApplication::clipboard()->setText("A1B");
    touche(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(tapes, "A1B");
    EXPECT_EQ(solution[0]->texte(), "AB");
    touche(Qt::Key_A, Qt::ControlModifier);
    EXPECT_EQ(solution[0]->texteselectionne(), "AB");
    touche(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "AB");
    QGuiApplication::clipboard()->clear();
    touche(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "AB");
    EXPECT_EQ(solution[0]->texte(), "");
    touche(Qt::Key_Insert, Qt::ShiftModifier);
    EXPECT_EQ(solution[0]->texte(), "AB");
}

TEST_F(Boites, une_boite_verrouillee_se_copie_et_ne_se_coupe_ni_ne_se_colle) {
    ecrire("ABC");
    solution[0]->verrou = true;
    solution[0]->toutselectionner();
    fenetrier->rafraichir();
    touche(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), "ABC");
    touche(Qt::Key_X, Qt::ControlModifier);
    touche(Qt::Key_V, Qt::ControlModifier);
    taper("Z");
    EXPECT_EQ(solution[0]->texte(), "ABC");
}

TEST_F(Boites, le_menu_de_la_boite_est_en_francais_et_passe_par_le_modele) {
    ecrire("ABC");
    solution[0]->toutselectionner();
    QGuiApplication::clipboard()->setText("XY");
    deroulermenu();
    ASSERT_NE(entree("Coller"), nullptr);
    EXPECT_TRUE(entree("Couper")->isEnabled());
    EXPECT_TRUE(entree("Copier")->isEnabled());
    entree("Coller")->trigger();
    EXPECT_EQ(solution[0]->texte(), "XY");
    QApplication::activePopupWidget()->close();
}

TEST_F(Boites, une_selection_partie_sous_le_menu_laisse_le_presse_papiers) {
    for (const char* action : {"Couper", "Copier"}) {
        ecrire("ABC");
        solution[0]->toutselectionner();
        QGuiApplication::clipboard()->setText("XY");
        deroulermenu();
        ASSERT_NE(entree(action), nullptr) << action;
        solution[0]->selectionner(1, 1);
        entree(action)->trigger();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "XY") << action;
        EXPECT_EQ(solution[0]->texte(), "ABC") << action;
        QApplication::activePopupWidget()->close();
        laisser();
    }
}

TEST_F(Boites, le_menu_d_une_boite_quittee_laisse_les_autres) {
    for (const char* action : {"Couper", "Coller"}) {
        ecrire("ABC");
        solution[0]->toutselectionner();
        solution[1]->texte = "DEF";
        solution[1]->toutselectionner();
        forme->donnerfocus(*solution[0]);
        QGuiApplication::clipboard()->setText("XY");
        deroulermenu();
        ASSERT_NE(entree(action), nullptr) << action;
        forme->donnerfocus(*solution[1]);
        entree(action)->trigger();
        EXPECT_EQ(solution[1]->texte(), "DEF") << action;
        EXPECT_EQ(QGuiApplication::clipboard()->text(), "XY") << action;
        QApplication::activePopupWidget()->close();
        laisser();
    }
}

TEST_F(Boites, le_bouton_du_milieu_colle_la_selection_de_la_souris) {
    auto* bloc = QGuiApplication::clipboard();
    if (!bloc->supportsSelection()) {
        cliquer(*solution[1], Qt::MiddleButton);
        EXPECT_EQ(solution[1]->texte(), "");
        return;
    }
    bloc->setText("Q", QClipboard::Selection);
    cliquer(*solution[1], Qt::MiddleButton);
    EXPECT_EQ(solution[1]->texte(), "Q");
}

TEST_F(Boites, deux_cents_milliers_de_lettres_se_collent_d_une_ecriture) {
    int changements = 0;
    const QString lettres(200000, QLatin1Char('A'));
    QGuiApplication::clipboard()->setText(lettres);
    for (auto* controle : {solution[0], user}) {
        controle->change = [&changements] { ++changements; };
        forme->donnerfocus(*controle);
        fenetrier->rafraichir();
        touche(Qt::Key_V, Qt::ControlModifier);
        EXPECT_EQ(controle->texte().size(), 200000U) << controle->nomcomplet();
        EXPECT_EQ(std::exchange(changements, 0), 1) << controle->nomcomplet();
        EXPECT_FALSE(image(*controle).isNull());
        cliquer(*controle, QPoint(75, 20));
        EXPECT_GT(controle->curseur(), 199000U);
        touche(Qt::Key_Home);
        cliquer(*controle, QPoint(2, 20));
        EXPECT_LT(controle->curseur(), 3U);
    }
}

TEST_F(Boites, rien_ne_se_depose) {
    for (const auto* controle : {solution[0], notes, user})
        EXPECT_FALSE(widget(*controle).acceptDrops()) << controle->nomcomplet();
    EXPECT_FALSE(static_cast<QPlainTextEdit&>(widget(*notes)).viewport()->acceptDrops());
}

TEST_F(Boites, un_texte_compose_arrive_caractere_par_caractere) {
    std::vector<int> codes;
    solution[0]->caractere = [&codes](int& code) { codes.push_back(code); };
    QInputMethodEvent evenement;
    evenement.setCommitString("êA");
    QApplication::sendEvent(&widget(*solution[0]), &evenement);
    EXPECT_EQ(codes, (std::vector<int>{0xEA, 'A'}));
    EXPECT_EQ(solution[0]->texte(), "êA");
}

TEST_F(Boites, un_texte_trop_long_est_reduit_et_non_coupe) {
    solution[0]->taille = 24;
    ecrire("WWWWWWWW");
    const auto encre = [this] {
        const auto vue = image(*solution[0]).copy(4, 4, 142, 32);
        int gauche = vue.width();
        int droite = 0;
        for (int x = 0; x < vue.width(); ++x) {
            for (int y = 0; y < vue.height(); ++y) {
                if (vue.pixelColor(x, y).lightness() < 60) {
                    gauche = std::min(gauche, x);
                    droite = std::max(droite, x);
                }
            }
        }
        return std::pair(gauche, droite);
    };
    forme->donnerfocus(*solution[1]);
    fenetrier->rafraichir();
    const auto [gauche, droite] = encre();
    EXPECT_GT(gauche, 0);
    EXPECT_LT(droite, 141);
    EXPECT_GT(droite - gauche, 100);
}

TEST_F(Boites, dans_un_texte_qui_deborde_le_curseur_reste_en_vue) {
    ecrire(std::string(200, 'M'));
    const auto curseur = [this] {
        return widget(*solution[0]).inputMethodQuery(Qt::ImCursorRectangle).toRectF();
    };
    EXPECT_LE(curseur().right(), 150);
    touche(Qt::Key_Home);
    EXPECT_GE(curseur().left(), 0);
    EXPECT_LT(curseur().left(), 20);
}

TEST_F(Boites, la_boite_de_plusieurs_lignes_rapporte_ce_qui_y_est_tape) {
    forme->donnerfocus(*notes);
    fenetrier->rafraichir();
    taper("ab");
    touche(Qt::Key_Return);
    taper("c");
    EXPECT_EQ(notes->texte(), "ab\nc");
    touche(Qt::Key_Tab);
    EXPECT_EQ(notes->texte(), "ab\nc");
    EXPECT_NE(forme->focus(), notes);
}

TEST_F(Boites, la_boite_de_plusieurs_lignes_garde_ses_fins_de_ligne) {
    notes->texte = "un\r\ndeux\r\n";
    forme->donnerfocus(*notes);
    fenetrier->rafraichir();
    touche(Qt::Key_End, Qt::ControlModifier);
    taper("x");
    EXPECT_EQ(notes->texte(), "un\r\ndeux\r\nx");
}

TEST_F(Boites, la_boite_de_plusieurs_lignes_verrouillee_ne_change_pas) {
    notes->texte = "lire";
    notes->verrou = true;
    forme->donnerfocus(*notes);
    fenetrier->rafraichir();
    taper("x");
    touche(Qt::Key_Delete);
    EXPECT_EQ(notes->texte(), "lire");
}

TEST_F(Boites, la_liste_s_ouvre_et_rend_l_entree_choisie) {
    forme->donnerfocus(*user);
    fenetrier->rafraichir();
    touche(Qt::Key_Down);
    auto* entrees = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    ASSERT_NE(entrees, nullptr);
    ASSERT_EQ(entrees->actions().size(), 2);
    journal.clear();
    entrees->actions().at(1)->trigger();
    EXPECT_EQ(user->texte(), "Zoé & fils");
    EXPECT_EQ(journal, std::vector<std::string>{"user!"});
    entrees->close();
    taper("!");
    EXPECT_EQ(user->texte(), "Zoé & fils!");
}

TEST_F(Boites, un_clic_dans_le_texte_d_une_liste_n_est_pas_un_choix) {
    cliquer(*user, QPoint(20, 15));
    EXPECT_EQ(forme->focus(), user);
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "user!"), 0);
}

}  // namespace
}  // namespace test_boite
