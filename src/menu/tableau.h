#pragma once

// The table of the panel on show: its sizes, and the list files of its rows.

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
/// Badges of each kind: as many as rows of a panel can have one.
inline constexpr std::size_t nbverbes = 5;
inline constexpr std::size_t nbcheres = nblignes;
/// The row of the user's own list, in the panel that has one.
inline constexpr std::size_t rangeepersonnelle = nblignes - 1;

/// The list of a row: its file, and its number of parts (0, or 2 to 4).
struct Liste {
    std::string fichier;
    std::size_t parties = 0;
};

/// The lists of a panel, row 0 first. `personnel` is the file of the user's own list, for the panel
/// that has it.
[[nodiscard]] std::vector<Liste> listesdupanneau(const Panneau& panneau,
                                                 std::string_view personnel);

/// The index (as in `coma(index)`) of the part buttons that a row uses.
[[nodiscard]] std::size_t boutondepartie(const Panneau& panneau, std::size_t rangee);

/// The row that uses the part button of an index and a part (0 is a); nothing if no list has this
/// part there.
[[nodiscard]] std::optional<std::size_t> rangeedepartie(const Panneau& panneau, std::size_t index,
                                                        std::size_t partie);

}  // namespace menu
