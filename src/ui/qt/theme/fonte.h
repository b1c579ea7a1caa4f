#pragma once

// Fonts: the families that the program names and their substitutes on a system that lacks them, the
// font of a control, and the font size at which a text fits its place.

#include <string_view>

#include <QFont>
#include <QSizeF>
#include <QString>

#include "controle.h"

class QPaintDevice;

namespace ui::qt {

/// The family of the program's own texts.
[[nodiscard]] QString familledebase();
/// Registers with Qt the substitutes of the families that the system may lack.
void inscrirefamilles();
/// A font of `corps` pixels, which may have a fraction, for a device; the family of the program's
/// own texts if `famille` is empty.
[[nodiscard]] QFont fonte(std::string_view famille, double corps, const QPaintDevice& support);
/// The font of a control, with its style, at `corps` pixels.
[[nodiscard]] QFont fonte(const Controle& controle, double corps, const QPaintDevice& support);
/// `fonte`, reduced if the text, wrapped at spaces, does not fit `place`. Never below `plancher`
/// times its size, even if the text does not fit then.
[[nodiscard]] QFont ajuster(const QFont& fonte, const QString& texte, const QSizeF& place,
                            const QPaintDevice& support, double plancher = .4);
/// The same for a text that stays on one line.
[[nodiscard]] QFont ajusterligne(const QFont& fonte, const QString& texte, const QSizeF& place,
                                 const QPaintDevice& support, double plancher = .4);

}  // namespace ui::qt
