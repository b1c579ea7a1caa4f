#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

#include "lecture.h"
#include "seance.h"

namespace banc {

/// What the scenarios of a run have in common.
struct Reglages {
    std::optional<std::filesystem::path> dossier;  ///< working folder; none: a new one each
    std::filesystem::path jeu;                     ///< where the pictures and the sound are
    Destination pilote = Destination::Modele;      ///< the driver of this run
    Fabrique programme;
    FabriquePilote fabriquepilote;
};

/// How many scenarios went through, and how many met an error.
struct Bilan {
    int reussis = 0;
    int echoues = 0;
};

/// Runs a scenario and writes the answer to each order. One that is meant for another driver is
/// left out and counts for nothing. `nom` is told with each error.
void jouer(std::istream& scenario, const std::string& nom, const Reglages& reglages,
           std::ostream& sortie, Bilan& bilan);

}  // namespace banc
