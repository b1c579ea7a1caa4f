#pragma once

// What the carnet answers without a window, as lines of text in UTF-8.

#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "echelle.h"
#include "fichier.h"

namespace carnet {

/// Why there is no answer, in a French sentence.
struct Refus {
    std::string raison;
};

using Reponse = std::variant<std::string, Refus>;

/// Whether a name may be that of a player's folder: it is not empty, is no folder of the program,
/// and does not lead out of the play folder.
[[nodiscard]] bool nomdejoueur(std::string_view util);

/// The most racks of a day; nothing for a text that is not a number from `plafondminimum` to
/// `plafondmaximum`.
[[nodiscard]] std::optional<int> lireplafond(std::string_view texte);

/// What is due for a player up to a day: a line a rack, "due day;step (1 to 9);rack;solutions", in
/// the order of the day; no more than `plafond`, if there is one. `avis` takes a sentence about the
/// lines of the journal that could not be read, empty if there are none.
[[nodiscard]] Reponse echeances(common::Disque& disque, std::string_view util, Jour jour,
                                std::optional<int> plafond, std::string& avis);

/// The results of a player: a line a list, "list;runs;last percent;best percent;date of the last",
/// by name.
[[nodiscard]] Reponse progres(common::Disque& disque, std::string_view util);

}  // namespace carnet
