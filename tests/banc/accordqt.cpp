#include "accordqt.h"

#include <algorithm>
#include <array>
#include <cmath>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextDocumentFragment>

#include "texteqt.h"
#include "vue.h"

namespace banc {
namespace {

using ui::Controle;
using ui::Formulaire;
using ui::qt::Fenetre;
using ui::qt::versqt;

struct Vu {
    const Controle& controle;
    const Fenetre& fenetre;
    const QWidget& widget;
};

QString lignes(std::string_view texte) {
    return versqt(texte).replace(QLatin1String("\r\n"), QLatin1String("\n"));
}

/// The text that a widget holds; a button and a frame draw that of the model.
bool texte(const Vu& vu) {
    if (const auto* ligne = qobject_cast<const QLineEdit*>(&vu.widget))
        return ligne->text() == versqt(vu.controle.texte());
    if (const auto* longue = qobject_cast<const QPlainTextEdit*>(&vu.widget))
        return longue->toPlainText() == lignes(vu.controle.texte());
    const auto* etiquette = qobject_cast<const QLabel*>(&vu.widget);
    return etiquette == nullptr || vu.controle.genre() != ui::Genre::Etiquette ||
           etiquette->text() == versqt(vu.controle.texte());
}

bool verrou(const Vu& vu) {
    if (const auto* ligne = qobject_cast<const QLineEdit*>(&vu.widget))
        return ligne->isReadOnly() == vu.controle.verrou();
    const auto* longue = qobject_cast<const QPlainTextEdit*>(&vu.widget);
    return longue == nullptr || longue->isReadOnly() == vu.controle.verrou();
}

bool coche(const Vu& vu) {
    const auto* bouton = qobject_cast<const QAbstractButton*>(&vu.widget);
    return bouton == nullptr || bouton->isChecked() == vu.controle.coche();
}

bool selection(const Vu& vu) {
    const auto* ligne = qobject_cast<const QLineEdit*>(&vu.widget);
    return ligne == nullptr || ligne->selectedText() == versqt(vu.controle.texteselectionne());
}

bool infobulle(const Vu& vu) {
    const auto lue = QTextDocumentFragment::fromHtml(vu.widget.toolTip()).toPlainText();
    return lue == versqt(vu.controle.infobulle());
}

/// What is said of the colours. A list says instead how it opens.
bool description(const Vu& vu) {
    return vu.controle.genre() == ui::Genre::Liste ||
           vu.widget.accessibleDescription() == versqt(vu.controle.description());
}

/// Where the control lies at the window's scale. A line without thickness is drawn with one.
bool place(const Vu& vu) {
    const auto& c = vu.controle;
    const auto voulue =
        vu.fenetre.echelle().cadre({c.gauche(), c.haut(), c.largeur(), c.hauteur()});
    const auto& lue = vu.widget.geometry();
    if (c.genre() != ui::Genre::Ligne)
        return lue == voulue;
    const bool longueur = voulue.width() >= voulue.height() ? lue.width() == voulue.width()
                                                            : lue.height() == voulue.height();
    return longueur && lue.topLeft() == voulue.topLeft();
}

struct Regard {
    const char* nom;
    bool (*egal)(const Vu&);
};

constexpr std::array regards{
    Regard{"visible", [](const Vu& vu) { return vu.widget.isHidden() != vu.controle.visible(); }},
    Regard{"actif", [](const Vu& vu) { return vu.widget.isEnabled() == vu.controle.actif(); }},
    Regard{"texte", texte},
    Regard{"verrou", verrou},
    Regard{"coche", coche},
    Regard{"selection", selection},
    Regard{"infobulle", infobulle},
    Regard{"description", description},
    Regard{"place", place},
};

/// The scale is the one at which the whole design fits in the window.
bool alechelle(const Formulaire& formulaire, const Fenetre& fenetre) {
    constexpr double tolerance = 1e-9;
    const double voulue =
        std::min(static_cast<double>(fenetre.width()) / std::max(1, formulaire.largeur()),
                 static_cast<double>(fenetre.height()) / std::max(1, formulaire.hauteur()));
    return std::abs(fenetre.echelle().partwip - voulue) < tolerance;
}

}  // namespace

std::string desaccord(const Formulaire& formulaire, const Fenetre& fenetre) {
    if (fenetre.isVisible() != formulaire.visible())
        return "fenêtre visible";
    if (fenetre.windowTitle() != versqt(formulaire.texte()))
        return "titre";
    const bool attente = formulaire.pointeur() == ui::Pointeur::Attente;
    if ((fenetre.cursor().shape() == Qt::WaitCursor) != attente)
        return "pointeur";
    if (fenetre.habillee() && !alechelle(formulaire, fenetre))
        return "échelle";
    const auto* focus = formulaire.focus();
    auto* vue = focus == nullptr ? nullptr : fenetre.vuede(*focus);
    const QWidget* voulu = vue == nullptr ? nullptr : &vue->widget();
    const auto* lu = fenetre.focusWidget();
    const bool libre = lu == nullptr || lu == &fenetre;
    if (fenetre.isVisible() && (focus == nullptr ? !libre : lu != voulu))
        return "focus sur " + (lu == nullptr ? "personne" : lu->objectName().toStdString());
    return {};
}

std::string desaccord(const Controle& controle, const Fenetre& fenetre, const QWidget& widget) {
    const Vu vu{controle, fenetre, widget};
    const auto* regard =
        std::find_if(regards.begin(), regards.end(), [&](const Regard& r) { return !r.egal(vu); });
    return regard == regards.end() ? "" : regard->nom;
}

}  // namespace banc
