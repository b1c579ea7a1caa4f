#pragma once

// Pictures in memory, and as bitmap, PNG and SVG files.

#include <cstdint>
#include <string>
#include <vector>

#include "trait.h"

namespace assets {

/// Pixels row by row from the top, four bytes each: red, green, blue, opacity (not premultiplied).
struct Image {
    int largeur = 0;
    int hauteur = 0;
    std::vector<std::uint8_t> pixels;
};

/// Paints a drawing, stretched to `largeur` by `hauteur` pixels, with smooth edges.
[[nodiscard]] Image peindre(const Dessin& dessin, int largeur, int hauteur);

/// A bitmap file with 32 bits a pixel, opacity included (version 4 header, rows from the bottom).
[[nodiscard]] std::string bmp(const Image& image);

/// A PNG file with 32 bits a pixel.
[[nodiscard]] std::string png(const Image& image);

/// A picture in 16 greys, row by row from the top: 0 is black, 15 white.
struct Gris {
    int largeur = 0;
    int hauteur = 0;
    std::vector<std::uint8_t> niveaux;
};

/// A PNG file with 4 bits a pixel.
[[nodiscard]] std::string png(const Gris& image);

/// An SVG file of a drawing, its size that of the drawing in pixels.
[[nodiscard]] std::string svg(const Dessin& dessin);

}  // namespace assets
