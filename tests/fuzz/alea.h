#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace fuzz {

/// Numbers that a seed alone decides, the same on every machine.
class Alea {
  public:
    explicit Alea(std::uint64_t graine) : moteur_(graine) {}

    /// A number from 0 to `bout` - 1; 0 for a `bout` of 0.
    [[nodiscard]] std::size_t sous(std::size_t bout) {
        return bout == 0 ? 0 : static_cast<std::size_t>(moteur_() % bout);
    }
    /// A number from `premier` to `dernier`.
    [[nodiscard]] std::size_t entre(std::size_t premier, std::size_t dernier) {
        return premier + sous(dernier - premier + 1);
    }
    [[nodiscard]] bool surcent(std::size_t chances) { return sous(100) < chances; }
    template <class Table>
    [[nodiscard]] const auto& choisir(const Table& table) {
        return table[sous(std::size(table))];
    }

  private:
    std::mt19937_64 moteur_;
};

}  // namespace fuzz
