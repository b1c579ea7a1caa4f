#pragma once

// The judgement of a rack: from the words that were typed, in any order, to what each box shows and
// what the run has missed.

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

/// A table of a run has no room left.
enum class Debordement : std::uint8_t { Aucun, Motsfaux, Tiragesfaux };

/// What a run has missed so far.
class Ratages {
  public:
    /// Solutions missed (`motsfaux`), one entry each time, and different racks (`tiragesfaux`).
    static constexpr std::size_t limitemots = 3001;
    static constexpr std::size_t limitetirages = 1501;

    /// Different solutions missed (`nbfautes`).
    [[nodiscard]] int nbfautes() const { return static_cast<int>(motsfaux_.size()); }
    [[nodiscard]] bool motdejarate(const std::string& mot) const { return motsfaux_.contains(mot); }
    [[nodiscard]] bool tiragedejarate(const std::string& tirage) const {
        return tiragesfaux_.contains(tirage);
    }
    /// False, and nothing is counted, if there is no room.
    [[nodiscard]] bool raterlemot(const std::string& mot);
    [[nodiscard]] bool raterletirage(const std::string& tirage);

  private:
    std::unordered_set<std::string> motsfaux_;
    std::size_t nbmotsfaux_ = 0;  ///< entries, the same word each time that it is missed
    std::unordered_set<std::string> tiragesfaux_;
};

/// What becomes of one box of a rack.
struct Boitejugee {
    bool bonne = false;
    std::string texte;  ///< in place of a wrong or missing word, the expected one
    std::optional<std::string> infobulle;  ///< none: it keeps the one that it has
    friend bool operator==(const Boitejugee&, const Boitejugee&) = default;
};

/// What becomes of a rack.
struct Verdict {
    /// As many matches as solutions, a word typed twice making two.
    bool juste = false;
    std::vector<Boitejugee> boites;  ///< of the words 1 to n
    series::Etattirage etat{};       ///< of the rack
    std::string infobulle;           ///< of the rack
    Debordement debordement = Debordement::Aucun;
};

/// A rack to judge, as its boxes stand and as it shows.
struct Rack {
    std::string texte;
    series::Etattirage etat{};
    std::vector<std::string> saisis;     ///< word by word, at least as many as solutions
    std::vector<std::string> solutions;  ///< of the row
};

/// How many solutions a rack is judged on: those before the first empty one.
[[nodiscard]] std::size_t nombrejuge(std::span<const std::string> solutions);

/// Judges a rack; `ratages` takes up what it missed. A second judgement of what the first one
/// shows finds a right rack.
[[nodiscard]] Verdict corrigertirage(const Rack& rack, Ratages& ratages);

}  // namespace multi
