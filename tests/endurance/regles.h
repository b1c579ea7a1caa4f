#pragma once

// Rules that the witness knows by itself.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace endurance {

/// Percent of a list as it is shown: one decimal at most, a half rounded up.
[[nodiscard]] std::string pourcentage(std::int64_t base, std::int64_t fautes);
/// Minutes and seconds of the series clock; hours, minutes and seconds of the total clock.
[[nodiscard]] std::string texteserie(int secondes);
[[nodiscard]] std::string textetotal(int secondes);

/// What a rack with several solutions becomes.
struct Jugement {
    bool juste = false;
    std::vector<std::string> manquees;
    std::vector<std::string> textes;  ///< of the boxes judged
    std::vector<bool> bonnes;
};
[[nodiscard]] Jugement juger(const std::vector<std::string>& saisis,
                             const std::vector<std::string>& solutions);

/// The number that a whole text is, or -1.
[[nodiscard]] int entier(std::string_view texte);

}  // namespace endurance
