#pragma once

// New words: those that an edition of a dictionary added. They are found by comparing two editions
// that the player owns.

#include <array>
#include <string_view>

#include "listes.h"
#include "vocabulaire.h"

namespace atelier {

struct Edition {
    std::string_view annee;
    common::ListeReference liste;  ///< the list of its new words
};

/// The editions whose new words the program marks, oldest first.
inline constexpr std::array editions{
    Edition{"2008", common::listeods5},
    Edition{"2012", common::listeods6},
    Edition{"2016", common::listeods7},
};

/// The new words of each edition, by length, then alphabet; empty for an edition not compared.
using Nouveautes = std::array<Dictionnaire, editions.size()>;

/// Letters of the longest words in the lists of new words.
inline constexpr std::size_t longueurnouveautes = 9;

/// The words of 2 to 9 letters that `nouvelle` has and `ancienne` lacks, the shortest first, at
/// most `placesmax` of them.
[[nodiscard]] Dictionnaire comparer(const Dictionnaire& ancienne, const Dictionnaire& nouvelle,
                                    std::size_t placesmax);

}  // namespace atelier
