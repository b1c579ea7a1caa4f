#pragma once

// A list of the player's own, in the folder of the lists.

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

#include "fichier.h"

namespace carnet {

/// The file of a list that the player names: blanks at the ends go, ".txt" comes if it is missing.
[[nodiscard]] std::string fichierdenom(std::string_view nom);

/// Why a list may not bear that file name, in French; the empty text: it may. Names of the
/// catalogue are refused, and those that another system or the trainer cannot write or would read
/// as something else.
[[nodiscard]] std::string refusdunom(std::string_view fichier);

/// The list is there already.
[[nodiscard]] bool existeliste(common::Disque& disque, std::string_view fichier);

/// Writes the rows in one step, in the place of a list of that name.
[[nodiscard]] std::error_code enregistrer(common::Disque& disque, std::string_view fichier,
                                          const std::vector<std::string>& rangees);

/// How to play it, in French.
[[nodiscard]] std::string commentjouer(std::string_view fichier);

}  // namespace carnet
