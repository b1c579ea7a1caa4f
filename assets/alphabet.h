#pragma once

// The letters of the pictures: a small alphabet of pen strokes.

#include <string_view>

#include "trait.h"

namespace assets {

/// `texte` in capitals `hauteur` high, with a pen `plume` wide, as a drawing of its own size.
/// Knows A to Z, 0 to 9, "b" and the blank; throws std::out_of_range for any other character.
[[nodiscard]] Dessin mot(std::string_view texte, double hauteur, double plume,
                         const Couleur& couleur);

}  // namespace assets
