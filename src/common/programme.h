#pragma once

#include <filesystem>
#include <string>

#include "appels.h"

namespace common {

/// Files can be made in the folder. One is made there and deleted: asking for its mode would not
/// tell of a disk that is read-only.
[[nodiscard]] bool inscriptible(Appels& appels, const std::filesystem::path& dossier);

/// The prefix that turns a file's name into its path, as a path of the rules, in the folder of the
/// executable: that folder and a backslash. Empty, which means the working folder, if that is the
/// folder (`courant`) or if no file can be created there.
[[nodiscard]] std::string dossierprogramme(Appels& appels, const std::filesystem::path& executable,
                                           const std::filesystem::path& courant);

}  // namespace common
