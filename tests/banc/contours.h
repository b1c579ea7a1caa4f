#pragma once

#include <vector>

#include "formulaire.h"

namespace banc {

/// Two controls share a part of the window.
inline bool secouvrent(const ui::Controle& a, const ui::Controle& b) {
    return a.gauche() < b.gauche() + b.largeur() && b.gauche() < a.gauche() + a.largeur() &&
           a.haut() < b.haut() + b.hauteur() && b.haut() < a.haut() + a.hauteur();
}

/// A control that has a size and lies inside its form.
inline bool danslafenetre(const ui::Controle& c) {
    const auto& form = c.formulaire();
    return c.largeur() > 0 && c.hauteur() > 0 && c.gauche() >= 0 && c.haut() >= 0 &&
           c.gauche() + c.largeur() <= form.largeur() && c.haut() + c.hauteur() <= form.hauteur();
}

/// What a player sees of a form: frames, lines, entries of menus and the controls that only logic
/// needs are left out.
inline std::vector<const ui::Controle*> vus(const ui::Formulaire& form) {
    std::vector<const ui::Controle*> liste;
    for (const auto& c : form.controles()) {
        const bool decor = c->genre() == ui::Genre::Cadre || c->genre() == ui::Genre::Ligne ||
                           c->genre() == ui::Genre::Entree;
        if (c->visible() && !decor && c->nom() != "Command2" && c->nom() != "cache")
            liste.push_back(c.get());
    }
    return liste;
}

}  // namespace banc
