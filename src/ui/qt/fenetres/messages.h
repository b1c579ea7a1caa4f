#pragma once

// Message boxes over the window in front.

#include <string_view>

#include "plateforme.h"

namespace ui::qt {

class Fenetrier;

/// A box with OK, or with Oui and Non; returns when it is answered.
[[nodiscard]] Reponse demander(Fenetrier& fenetrier, std::string_view texte, Icone icone,
                               bool ouinon);
/// The report of a fault.
void rapporter(const Fenetrier& fenetrier, std::string_view rapport);

}  // namespace ui::qt
