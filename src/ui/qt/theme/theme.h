#pragma once

// The look of the program: its own palette and style, whatever the desktop's settings, and the
// colours that the views draw with.

#include <QColor>
#include <QPalette>

#include "valeurs.h"

class QApplication;

namespace ui::qt {

namespace teintes {
inline constexpr QRgb encre = 0xFF1B2130;      ///< text that is black in the model
inline constexpr QRgb encrepale = 0xFF6A7180;  ///< text of disabled controls
inline constexpr QRgb accent = 0xFF2F5597;     ///< the button that stands out, selection, tick
inline constexpr QRgb anneau = 0xFF1D4ED8;     ///< focus ring
inline constexpr QRgb face = 0xFFF6F7F9;       ///< front of a button
inline constexpr QRgb bord = 0xFFAEB5C2;       ///< edge of a button or of a white box
inline constexpr QRgb papier = 0xFFFFFFFF;     ///< white background
}  // namespace teintes

/// Qt's equivalent of a colour of the model.
[[nodiscard]] QColor couleurqt(const Couleur& couleur);
/// Qt's equivalent of a text colour of the model; black becomes `teintes::encre`.
[[nodiscard]] QColor encreqt(const Couleur& couleur);
/// A mixture of two colours: `part` (0 to 1) of `autre`, the rest of `une`.
[[nodiscard]] QColor melange(const QColor& une, const QColor& autre, double part);
/// The colour of the edge around a background: the same hue, darker.
[[nodiscard]] QColor bordde(const QColor& fond);

/// The program's palette.
[[nodiscard]] QPalette palette();

/// Sets the style, palette, fonts and tooltip colours of the application.
void habiller(QApplication& application);
/// Makes the settings of Qt that have to precede the application object.
void preparer();

}  // namespace ui::qt
