#pragma once

// Whole files: reading them, appending lines to them, rewriting them, and the reports of what fails
// on the way.

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

#include "disque.h"
#include "lignes.h"

namespace common {

/// The bytes of a text file, for a caller that can do without them: on failure `contenu` is what
/// could be read, and ends before a line that is too long.
[[nodiscard]] std::error_code essayerliretexte(Disque& disque, std::string_view chemin,
                                               std::string& contenu,
                                               std::size_t limite = limiteligne);
/// The bytes of a text file. Throws `Faute`, also for a line that is too long.
[[nodiscard]] std::string liretexte(Disque& disque, std::string_view chemin,
                                    std::string_view action, std::size_t limite = limiteligne);
/// The words for a line that is over its limit, in French.
[[nodiscard]] std::string lignetroplongue(std::size_t limite);
/// The bytes of a file of any kind, whose lines have no limit, for a caller that can do without
/// them: on failure `contenu` is what could be read.
[[nodiscard]] std::error_code essayerlire(Disque& disque, std::string_view chemin,
                                          std::string& contenu);
/// The bytes of a file of any kind. Throws `Faute`.
[[nodiscard]] std::string lirefichier(Disque& disque, std::string_view chemin,
                                      std::string_view action);
/// Appends `lignes` (UTF-8), each with CR LF, in one step. Throws `Faute`, also for a line that is
/// too long to be read back.
void ajouterlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                   std::string_view action, std::size_t limite = limiteligne);
/// Replaces the file by `lignes` (UTF-8), each with CR LF. Throws `Faute`, also for a line that is
/// too long to be read back.
void remplacerlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                     std::string_view action, std::size_t limite = limiteligne);
/// Creates an empty file if it is missing; leaves an existing one as it is. Throws `Faute`.
void toucher(Disque& disque, std::string_view chemin, std::string_view action);

/// The report of a failed file operation, in French.
[[nodiscard]] std::string rapportfichier(std::string_view action, std::string_view chemin,
                                         std::string_view ennui);
/// The report of a fault at a line of a file, in French.
[[nodiscard]] std::string rapportligne(std::string_view action, std::string_view chemin,
                                       std::size_t ligne, std::string_view ennui);

}  // namespace common
