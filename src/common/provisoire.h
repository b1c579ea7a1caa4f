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

/// A temporary file, `<name>.<number>.tmp` beside the file `<name>` that it is to replace, locked
/// as long as it is written. Destroyed before it is in place, it deletes what it has written.
class Provisoire {
  public:
    explicit Provisoire(Appels& appels) : appels_(appels), fichier_(appels) {}
    Provisoire(const Provisoire&) = delete;
    Provisoire& operator=(const Provisoire&) = delete;
    ~Provisoire() { static_cast<void>(retirer()); }

    /// Creates it, empty, to replace `cible`, which may be missing and is the path of no link. It
    /// gets the permissions of the file that it replaces. Fails if `cible` is anything but a
    /// regular file. Removes temporary files of `cible` that programs which are no longer running
    /// have left.
    [[nodiscard]] std::error_code creer(const std::filesystem::path& cible);
    /// Appends bytes.
    [[nodiscard]] std::error_code remplir(std::string_view octets);
    /// Replaces the file, once the bytes would survive a power cut.
    [[nodiscard]] std::error_code placer();
    /// The same for a file that has to be missing: `file_exists` if it is not.
    [[nodiscard]] std::error_code placerneuf();
    /// Deletes it before it is in place.
    [[nodiscard]] std::error_code retirer();

  private:
    [[nodiscard]] std::error_code ouvrir();
    [[nodiscard]] std::error_code heriter(const Etat& ancien);
    [[nodiscard]] std::error_code nommer();
    void achever();

    Appels& appels_;
    Descripteur fichier_;
    std::filesystem::path cible_;
    std::filesystem::path chemin_;  ///< empty: there is nothing to delete
};

/// Makes `octets` the whole content of a file. An existing file is replaced and its mode kept; with
/// `neuf` it is an error, `file_exists`. On failure nothing has changed.
[[nodiscard]] std::error_code poser(Appels& appels, const std::filesystem::path& cible,
                                    std::string_view octets, bool neuf = false);

}  // namespace common
