#pragma once

#include <cstddef>
#include <vector>

#include "hasard.h"

namespace series {

/// What fills the place of an index that has been drawn.
enum class Comblement {
    Dernier,   ///< the last index
    Suivants,  ///< the indices after it move up by one, which keeps their order
};

/// Draws `nombre` of the indices 0 to `total`-1 without replacement, and returns them in the order
/// of the draw; `nombre` is at most `total`. Each draw takes the index at the place that a uniform
/// number times the count of indices left gives, rounded down.
[[nodiscard]] std::vector<int> tirersansremise(common::Hasard& hasard, int total, int nombre,
                                               Comblement comblement);

}  // namespace series
