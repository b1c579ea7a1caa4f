#pragma once

// Where an installed program has its files, and where those of its player are.

#include <filesystem>
#include <string>
#include <vector>

#include "appels.h"

namespace installation {

/// What the system tells of a program that starts.
struct Environs {
    std::filesystem::path programme;  ///< the folder of the executable
    std::filesystem::path donnees;    ///< the player's folder of this program; empty if none
    std::string sansdonnees{};        ///< why there is none, as a report says it
};

/// The environs of a program whose executable stands in `programme`. One source a system.
[[nodiscard]] Environs environs(const std::filesystem::path& programme);

/// `$XDG_DATA_HOME/orvane`, or `.local/share/orvane` in the home; empty if neither is known. The
/// arguments are the two variables, null if not set; a relative path counts as not set.
[[nodiscard]] std::filesystem::path donneesxdg(const char* donnees, const char* maison);

/// The play folder of a program, and the folder that it is filled from.
struct Lieu {
    std::filesystem::path dossier;  ///< empty: the folder in which the program was started
    std::filesystem::path
        fournis;  ///< what came with an installed program; empty if it is not installed
    bool operator==(const Lieu&) const = default;
};

/// The folder of the executable when that holds `listes` and can be written (on a USB stick,
/// or unpacked from an archive). Otherwise, for a program that has an inventory beside it, in
/// `../share/games/orvane` or in `fournis`, the player's folder. Otherwise the one in which it was
/// started. Throws `common::Faute` if the player's folder is wanted and unknown. Lists that a
/// killed making had set aside are put back first.
[[nodiscard]] Lieu choisir(common::Appels& appels, const Environs& environs);

}  // namespace installation
