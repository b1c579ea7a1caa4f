#pragma once

// What a dialog asked of its surroundings, in order, one line each.

#include <array>
#include <string>
#include <string_view>
#include <vector>

#include "plateforme.h"

namespace essai {

using Journal = std::vector<std::string>;

inline void noter(Journal& journal, std::string_view quoi, std::string_view valeur) {
    journal.push_back(std::string(quoi) + std::string(valeur));
}

/// What the line of a message box begins with.
inline std::string_view genre(ui::Icone icone) {
    static constexpr std::array genres{"message ", "information ", "exclamation ", "question "};
    return genres.at(static_cast<std::size_t>(icone));
}

}  // namespace essai
