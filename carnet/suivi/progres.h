#pragma once

// The results of a player's lists, from `hist.dat`.

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "calendrier.h"
#include "fichier.h"
#include "partage.h"

namespace carnet {

/// Modes of a run, as letters.
inline constexpr char modetout = common::modes::tout.front();
inline constexpr char modeechantillon = common::modes::echantillon.front();
inline constexpr char moderevision = common::modes::revision.front();
inline constexpr char modepartie = ' ';

/// A run of a list.
struct Passage {
    Jour jour = 0;
    double pourcent = 0;
    char mode = modepartie;
};

/// What a player has done with a list, or with a part of one.
struct Bilan {
    std::size_t passages = 0;
    std::string dernier;          ///< percent of the last run, as its record has it
    std::string meilleur;         ///< the best percent
    std::string derniereon;       ///< yyyy-mm-dd of the last run
    std::vector<Passage> points;  ///< the runs on a day of the calendar, in the order of the file
};

/// By the list's name, in UTF-8.
using Bilans = std::map<std::string, Bilan, std::less<>>;

/// Takes a record, as bytes of Windows-1252; false for one without date, percent or name.
bool prendrerecord(std::string_view record, Bilans& bilans);

/// All records of a user; none if the file is missing. Throws `common::Faute` if it cannot be read.
[[nodiscard]] Bilans lirebilans(common::Disque& disque, std::string_view util);

}  // namespace carnet
