#pragma once

// How hard a word is to find on its rack.

#include <array>
#include <cstdint>
#include <vector>

#include "vocabulaire.h"

namespace atelier {

/// The habits of the language, counted over the words of 5 to 10 letters that are not conjugated:
/// beginnings and endings of three letters, and neighbours.
class Difficulte {
  public:
    explicit Difficulte(const Vocabulaire& vocabulaire);

    /// High when the letters of the word suggest other beginnings, endings and neighbours than its
    /// own. Compares words of one length.
    [[nodiscard]] int de(const Mot& mot) const;

  private:
    /// Four times the binary logarithm of a count, as an integer; 0 for a count of 0.
    using Mesures = std::vector<std::uint8_t>;

    Mesures debuts_;   // by three letters
    Mesures fins_;     // by three letters
    Mesures voisins_;  // by two letters
    // The highest of those of three letters, by the first two of them.
    Mesures debutsmax_;
    Mesures finsmax_;
};

}  // namespace atelier
