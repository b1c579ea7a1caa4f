#pragma once

#include <string>

#include "fenetre.h"

namespace banc {

/// How a window differs from the model of its form; empty if it does not.
[[nodiscard]] std::string desaccord(const ui::Formulaire& formulaire,
                                    const ui::qt::Fenetre& fenetre);
/// How a widget in that window differs from the model of its control.
[[nodiscard]] std::string desaccord(const ui::Controle& controle, const ui::qt::Fenetre& fenetre,
                                    const QWidget& widget);

}  // namespace banc
