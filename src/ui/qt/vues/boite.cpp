#include "boite.h"

#include <algorithm>
#include <utility>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QStyleHints>

#include "clavierqt.h"
#include "dessin.h"
#include "formulaire.h"
#include "menuedition.h"
#include "pressepapiers.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double marge = 6;  // pixels of the design
constexpr double margehaute = 1;
constexpr double rayoncase = 4;
constexpr double epaisseurcurseur = 1.6;

}  // namespace

Boite::Boite(QWidget& parent, Hote& hote, Controle& controle) : VueDe(parent, hote, controle) {
    setFrame(false);
    setDragEnabled(false);
    setAcceptDrops(false);
    QObject::connect(this, &QLineEdit::textChanged, this, [this] { recevoirtexte(); });
    QObject::connect(this, &QLineEdit::cursorPositionChanged, this,
                     [this] { recevoirselection(); });
    QObject::connect(this, &QLineEdit::selectionChanged, this, [this] { recevoirselection(); });
}

void Boite::montrer(Champs champs) {
    if ((champs & ensemble(Champ::Verrou)) != 0)
        setReadOnly(controle()->verrou());
    constexpr auto mise = champsplace | champsfonte | ensemble(Champ::Texte, Champ::Alignement);
    if ((champs & mise) != 0)
        composer();
    if ((champs & (mise | ensemble(Champ::Selection))) != 0)
        montrertexte();
}

void Boite::composer() {
    const double bord = marge * unite();
    const auto place = QRectF(rect()).adjusted(
        bord, margehaute * unite(), -bord - margedroite() * unite(), -margehaute * unite());
    ligne_.composer(texte(), fonte(), place, controle()->alignement(), *this);
}

/// Brings the line, and QLineEdit's own copy of it, which has a bound, to the model's text, caret
/// and selection.
void Boite::montrertexte() {
    const auto ancre = controle()->ancre();
    const auto curseur = controle()->curseur();
    ligne_.poserselection(ancre, curseur);
    const QScopedValueRollback sien(sien_, true);
    const auto voulu = texte().left(maxLength());
    if (text() != voulu)
        setText(voulu);
    const int debut = placeqt(voulu, ancre);
    const int fin = placeqt(voulu, curseur);
    if (debut != fin)
        setSelection(debut, fin - debut);
    else
        setCursorPosition(fin);
    battre();
}

/// An assistive technology has written another text: it comes in the place of the old one as if it
/// were pasted, by the rules of the box.
void Boite::recevoirtexte() {
    if (sien_ || controle() == nullptr)
        return;
    const auto nouveau = depuisqt(text());
    retablir();
    if (!isEnabled() || controle()->verrou() || !controle()->pressepapiers)
        return;
    executer([&] {
        auto& form = controle()->formulaire();
        form.focaliser(*controle());
        if (form.focus() != controle())
            return;
        controle()->toutselectionner();
        if (nouveau.empty())
            static_cast<void>(form.couper());
        else
            form.coller(nouveau);
    });
}

/// An assistive technology has moved the caret or selected.
void Boite::recevoirselection() {
    if (sien_ || controle() == nullptr || text() != texte())
        return;
    const auto curseur = positiondeqt(text(), cursorPosition());
    const auto debut = selectionStart();
    const auto ancre =
        debut < 0 ? curseur
                  : positiondeqt(text(), debut == cursorPosition() ? selectionEnd() : debut);
    executer([&] { controle()->selectionner(ancre, curseur); });
}

/// Undoes what QLineEdit did by a habit of its own.
void Boite::retablir() {
    if (controle() != nullptr)
        montrertexte();
}

/// QLineEdit selects its text when Tab enters it, and forgets its selection when it is left; the
/// model does neither.
void Boite::focusInEvent(QFocusEvent* evenement) {
    const QScopedValueRollback sien(sien_, true);
    QLineEdit::focusInEvent(evenement);
    retablir();
}

void Boite::focusOutEvent(QFocusEvent* evenement) {
    const QScopedValueRollback sien(sien_, true);
    QLineEdit::focusOutEvent(evenement);
    retablir();
}

void Boite::accorder() {
    battre();
    update();
}

/// Starts the caret's blink anew, lit, or ends it.
void Boite::battre() {
    eteint_ = false;
    const int periode = QGuiApplication::styleHints()->cursorFlashTime() / 2;
    if (alefocus() && periode > 0)
        battement_.start(periode, this);
    else
        battement_.stop();
}

void Boite::timerEvent(QTimerEvent* evenement) {
    if (evenement->timerId() != battement_.timerId()) {
        QLineEdit::timerEvent(evenement);
        return;
    }
    eteint_ = !eteint_;
    update(ligne_.curseur(epaisseurcurseur * unite()).toAlignedRect().adjusted(-1, -1, 1, 1));
}

