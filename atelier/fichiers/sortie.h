#pragma once

// Replaces a whole set of files by a new one.

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>
#include <vector>

#include "appels.h"
#include "exclusion.h"
#include "fabrication.h"

namespace atelier {

/// Writes a file with this content, in the place of one that has the name.
using Ecrire = std::function<std::error_code(const std::filesystem::path&, std::string_view)>;

/// The `Ecrire` that writes to the disk.
[[nodiscard]] std::error_code ecrirefichier(const std::filesystem::path& chemin,
                                            std::string_view octets);

/// As `abriter` of `exclusion.h`.
using Abriter = std::function<std::error_code(const std::filesystem::path&)>;

/// Writes all files under temporary names in `dossier`, then puts them in place. The folder of the
/// lists is replaced in one step, and keeps the files that the new one lacks (a player's own
/// lists); the other files are replaced one by one. Where two folders cannot change places in one
/// step, a program that is killed between the two leaves the old lists to `common::remettrelistes`.
/// Creates `dossier` if it is missing. Throws `common::Faute`; nothing in `dossier` is changed
/// unless all files are on the disk whole.
void installer(const std::vector<Fichier>& fichiers, const std::filesystem::path& dossier,
               const Ecrire& ecrire = ecrirefichier, const Abriter& mettrealabri = abriter,
               common::Appels& appels = common::appelsdusysteme());

}  // namespace atelier
