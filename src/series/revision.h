#pragma once

// The revision file of a user for a list: its missed rows, one on each line, in list format.
// docs/formats.md describes it.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace series {

/// Most rows of a revision file that a row can be removed from.
inline constexpr std::size_t limiterevision = 5001;

/// The path of the revision file of the running list `fich`: `fich` itself in a revision run (by
/// `toue`), otherwise `common::cheminrevision`.
[[nodiscard]] std::string nomfichierderevision(std::string_view fich, std::string_view toue,
                                               std::string_view util);

/// Tells for each row whether the file has it. Throws `Faute` if the file cannot be read.
[[nodiscard]] std::vector<bool> presentsenrevision(common::Disque& disque, std::string_view chemin,
                                                   std::span<const std::string> lignes);

/// The same, for rows that are to be added: the report of a failure names them.
[[nodiscard]] std::vector<bool> ajoutsdejapresents(common::Disque& disque, std::string_view chemin,
                                                   std::span<const std::string> lignes);

/// Appends rows in one write. Throws `Faute`, whose report names the rows.
void ajouterenrevision(common::Disque& disque, std::string_view chemin,
                       std::span<const std::string> lignes);

/// Removes a row from the file, each time it is there. Throws `Faute` if the file cannot be read or
/// written, or has more than `limiterevision` rows.
void retirerderevision(common::Disque& disque, std::string_view chemin, std::string_view ligne);

}  // namespace series
