#pragma once

// The ladder of days: when a rack that was missed is due again. It is worked out from the journal
// each time and stored nowhere.

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

/// Days after which a rack is due again, by step from 0.
inline constexpr std::array paliers{1, 3, 7, 15, 30, 60, 120, 240, 365};
/// Racks a day, unless the player says otherwise, and the bounds of what the player may ask for.
inline constexpr int plafondordinaire = 60;
inline constexpr int plafondminimum = 1;
inline constexpr int plafondmaximum = 900;
/// Days for which what will be due is shown.
inline constexpr std::size_t joursprevus = 30;

/// FNV-1a of 64 bits.
[[nodiscard]] constexpr std::uint64_t fnv1a(std::string_view octets) {
    constexpr std::uint64_t base = 0xcbf29ce484222325;
    constexpr std::uint64_t facteur = 0x100000001b3;
    std::uint64_t somme = base;
    for (const char octet : octets)
        somme = (somme ^ static_cast<unsigned char>(octet)) * facteur;
    return somme;
}

/// Days after which a rack that a success has brought to this step is due again. From the step of 7
/// days on, these vary by up to a tenth from rack to rack, always alike for the same rack.
[[nodiscard]] int intervalle(std::size_t palier, std::string_view identifiant);

/// A rack that is due.
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
    /// The racks due up to a day, the earliest first; of a day, by step, then by the bytes. Valid
    /// until the next line is taken.
    [[nodiscard]] std::vector<Echeance> dues(Jour jour) const;
    /// Number of racks on each step.
    [[nodiscard]] std::array<std::size_t, paliers.size()> parpalier() const;
    /// Number of racks due up to `jour`, then of those due on each of the `suivants` days after it.
    [[nodiscard]] std::vector<std::size_t> prevoir(Jour jour, std::size_t suivants) const;
    /// Number of racks on the ladder.
    [[nodiscard]] std::size_t taille() const { return tirages_.taille(); }

  private:
    struct Place {
        Jour jour = 0;
        std::uint16_t palier = 0;
        std::uint32_t liste = 0;  ///< in `listes_`
    };

    Parmots<Place> tirages_;
    Nomsdelistes listes_;
};

}  // namespace carnet
