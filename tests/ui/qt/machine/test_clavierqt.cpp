// Keys: what an event of Qt means to the model, and how it gets there.

#include <QApplication>
#include <QKeyEvent>
#include <QTest>

#include "bureauqt.h"
#include "clavierqt.h"

namespace test_clavierqt {
namespace {

using essais::BureauQt;

struct Cas {
    const char* nom;
    int cle;
    Qt::KeyboardModifiers avec;
    const char* texte;
    bool compte;  ///< the model hears of it
    int code;
    std::u32string tape;
};

void PrintTo(const Cas& cas, std::ostream* flux) {
    *flux << cas.nom;
}

class Frappes : public testing::TestWithParam<Cas> {};

TEST_P(Frappes, touche_et_caractere) {
    const auto& cas = GetParam();
    const QKeyEvent evenement(QEvent::KeyPress, cas.cle, cas.avec, QString::fromUtf8(cas.texte));
    const auto frappe = ui::qt::frappe(evenement);
    ASSERT_EQ(frappe.has_value(), cas.compte);
    if (!cas.compte)
        return;
    EXPECT_EQ(frappe->touche.code, cas.code);
    EXPECT_EQ(std::u32string(frappe->caracteres.begin(), frappe->caracteres.end()), cas.tape);
}

const Qt::KeyboardModifiers rien = Qt::NoModifier;
INSTANTIATE_TEST_SUITE_P(
    toutes, Frappes,
    testing::Values(
        Cas{"lettre", Qt::Key_A, rien, "a", true, 'A', U"a"},
        Cas{"capitale", Qt::Key_A, Qt::ShiftModifier, "A", true, 'A', U"A"},
        Cas{"chiffre", Qt::Key_5, rien, "5", true, '5', U"5"},
        Cas{"chiffre_du_pave", Qt::Key_5, Qt::KeypadModifier, "5", true, '5', U"5"},
        Cas{"blanc", Qt::Key_Space, rien, " ", true, ' ', U" "},
        Cas{"point_n_est_pas_suppr", Qt::Key_Period, rien, ".", true, 0, U"."},
        Cas{"pourcent_n_est_pas_gauche", Qt::Key_Percent, Qt::ShiftModifier, "%", true, 0, U"%"},
        Cas{"e_aigu_sur_la_touche_du_2", Qt::Key_2, rien, "é", true, 0, U"é"},
        Cas{"e_aigu", Qt::Key_Eacute, rien, "é", true, 0, U"é"},
        Cas{"altgr_x11", Qt::Key_At, Qt::GroupSwitchModifier, "@", true, 0, U"@"},
        Cas{"altgr_windows", Qt::Key_At, Qt::ControlModifier | Qt::AltModifier, "@", true, 0, U"@"},
        Cas{"hors_du_plan_de_base", 0, rien, "😀", true, 0, U"😀"},
        Cas{"deux_caracteres", 0, rien, "^a", true, 0, U"^a"},
        Cas{"entree", Qt::Key_Return, rien, "\r", true, 13, U""},
        Cas{"entree_du_pave", Qt::Key_Enter, Qt::KeypadModifier, "\r", true, 13, U""},
        Cas{"retour", Qt::Key_Backspace, rien, "\b", true, 8, U""},
        Cas{"suppr", Qt::Key_Delete, rien, "\x7f", true, 46, U""},
        Cas{"echap", Qt::Key_Escape, rien, "\x1b", true, 27, U""},
        Cas{"fleche", Qt::Key_Down, rien, "", true, 40, U""},
        Cas{"f8", Qt::Key_F8, rien, "", true, 119, U""},
        Cas{"f12", Qt::Key_F12, rien, "", true, 123, U""},
        Cas{"ctrl_a", Qt::Key_A, Qt::ControlModifier, "\x01", true, 'A', U""},
        Cas{"ctrl_ne_tape_rien", Qt::Key_A, Qt::ControlModifier, "a", true, 'A', U""},
        Cas{"alt_ne_compte_pas", Qt::Key_A, Qt::AltModifier, "a", false, 0, U""},
        Cas{"touche_du_systeme", Qt::Key_A, Qt::MetaModifier, "a", false, 0, U""},
        Cas{"majuscule_seule", Qt::Key_Shift, Qt::ShiftModifier, "", false, 0, U""},
        Cas{"touche_morte", Qt::Key_Dead_Circumflex, rien, "", false, 0, U""},
        Cas{"touche_multimedia", Qt::Key_VolumeUp, rien, "", false, 0, U""}),
    [](const auto& cas) { return cas.param.nom; });

class Clavier : public BureauQt {
  protected:
    void SetUp() override {
        BureauQt::SetUp();
        forme->donnerfocus(*solution[0]);
        fenetrier->rafraichir();
        journal.clear();
    }
};

TEST_F(Clavier, ce_qui_est_tape_va_au_modele) {
    taper("bac");
    EXPECT_EQ(solution[0]->texte(), "bac");
    touche(Qt::Key_Backspace);
    EXPECT_EQ(solution[0]->texte(), "ba");
    touche(Qt::Key_Home);
    touche(Qt::Key_Delete);
    EXPECT_EQ(solution[0]->texte(), "a");
}

TEST_F(Clavier, le_modele_change_un_caractere_ou_le_refuse) {
    solution[0]->caractere = [](int& code) { code = code == 'x' ? 0 : code - 32; };
    taper("axb");
    EXPECT_EQ(solution[0]->texte(), "AB");
}

TEST_F(Clavier, les_touches_de_la_fenetre_passent_avant_le_controle) {
    std::vector<int> codes;
    forme->toucheenfoncee = [&codes](ui::Touche& t) {
        codes.push_back(t.code);
        t.avalee = t.code == ui::touches::f8;
    };
    solution[0]->toucheenfoncee = [&codes](ui::Touche& t) { codes.push_back(-t.code); };
    touche(Qt::Key_F8);
    touche(Qt::Key_F12);
    EXPECT_EQ(codes, (std::vector<int>{119, 123, -123}));
}

TEST_F(Clavier, chaque_touche_ne_passe_qu_une_fois) {
    int vues = 0;
    forme->toucheenfoncee = [&vues](ui::Touche&) { ++vues; };
    for (auto* controle : {solution[0], valider, app, user, notes}) {
        forme->donnerfocus(*controle);
        fenetrier->rafraichir();
        vues = 0;
        touche(Qt::Key_F8);
        EXPECT_EQ(vues, 1) << controle->nomcomplet();
        vues = 0;
        touche(Qt::Key_Escape);
        EXPECT_EQ(vues, 1) << controle->nomcomplet();
        vues = 0;
        taper("a");
        EXPECT_EQ(vues, 1) << controle->nomcomplet();
    }
}

TEST_F(Clavier, la_touche_relachee_va_au_controle_qui_a_le_focus_alors) {
    std::vector<std::string> relachees;
    for (auto* boite : solution) {
        boite->toucherelachee = [&relachees, boite](int code) {
            relachees.push_back(boite->nomcomplet() + " " + std::to_string(code));
        };
    }
    solution[0]->toucheenfoncee = [this](ui::Touche& t) {
        if (t.code == ui::touches::bas)
            forme->donnerfocus(*solution[1]);
    };
    touche(Qt::Key_Delete);
    touche(Qt::Key_Down);
    EXPECT_EQ(relachees, (std::vector<std::string>{"solution(0) 46", "solution(1) 40"}));
}

TEST_F(Clavier, une_touche_tenue_se_repete_et_ne_se_releve_qu_une_fois) {
    int relachees = 0;
    solution[0]->texte = "ABCD";
    const auto bout = std::string::npos;
    solution[0]->selectionner(bout, bout);
    solution[0]->toucherelachee = [&relachees](int) { ++relachees; };
    auto* cible = fenetre().focusWidget();
    const auto envoyer = [cible](QEvent::Type genre, bool repetee) {
        QKeyEvent evenement(genre, Qt::Key_Backspace, Qt::NoModifier, "\b", repetee);
        QApplication::sendEvent(cible, &evenement);
    };
    envoyer(QEvent::KeyPress, false);
    for (int i = 0; i < 2; ++i) {
        envoyer(QEvent::KeyRelease, true);
        envoyer(QEvent::KeyPress, true);
    }
    envoyer(QEvent::KeyRelease, false);
    EXPECT_EQ(solution[0]->texte(), "A");
    EXPECT_EQ(relachees, 1);
}

TEST_F(Clavier, entree_clique_le_bouton_par_defaut) {
    touche(Qt::Key_Return);
    EXPECT_EQ(journal, std::vector<std::string>{"valider!"});
    forme->donnerfocus(*tuile);
    fenetrier->rafraichir();
    journal.clear();
    touche(Qt::Key_Space);
    touche(Qt::Key_Return);
    EXPECT_EQ(journal, (std::vector<std::string>{"Command1(0)!", "Command1(0)!"}));
}

TEST_F(Clavier, une_touche_envoyee_a_la_fenetre_vaut_comme_au_controle) {
    QTest::keyClick(&fenetre(), Qt::Key_Z);
    EXPECT_EQ(solution[0]->texte(), "z");
}

}  // namespace
}  // namespace test_clavierqt
