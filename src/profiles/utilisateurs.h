#pragma once

// `users.dat`: the names of the users of this machine, one a line; the last line is the user who
// logged in last. And the folder of a user. docs/formats.md describes both.

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"

namespace profiles {

inline constexpr std::string_view fichierusers = "users.dat";

/// The content of `users.dat`.
struct Utilisateurs {
    std::vector<std::string> noms;  ///< in the order of the file, empty lines left out
    std::string derniereligne;      ///< empty if the last line is
};

/// The users in the bytes of the file.
[[nodiscard]] Utilisateurs utilisateurs(std::string_view octets);

/// The lines of the file after `nom` has logged in: the names of the list without `nom`, in order
/// and with their repetitions, then `nom`. Case matters.
[[nodiscard]] std::vector<std::string> lignesusers(std::span<const std::string> liste,
                                                   const std::string& nom);

/// The names in `lus`, then those that `liste` has beyond them; a name that `liste` repeats more
/// often than `lus` is added as often as the difference.
[[nodiscard]] std::vector<std::string> reunir(std::vector<std::string> lus,
                                              std::span<const std::string> liste);

/// Rewrites `users.dat` in one step: the names that it now holds and those of the list, `nom` last.
/// Another program that logs in meanwhile waits. Throws `Faute`, and leaves the file as it is, if
/// the file exists and cannot be read.
void ecrireusers(common::Disque& disque, std::span<const std::string> liste,
                 const std::string& nom);

/// There is a folder with that name. The empty name means the working folder.
[[nodiscard]] bool dossierexiste(common::Disque& disque, std::string_view nom);

/// Creates the folder of a new user, with an empty `hist.dat` and the default `settings.dat`. The
/// folder gets its name only once it is complete. The lock on `users.dat` makes two programs do
/// this one after the other. Throws `Faute` if the system refuses the name.
void creerutilisateur(common::Disque& disque, const std::string& nom);

}  // namespace profiles
