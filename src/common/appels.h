#pragma once

// The calls by which the real disk reaches the system, one function a call, so that a test can
// number them, refuse them or end the program at any of them. `disquereel_posix.cpp` has the real
// ones; a system of another kind gets a source of its own beside it.

#include <cstdint>
#include <filesystem>
#include <span>
#include <string_view>
#include <system_error>
#include <vector>

namespace common {

/// An open file, as the system knows it.
using Poignee = std::intptr_t;
inline constexpr Poignee sanspoignee = -1;

/// How a file is opened. Opening waits for nobody, whatever bears the name.
enum class Ouverture : std::uint8_t {
    Lecture,       ///< one that exists, to read
    Modification,  ///< one that exists, to read and write
    Ajout,    ///< one that exists, to read, and to write at its end whatever its end is by then
    Creation  ///< a new one, to read and write; `file_exists` if the name is taken
};

enum class Genre : std::uint8_t { Fichier, Dossier, Autre };

/// What the system tells of a file. Two files are the same if `disque` and `numero` are.
struct Etat {
    Genre genre = Genre::Autre;
    std::uint64_t disque = 0;
    std::uint64_t numero = 0;
    std::uint64_t taille = 0;  ///< bytes
};

class Appels {
  public:
    Appels() = default;
    Appels(const Appels&) = delete;
    Appels& operator=(const Appels&) = delete;
    virtual ~Appels() = default;

    using Chemin = std::filesystem::path;

    [[nodiscard]] virtual std::error_code ouvrir(const Chemin& chemin, Ouverture mode,
                                                 Poignee& poignee) = 0;
    virtual void fermer(Poignee poignee) = 0;
    /// Reads from where the last reading stopped; `lus` is 0 at the end.
    [[nodiscard]] virtual std::error_code lire(Poignee poignee, std::span<char> tampon,
                                               std::size_t& lus) = 0;
    /// Writes the first bytes; `ecrits` says how many, which may be fewer than all.
    [[nodiscard]] virtual std::error_code ecrire(Poignee poignee, std::string_view octets,
                                                 std::size_t& ecrits) = 0;
    /// The place, from 0, where the next reading begins.
    [[nodiscard]] virtual std::error_code placer(Poignee poignee, std::uint64_t place) = 0;
    /// Keeps only so many bytes of the file.
    [[nodiscard]] virtual std::error_code couper(Poignee poignee, std::uint64_t taille) = 0;
    /// Returns when the bytes of the file would outlive a power cut.
    [[nodiscard]] virtual std::error_code synchroniser(Poignee poignee) = 0;
    /// Returns when the names in the folder would.
    [[nodiscard]] virtual std::error_code synchroniserdossier(const Chemin& dossier) = 0;
    [[nodiscard]] virtual std::error_code etat(Poignee poignee, Etat& etat) = 0;
    /// Of what the name leads to, over links.
    [[nodiscard]] virtual std::error_code etat(const Chemin& chemin, Etat& etat) = 0;
    /// Where a symbolic link leads, as it stands there; empty for any other file or none.
    [[nodiscard]] virtual std::error_code lien(const Chemin& chemin, Chemin& cible) = 0;
    /// Gives a new file the owner, as far as may be, and the mode of one that exists.
    [[nodiscard]] virtual std::error_code copierdroits(const Chemin& modele, Poignee neuf) = 0;
    /// Gives a file or folder another name, over what bears it.
    [[nodiscard]] virtual std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) = 0;
    /// Gives a file a name that nothing bears; `file_exists` if something does.
    [[nodiscard]] virtual std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) = 0;
    /// Deletes a file or an empty folder.
    [[nodiscard]] virtual std::error_code supprimer(const Chemin& chemin) = 0;
    [[nodiscard]] virtual std::error_code creerdossier(const Chemin& chemin) = 0;
    /// The names in a folder.
    [[nodiscard]] virtual std::error_code lister(const Chemin& dossier,
                                                 std::vector<Chemin>& noms) = 0;
    /// Locks a file that is open to be written, until it is closed. `pris` is false if another
    /// program has it. An error: this disk has no locks.
    [[nodiscard]] virtual std::error_code verrouiller(Poignee poignee, bool& pris) = 0;

    /// A number that no other program of this machine has now.
    [[nodiscard]] virtual std::int64_t programme() = 0;
    /// Milliseconds of a clock that never goes back.
    [[nodiscard]] virtual std::int64_t maintenant() = 0;
    virtual void attendre(std::int64_t millisecondes) = 0;
};

/// The calls of the system that the program runs on.
[[nodiscard]] Appels& appelsdusysteme();

}  // namespace common
