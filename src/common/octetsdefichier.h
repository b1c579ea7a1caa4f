#pragma once

// Whole files of any kind: no line of theirs has a limit.

#include <string>
#include <string_view>
#include <system_error>

#include "disque.h"

namespace common {

/// The bytes of a file, for a caller that can do without them: on failure `contenu` is what could
/// be read.
[[nodiscard]] std::error_code essayerlire(Disque& disque, std::string_view chemin,
                                          std::string& contenu);

}  // namespace common
