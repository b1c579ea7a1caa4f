#pragma once

#include <filesystem>
#include <string>

#include "appels.h"

namespace common {

/// What stands before a file's name, as a path of the rules, to find it in the folder of the
/// executable: that folder and a backslash. Nothing where it is the working folder `courant`, or
/// where no file can be made: the working folder then serves.
[[nodiscard]] std::string dossierprogramme(Appels& appels, const std::filesystem::path& executable,
                                           const std::filesystem::path& courant);

}  // namespace common
