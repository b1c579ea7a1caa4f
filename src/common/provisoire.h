#pragma once

// How the real disk locks and replaces files by system calls.

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "appels.h"

namespace common {

/// An open file, closed on destruction; closing it releases its lock.
class Descripteur {
  public:
    explicit Descripteur(Appels& appels) : appels_(appels) {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    ~Descripteur() { fermer(); }

    /// Opens a file, after closing the one that was open. Fails for anything but a regular file.
    [[nodiscard]] std::error_code ouvrir(const std::filesystem::path& chemin, Ouverture mode);
    void fermer();
    [[nodiscard]] Poignee poignee() const { return poignee_; }
    /// The name still leads to the open file.
    [[nodiscard]] bool nomme(const std::filesystem::path& chemin) const;

  private:
    Appels& appels_;
    Poignee poignee_ = sanspoignee;
};

/// Follows the links of a path: `chemin` becomes the path of the file itself.
[[nodiscard]] std::error_code destination(Appels& appels, std::filesystem::path& chemin);

/// Opens an existing file and locks it until it is closed. Waits for a program that has locked it,
/// up to `attentelimite`: `Ennui::Retenu`. Unlocked where the file system has no locks.
[[nodiscard]] std::error_code tenir(Appels& appels, const std::filesystem::path& chemin,
                                    Descripteur& tenu);

/// Makes `octets` the whole content of a file. An existing file is replaced and its mode kept; with
/// `neuf` it is an error, `file_exists`. On failure nothing has changed. Removes temporary files
/// that programs which are no longer running have left of this file.
[[nodiscard]] std::error_code poser(Appels& appels, const std::filesystem::path& cible,
                                    std::string_view octets, bool neuf = false);

}  // namespace common
