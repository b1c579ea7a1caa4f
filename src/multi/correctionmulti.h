#pragma once

// The correction of the series of racks with several solutions, on the value that both windows
// share.

#include <cstdint>
#include <string>
#include <vector>

#include "correction.h"
#include "jugement.h"

namespace multi {

/// The words of a series, by box, as they stand.
using Saisis = std::vector<std::string>;

/// The seconds criterion, at the departure from a box: judges its whole rack, which is right in
/// time or not. `ratages` takes up what it missed.
[[nodiscard]] series::Correction jugerboite(series::Serie& serie, Ratages& ratages, Saisis saisis,
                                            int boite, std::int16_t tempsmot);

/// Closes the series and judges all its racks. Under the seconds criterion the last rack, whose box
/// may never be left, is judged once more before the others.
[[nodiscard]] series::Correction corriger(series::Serie& serie, Ratages& ratages, Saisis saisis,
                                          std::int16_t tempsmot);

}  // namespace multi
