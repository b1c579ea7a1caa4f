#pragma once

#include "vue.h"

namespace ui::qt {

/// Makes the view of a control. Its widget is a child of `parent`, which owns both. Null for an
/// entry of a menu, which has no widget.
[[nodiscard]] Vue* nouvellevue(QWidget& parent, Hote& hote, Controle& controle);

}  // namespace ui::qt
