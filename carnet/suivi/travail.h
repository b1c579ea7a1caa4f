#pragma once

// The work of a player, from the journal: racks by day, and how often each was missed.

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "calendrier.h"
#include "journal.h"
#include "nomsdelistes.h"
#include "parmots.h"

namespace carnet {

/// The racks of a day.
struct Journee {
    std::size_t juges = 0;
    std::size_t trouves = 0;
};

/// A rack that was missed.
struct Tiragedur {
    std::string_view identifiant;  ///< rack, ";" and solutions, as bytes of Windows-1252
    std::string_view liste;        ///< file of the list in which it was last seen
    std::size_t vus = 0;
    std::size_t manques = 0;
    Jour dernier = 0;  ///< day of its last line
};

class Travail {
  public:
    /// Takes the next line of the journal.
    void prendre(const profiles::Lignejournal& ligne);
    [[nodiscard]] const std::map<Jour, Journee>& journees() const { return journees_; }
    /// At most `nombre` racks that were missed: the most misses first, ties by the smaller share
    /// found, then the one seen last, then the bytes. Valid until the next line is taken.
    [[nodiscard]] std::vector<Tiragedur> durs(std::size_t nombre) const;

  private:
    struct Compte {
        std::uint32_t vus = 0;
        std::uint32_t manques = 0;
        Jour dernier = 0;
        std::uint32_t liste = 0;
    };
    std::map<Jour, Journee> journees_;
    Parmots<Compte> tirages_;
    Nomsdelistes listes_;
};

}  // namespace carnet
