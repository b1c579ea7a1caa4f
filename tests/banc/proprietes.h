#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace banc {

// The value of a property, by its name in scenarios; nothing if there is no such property.

[[nodiscard]] std::optional<std::string> lire(const ui::Controle& controle,
                                              std::string_view propriete);
[[nodiscard]] std::optional<std::string> lire(const ui::Formulaire& formulaire,
                                              std::string_view propriete);
/// A timer has `actif` only.
[[nodiscard]] std::optional<std::string> lire(const ui::Minuterie& minuterie,
                                              std::string_view propriete);

/// Everything that can be read of a form, as lines: the form, then its controls in the order of
/// their making, then its timers. Each is its name and `property=value`, line ends in a value
/// written `\n`; a property that is empty is left out. Two builds of the program can be compared by
/// it.
[[nodiscard]] std::string modele(const ui::Formulaire& formulaire);

}  // namespace banc
