#pragma once

// Replaces a whole set of files by a new one.

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>
#include <vector>

#include "fabrication.h"

namespace atelier {

/// Writes a file with this content.
using Ecrire = std::function<std::error_code(const std::filesystem::path&, std::string_view)>;

/// The `Ecrire` that writes to the disk.
[[nodiscard]] std::error_code ecrirefichier(const std::filesystem::path& chemin,
                                            std::string_view octets);

/// Returns once all that was written in a folder would survive a power cut.
using Abriter = std::function<std::error_code(const std::filesystem::path&)>;

/// The `Abriter` of the disk: one call for the whole file system of the folder.
[[nodiscard]] std::error_code abriter(const std::filesystem::path& dossier);

/// Writes all files under temporary names in `dossier`, then puts them in place. The folder of the
/// lists is replaced in one step, and keeps the files that the new one lacks (a player's own
/// lists); the other files are replaced one by one. Creates `dossier` if it is missing. Throws
/// `common::Faute`; nothing in `dossier` is changed unless all files are on the disk whole.
void installer(const std::vector<Fichier>& fichiers, const std::filesystem::path& dossier,
               const Ecrire& ecrire = ecrirefichier, const Abriter& mettrealabri = abriter);

}  // namespace atelier
