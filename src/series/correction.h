#pragma once

// The outcome of a correction, as a value that the window shows and writes to disk; and the
// correction of a series of racks with one solution.

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

/// How an answer box was judged.
struct Boitecorrigee {
    int boite = 0;
    Etatreponse etat{};
    std::string texte;
    std::optional<std::string> infobulle;  ///< none: it keeps the one that it has
    bool barree = false;                   ///< the text is struck through
};

/// How the rack of a place was judged.
struct Tiragecorrige {
    int place = 0;
    std::optional<Etattirage> etat;        ///< none: it looks as it did
    std::optional<std::string> texte;      ///< none: it shows what it did
    std::optional<std::string> infobulle;  ///< none: it keeps the one that it has
};

/// A rack answered wrong, and its row in the format of the revision file.
struct Ratee {
    int place = 0;
    std::string ligne;
    friend bool operator==(const Ratee&, const Ratee&) = default;
};

/// A table of the run is full, so that what was missed of a rack cannot be counted. The racks after
/// it are not judged, and it does not go to the revision file itself.
struct Tablepleine {
    int place = 0;
    std::string_view quoi;   ///< the entries of the table, in French, in the plural
    std::size_t limite = 0;  ///< most entries
};

/// The outcome of a correction. A box or a rack that was judged twice is listed twice, in order.
struct Correction {
    std::vector<Boitecorrigee> boites;
    std::vector<Tiragecorrige> tirages;
    int nombre = 0;              ///< racks of the series
    int justes = 0;              ///< right ones
    std::optional<bool> atemps;  ///< seconds criterion: the last box judged was right in time
    std::vector<Ratee> ratees;   ///< for the revision file, if missed racks are added to it
    std::optional<Tablepleine> pleine;
};

/// The rows of `ratees` that the revision file lacks, each once. `presentes[i]`: the file has row
/// i. Marks the places of all of them as being in the file.
[[nodiscard]] std::vector<std::string> nouvellesrevisions(Serie& serie,
                                                          std::span<const Ratee> ratees,
                                                          const std::vector<bool>& presentes);

/// Rows answered wrong in a list (`motsfaux`), each once.
class Motsfaux {
  public:
    static constexpr std::size_t limite = 5001;

    [[nodiscard]] std::int64_t nombre() const { return static_cast<std::int64_t>(lignes_.size()); }
    /// Counts a row. False if there is no room: nothing is counted.
    [[nodiscard]] bool ajouter(const std::string& ligne);

  private:
    std::unordered_set<std::string> lignes_;
};

/// Judges a box under the seconds criterion; the result is that of `retenir`. `tempsmot` are the
/// seconds spent in the box.
std::optional<bool> jugerboite(Serie& serie, int boite, std::string_view reponse,
                               std::int16_t tempsmot);
/// Closes the series, judges its answers (`reponses`, by box) and adds the wrong rows to
/// `motsfaux`. Under the seconds criterion it also judges the last box as if the player had left
/// it.
[[nodiscard]] Correction corriger(Serie& serie, Motsfaux& motsfaux,
                                  std::span<const std::string> reponses, std::int16_t tempsmot);

/// Whether the right word shows in this box or, with `surletirage`, in its rack: the player can
/// then ask for its definition.
[[nodiscard]] bool montrelemot(const Serie& serie, int boite, bool surletirage);

}  // namespace series
