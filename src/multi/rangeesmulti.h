#pragma once

// The rows of `Multi`: racks with several solutions. docs/formats.md describes the lists.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "listes.h"
#include "rangees.h"

namespace multi {

/// Most rows of a list. A sample is drawn from `common::rangeesmulti` rows at most.
inline constexpr std::size_t limiterangees = 10000;
/// Fewest boxes that a rack gets, and most solutions that it may have.
inline constexpr std::size_t minsolutions = 2;
inline constexpr std::size_t maxsolutions = common::solutionsmulti;
/// Most racks of a sample.
inline constexpr int limiteechantillon = 901;

/// The boxes for each rack of a list: the most solutions that a row has, `minsolutions` at least.
/// Throws `Faute`, naming the list `chemin` and the line, for a row with more than `maxsolutions`.
[[nodiscard]] std::size_t nbsolutionsdelaliste(const series::Rangees& rangees,
                                               std::string_view chemin);

/// The solutions of a row, and their number. `suite` is what follows the rack: solutions separated
/// by ";". A ";" at the end starts no new solution; nothing between two ";" is an empty solution.
[[nodiscard]] std::size_t nombredesolutions(std::string_view suite);
[[nodiscard]] std::vector<std::string> solutions(std::string_view suite);

/// A row in list format: the rack, then `nombre` times ";" and a solution, empty where there is
/// none.
[[nodiscard]] std::string lignederangee(std::string_view tirage,
                                        std::span<const std::string> solutions, std::size_t nombre);

}  // namespace multi
