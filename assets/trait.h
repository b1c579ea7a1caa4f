#pragma once

// Strokes: everything that is drawn is a thick line, open or filled.
// Lengths are in the drawing's own units, x to the right, y downwards.

#include <cstdint>
#include <vector>

namespace assets {

struct Point {
    double x = 0;
    double y = 0;
};

/// A piece of an ellipse from one angle to another, in degrees, 0 to the right and 90 downwards.
/// With radii of 0 it is a corner.
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

/// A line through `points`, widened by `rayon` on each side; a filled one is closed and covers what
/// it surrounds as well. Its colour runs from `haut` at its top to `bas` at its foot.
struct Trait {
    std::vector<Point> points;
    bool plein = false;
    double rayon = 0;
    Couleur haut;
    Couleur bas;
    double flou = 0;  // width over which the edge fades; 0 is a sharp edge
};

struct Dessin {
    double largeur = 0;
    double hauteur = 0;
    std::vector<Trait> traits;
};

/// How a drawing is laid into another: turned about its own middle, scaled, its middle at `milieu`.
struct Pose {
    Point milieu;
    double echelle = 1;
    double angle = 0;  // degrees, clockwise
};

/// The points of a line that follows the arcs one after the other.
[[nodiscard]] std::vector<Point> courbe(const std::vector<Arc>& arcs);

/// From `point` to the edge of the stroke: negative inside it.
[[nodiscard]] double distance(const Trait& trait, Point point);

/// Lays `partie` over what `dessin` holds.
void ajouter(Dessin& dessin, const Dessin& partie, const Pose& pose);

}  // namespace assets
