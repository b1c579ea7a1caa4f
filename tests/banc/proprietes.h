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

}  // namespace banc
