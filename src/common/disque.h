#pragma once

// The disk, as the rules see it: files of bytes that are read from start to end, appended to by
// whole lines, or replaced in one step. Paths are written with a backslash, relative to the working
// folder.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace common {

/// How long a change waits for another program that has locked the file, in milliseconds.
inline constexpr std::int64_t attentelimite = 5000;

/// What this program refuses of a file, beside the system's own reasons.
enum class Ennui : std::uint8_t {
    PasUnFichier = 1,  ///< a pipe, a device...: not a regular file
    Retenu,            ///< another program has kept it locked for too long
    LigneTropLongue,   ///< a line is over its limit
    PartPleine,        ///< the disk has room, but no more for this player
    NomReserve,        ///< the name is that of a device of the system
    NomInterdit        ///< the name has a character or an end that the system refuses
};
[[nodiscard]] std::error_code make_error_code(Ennui ennui);

/// A file open for reading.
class Flux {
  public:
    Flux() = default;
    Flux(const Flux&) = delete;
    Flux& operator=(const Flux&) = delete;
    virtual ~Flux() = default;
    /// Reads the next bytes into `tampon`; `lus` is how many were read, 0 at the end of the file.
    [[nodiscard]] virtual std::error_code lire(std::span<char> tampon, std::size_t& lus) = 0;
};

/// A lock on a file: as long as it lives no other program changes the file.
class Verrou {
  public:
    Verrou() = default;
    Verrou(const Verrou&) = delete;
    Verrou& operator=(const Verrou&) = delete;
    virtual ~Verrou() = default;
};

/// The operations on a disk. Each operation reports failure and leaves no partial change.
class Disque {
  public:
    Disque() = default;
    Disque(const Disque&) = delete;
    Disque& operator=(const Disque&) = delete;
    virtual ~Disque() = default;

    /// Opens an existing regular file to be read from its start; `flux` is set on success only.
    /// Fails for a folder and for anything else that is no regular file (`Ennui::PasUnFichier`).
    [[nodiscard]] virtual std::error_code ouvrir(std::string_view chemin,
                                                 std::unique_ptr<Flux>& flux) = 0;
    /// Appends bytes in one step; creates the file if it is missing. If the file ends in the middle
    /// of a line, the appended bytes start a new one. Waits, up to a limit, for a program that has
    /// locked the file. Without bytes it creates a missing file, and tests whether an existing one
    /// can be written.
    [[nodiscard]] virtual std::error_code ajouter(std::string_view chemin,
                                                  std::string_view octets) = 0;
    /// Appends whole lines in one write, without waiting: not for a program that has locked the
    /// file (`Ennui::Retenu`), nor until the bytes would survive a power cut, which may leave half
    /// of them. Creates the file if it is missing; if it ends in the middle of a line, the appended
    /// bytes start a new one. On failure the file is unchanged, or empty if it was missing.
    [[nodiscard]] virtual std::error_code deposer(std::string_view chemin,
                                                  std::string_view octets) {
        return ajouter(chemin, octets);
    }
    /// Replaces the whole file in one step; creates it if it is missing.
    [[nodiscard]] virtual std::error_code remplacer(std::string_view chemin,
                                                    std::string_view octets) = 0;
    /// Creates a folder in an existing one. Succeeds if the folder is there already, fails if a
    /// file bears the name.
    [[nodiscard]] virtual std::error_code creerdossier(std::string_view chemin) = 0;
    /// Deletes a file, an empty folder, or a link, but not what the link leads to. Fails if there
    /// is none.
    [[nodiscard]] virtual std::error_code supprimer(std::string_view chemin) = 0;
    /// Renames a file or a folder, in one step.
    [[nodiscard]] virtual std::error_code renommer(std::string_view ancien,
                                                   std::string_view nouveau) = 0;
    /// Locks an existing file against other programs until `verrou` is destroyed. Waits, up to a
    /// limit (`Ennui::Retenu`), for a program that has locked it or is appending to it. Unlocked
    /// where the file system has no locks.
    [[nodiscard]] virtual std::error_code verrouiller(std::string_view /*chemin*/,
                                                      std::unique_ptr<Verrou>& verrou) {
        verrou = std::make_unique<Verrou>();
        return {};
    }
    [[nodiscard]] virtual bool existe(std::string_view chemin) = 0;
    [[nodiscard]] virtual bool estdossier(std::string_view chemin) = 0;
};

/// The system's reason for a failure, in French.
[[nodiscard]] std::string raison(const std::error_code& erreur);

}  // namespace common

template <>
struct std::is_error_code_enum<common::Ennui> : std::true_type {};
