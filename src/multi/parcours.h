#pragma once

#include <optional>

#include "listes.h"

namespace multi {

/// Racks of a series. Box i is for an answer to rack i modulo `nbtirages`.
inline constexpr int nbtirages = common::tiragesmulti;

/// The box to which a key (`ui::touches`) leads from box `rang`, when each rack has `nbsolutions`
/// boxes; none for a key that does not move. Enter and Right go through the boxes of a rack, then
/// to the next rack; Left goes the other way. Down and Up go through a column, then to the next
/// one.
[[nodiscard]] std::optional<int> parcours(int rang, int code, int nbsolutions);

}  // namespace multi
