#pragma once

// The tables of racks as pictures: black on white, one line for each rack, the rack first.

#include <span>
#include <string>
#include <string_view>

#include "contenu.h"

namespace atelier {

/// A picture of the rows under a title (A to Z, 0 to 9 and blanks), as a PNG file. `finesse` 1 is
/// for screens of normal density; 2 has twice as many pixels each way, for screens of double
/// density.
[[nodiscard]] std::string dessinertable(std::string_view titre, std::span<const Rangee> rangees,
                                        int finesse);

}  // namespace atelier
