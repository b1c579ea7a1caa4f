#pragma once

#include <span>
#include <string>

#include "alea.h"

namespace fuzz {

/// The bytes after one to four of the harms that a file can take: bits flipped, a tail lost, pieces
/// doubled, moved or taken from a file of `autres`, quotes, separators, NULs and line ends where
/// none belong, huge lines and numbers. Now and then the bytes as they are.
[[nodiscard]] std::string muter(std::string octets, std::span<const std::string> autres,
                                Alea& alea);

}  // namespace fuzz
