#pragma once

// The rules of typing answers: which characters a box takes, and what a rack shows under assisted
// entry.

#include <cstddef>
#include <optional>
#include <string_view>

#include "lettres.h"
#include "serie.h"

namespace series {

/// The capital of a letter a to z; any other character (Windows-1252) unchanged.
[[nodiscard]] int majuscule(int code);

/// Whether assisted entry is in force: the option is on, the series takes answers, and the answers
/// of the list are made of the letters of their racks.
[[nodiscard]] bool saisieassistee(const Serie& serie, bool option);

/// The outcome of typing a character in an answer box.
struct Frappe {
    int code = 0;      ///< the character to insert (Windows-1252); 0: none
    bool bip = false;  ///< it was refused with a beep
};

/// Whether typing this character replaces the whole answer, so that the letters of its rack are
/// free again. `remplacetout`: the box will replace its whole text.
[[nodiscard]] bool remplacelareponse(int code, bool remplacetout);
/// Takes or refuses a character. Under assisted entry a letter that is taken leaves the pool
/// `lettres` and the rack. A closed series takes no letter.
[[nodiscard]] Frappe frapper(Serie& serie, Lettres& lettres, int boite, int code, bool assistee);
/// Under assisted entry: rebuilds pool and rack, without the letters of `reponse`, the text of the
/// box.
void recalculer(Serie& serie, Lettres& lettres, int boite, std::string_view reponse);
/// When a box is left: gives its rack all letters back, if assisted entry is in force or has
/// reduced it before.
void rendretirage(Serie& serie, const Lettres& lettres, int boite, bool assistee);
/// The number of letters of `texte` beyond the length of the rack of a box; 0 in a list of
/// extensions.
[[nodiscard]] std::size_t lettresentrop(const Serie& serie, int boite, std::string_view texte);
/// Whether there is a rack to judge when this box is left.
[[nodiscard]] bool ajuger(const Serie& serie, int boite);

/// The box to which a key leads from a box of the series of racks with one solution; none for a key
/// that does not move.
[[nodiscard]] std::optional<int> parcours(int boite, int code, int nbboites);

}  // namespace series
