#pragma once

#include <cmath>

#include <QPointF>
#include <QRect>

#include "controle.h"

namespace ui::qt {

/// Maps a form's design, in twips, to the pixels of its window, by one factor for widths, heights
/// and fonts.
struct Echelle {
    static constexpr double twipsparpixel = 15;  ///< of the design, at 96 pixels per inch
    static constexpr double twipsparpoint = 20;

    double partwip = 1 / twipsparpixel;  ///< pixels of the window per twip
    QPointF origine;                     ///< top left corner of the design in the window

    /// Pixels of the window for a length in pixels of the design.
    [[nodiscard]] double unite(double pixels = 1) const { return pixels * twipsparpixel * partwip; }
    /// Height of a font of so many points, in pixels of the window.
    [[nodiscard]] double corps(double points) const { return points * twipsparpoint * partwip; }
    /// The rectangle of a control. Each edge is rounded separately, so that controls that touch in
    /// the design touch in the window.
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
