#pragma once

#include "vue.h"

namespace ui::qt {

/// Makes the view of a control. Its widget is a child of `parent`, which owns both. Null for an
/// entry of a menu, which has no widget.
[[nodiscard]] Vue* nouvellevue(QWidget& parent, Hote& hote, Controle& controle);

/// Has the first picture of a form made by another thread while its views are made (`annoncer`).
void annoncerimage(const Hote& hote, const Formulaire& formulaire, double densite);

}  // namespace ui::qt
