#pragma once

// What makes a download one that can be trusted.

#include <string_view>

namespace ui {

/// An address whose content nobody can change on its way: https, or http from 127.0.0.1. Blanks in
/// front do not count.
[[nodiscard]] bool adressesure(std::string_view adresse);

/// A published sum (hexadecimal digits in either case, blanks around them) is the one found (in
/// lower case). A text that is no sum is none that can be found.
[[nodiscard]] bool memesomme(std::string_view publiee, std::string_view trouvee);

}  // namespace ui
