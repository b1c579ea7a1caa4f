#pragma once

// All that the carnet knows of a player's work, read in one pass over each file.

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "echelle.h"
#include "fichier.h"
#include "progres.h"
#include "travail.h"

namespace carnet {

struct Suivi {
    std::string util;
    Jour jour = 0;  ///< the day that due racks are counted to
    Echelle echelle;
    Travail travail;
    Bilans bilans;
    profiles::Lecturejournal lecture;
    std::string ennui;  ///< what could not be read, in French; empty: all was
};

/// Called with the number of lines read so far. Returns false to stop the reading.
using Lues = std::function<bool(std::size_t lignes)>;

/// Reads journal and results of a player. A file that is missing counts as empty. False if it was
/// stopped: `suivi` is then incomplete.
[[nodiscard]] bool liresuivi(common::Disque& disque, Suivi& suivi, const Lues& lues);

}  // namespace carnet
