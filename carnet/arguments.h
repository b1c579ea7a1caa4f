#pragma once

// The command line of orvane-carnet.

#include <filesystem>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>

#include "chantier.h"
#include "echelle.h"

namespace carnet {

enum class Action { fenetre, echeances, progres, aide, version };

struct Options {
    Action action = Action::fenetre;
    std::filesystem::path dossier;  ///< the play folder; empty: the working folder
    std::string util;               ///< the player whose racks or results are asked for
    std::optional<Jour> jour;       ///< of the racks that are due; none: today
    std::optional<int> plafond;     ///< most racks; none: all
    atelier::Chemins chemins = atelier::cheminsdorigine();
};

/// A wrong use of the command line, explained in French.
class MauvaisUsage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name. Throws `MauvaisUsage`.
[[nodiscard]] Options lireoptions(std::span<const std::string> arguments);

/// The help text of the program, in French.
[[nodiscard]] std::string aide();

}  // namespace carnet
