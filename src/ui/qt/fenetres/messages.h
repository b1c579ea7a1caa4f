#pragma once

// Message boxes, in front of the active window.

#include <string_view>

#include "plateforme.h"

namespace ui::qt {

class Fenetrier;

/// Shows a box with the button OK, or with Oui and Non if `ouinon`, and waits for the answer. Ok or
/// Non if the window in front goes meanwhile, and the box with it.
[[nodiscard]] Reponse demander(Fenetrier& fenetrier, std::string_view texte, Icone icone,
                               bool ouinon);
/// Shows the report of a fault, and waits until it is closed.
void rapporter(const Fenetrier& fenetrier, std::string_view rapport);

}  // namespace ui::qt
