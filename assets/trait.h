#pragma once

// Strokes: every drawing consists of thick lines, open or filled. Lengths are in units of the
// drawing; x runs to the right, y down.

#include <cstdint>
#include <vector>

namespace assets {

struct Point {
    double x = 0;
    double y = 0;
};

/// An arc of an ellipse between two angles in degrees, 0 to the right and 90 down. With radii of 0
/// it is a corner.
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

/// A line through `points`, widened by `rayon` on each side. A filled one is closed, and covers
/// what it encloses too. Its colour runs from `haut` at the top to `bas` at the bottom.
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

/// How a drawing is placed in another: rotated about its centre, scaled, its centre at `milieu`.
struct Pose {
    Point milieu;
    double echelle = 1;
    double angle = 0;  // degrees, clockwise
};

/// The points of a line that follows the arcs in turn.
[[nodiscard]] std::vector<Point> courbe(const std::vector<Arc>& arcs);

/// Distance from `point` to the edge of the stroke; negative inside.
[[nodiscard]] double distance(const Trait& trait, Point point);

/// Draws `partie` over `dessin`.
void ajouter(Dessin& dessin, const Dessin& partie, const Pose& pose);

}  // namespace assets
