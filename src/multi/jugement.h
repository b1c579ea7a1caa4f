#pragma once

// The judgement of a rack with several solutions, typed in any order: what each box then shows, and
// what is counted as missed in the run.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "etats.h"

namespace multi {

/// The table of a run that is full.
enum class Debordement : std::uint8_t { Aucun, Motsfaux, Tiragesfaux };

/// What a run has missed so far.
class Ratages {
  public:
    /// Most entries of `motsfaux`, one each time a solution is missed, and most different racks
    /// missed (`tiragesfaux`).
    static constexpr std::size_t limitemots = 3001;
    static constexpr std::size_t limitetirages = 1501;

    /// Different solutions missed (`nbfautes`).
    [[nodiscard]] int nbfautes() const { return static_cast<int>(motsfaux_.size()); }
    [[nodiscard]] bool motdejarate(const std::string& mot) const { return motsfaux_.contains(mot); }
    [[nodiscard]] bool tiragedejarate(const std::string& tirage) const {
        return tiragesfaux_.contains(tirage);
    }
    /// Count a missed solution, a missed rack. False if there is no room: nothing is counted.
    [[nodiscard]] bool raterlemot(const std::string& mot);
    [[nodiscard]] bool raterletirage(const std::string& tirage);

  private:
    std::unordered_set<std::string> motsfaux_;
    std::size_t nbmotsfaux_ = 0;  ///< entries, counting a word each time it is missed
    std::unordered_set<std::string> tiragesfaux_;
};

/// How one box of a rack was judged.
struct Boitejugee {
    bool bonne = false;
    std::string texte;  ///< the word typed, or the expected one if it is wrong or missing
    std::optional<std::string> infobulle;  ///< none: the box keeps the one that it has
    friend bool operator==(const Boitejugee&, const Boitejugee&) = default;
};

/// How a rack was judged.
struct Verdict {
    /// The boxes hold as many right words as the rack has solutions. A word typed twice counts
    /// twice.
    bool juste = false;
    std::vector<Boitejugee> boites;  ///< of the words 1 to n
    series::Etattirage etat{};       ///< of the rack
    std::string infobulle;           ///< of the rack
    Debordement debordement = Debordement::Aucun;
};

/// A rack to judge: what it shows, and what its boxes hold.
struct Rack {
    std::string texte;
    series::Etattirage etat{};
    std::vector<std::string> saisis;     ///< what the boxes hold; at least as many as solutions
    std::vector<std::string> solutions;  ///< those of the row, empty ones included
};

/// The number of solutions that are judged: those before the first empty one.
[[nodiscard]] std::size_t nombrejuge(std::span<const std::string> solutions);

/// Judges a rack, and adds what was missed to `ratages`. Judging again what the first judgement
/// left in the boxes finds a right rack.
[[nodiscard]] Verdict corrigertirage(const Rack& rack, Ratages& ratages);

}  // namespace multi
