#pragma once

#include <functional>
#include <string_view>

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace ui::qt {

/// A picture file as large as fits `taille` (pixels of the window), its proportions kept, for a
/// screen of `densite`. Drawn from the smallest of its variants (the file, "@2x", "@4x" before the
/// ending) that needs no enlarging. Null if there is no such file.
[[nodiscard]] QPixmap image(const QString& chemin, const QSize& taille, double densite);
/// The program's icon, of the sizes that stand in the folder of pictures; `systeme` gives the
/// system's path of a picture.
[[nodiscard]] QIcon iconeprogramme(const std::function<QString(std::string_view)>& systeme);

}  // namespace ui::qt
