#pragma once

#include <functional>
#include <string_view>

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

namespace ui::qt {

/// A picture, scaled in proportion to the largest size within `taille` (pixels of the window), for
/// a screen of `densite` physical pixels per pixel. It is made from the smallest of its variants
/// (the file itself, or with "@2x" or "@4x" before the extension) that need not be enlarged. Null
/// if there is no such file.
[[nodiscard]] QPixmap image(const QString& chemin, const QSize& taille, double densite);
/// Has a large picture made by another thread, as `image` will soon be asked for it. One at a time;
/// without effect where that cannot be.
void annoncer(const QString& chemin, const QSize& taille, double densite);
/// The program's icon, in the sizes found in the folder of pictures. `systeme` turns the program's
/// path of a picture into the system's.
[[nodiscard]] QIcon iconeprogramme(const std::function<QString(std::string_view)>& systeme);

}  // namespace ui::qt
