#pragma once

// The ladder of days: when a rack that was missed is to be seen again. It is worked out from the
// journal each time and stored nowhere.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "calendrier.h"
#include "journal.h"
#include "nomsdelistes.h"
#include "parmots.h"

namespace carnet {

/// Days from one sight of a rack to the next, by step from 0.
inline constexpr std::array paliers{1, 3, 7, 15, 30, 60, 120, 240, 365};
/// Racks given on a day, unless the player says otherwise, and how few or many may be asked for.
inline constexpr int plafondordinaire = 60;
inline constexpr int plafondminimum = 1;
inline constexpr int plafondmaximum = 900;

/// FNV-1a of 64 bits.
[[nodiscard]] constexpr std::uint64_t fnv1a(std::string_view octets) {
    constexpr std::uint64_t base = 0xcbf29ce484222325;
    constexpr std::uint64_t facteur = 0x100000001b3;
    std::uint64_t somme = base;
    for (const char octet : octets)
        somme = (somme ^ static_cast<unsigned char>(octet)) * facteur;
    return somme;
}

/// Days from a success that leads to a step to the next sight. From the step of 7 days on the
/// racks of a day are spread by at most a tenth, each by its own fixed amount.
[[nodiscard]] int intervalle(std::size_t palier, std::string_view identifiant);

/// A rack that is to be seen again.
struct Echeance {
    Jour jour = 0;
    std::size_t palier = 0;        ///< from 0
    std::string_view identifiant;  ///< rack, ";" and solutions, as bytes of Windows-1252
    std::string_view liste;        ///< file of the list in which it was last seen
};

class Echelle {
  public:
    /// Takes the next line of the journal.
    void prendre(const profiles::Lignejournal& ligne);
    /// The racks due up to a day, the earliest first, ties by lower step, then by the bytes. Valid
    /// until the next line is taken.
    [[nodiscard]] std::vector<Echeance> dues(Jour jour) const;
    /// Racks on each step.
    [[nodiscard]] std::array<std::size_t, paliers.size()> parpalier() const;
    /// Racks due up to `jour`, then those of each of the `suivants` days behind it.
    [[nodiscard]] std::vector<std::size_t> prevoir(Jour jour, std::size_t suivants) const;
    /// Racks that have entered.
    [[nodiscard]] std::size_t taille() const { return racks_.taille(); }

  private:
    struct Place {
        Jour jour = 0;
        std::uint16_t palier = 0;
        std::uint32_t liste = 0;  ///< in `listes_`
    };

    Parmots<Place> racks_;
    Nomsdelistes listes_;
};

}  // namespace carnet
