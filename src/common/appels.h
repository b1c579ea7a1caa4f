#pragma once

// The system calls that the real disk makes, one function each, so that a test can count them, make
// one fail, or end the program at any of them. `disquereel_posix.cpp` and
// `disquereel_windows.cpp` have the real ones.

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace common {

/// The system's handle of an open file.
using Poignee = std::intptr_t;
inline constexpr Poignee sanspoignee = -1;

/// How a file is opened. Opening never blocks, even where the name is that of a pipe.
enum class Ouverture : std::uint8_t {
    Lecture,       ///< an existing file, to read
    Modification,  ///< an existing file, to read and write
    Ajout,         ///< an existing file, to read, and to write at what is its end by then
    Creation       ///< a new file, to read and write; `file_exists` if the name is taken
};

enum class Genre : std::uint8_t { Fichier, Dossier, Autre };

/// What the system knows of a file. Two names with equal `disque` and `numero` lead to one file.
struct Etat {
    Genre genre = Genre::Autre;
    std::uint64_t disque = 0;
    std::uint64_t numero = 0;
    std::uint64_t taille = 0;  ///< bytes
    std::uint32_t droits = 0;  ///< permission bits, as POSIX has them; always the same on Windows
};

class Appels {
  public:
    Appels() = default;
    Appels(const Appels&) = delete;
    Appels& operator=(const Appels&) = delete;
    virtual ~Appels() = default;

    using Chemin = std::filesystem::path;

    /// `operation_would_block` while another program keeps all others from the file. Here as
    /// wherever a path is given, `Ennui::NomReserve` or `Ennui::NomInterdit` if the system has no
    /// files of such a name.
    [[nodiscard]] virtual std::error_code ouvrir(const Chemin& chemin, Ouverture mode,
                                                 Poignee& poignee) = 0;
    virtual void fermer(Poignee poignee) = 0;
    /// Reads from where the last reading stopped; `lus` is 0 at the end.
    [[nodiscard]] virtual std::error_code lire(Poignee poignee, std::span<char> tampon,
                                               std::size_t& lus) = 0;
    /// Writes bytes from the start of `octets`; `ecrits` is how many, which may be fewer than all.
    [[nodiscard]] virtual std::error_code ecrire(Poignee poignee, std::string_view octets,
                                                 std::size_t& ecrits) = 0;
    /// Sets the byte, from 0, at which the next reading begins.
    [[nodiscard]] virtual std::error_code placer(Poignee poignee, std::uint64_t place) = 0;
    /// Keeps only the first `taille` bytes of the file.
    [[nodiscard]] virtual std::error_code couper(Poignee poignee, std::uint64_t taille) = 0;
    /// Returns once the bytes of the file would survive a power cut.
    [[nodiscard]] virtual std::error_code synchroniser(Poignee poignee) = 0;
    /// Returns once the names in the folder would survive a power cut, unless each change of a name
    /// has waited for that.
    [[nodiscard]] virtual std::error_code synchroniserdossier(const Chemin& dossier) = 0;
    [[nodiscard]] virtual std::error_code etat(Poignee poignee, Etat& etat) = 0;
    /// Follows links.
    [[nodiscard]] virtual std::error_code etat(const Chemin& chemin, Etat& etat) = 0;
    /// The target of a symbolic link, as written in it; empty for any other file and for none.
    [[nodiscard]] virtual std::error_code lien(const Chemin& chemin, Chemin& cible) = 0;
    /// Gives a new file the owner and the group of an existing one, or else the group alone.
    [[nodiscard]] virtual std::error_code leguer(const Chemin& modele, Poignee neuf) = 0;
    /// Sets the permission bits of an open file.
    [[nodiscard]] virtual std::error_code changerdroits(Poignee poignee, std::uint32_t droits) = 0;
    /// Renames a file or folder, replacing the file that has the new name, whoever is reading that
    /// one. May wait for those up to `attentelimite`, and then fails with `Ennui::Retenu`.
    [[nodiscard]] virtual std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) = 0;
    /// Gives each of two folders the name of the other, in one step. An error where the system or
    /// the disk cannot.
    [[nodiscard]] virtual std::error_code echanger(const Chemin& un, const Chemin& autre) = 0;
    /// Renames a file; `file_exists` if something has the new name. `invalid_argument` or
    /// `function_not_supported` on a disk that cannot refuse a name that is taken.
    [[nodiscard]] virtual std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) = 0;
    /// Gives a file a second name; `file_exists` if something has it.
    [[nodiscard]] virtual std::error_code doubler(const Chemin& ancien, const Chemin& nouveau) = 0;
    /// Deletes a file or an empty folder.
    [[nodiscard]] virtual std::error_code supprimer(const Chemin& chemin) = 0;
    [[nodiscard]] virtual std::error_code creerdossier(const Chemin& chemin) = 0;
    /// The names in a folder.
    [[nodiscard]] virtual std::error_code lister(const Chemin& dossier,
                                                 std::vector<Chemin>& noms) = 0;
    /// Locks a file that is open for writing, until it is closed. `pris` is false if another
    /// program has locked it. An error means that this disk has no locks.
    [[nodiscard]] virtual std::error_code verrouiller(Poignee poignee, bool& pris) = 0;

    /// A number that no other program running on this machine has.
    [[nodiscard]] virtual std::int64_t programme() = 0;
    /// Milliseconds on a clock that never goes back.
    [[nodiscard]] virtual std::int64_t maintenant() = 0;
    virtual void attendre(std::int64_t millisecondes) = 0;
};

/// The calls of the system that the program runs on.
[[nodiscard]] Appels& appelsdusysteme();

}  // namespace common
