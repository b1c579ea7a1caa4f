#pragma once

// What is wrong in a row of a list.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace atelier {

/// What the rows of a list are.
enum class Sorte {
    simple,    ///< a rack and one word on its letters
    multi,     ///< a rack and two to five words on its letters
    rallonge,  ///< a word, with "?" at an end or not, and letters that make it longer
    benjamin,  ///< a word and the letters in front that make it longer
    perso,     ///< a rack and one to five words on its letters
};

/// What the rows of a row of the catalogue are.
[[nodiscard]] Sorte sorte(std::string_view panneau, std::size_t rangee);

/// What the rows of a file of the catalogue are, parts included; nothing for another file.
[[nodiscard]] std::optional<Sorte> sorteconnue(std::string_view fichier);

/// Capitals A to Z, 2 to 15 of them.
[[nodiscard]] bool motjouable(std::string_view texte);

/// Reads the rows of a file one after the other.
class Rangees {
  public:
    explicit Rangees(Sorte sorte) : sorte_(sorte) {}

    /// What is wrong with the next row; nothing, mostly.
    [[nodiscard]] std::vector<std::string> lire(std::string_view ligne);

    /// The most solutions of a row so far.
    [[nodiscard]] std::size_t solutionsmax() const { return solutionsmax_; }
    /// The last rack is shorter than another in a way that shows.
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
