#pragma once

// How a file takes the place of another on Windows.

#include <memory>
#include <string>
#include <system_error>

#include "appels.h"

namespace common {

/// A handle of the system, closed on destruction.
class Poigneewindows {
  public:
    explicit Poigneewindows(void* valeur) : valeur_(valeur) {}
    Poigneewindows(const Poigneewindows&) = delete;
    Poigneewindows& operator=(const Poigneewindows&) = delete;
    ~Poigneewindows() { fermer(); }
    void fermer();
    [[nodiscard]] void* valeur() const { return valeur_; }
    [[nodiscard]] bool ouverte() const;

  private:
    void* valeur_;
};

/// The name of a file for all programs of this machine, whatever path it was opened by; empty if
/// its folder cannot be looked at. The argument as of `cheminlarge`.
[[nodiscard]] std::wstring cledefichier(const std::wstring& chemin);

/// As long as one lives, the file of that key counts as locked on this machine, even while nobody
/// has it open. It dies with its program.
class Garde {
  public:
    explicit Garde(const std::wstring& cle);
    /// One lives, in this program or in another.
    [[nodiscard]] static bool tenue(const std::wstring& cle);

  private:
    Poigneewindows objet_;
};

/// An open file: what `Poignee` means on Windows. All that are open are known, so that a file that
/// this program has locked can be replaced by it.
class Ouvert {
  public:
    /// `chemin` as of `cheminlarge`.
    Ouvert(void* fichier, std::wstring chemin, Ouverture mode);
    Ouvert(const Ouvert&) = delete;
    Ouvert& operator=(const Ouvert&) = delete;
    ~Ouvert();

    [[nodiscard]] void* fichier() const { return fichier_.valeur(); }
    /// Every write goes to the end.
    [[nodiscard]] bool enfin() const { return mode_ == Ouverture::Ajout; }
    /// Locks the file, until this is destroyed; `pris` is false if it is locked already.
    [[nodiscard]] std::error_code verrouiller(bool& pris);
    /// Closes the file if it was opened to be changed, as the one of that key; a lock stays.
    void ceder(const std::wstring& cle);

  private:
    void deverrouiller();

    Poigneewindows fichier_;
    std::wstring chemin_;
    std::wstring cle_;  ///< of a file that is locked
    Ouverture mode_;
    bool verrouille_ = false;
    std::unique_ptr<Garde> garde_;
};

/// Renames a file or a folder, replacing the file that has the new name. Both paths as of
/// `cheminlarge`. Waits, up to `attentelimite`, for programs that have one of them open:
/// `Ennui::Retenu`.
[[nodiscard]] std::error_code remplacer(const std::wstring& ancien, const std::wstring& nouveau);

}  // namespace common
