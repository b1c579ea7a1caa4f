#pragma once

// The buttons that lead to the panels, with their places: those that are always shown, and the
// second-level buttons of each group.

#include <span>

#include "catalogue.h"
#include "controle.h"

namespace menu {

/// A button of the menu that opens a panel or shows a group.
struct Acces {
    const Bouton* bouton;
    const Panneau* panneau;  ///< what a click opens; none: it only shows a group
    Groupe montre;           ///< second-level buttons that a click shows
    ui::Cadrage cadre;

    /// It is shown whatever the group.
    [[nodiscard]] bool permanent() const { return bouton->groupe == Groupe::aucun; }
};

/// All of them, made from the catalogue; those of a group stand one after the other.
[[nodiscard]] std::span<const Acces> lesacces();

/// The button is shown with a group. The one that opens a group within a group stands in two.
[[nodiscard]] bool danslegroupe(const Acces& acces, Groupe groupe);

}  // namespace menu
