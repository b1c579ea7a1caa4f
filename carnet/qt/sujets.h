#pragma once

// What each picture of the pages shows.

#include <span>

#include "dessin.h"
#include "suivi.h"

namespace carnet {

/// Racks by day from `jour` on.
[[nodiscard]] Barres barresdesjours(std::span<const std::size_t> nombres, Jour jour);
[[nodiscard]] Barres barresdespaliers(std::span<const std::size_t> nombres);
/// The last percent of each list, marked with the best.
[[nodiscard]] Barres barresdeslistes(const Bilans& bilans);
/// Misses of each rack.
[[nodiscard]] Barres barresdesdurs(std::span<const Tiragedur> durs);

}  // namespace carnet
