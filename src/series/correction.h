#pragma once

// What a correction finds, as a value that the window shows and writes; and the rules of the
// series of racks with one solution.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "serie.h"

namespace series {

/// What becomes of an answer box.
struct Boitecorrigee {
    int boite = 0;
    Etatreponse etat{};
    std::string texte;
    std::optional<std::string> infobulle;  ///< none: it keeps the one that it has
    bool barree = false;
};

/// What becomes of the rack of a place.
struct Tiragecorrige {
    int place = 0;
    std::optional<Etattirage> etat;        ///< none: it looks as it did
    std::optional<std::string> texte;      ///< none: it shows what it did
    std::optional<std::string> infobulle;  ///< none: it keeps the one that it has
};

/// A rack answered wrong, and its row as the revision file takes it.
struct Ratee {
    int place = 0;
    std::string ligne;
    friend bool operator==(const Ratee&, const Ratee&) = default;
};

/// A table of the run has no room for what the rack of a place missed. Nothing behind it is judged,
/// and the rack itself does not go to the revision file.
struct Tablepleine {
    int place = 0;
    std::string_view quoi;  ///< in French, in the plural
    std::size_t limite = 0;
};

/// What a correction found. A box or a rack that is judged twice stands twice, in order.
struct Correction {
    std::vector<Boitecorrigee> boites;
    std::vector<Tiragecorrige> tirages;
    int nombre = 0;              ///< racks of the series
    int justes = 0;              ///< right ones
    std::optional<bool> atemps;  ///< seconds criterion: the last box judged was right in time
    std::vector<Ratee> ratees;   ///< to add to the revision file, where errors go there
    std::optional<Tablepleine> pleine;
};

/// Of these rows, those that the file lacks, each once; their places are marked as being in it.
[[nodiscard]] std::vector<std::string> nouvellesrevisions(Serie& serie,
                                                          std::span<const Ratee> ratees,
                                                          const std::vector<bool>& presentes);

/// Rows answered wrong in a list (`motsfaux`), each once.
class Motsfaux {
  public:
    static constexpr std::size_t limite = 5001;

    [[nodiscard]] std::int64_t nombre() const { return static_cast<std::int64_t>(lignes_.size()); }
    /// False, and nothing is counted, if there is no room.
    [[nodiscard]] bool ajouter(const std::string& ligne);

  private:
    std::unordered_set<std::string> lignes_;
};

/// Judges a box of one solution under the seconds criterion, as `retenir` tells; `tempsmot` are the
/// seconds spent in the current box.
std::optional<bool> jugerboite(Serie& serie, int boite, std::string_view reponse,
                               std::int16_t tempsmot);
/// Closes the series and judges its answers, box by box. `motsfaux` takes up the wrong rows. Under
/// the seconds criterion the last box, which may never be left, is judged as at a departure.
[[nodiscard]] Correction corriger(Serie& serie, Motsfaux& motsfaux,
                                  std::span<const std::string> reponses, std::int16_t tempsmot);

/// The right word is in this box, or in the place of its rack: its definition can be asked for.
[[nodiscard]] bool montrelemot(const Serie& serie, int boite, bool surletirage);

}  // namespace series
