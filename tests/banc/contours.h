#pragma once

#include <vector>

#include "formulaire.h"

namespace banc {

/// Two controls overlap.
inline bool secouvrent(const ui::Controle& a, const ui::Controle& b) {
    return a.gauche() < b.gauche() + b.largeur() && b.gauche() < a.gauche() + a.largeur() &&
           a.haut() < b.haut() + b.hauteur() && b.haut() < a.haut() + a.hauteur();
}

/// The control has a size and lies inside its form.
inline bool danslafenetre(const ui::Controle& c) {
    const auto& form = c.formulaire();
    return c.largeur() > 0 && c.hauteur() > 0 && c.gauche() >= 0 && c.haut() >= 0 &&
           c.gauche() + c.largeur() <= form.largeur() && c.haut() + c.hauteur() <= form.hauteur();
}

/// The controls that a player sees on a form: all visible ones except frames, lines, menu entries
/// and those that exist only for the logic.
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
