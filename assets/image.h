#pragma once

// Pictures in memory, and as bitmap, PNG and SVG files.

#include <cstdint>
#include <string>
#include <vector>

#include "trait.h"

namespace assets {

/// The pixels are stored row by row from the top, four bytes each: red, green, blue and opacity
/// (not premultiplied).
struct Image {
    int largeur = 0;
    int hauteur = 0;
    std::vector<std::uint8_t> pixels;
};

/// Paints a drawing, stretched to `largeur` by `hauteur` pixels, with antialiased edges.
[[nodiscard]] Image peindre(const Dessin& dessin, int largeur, int hauteur);

/// The bytes of a BMP file: 32 bits a pixel with opacity, version 4 header, rows from the bottom.
[[nodiscard]] std::string bmp(const Image& image);

/// The bytes of a BMP file for readers that know no opacity: 24 bits a pixel, the oldest header of
/// Windows, rows from the bottom. What is not opaque comes out darker.
[[nodiscard]] std::string dib(const Image& image);

/// The bytes of a PNG file: 32 bits a pixel, with opacity.
[[nodiscard]] std::string png(const Image& image);

/// The bytes of an ICO file, the icon of a program on Windows: one entry a picture. Pictures of 256
/// pixels are PNG files in it; smaller ones 32 bits a pixel with opacity, and a mask for programs
/// that know no opacity. Throws `std::length_error` for a picture that is no square of 1 to 256
/// pixels.
[[nodiscard]] std::string ico(const std::vector<Image>& images);

/// A picture in 16 greys, stored row by row from the top, a byte each: 0 is black, 15 white.
struct Gris {
    int largeur = 0;
    int hauteur = 0;
    std::vector<std::uint8_t> niveaux;
};

/// The bytes of a PNG file: 4 bits a pixel, in greys.
[[nodiscard]] std::string png(const Gris& image);

/// An SVG file of a drawing, its size that of the drawing in pixels.
[[nodiscard]] std::string svg(const Dessin& dessin);

}  // namespace assets
