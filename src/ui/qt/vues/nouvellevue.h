#pragma once

#include "vue.h"

namespace ui::qt {

/// The view of a control, its widget a child of the window; null for an entry of a menu.
[[nodiscard]] Vue* nouvellevue(QWidget& parent, Hote& hote, Controle& controle);

}  // namespace ui::qt
