// The way of the keys and of the focus between Qt and the model.

#include <QFocusEvent>
#include <QKeyEvent>

#include "clavierqt.h"
#include "fenetre.h"
#include "pressepapiers.h"

namespace ui::qt {

bool Fenetre::eventFilter(QObject* objet, QEvent* evenement) {
    if (orpheline())
        return QWidget::eventFilter(objet, evenement);
    const auto controle = parwidget_.find(objet);
    switch (evenement->type()) {
        case QEvent::KeyPress:
            return touche(static_cast<QKeyEvent&>(*evenement));
        case QEvent::KeyRelease:
            relacher(static_cast<QKeyEvent&>(*evenement));
            return true;
        case QEvent::FocusIn:
            if (controle != parwidget_.end())
                focusrecu(*controle->second, static_cast<QFocusEvent*>(evenement)->reason());
            return false;
        default:
            return false;
    }
}

void Fenetre::keyPressEvent(QKeyEvent* evenement) {
    if (orpheline() || !touche(*evenement))
        evenement->ignore();
}

void Fenetre::keyReleaseEvent(QKeyEvent* evenement) {
    relacher(*evenement);
}

/// A key goes down. False if the widget of Qt shall deal with it.
bool Fenetre::touche(QKeyEvent& evenement) {
    evenement.accept();
    auto* controle = formulaire_->focus();
    auto* vue = controle == nullptr ? nullptr : vuede(*controle);
    if (vue != nullptr && vue->touchepropre(evenement))
        return true;
    if (controle != nullptr && controle->multiligne)
        return touchelongue(*controle, evenement);
    if (controle != nullptr && pressepapiers(*controle, evenement))
        return true;
    const auto f = frappe(evenement);
    if (!f) {
        evenement.ignore();
        return true;
    }
    executer([&] {
        auto touche = f->touche;
        if (f->caracteres.empty())
            formulaire_->enfoncer(touche);
        for (const auto caractere : f->caracteres) {
            touche.code = codede(caractere);
            formulaire_->enfoncer(touche, caractere);
        }
    });
    return true;
}

/// A box of several lines edits by itself; the model still sees the key before it does, and Tab
/// stays the model's.
bool Fenetre::touchelongue(Controle& controle, const QKeyEvent& evenement) {
    const auto f = frappe(evenement);
    if (!f)
        return false;
    auto touche = f->touche;
    executer([&] {
        if (touche.code == touches::tab) {
            formulaire_->enfoncer(touche);
            return;
        }
        survenir(*formulaire_, formulaire_->toucheenfoncee, touche);
        if (!touche.avalee)
            survenir(controle, controle.toucheenfoncee, touche);
    });
    return touche.avalee || touche.code == touches::tab;
}

/// Copy, cut and paste in a box of one line.
bool Fenetre::pressepapiers(const Controle& controle, const QKeyEvent& evenement) {
    if (controle.genre() != Genre::Boite && controle.genre() != Genre::Liste)
        return false;
    if (evenement.matches(QKeySequence::Copy))
        copier(controle);
    else if (evenement.matches(QKeySequence::Cut))
        executer([&] { couper(controle); });
    else if (evenement.matches(QKeySequence::Paste))
        executer([&] { coller(controle); });
    else
        return false;
    return true;
}

void Fenetre::relacher(const QKeyEvent& evenement) {
    // A key that is held down goes up once.
    if (orpheline() || evenement.isAutoRepeat())
        return;
    if (const auto code = codede(evenement); code != 0)
        executer([&] { formulaire_->relacher(code); });
}

/// Qt gave a control the focus by another way than the mouse or this window: an assistive
/// technology, or a program.
void Fenetre::focusrecu(Controle& controle, Qt::FocusReason raison) {
    const bool delafenetre = raison == Qt::ActiveWindowFocusReason ||
                             raison == Qt::PopupFocusReason || raison == Qt::MouseFocusReason;
    if (accord_ || delafenetre || formulaire_->focus() == &controle)
        return;
    executer([&] { formulaire_->focaliser(controle); });
}

QWidget& Fenetre::ciblefocus() const {
    const auto* controle = formulaire_->focus();
    auto* vue = controle == nullptr ? nullptr : vuede(*controle);
    return vue == nullptr ? const_cast<Fenetre&>(*this) : vue->widgetclavier();
}

void Fenetre::focaliserqt(QWidget& cible) {
    if (focusWidget() == &cible)
        return;
    accord_ = true;
    cible.setFocus(Qt::OtherFocusReason);
    accord_ = false;
}

/// Takes the focus of Qt off a control that no longer has it in the model: were it disabled or
/// hidden first, Qt would pass the focus on by an order of its own.
void Fenetre::lacherfocus() {
    if (focusWidget() != nullptr && focusWidget() != &ciblefocus())
        focaliserqt(*this);
}

void Fenetre::accorderfocus() {
    if (formulaire_->focus() != focus_) {
        const auto* ancien = std::exchange(focus_, formulaire_->focus());
        redessiner(ancien);
        redessiner(focus_);
    }
    focaliserqt(ciblefocus());
}

}  // namespace ui::qt
