#pragma once

// What the pictures of the carnet show, as tables of French texts: for the eye, for the screen
// reader and for a file.

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <vector>

#include "echelle.h"
#include "progres.h"
#include "travail.h"

namespace carnet {

struct Tableau {
    std::vector<std::string> titres;
    std::vector<std::vector<std::string>> rangees;  ///< as many cells as titles
};

/// The table as a file for a spreadsheet: UTF-8 with a byte order mark, ";" between cells, CR LF. A
/// cell that a spreadsheet would read as a formula gets an apostrophe in front.
[[nodiscard]] std::string encsv(const Tableau& tableau);

/// "12,5 %"
[[nodiscard]] std::string pourcentage(double pourcent);

/// Days with racks from `debut` to before `fin`: date, judged, found, share.
[[nodiscard]] Tableau tableaujournees(const std::map<Jour, Journee>& journees, Jour debut,
                                      Jour fin);
/// Racks by day from `jour` on, as `Echelle::prevoir` gives them.
[[nodiscard]] Tableau tableauprevision(std::span<const std::size_t> nombres, Jour jour);
/// Racks by step.
[[nodiscard]] Tableau tableaupaliers(std::span<const std::size_t> nombres);
/// Runs, last, best, date of the last and days since, by list.
[[nodiscard]] Tableau tableaulistes(const Bilans& bilans, Jour jour);
/// The runs of a list, the latest first.
[[nodiscard]] Tableau tableaupassages(std::span<const Passage> points);
/// Hardest racks: rack, solutions, misses, share found, last seen, list.
[[nodiscard]] Tableau tableaudurs(std::span<const Tiragedur> durs);

/// Name of a mode of `Passage`.
[[nodiscard]] std::string nomdemode(char mode);

}  // namespace carnet
