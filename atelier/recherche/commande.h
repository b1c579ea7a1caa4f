#pragma once

// A search without a window.

#include <cstdint>
#include <iosfwd>
#include <string_view>

#include "criteres.h"

namespace recherche {

/// Writes to `sortie` what a search finds, one row or word on each line, and to `erreurs` what is
/// left out, or why nothing is found. False for a search that is refused: `sortie` then gets
/// nothing.
[[nodiscard]] bool commander(std::string_view criteres, const Contexte& contexte,
                             std::uint64_t graine, std::ostream& sortie, std::ostream& erreurs);

}  // namespace recherche
