#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

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

/// Where new lists are made, beside the lists, and in it the old ones while they change places.
inline constexpr std::string_view dossiernouvelleslistes = ".nouvelles-listes";
inline constexpr std::string_view ancienneslistes = "listes-anciennes";

/// Puts the lists of a play folder back in their place if a making that was killed had set them
/// aside. Does nothing to a folder that has lists.
[[nodiscard]] std::error_code remettrelistes(Appels& appels, const std::filesystem::path& dossier);

}  // namespace common
