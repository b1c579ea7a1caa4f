#pragma once

// A list of the player's own, in the folder of the lists.

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "fichier.h"

namespace carnet {

/// The file of a list that the player names: without blanks at its ends, and with ".txt" added if
/// it is missing.
[[nodiscard]] std::string fichierdenom(std::string_view nom);

/// Why a list may not have that file name, in French; empty if it may. Refused are the names of the
/// catalogue, and those that another system or the trainer cannot write or would take for something
/// else.
[[nodiscard]] std::string refusdunom(std::string_view fichier);

/// A list of that name exists.
[[nodiscard]] bool existeliste(common::Disque& disque, std::string_view fichier);

/// Writes the rows in one step, replacing a list of that name.
[[nodiscard]] std::error_code enregistrer(common::Disque& disque, std::string_view fichier,
                                          const std::vector<std::string>& rangees);

/// How to play it, in French.
[[nodiscard]] std::string commentjouer(std::string_view fichier);

}  // namespace carnet
