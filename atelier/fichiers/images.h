#pragma once

// The tables of racks as pictures: black on white, one row a rack, the rack first.

#include <span>
#include <string>
#include <string_view>

#include "contenu.h"

namespace atelier {

/// A picture of the rows under a title (A to Z, 0 to 9 and blanks), as a PNG file. At a fineness of
/// 1 it has its size on the screen; at 2 it is twice as large, for fine screens.
[[nodiscard]] std::string dessinertable(std::string_view titre, std::span<const Rangee> rangees,
                                        int finesse);

}  // namespace atelier
