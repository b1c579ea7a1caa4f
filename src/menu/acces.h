#pragma once

// The buttons that lead to the panels, as a table: the five groups and their second-level buttons.

#include <cstdint>
#include <span>
#include <string_view>

#include "controle.h"

namespace menu {

/// A set of second-level buttons that are shown together.
enum class Groupe : std::uint8_t { Aucun, Uniques, Multiples, Autres, Chere };

/// A button of the menu.
struct Acces {
    std::string_view nom;      ///< design name
    int index;                 ///< in its control array, -1 if it stands alone
    std::string_view libelle;  ///< caption
    std::string_view panneau;  ///< key that a click puts on show; empty: the last one stays
    Groupe montre;             ///< second-level buttons that a click shows
    Groupe groupe;             ///< the button stands among these; none: it is always shown
    ui::Cadrage cadre;
};

[[nodiscard]] std::span<const Acces> lesacces();

/// The button is shown with a group. The one that opens the group of the dear letter stands in two.
[[nodiscard]] bool danslegroupe(const Acces& acces, Groupe groupe);

}  // namespace menu
