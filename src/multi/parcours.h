#pragma once

#include <optional>

#include "listes.h"

namespace multi {

/// Racks of a series. Box i holds an answer to the rack i modulo this.
inline constexpr int nbtirages = common::tiragesmulti;

/// The box to which a key leads from box `rang`, with `nbsolutions` boxes a rack; none for a key
/// that does not move. Enter and Right go through the boxes of a rack and on to the next rack, Left
/// goes back among them; Down and Up follow the racks, column after column.
[[nodiscard]] std::optional<int> parcours(int rang, int code, int nbsolutions);

}  // namespace multi
