#pragma once

#include <filesystem>
#include <iosfwd>
#include <optional>
#include <string>

#include "lecture.h"
#include "seance.h"

namespace banc {

/// The settings shared by all scenarios of a run.
struct Reglages {
    std::optional<std::filesystem::path>
        dossier;                ///< working folder; none: a new one for each scenario
    std::filesystem::path jeu;  ///< where the pictures and the sound are
    Destination pilote = Destination::Modele;  ///< the driver of this run
    Fabrique programme;
    FabriquePilote fabriquepilote;
};

/// How many scenarios passed, and how many failed.
struct Bilan {
    int reussis = 0;
    int echoues = 0;
};

/// Runs a scenario and writes the answer to each order. A scenario meant for another driver is
/// skipped and not counted. `nom` appears in each error.
void jouer(std::istream& scenario, const std::string& nom, const Reglages& reglages,
           std::ostream& sortie, Bilan& bilan);

}  // namespace banc
