#pragma once

// The buttons that lead to the panels, and where they stand: first-level buttons, which are always
// shown, and the second-level buttons of each group. Places and sizes are in twips.

#include <span>

#include "catalogue.h"
#include "controle.h"

namespace menu {

/// A button of the menu that opens a panel or shows a group.
struct Acces {
    const Bouton* bouton;
    const Panneau* panneau;  ///< opened by a click; null: a click only shows a group
    Groupe montre;           ///< the group that a click shows
    ui::Cadrage cadre;

    /// A first-level button: shown whatever the group.
    [[nodiscard]] bool permanent() const { return bouton->groupe == Groupe::aucun; }
};

/// All these buttons, made from the catalogue; those of a group are neighbours.
[[nodiscard]] std::span<const Acces> lesacces();

/// Whether a button is shown with a group. The one that opens a group inside another is shown with
/// both.
[[nodiscard]] bool danslegroupe(const Acces& acces, Groupe groupe);

}  // namespace menu
