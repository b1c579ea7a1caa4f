#pragma once

// Which downloads can be trusted.

#include <string_view>

namespace ui {

/// Nobody can change what comes from this address on its way: https, or http from 127.0.0.1.
/// Leading blanks are ignored.
[[nodiscard]] bool adressesure(std::string_view adresse);

/// The published checksum, hexadecimal digits in either case with blanks around them, is the one
/// computed, in lower case. False for a text that is not a checksum.
[[nodiscard]] bool memesomme(std::string_view publiee, std::string_view trouvee);

}  // namespace ui
