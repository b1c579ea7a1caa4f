#pragma once

#include <cstddef>
#include <vector>

#include "hasard.h"

namespace series {

/// What becomes of the place of an index that has been drawn.
enum class Comblement {
    Dernier,   ///< the last index left takes it
    Suivants,  ///< the indices behind it move down, so that the order is kept
};

/// Draws `nombre` of the indices 0 to `total`-1 without replacement, in draw order; `nombre` is at
/// most `total`. Each draw takes the integer part of a uniform number times the indices left.
[[nodiscard]] std::vector<int> tirersansremise(common::Hasard& hasard, int total, int nombre,
                                               Comblement comblement);

}  // namespace series
