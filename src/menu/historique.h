#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "tableau.h"

namespace menu {

/// A record of `hist.dat` as a line of the history of a row. A record of the whole list loses its
/// file name and the " - " before it, a record of a part only the extension; a record of another
/// list gives nothing. The record is in Windows-1252, the line in UTF-8.
[[nodiscard]] std::optional<std::string> lignehistorique(std::string_view record,
                                                         const Liste& liste);

}  // namespace menu
