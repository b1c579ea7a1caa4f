#pragma once

// What Windows takes for the name of a file.

#include <string_view>
#include <system_error>

namespace common {

/// Nothing if a file or folder of that name (UTF-8, one component of a path) can be made on
/// Windows. `Ennui::NomReserve` for the name of a device, which would be opened instead,
/// `Ennui::NomInterdit` for a character or an end that Windows refuses, drops, or takes for
/// something else, `filename_too_long` for more than 255 units of UTF-16.
[[nodiscard]] std::error_code nompourwindows(std::string_view nom);

}  // namespace common
