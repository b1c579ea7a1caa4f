#pragma once

// Putting a whole set of files in the place of the old one.

#include <filesystem>
#include <functional>
#include <string_view>
#include <system_error>
#include <vector>

#include "fabrication.h"

namespace atelier {

/// Makes a file of these bytes.
using Ecrire = std::function<std::error_code(const std::filesystem::path&, std::string_view)>;

/// The real one.
[[nodiscard]] std::error_code ecrirefichier(const std::filesystem::path& chemin,
                                            std::string_view octets);

/// Writes the files beside their place, then puts them there: the folder of the lists as a whole in
/// one step, with the files of the old folder that the new one lacks (a player's own lists); every
/// other file by itself. Makes `dossier` if it is missing. Throws `common::Faute`; what was in
/// `dossier` is untouched unless all files could be written.
void installer(const std::vector<Fichier>& fichiers, const std::filesystem::path& dossier,
               const Ecrire& ecrire = ecrirefichier);

}  // namespace atelier
