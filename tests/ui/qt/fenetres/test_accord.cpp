// What the bench compares between a window and its model: each difference is told by its name.

#include <functional>
#include <string>
#include <vector>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QSignalBlocker>

#include "accordqt.h"
#include "bureauqt.h"

namespace test_accord {
namespace {

using essais::BureauQt;

class Accord : public BureauQt {
  protected:
    void SetUp() override {
        BureauQt::SetUp();
        etiquette->infobulle = "a < b & <i>c</i>\n  d";
        notes->texte = "un\r\ndeux";
        solution[0]->texte = "ABC";
        solution[0]->selectionner(1, 3);
        app->coche = true;
        forme->donnerfocus(*solution[0]);
        fenetrier->rafraichir();
    }
    [[nodiscard]] std::string dit() const { return banc::desaccord(*forme, fenetre()); }
    [[nodiscard]] std::string dit(const ui::Controle& controle) const {
        return banc::desaccord(controle, fenetre(), widget(controle));
    }
};

TEST_F(Accord, une_fenetre_a_jour_montre_son_modele) {
    for (const auto taille : {QSize(600, 400), QSize(500, 700), QSize(1131, 777)}) {
        fenetre().resize(taille);
        EXPECT_EQ(dit(), "");
        for (const auto& controle : forme->controles()) {
            if (controle->genre() == ui::Genre::Entree)
                continue;
            EXPECT_EQ(dit(*controle), "") << controle->nomcomplet();
        }
    }
}

TEST_F(Accord, chaque_ecart_d_un_controle_a_son_nom) {
    auto& boite = static_cast<QLineEdit&>(widget(*solution[0]));
    const auto decaler = [](QWidget& w) { w.move(w.x() + 1, w.y()); };
    // A box tells the model of what another does to its widget.
    const auto muet = [&](const std::function<void()>& faire) {
        return [this, faire, &boite] {
            const QSignalBlocker une(boite);
            const QSignalBlocker autre(widget(*tirage[0]));
            faire();
        };
    };
    struct Ecart {
        const ui::Controle* controle;
        std::function<void()> faire;
        const char* nom;
    };
    const std::vector<Ecart> ecarts{
        {valider, [&] { widget(*valider).hide(); }, "visible"},
        {tuile, [&] { widget(*tuile).setEnabled(false); }, "actif"},
        {etiquette, [&] { static_cast<QLabel&>(widget(*etiquette)).setText("?"); }, "texte"},
        {tirage[0], muet([&] { static_cast<QLineEdit&>(widget(*tirage[0])).setText("?"); }),
         "texte"},
        {tirage[1], [&] { static_cast<QLineEdit&>(widget(*tirage[1])).setReadOnly(false); },
         "verrou"},
        {app, [&] { static_cast<QAbstractButton&>(widget(*app)).setChecked(false); }, "coche"},
        {solution[0], muet([&] { boite.setSelection(0, 1); }), "selection"},
        {solution[1], [&] { widget(*solution[1]).setToolTip("?"); }, "infobulle"},
        {cadre, [&] { decaler(widget(*cadre)); }, "place"},
        {marque, [&] { widget(*marque).resize(3, 3); }, "place"},
        {ligne, [&] { decaler(widget(*ligne)); }, "place"},
        {tirage[2], [&] { widget(*tirage[2]).setAccessibleDescription("?"); }, "description"},
        {notes, [&] { static_cast<QPlainTextEdit&>(widget(*notes)).setReadOnly(true); }, "verrou"},
    };
    for (const auto& ecart : ecarts) {
        EXPECT_EQ(dit(*ecart.controle), "") << ecart.controle->nomcomplet();
        ecart.faire();
        EXPECT_EQ(dit(*ecart.controle), ecart.nom) << ecart.controle->nomcomplet();
    }
}

TEST_F(Accord, le_texte_d_une_boite_de_plusieurs_lignes_est_compare) {
    auto& longue = static_cast<QPlainTextEdit&>(widget(*notes));
    const QSignalBlocker muet(longue);
    longue.setPlainText("un");
    EXPECT_EQ(dit(*notes), "texte");
}

TEST_F(Accord, chaque_ecart_d_une_forme_a_son_nom) {
    widget(*valider).setFocus();  // the window puts the focus back in the model's place
    EXPECT_EQ(dit(), "");
    fenetre().setCursor(Qt::WaitCursor);
    EXPECT_EQ(dit(), "pointeur");
    fenetre().unsetCursor();
    forme->largeur = 700 * twips;
    EXPECT_EQ(dit(), "échelle");
    forme->texte = "?";
    EXPECT_EQ(dit(), "titre");
    forme->visible = false;
    EXPECT_EQ(dit(), "fenêtre visible");
    fenetrier->rafraichir();
    EXPECT_EQ(dit(), "");
}

TEST_F(Accord, un_focus_qui_n_est_pas_celui_du_modele_se_voit) {
    forme->donnerfocus(*solution[1]);
    EXPECT_EQ(dit(), "focus sur solution(0)");
    forme->perdrefocus(*solution[1]);
    EXPECT_EQ(dit(), "focus sur solution(0)");
    fenetrier->rafraichir();
    EXPECT_EQ(dit(), "");
}

}  // namespace
}  // namespace test_accord
