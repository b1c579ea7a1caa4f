#pragma once

// The players of a play folder, and what the carnet remembers of each.

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "fichier.h"

namespace carnet {

/// The players who have a folder, the one who logged in last first, then by name. None if there is
/// no list of players.
[[nodiscard]] std::vector<std::string> joueurs(common::Disque& disque);

/// `<user>\carnet.dat`: how many racks the player wants a day. `plafondordinaire` if the file is
/// missing or its number out of bounds.
[[nodiscard]] int lireplafonddejoueur(common::Disque& disque, std::string_view util);
[[nodiscard]] std::error_code ecrireplafonddejoueur(common::Disque& disque, std::string_view util,
                                                    int plafond);

}  // namespace carnet
