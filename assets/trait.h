#pragma once

// Drawings, which are made of strokes: thick lines, open or filled. Lengths are in units of the
// drawing; x grows to the right, y downwards.

#include <cstdint>
#include <vector>

namespace assets {

struct Point {
    double x = 0;
    double y = 0;
};

/// An arc of an ellipse, from the angle `debut` to `fin`, in degrees: 0 is to the right, 90 is
/// down. With both radii 0 it is a single point, a corner.
struct Arc {
    Point centre;
    double rayonx = 0;
    double rayony = 0;
    double debut = 0;
    double fin = 0;
};

struct Couleur {
    std::uint8_t rouge = 0;
    std::uint8_t vert = 0;
    std::uint8_t bleu = 0;
    double opacite = 1;  // 0 to 1
};

/// 0xRRGGBB as a colour.
[[nodiscard]] constexpr Couleur rvb(std::uint32_t code, double opacite = 1) {
    return {static_cast<std::uint8_t>(code >> 16U & 0xFFU),
            static_cast<std::uint8_t>(code >> 8U & 0xFFU), static_cast<std::uint8_t>(code & 0xFFU),
            opacite};
}

/// A line through `points`, `rayon` wide on each side. A filled line is closed, and its inside is
/// painted too. The colour changes evenly from `haut` at the top to `bas` at the bottom.
struct Trait {
    std::vector<Point> points;
    bool plein = false;
    double rayon = 0;
    Couleur haut;
    Couleur bas;
    double flou = 0;  // width over which the edge fades; 0: a sharp edge
};

/// Strokes on an area of this size, each painted over those before it.
struct Dessin {
    double largeur = 0;
    double hauteur = 0;
    std::vector<Trait> traits;
};

/// How a drawing is placed in another: rotated about its centre, scaled, and moved so that its
/// centre is at `milieu`.
struct Pose {
    Point milieu;
    double echelle = 1;
    double angle = 0;  // degrees, clockwise
};

/// The points of a line that follows the arcs, one after the other.
[[nodiscard]] std::vector<Point> courbe(const std::vector<Arc>& arcs);

/// The distance from `point` to the edge of the stroke; negative inside the stroke.
[[nodiscard]] double distance(const Trait& trait, Point point);

/// Draws `partie` over `dessin`.
void ajouter(Dessin& dessin, const Dessin& partie, const Pose& pose);

}  // namespace assets