void Boite::paintEvent(QPaintEvent* /*evenement*/) {
    if (controle() == nullptr)
        return;
    QPainter peintre(this);
    const bool focus = alefocus();
    const bool horloge = controle()->aspect() == Aspect::Horloge;
    if (!controle()->fondu()) {
        dessin::boite(peintre, QRectF(rect()), unite(), couleurqt(controle()->fond()),
                      {.actif = isEnabled(),
                       .focus = focus,
                       .survole = underMouse() && !controle()->verrou(),
                       .rayon = horloge ? dessin::rayonhorloge : rayoncase});
    }
    ligne_.peindre(
        peintre, isEnabled() ? encreqt(controle()->couleur()) : QColor::fromRgb(teintes::encrepale),
        focus);
    if (focus && !eteint_)
        peintre.fillRect(ligne_.curseur(epaisseurcurseur * unite()),
                         QColor::fromRgb(teintes::encre));
    completer(peintre);
}

/// Puts the caret where the mouse is; `etendre` keeps the other end of the selection.
void Boite::poser(const QMouseEvent& evenement, bool etendre) {
    const auto place = ligne_.caractere(evenement.position().x());
    executer([&] { controle()->selectionner(etendre ? controle()->ancre() : place, place); });
}

void Boite::cliquer() {
    // The press has set the caret: what is left of a click is its event.
    executer([this] { survenir(*controle(), controle()->clic); });
}

void Boite::mousePressEvent(QMouseEvent* evenement) {
    evenement->accept();
    if (controle() == nullptr || !isEnabled())
        return;
    if (evenement->button() == Qt::MiddleButton)
        executer([this] { controle()->formulaire().focaliser(*controle()); });
    glisse_ = evenement->button() == Qt::LeftButton;
    if (glisse_ || evenement->button() == Qt::MiddleButton)
        poser(*evenement, evenement->modifiers().testFlag(Qt::ShiftModifier));
}

void Boite::mouseMoveEvent(QMouseEvent* evenement) {
    evenement->accept();
    if (controle() != nullptr && glisse_ && evenement->buttons().testFlag(Qt::LeftButton))
        poser(*evenement, true);
}

void Boite::mouseReleaseEvent(QMouseEvent* evenement) {
    evenement->accept();
    const bool glissee = std::exchange(glisse_, false);
    // The clipboard of the mouse, on systems that have one.
    const bool bloc = QGuiApplication::clipboard()->supportsSelection();
    if (controle() == nullptr || !isEnabled() || !bloc)
        return;
    if (glissee)
        copier(*controle(), QClipboard::Selection);
    if (evenement->button() == Qt::MiddleButton)
        executer([this] { coller(*controle(), QClipboard::Selection); });
}

/// Where a double click means nothing else, it selects the text.
void Boite::mouseDoubleClickEvent(QMouseEvent* evenement) {
    evenement->accept();
    glisse_ = false;
    const bool libre = controle() != nullptr && isEnabled() && !controle()->doubleclic;
    if (libre && evenement->button() == Qt::LeftButton)
        executer([this] { controle()->toutselectionner(); });
}

void Boite::contextMenuEvent(QContextMenuEvent* evenement) {
    evenement->accept();
    if (controle() == nullptr || !isEnabled())
        return;
    executer([this] { controle()->formulaire().focaliser(*controle()); });
    const bool libre = !controle()->verrou() && controle()->pressepapiers;
    const bool choisi = controle()->selection() > 0;
    const bool plein = !QGuiApplication::clipboard()->text().isEmpty();
    const auto seulement = [this](const auto& suite) {
        return [this, suite] {
            if (controle() != nullptr)
                executer([&] { suite(*controle()); });
        };
    };
    deroulermenuedition(*this, evenement->globalPos(), fontedemenu(),
                        {.couper = {libre && choisi, seulement([](auto& boite) { couper(boite); })},
                         .copier = {choisi, seulement([](auto& boite) { copier(boite); })},
                         .coller = {libre && plein, seulement([](auto& boite) { coller(boite); })},
                         .toutselectionner = {!text().isEmpty(), seulement([](auto& boite) {
                                                  boite.toutselectionner();
                                              })}});
}

void Boite::inputMethodEvent(QInputMethodEvent* evenement) {
    evenement->accept();
    if (controle() == nullptr || evenement->commitString().isEmpty())
        return;
    executer([&] {
        for (const auto caractere : caracteres(evenement->commitString())) {
            Touche touche;
            touche.code = codede(caractere);
            controle()->formulaire().enfoncer(touche, caractere);
        }
    });
}

QVariant Boite::inputMethodQuery(Qt::InputMethodQuery question) const {
    if (question == Qt::ImCursorRectangle)
        return ligne_.curseur(1);
    return QLineEdit::inputMethodQuery(question);
}

}  // namespace ui::qt
