#pragma once

#include <string>

#include "fenetre.h"

namespace banc {

/// What a window shows of its form otherwise than the model says; empty if it agrees.
[[nodiscard]] std::string desaccord(const ui::Formulaire& formulaire,
                                    const ui::qt::Fenetre& fenetre);
/// The same of a control that has a widget in that window.
[[nodiscard]] std::string desaccord(const ui::Controle& controle, const ui::qt::Fenetre& fenetre,
                                    const QWidget& widget);

}  // namespace banc
