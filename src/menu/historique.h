#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tableau.h"

namespace menu {

/// The line that a record of `hist.dat` makes in the history of a row: the record without " - "
/// and the file for the whole list, without its extension for a part; nothing for another list.
/// The record is bytes of Windows-1252, the line UTF-8.
[[nodiscard]] std::optional<std::string> lignehistorique(std::string_view record,
                                                         const Liste& liste);

}  // namespace menu
