#pragma once

#include <cstdint>
#include <string_view>

#include "valeurs.h"

namespace series {

/// What a rack of a series shows.
enum class Etattirage : std::uint8_t {
    Repos,
    Courant,    ///< its answer box has the focus
    Solution,   ///< shows the solution that was missed
    Faux,       ///< a wrong word was typed
    Incomplet,  ///< answers are missing, and none is wrong
};

/// What an answer box shows.
enum class Etatreponse : std::uint8_t {
    Repos,  ///< not judged
    Courante,
    Juste,
    Fausse,
    Attendue,  ///< shows a word that was missed
};

/// How a state looks, and what assistive technologies are told of it: empty if nothing.
struct Apparence {
    ui::Couleur fond;
    std::string_view paroles;
};

[[nodiscard]] Apparence apparence(Etattirage etat);
[[nodiscard]] Apparence apparence(Etatreponse etat);
[[nodiscard]] Apparence apparencedelhorloge(bool arretee);

}  // namespace series
