#pragma once

// The letters in the pictures, drawn with pen strokes.

#include <string_view>

#include "trait.h"

namespace assets {

/// A drawing of `texte`, just large enough for it: capitals of height `hauteur`, strokes of width
/// `plume`. Knows A to Z, 0 to 9, "b" and the blank; throws `std::out_of_range` for anything else.
[[nodiscard]] Dessin mot(std::string_view texte, double hauteur, double plume,
                         const Couleur& couleur);

}  // namespace assets
