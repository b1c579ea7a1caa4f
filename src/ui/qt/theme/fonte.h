#pragma once

// Fonts: the families that the program names and what stands for them where they are missing, the
// font of a control, and the font that lets a text fit its place.

#include <string_view>

#include <QFont>
#include <QSizeF>
#include <QString>

#include "controle.h"

class QPaintDevice;

namespace ui::qt {

/// The family of the program's own texts.
[[nodiscard]] QString familledebase();
/// Tells Qt which families stand for those that the system lacks.
void inscrirefamilles();
/// A font of a height in pixels, fractions included, for a device.
[[nodiscard]] QFont fonte(std::string_view famille, double corps, const QPaintDevice& support);
/// The font of a control, at a height in pixels.
[[nodiscard]] QFont fonte(const Controle& controle, double corps, const QPaintDevice& support);
/// `fonte`, made smaller if the text, broken at blanks, doesn't fit `place`. Never under
/// `plancher` times its size.
[[nodiscard]] QFont ajuster(const QFont& fonte, const QString& texte, const QSizeF& place,
                            const QPaintDevice& support, double plancher = .4);
/// The same for a text that stays on one line.
[[nodiscard]] QFont ajusterligne(const QFont& fonte, const QString& texte, const QSizeF& place,
                                 const QPaintDevice& support, double plancher = .4);

}  // namespace ui::qt
