#pragma once

// The size of a list is the number of lines of its file, counted block by block.

#include <cstddef>
#include <string_view>
#include <system_error>

#include "fichier.h"

namespace menu {

/// Counts the lines of a file, and the semicolons of its last line. A last line may lack its line
/// end; a line end at the end of the file starts no new line.
class Compteur {
  public:
    /// Takes the next bytes of the file.
    void voir(std::string_view bloc);
    [[nodiscard]] std::size_t lignes() const { return sauts_ + (entamee_ ? 1 : 0); }
    [[nodiscard]] std::size_t pointsvirgules() const { return entamee_ ? courants_ : termines_; }

  private:
    std::size_t sauts_ = 0;
    std::size_t termines_ = 0;  ///< semicolons of the last line that has ended
    std::size_t courants_ = 0;  ///< semicolons of the line that has not
    bool entamee_ = false;      ///< there is a line that has not ended
};

/// Feeds a whole file to `compteur`. After a failure, which is returned, its counts mean nothing.
[[nodiscard]] std::error_code compter(common::Disque& disque, std::string_view chemin,
                                      Compteur& compteur);

}  // namespace menu
