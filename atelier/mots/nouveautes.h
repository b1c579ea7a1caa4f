#pragma once

// Words that came in with an edition of a dictionary: known only by comparing two editions that the
// player owns.

#include <array>
#include <string_view>

#include "listes.h"
#include "vocabulaire.h"

namespace atelier {

struct Edition {
    std::string_view annee;
    common::ListeReference liste;  ///< of its new words
};

/// The editions whose words the program marks, oldest first.
inline constexpr std::array editions{
    Edition{"2008", common::listeods5},
    Edition{"2012", common::listeods6},
    Edition{"2016", common::listeods7},
};

/// New words by edition, by length and alphabet; an edition that was not compared has none.
using Nouveautes = std::array<Dictionnaire, editions.size()>;

/// Longest word that the lists of new words hold.
inline constexpr std::size_t longueurnouveautes = 9;

/// Words of the new edition, of 2 to 9 letters, that the old one lacks: the shortest first, at most
/// as many as a reference list may hold.
[[nodiscard]] Dictionnaire comparer(const Dictionnaire& ancienne, const Dictionnaire& nouvelle,
                                    std::size_t placesmax);

}  // namespace atelier
