#pragma once

// How hard a word is to find on its rack.

#include <array>
#include <cstdint>
#include <vector>

#include "vocabulaire.h"

namespace atelier {

/// How often the words of 5 to 10 letters that are not conjugated have each beginning and each
/// ending of three letters, and each pair of neighbouring letters.
class Difficulte {
  public:
    explicit Difficulte(const Vocabulaire& vocabulaire);

    /// The difficulty of a word: high if its letters could make commoner beginnings, endings and
    /// pairs than the word has. Comparable among words of the same length.
    [[nodiscard]] int de(const Mot& mot) const;

  private:
    /// For each count four times its binary logarithm, as an integer; 0 for a count of 0.
    using Mesures = std::vector<std::uint8_t>;

    Mesures debuts_;   // by three letters
    Mesures fins_;     // by three letters
    Mesures voisins_;  // by two letters
    // The highest of those of three letters, by the first two of them.
    Mesures debutsmax_;
    Mesures finsmax_;
};

}  // namespace atelier
