#pragma once

// The licences under which the sources of the lists come, written beside the lists.

#include <array>
#include <string_view>

namespace atelier {

struct Licence {
    std::string_view fichier;  ///< in the output folder
    std::string_view texte;    ///< UTF-8, lines that end in LF
};

[[nodiscard]] std::array<Licence, 2> licences();

}  // namespace atelier
