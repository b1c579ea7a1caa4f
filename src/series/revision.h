#pragma once

// The revision file of a user for a list: one row a line, as in the list.
// Format: docs/formats.md.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace series {

/// Most rows of a revision file that `retirerderevision` can go through.
inline constexpr std::size_t limiterevision = 5001;

/// Path of the revision file of a running list: the list itself in a revision run (`toue` "R"),
/// otherwise "rev-" and the list's name in the user's folder.
[[nodiscard]] std::string nomfichierderevision(std::string_view fich, std::string_view toue,
                                               std::string_view util);

/// For each row text whether an item of the file equals it. Throws `Faute` if it cannot be read.
[[nodiscard]] std::vector<bool> presentsenrevision(common::Disque& disque, std::string_view chemin,
                                                   std::span<const std::string> lignes);

/// The same before these rows are added: the report of a failure says them.
[[nodiscard]] std::vector<bool> ajoutsdejapresents(common::Disque& disque, std::string_view chemin,
                                                   std::span<const std::string> lignes);

/// Appends rows, in one write. Throws `Faute`, whose report says the rows.
void ajouterenrevision(common::Disque& disque, std::string_view chemin,
                       std::span<const std::string> lignes);

/// Rewrites the file without the items equal to a row text. Throws `Faute`, over the limit too.
void retirerderevision(common::Disque& disque, std::string_view chemin, std::string_view ligne);

}  // namespace series
