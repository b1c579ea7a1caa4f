#pragma once

// Racks that a player has met, made into lists for the personal row of the trainer: one list of
// those with one solution, one of those with several, as the trainer plays a list on one form.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "echelle.h"
#include "fichier.h"
#include "travail.h"

namespace carnet {

/// Files of a pair of lists, in the folder of the lists.
struct Nomsdepaire {
    std::string_view simple;
    std::string_view multiple;
};
inline constexpr Nomsdepaire nomsdujour{"dujour.txt", "dujour-multi.txt"};
inline constexpr Nomsdepaire nomsdesdurs{"difficiles.txt", "difficiles-multi.txt"};

struct Paire {
    std::vector<std::string> simple;    ///< rows, in UTF-8
    std::vector<std::string> multiple;  ///< rows, in UTF-8
    std::size_t laisses = 0;            ///< racks that could not be typed on the personal row
    std::size_t attendent = 0;          ///< racks beyond the day's limit

    [[nodiscard]] std::size_t taille() const { return simple.size() + multiple.size(); }
};

/// Whether a rack last seen in this list (a file name in Windows-1252) can be played on the
/// personal row. Not one of a list of extensions or of "Benjamins uniques", where the letters to
/// type are not those of the rack.
[[nodiscard]] bool surlarangee(std::string_view liste);

/// The list of the day: the first `plafond` of the racks that can be typed.
[[nodiscard]] Paire listedujour(std::span<const Echeance> dues, int plafond);
/// The same of the hardest racks, all of them.
[[nodiscard]] Paire listedesdurs(std::span<const Tiragedur> durs);

/// Writes each list in one step; deletes one that would be empty. Returns a French report of what
/// failed, empty if nothing did.
[[nodiscard]] std::string ecrirepaire(common::Disque& disque, const Paire& paire,
                                      const Nomsdepaire& noms);

/// How to play what was written, in French.
[[nodiscard]] std::string commentjouerpaire(const Paire& paire, const Nomsdepaire& noms);

}  // namespace carnet
