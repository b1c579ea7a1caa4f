#pragma once

// The size of a list: the lines of its file, counted over blocks of bytes.

#include <cstddef>
#include <string_view>
#include <system_error>

#include "fichier.h"

namespace menu {

/// Counts lines, and the semicolons of the last one. A last line without a line end is a line; a
/// line end at the very end starts no further one.
class Compteur {
  public:
    void voir(std::string_view bloc);
    [[nodiscard]] std::size_t lignes() const { return sauts_ + (entamee_ ? 1 : 0); }
    [[nodiscard]] std::size_t pointsvirgules() const { return entamee_ ? courants_ : termines_; }

  private:
    std::size_t sauts_ = 0;
    std::size_t termines_ = 0;  ///< semicolons of the line that ended last
    std::size_t courants_ = 0;  ///< and of the one that has no end yet
    bool entamee_ = false;      ///< there is such a line
};

/// Counts a file in one pass. A failure is returned: the counter is then good for nothing.
[[nodiscard]] std::error_code compter(common::Disque& disque, std::string_view chemin,
                                      Compteur& compteur);

}  // namespace menu
