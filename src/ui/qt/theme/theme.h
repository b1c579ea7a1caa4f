#pragma once

// The look of the program: its own palette and style whatever the desktop says, and the colours
// that views draw with.

#include <QColor>
#include <QPalette>

#include "valeurs.h"

class QApplication;

namespace ui::qt {

namespace teintes {
inline constexpr QRgb encre = 0xFF1B2130;      ///< texts that the rules leave black
inline constexpr QRgb encrepale = 0xFF6A7180;  ///< texts of disabled controls
inline constexpr QRgb accent = 0xFF2F5597;     ///< principal button, selection, tick
inline constexpr QRgb anneau = 0xFF1D4ED8;     ///< focus ring
inline constexpr QRgb face = 0xFFF6F7F9;       ///< face of a button
inline constexpr QRgb bord = 0xFFAEB5C2;       ///< edge of a button or of a white box
inline constexpr QRgb papier = 0xFFFFFFFF;
}  // namespace teintes

/// The colour that stands for one of the model.
[[nodiscard]] QColor couleurqt(const Couleur& couleur);
/// A text colour of the model; the rules' black is the theme's ink.
[[nodiscard]] QColor encreqt(const Couleur& couleur);
/// `part` of the second colour (0 to 1), the rest of the first.
[[nodiscard]] QColor melange(const QColor& une, const QColor& autre, double part);
/// The edge that goes with a fill: the same hue, darker.
[[nodiscard]] QColor bordde(const QColor& fond);

[[nodiscard]] QPalette palette();

/// Gives the application the style, palette, fonts and tooltips of the program.
void habiller(QApplication& application);
/// Settings that must stand before the application object is made.
void preparer();

}  // namespace ui::qt
