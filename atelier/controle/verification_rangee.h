#pragma once

// Checks of the rows of a list.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "catalogue.h"

namespace atelier {

/// The kind of the rows of a list.
enum class Sorte {
    simple,    ///< a rack and one word made of its letters
    multi,     ///< a rack and two to five words made of its letters
    rallonge,  ///< a word, perhaps with "?" at one end, and letters that extend it
    benjamin,  ///< a word and the letters that extend it in front
    perso,     ///< a rack and one to five words made of its letters
};

/// The kind of rows in the list of a row of the catalogue.
[[nodiscard]] Sorte sorte(const menu::Rangee& rangee);

/// The kind of rows in a file of the catalogue, parts included; nothing for another file.
[[nodiscard]] std::optional<Sorte> sorteconnue(std::string_view fichier);

/// The text consists of 2 to 15 capitals A to Z.
[[nodiscard]] bool motjouable(std::string_view texte);

/// Checks the rows of a file, given in order.
class Rangees {
  public:
    explicit Rangees(Sorte sorte) : sorte_(sorte) {}

    /// What is wrong with the next row, in French; usually nothing.
    [[nodiscard]] std::vector<std::string> lire(std::string_view ligne);

    /// The highest number of solutions in a row so far.
    [[nodiscard]] std::size_t solutionsmax() const { return solutionsmax_; }
    /// The last rack, by which the screen chooses the size of letters, is short although another is
    /// long.
    [[nodiscard]] bool dernierpluscourt() const;

  private:
    [[nodiscard]] std::string ennuidessolutions(
        std::string_view lettres, const std::vector<std::string_view>& solutions) const;

    Sorte sorte_;
    std::unordered_map<std::string, std::size_t> tirages_;  // and the line of each
    std::size_t lignes_ = 0;
    std::size_t solutionsmax_ = 0;
    std::size_t pluslong_ = 0;
    std::size_t dernier_ = 0;
};

}  // namespace atelier
