#pragma once

// The correction of a series of racks with several solutions, as functions of a `series::Serie`.

#include <cstdint>
#include <string>
#include <vector>

#include "correction.h"
#include "jugement.h"

namespace multi {

/// What the answer boxes of a series hold, by box.
using Saisis = std::vector<std::string>;

/// Judges the rack of a box that is left under the seconds criterion: whether all its words are
/// right, and were in time. `tempsmot` are the seconds spent in the box. What was missed is added
/// to `ratages`.
[[nodiscard]] series::Correction jugerboite(series::Serie& serie, Ratages& ratages, Saisis saisis,
                                            int boite, std::int16_t tempsmot);

/// Closes the series and judges all its racks. Under the seconds criterion it first judges the rack
/// of the current box, which the player may not have left.
[[nodiscard]] series::Correction corriger(series::Serie& serie, Ratages& ratages, Saisis saisis,
                                          std::int16_t tempsmot);

}  // namespace multi
