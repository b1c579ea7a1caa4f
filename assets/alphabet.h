#pragma once

// The letters in the pictures, drawn with pen strokes.

#include <string_view>

#include "trait.h"

namespace assets {

/// A drawing of `texte`, with capitals of height `hauteur` and strokes of width `plume`. It is just
/// as large as the text. Throws `std::out_of_range` for a character other than A to Z, 0 to 9, "b"
/// and the blank.
[[nodiscard]] Dessin mot(std::string_view texte, double hauteur, double plume,
                         const Couleur& couleur);

}  // namespace assets
