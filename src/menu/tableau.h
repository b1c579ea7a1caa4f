#pragma once

// What the menu works with for the panel on show: the lists of its rows, as files.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "catalogue.h"

namespace menu {

inline constexpr std::size_t nblignes = 8;   ///< rows of the menu
inline constexpr std::size_t nbparties = 4;  ///< parts of a list, at most
inline constexpr std::size_t nbetapes = 5;   ///< stages of the launch of a sample
/// Badges of each kind: the rows of a panel that can have one.
inline constexpr std::size_t nbverbes = 5;
inline constexpr std::size_t nbcheres = nblignes;
/// The row of the user's own list, in the panel that has one.
inline constexpr std::size_t rangeepersonnelle = nblignes - 1;

/// The list of a row: its file, and in how many parts it can be worked (0, or 2 to 4).
struct Liste {
    std::string fichier;
    std::size_t parties = 0;
};

/// The lists of a panel, row 0 first. `personnel` is the file of the user's own list, for the panel
/// that has it.
[[nodiscard]] std::vector<Liste> listesdupanneau(const Panneau& panneau,
                                                 std::string_view personnel);

/// Index of the part buttons that serve a row.
[[nodiscard]] std::size_t boutondepartie(const Panneau& panneau, std::size_t rangee);

/// The row of a part button, by its index and its part (0 is a); nothing where the list of the row
/// has no such part.
[[nodiscard]] std::optional<std::size_t> rangeedepartie(const Panneau& panneau, std::size_t index,
                                                        std::size_t partie);

}  // namespace menu
