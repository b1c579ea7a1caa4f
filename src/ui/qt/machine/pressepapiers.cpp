#include "pressepapiers.h"

#include <QGuiApplication>

#include "formulaire.h"
#include "texteqt.h"

namespace ui::qt {

void copier(const Controle& boite, QClipboard::Mode bloc) {
    if (boite.selection() > 0)
        QGuiApplication::clipboard()->setText(versqt(boite.texteselectionne()), bloc);
}

void couper(const Controle& boite) {
    if (boite.formulaire().focus() != &boite)
        return;
    if (const auto coupe = boite.formulaire().couper(); !coupe.empty())
        QGuiApplication::clipboard()->setText(versqt(coupe));
}

void coller(const Controle& boite, QClipboard::Mode bloc) {
    if (boite.formulaire().focus() == &boite)
        boite.formulaire().coller(depuisqt(QGuiApplication::clipboard()->text(bloc)));
}

}  // namespace ui::qt
