#pragma once

// How the real disk holds and replaces files, in the calls of the system.

#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>

#include "appels.h"

namespace common {

/// An open file that closes itself, and with that gives up its lock.
class Descripteur {
  public:
    explicit Descripteur(Appels& appels) : appels_(appels) {}
    Descripteur(const Descripteur&) = delete;
    Descripteur& operator=(const Descripteur&) = delete;
    ~Descripteur() { fermer(); }

    /// Opens, closing what was open. An error if that is no regular file.
    [[nodiscard]] std::error_code ouvrir(const std::filesystem::path& chemin, Ouverture mode);
    void fermer();
    [[nodiscard]] Poignee poignee() const { return poignee_; }
    /// The open file is the one that bears the name by now.
    [[nodiscard]] bool nomme(const std::filesystem::path& chemin) const;

  private:
    Appels& appels_;
    Poignee poignee_ = sanspoignee;
};

/// Where the bytes of a file lie, at the end of its links.
[[nodiscard]] std::error_code destination(Appels& appels, std::filesystem::path& chemin);

/// Opens a file, and keeps the other programs from it until it is closed. Waits for one that has
/// it, up to the limit: `Ennui::Retenu`.
[[nodiscard]] std::error_code tenir(Appels& appels, const std::filesystem::path& chemin,
                                    Descripteur& tenu);

/// Makes these bytes the file: one that exists is replaced and keeps its mode, unless `neuf`, which
/// answers `file_exists`. On failure nothing has changed. Takes away what programs that are gone
/// have left of this file.
[[nodiscard]] std::error_code poser(Appels& appels, const std::filesystem::path& cible,
                                    std::string_view octets, bool neuf = false);

}  // namespace common
