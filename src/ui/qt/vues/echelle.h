#pragma once

#include <cmath>

#include <QPointF>
#include <QRect>

#include "controle.h"

namespace ui::qt {

/// How a design in twips lies in a window: one factor for both directions, fonts included.
struct Echelle {
    static constexpr double twipsparpixel = 15;  ///< of the design, at 96 dots an inch
    static constexpr double twipsparpoint = 20;

    double partwip = 1 / twipsparpixel;  ///< pixels a twip
    QPointF origine;                     ///< of the design in the window

    /// Size in pixels of a length told in pixels of the design.
    [[nodiscard]] double unite(double pixels = 1) const { return pixels * twipsparpixel * partwip; }
    /// Height in pixels of a font of so many points.
    [[nodiscard]] double corps(double points) const { return points * twipsparpoint * partwip; }
    /// Edges are rounded each by itself, so that controls that touch in the design touch here.
    [[nodiscard]] QRect cadre(const Cadrage& c) const {
        const auto x = [&](int twips) {
            return static_cast<int>(std::lround(origine.x() + twips * partwip));
        };
        const auto y = [&](int twips) {
            return static_cast<int>(std::lround(origine.y() + twips * partwip));
        };
        return {QPoint(x(c.gauche), y(c.haut)),
                QSize(x(c.gauche + c.largeur) - x(c.gauche), y(c.haut + c.hauteur) - y(c.haut))};
    }
};

}  // namespace ui::qt
