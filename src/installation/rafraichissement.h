#pragma once

// Brings the lists, pictures and sound that came with the program into the player's folder.

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "appels.h"
#include "disque.h"
#include "inventaire.h"

namespace installation {

/// In the player's folder: the version that it was brought up to; the checksum and name of every
/// file that was ever brought there; the new files that have yet to take their places.
inline constexpr std::string_view fichierversion = ".version";
inline constexpr std::string_view fichierfournis = ".fournis";
inline constexpr std::string_view dossierattente = ".nouveautes";
/// Locked while a program brings files; it is empty, and is never deleted.
inline constexpr std::string_view fichierverrou = ".verrou";

struct Bilan {
    std::size_t apportes = 0;         ///< number of files brought
    std::vector<std::string> gardes;  ///< paths of files that the player has changed, left alone
    bool dictionnaireperso =
        false;  ///< the player's own is in force: what is made of words was left alone
};

/// The version that the folder was brought up to; empty if it has none.
[[nodiscard]] std::string versionrecue(common::Disque& cible);

/// Brings the files of `inventaire` from `source` to `cible`, an existing folder. Replaces only
/// files that were brought before and are as they were then: what the player made or changed stays.
/// Where the player's own dictionary is in force (`listes\dictionnaire.dat` is not one that
/// was brought), all that is made of words stays.
///
/// In one step: until all new files are there under other names, with the sums that they should
/// have, nothing has changed; from then on the folder has no version until the last one has taken
/// its place, so that a program killed meanwhile goes on at the next start. If another
/// program is doing the same, waits for it, and does nothing if the folder then has the version of
/// `inventaire`. Throws `common::Faute`.
Bilan rafraichir(common::Appels& appels, const std::filesystem::path& source,
                 const std::filesystem::path& cible, const Inventaire& inventaire);

}  // namespace installation
