#pragma once

// `users.dat`, the names of those who use the program on this machine, one a line, the last to
// log in being the last line; and the folder of a user. Described in docs/formats.md.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace profiles {

inline constexpr std::string_view fichierusers = "users.dat";

/// What `users.dat` tells.
struct Utilisateurs {
    std::vector<std::string> noms;  ///< in the order of the file, empty lines left out
    std::string derniereligne;      ///< empty if the last line is
};

/// The users in the bytes of the file.
[[nodiscard]] Utilisateurs utilisateurs(std::string_view octets);

/// The lines of the file once `nom` has logged in: the names of the list without `nom`, as often
/// and in the order in which they stand, then `nom`. Case counts.
[[nodiscard]] std::vector<std::string> lignesusers(std::span<const std::string> liste,
                                                   const std::string& nom);

/// The names that were read, then those of the list beyond them, each as often as it stands more
/// often there.
[[nodiscard]] std::vector<std::string> reunir(std::vector<std::string> lus,
                                              std::span<const std::string> liste);

/// Rewrites `users.dat` in one step, `nom` last: what it holds by now and the list. Other programs
/// that log in wait. Throws `Faute`, and leaves the file, if it is there and cannot be read.
void ecrireusers(common::Disque& disque, std::span<const std::string> liste,
                 const std::string& nom);

/// There is a folder of that name. The empty name is the working folder.
[[nodiscard]] bool dossierexiste(common::Disque& disque, std::string_view nom);

/// Makes the folder of a new user, with an empty `hist.dat` and the default `settings.dat`. The
/// folder takes its name only when it is whole. Two programs do it one after the other, by the lock
/// of `users.dat`. Throws `Faute` if the system refuses the name.
void creerutilisateur(common::Disque& disque, const std::string& nom);

}  // namespace profiles
