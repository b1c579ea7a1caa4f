#pragma once

#include <filesystem>
#include <string>

#include "appels.h"

namespace common {

/// The prefix that turns a file's name into its path, as a path of the rules, in the folder of the
/// executable: that folder and a backslash. Empty, which means the working folder, if that is the
/// folder (`courant`) or if no file can be created there.
[[nodiscard]] std::string dossierprogramme(Appels& appels, const std::filesystem::path& executable,
                                           const std::filesystem::path& courant);

}  // namespace common
