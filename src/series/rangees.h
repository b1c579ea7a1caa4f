#pragma once

// The store of the rows of a list. docs/formats.md describes the lists.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"
#include "nombre.h"

namespace series {

/// The rows of a list: of each its rack, its solutions and how many times it was answered right. A
/// row has an index (`rang`) from 0. An eliminated row keeps its index, with empty texts, until
/// `compacter`.
class Rangees {
  public:
    /// The highest position, counted from 1, of the ";" that ends the rack.
    static constexpr std::size_t positionlimite = common::plusgrand16;

    /// `limite`: most rows of a list.
    explicit Rangees(std::size_t limite) : limite_(limite) {}

    /// Reads a list file, replacing all rows. Throws `Faute`, naming the line, on a row without
    /// ";" (an empty line too) and on a row over the limit.
    void lire(common::Disque& disque, std::string_view chemin);
    /// Keeps only these rows, in this order.
    void garder(std::span<const int> rangs);

    /// Number of rows, eliminated ones included until `compacter`.
    [[nodiscard]] int nbmots() const { return static_cast<int>(rangees_.size()); }
    [[nodiscard]] std::string tirage(int rang) const;
    /// What follows the rack and its ";": the solution, or the solutions.
    [[nodiscard]] std::string suite(int rang) const;
    /// The same in Windows-1252, as in the file.
    [[nodiscard]] std::string_view octetsdelasuite(int rang) const { return rangee(rang).suite; }
    /// Line of the row in its file, from 1.
    [[nodiscard]] std::size_t ligne(int rang) const { return rangee(rang).ligne; }
    /// Length in characters of the rack of the last line read, 0 for an empty list.
    [[nodiscard]] std::size_t longueurdernier() const { return longueurdernier_; }

    /// Counts one more right answer to a row, and returns the new count.
    int reussir(int rang) { return ++rangee(rang).reussites; }
    void eliminer(int rang);
    /// Removes the eliminated rows; the others keep their order.
    void compacter();

  private:
    struct Rangee {
        std::string_view tirage;  ///< bytes of `*octets_`
        std::string_view suite;
        std::uint32_t ligne = 0;
        int reussites = 0;
    };
    [[nodiscard]] const Rangee& rangee(int rang) const {
        return rangees_.at(static_cast<std::size_t>(rang));
    }
    [[nodiscard]] Rangee& rangee(int rang) { return rangees_.at(static_cast<std::size_t>(rang)); }

    std::size_t limite_;
    std::shared_ptr<const std::string> octets_;  ///< the file as it stands, shared by copies
    std::vector<Rangee> rangees_;
    std::size_t longueurdernier_ = 0;
};

}  // namespace series
