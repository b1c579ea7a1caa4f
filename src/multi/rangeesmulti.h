#pragma once

// The rows of `Multi`: racks with several solutions, in the store that the series forms share.
// List format: docs/formats.md.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "listes.h"
#include "rangees.h"

namespace multi {

/// Most rows of a list; a sample is drawn of `common::rangeesmulti` at most.
inline constexpr std::size_t limiterangees = 10000;
/// Solutions of a rack: fewest boxes that a list shows for them, and most that a row may hold.
inline constexpr std::size_t minsolutions = 2;
inline constexpr std::size_t maxsolutions = common::solutionsmulti;
/// Largest sample.
inline constexpr int limiteechantillon = 901;

/// Solutions per rack of the list `chemin`, whose rows are in the store: the largest count of a
/// row, never under `minsolutions`. Throws `Faute`, naming the line, for a row of more than
/// `maxsolutions`.
[[nodiscard]] std::size_t nbsolutionsdelaliste(const series::Rangees& rangees,
                                               std::string_view chemin);

/// How many solutions stand behind the rack of a row, and which: cut at each ";", of which one at
/// the very end opens no further solution. An empty one between two ";" counts.
[[nodiscard]] std::size_t nombredesolutions(std::string_view suite);
[[nodiscard]] std::vector<std::string> solutions(std::string_view suite);

/// A row in list format: rack, then ";" and a solution `nombre` times, empty where there is none.
[[nodiscard]] std::string lignederangee(std::string_view tirage,
                                        std::span<const std::string> solutions, std::size_t nombre);

}  // namespace multi
