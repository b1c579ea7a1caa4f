#pragma once

// The licences of the sources of the lists. They are written beside the lists.

#include <array>
#include <string_view>

namespace atelier {

struct Licence {
    std::string_view fichier;  ///< in the output folder
    std::string_view texte;    ///< UTF-8, each line ended by LF
};

[[nodiscard]] std::array<Licence, 2> licences();

}  // namespace atelier
