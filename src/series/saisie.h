#pragma once

// The entry of answers, as rules on a series: which characters a box takes, and what assisted entry
// shows in the place of a rack.

#include <cstddef>
#include <optional>
#include <string_view>

#include "lettres.h"
#include "serie.h"

namespace series {

[[nodiscard]] int majuscule(int code);

/// Assisted entry holds the answers of this series to the letters of their racks.
[[nodiscard]] bool saisieassistee(const Serie& serie, bool option);

/// What becomes of a character (Western code page) that is typed in an answer box.
struct Frappe {
    int code = 0;  ///< 0: the character is dropped
    bool bip = false;
};

/// A character that takes the place of a whole answer makes the letters of its rack free again.
[[nodiscard]] bool remplacelareponse(int code, bool remplacetout);
/// Takes or refuses a character; under assisted entry a letter is used up, and comes off the rack.
[[nodiscard]] Frappe frapper(Serie& serie, Lettres& lettres, int boite, int code, bool assistee);
/// Under assisted entry: the letters of the rack less those of what its box holds.
void recalculer(Serie& serie, Lettres& lettres, int boite, std::string_view reponse);
/// A box is left: its rack has all its letters again if assisted entry is in force, or has reduced
/// it.
void rendretirage(Serie& serie, const Lettres& lettres, int boite, bool assistee);
/// Letters that the second line of entry holds beyond those of the rack of a box; in a list of
/// extensions none is too many.
[[nodiscard]] std::size_t lettresentrop(const Serie& serie, int boite, std::string_view texte);
/// There is a rack to judge when this box is left.
[[nodiscard]] bool ajuger(const Serie& serie, int boite);

/// The box to which a key leads from a box of the series of racks with one solution; none for a key
/// that does not move.
[[nodiscard]] std::optional<int> parcours(int boite, int code, int nbboites);

}  // namespace series
