#pragma once

#include <array>
#include <string_view>

namespace series {

/// The fonts that "Changer de police" goes through, in order.
inline constexpr std::array<std::string_view, 5> cycledespolices = {
    "Arial", "Verdana", "Times New Roman", "Lucida Sans", "Georgia"};

/// Font of the boxes at each new list.
inline constexpr std::string_view policedesseries = "Times New Roman";
/// Font of the answers before the first list.
inline constexpr std::string_view policedessolutions = "Lucida Sans";

/// The rack of the last row of a list decides: up to this many characters, the racks are shown at
/// the large size. Sizes are in points.
inline constexpr unsigned longueurgrandetaille = 8;
inline constexpr double grandetaille = 20;
inline constexpr double petitetaille = 19;
/// Size of the answers before the first list.
inline constexpr double tailleinitiale = 18;

}  // namespace series
