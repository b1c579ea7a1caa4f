#pragma once

// What the colours of a series say, in words for assistive technologies. Empty where a colour says
// nothing.

#include <string_view>

#include "valeurs.h"

namespace series {

/// Of a rack; the same colours mean other things once the series is corrected.
[[nodiscard]] std::string_view parolesdutirage(ui::Couleur fond, bool serieouverte);
/// Of an answer box.
[[nodiscard]] std::string_view parolesdelareponse(ui::Couleur fond);
/// Of a clock.
[[nodiscard]] std::string_view parolesdelhorloge(ui::Couleur fond);

}  // namespace series
