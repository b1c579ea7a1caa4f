#pragma once

// Making all lists anew, of a dictionary of the player's own or of the free lexicon.

#include <array>
#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "chantier.h"
#include "envigueur.h"
#include "fichier.h"
#include "nouveautes.h"
#include "sortie.h"
#include "vocabulaire.h"

namespace carnet {

/// Is told how far the work is, in thousandths, and what it is at; false stops it.
using Avance = std::function<bool(int millemes, std::string_view quoi)>;

/// What the lists are made of.
struct Commande {
    std::optional<atelier::Dictionnaire> dictionnaire;  ///< none: the whole lexicon
    atelier::Nouveautes nouveautes;
    recherche::Envigueur envigueur;  ///< to be remembered; the number of words is counted
};

/// Editions of a dictionary that a player may own: the marked ones and the one before them.
inline constexpr std::size_t nombrededitions = atelier::editions.size() + 1;
/// Their files, the oldest first; empty where the player has none.
using Fichiersdeditions = std::array<std::string, nombrededitions>;

/// Compares each edition with the one before it, where both are given, into `commande`. Throws
/// `common::Faute` for a file that holds no words.
void comparereditions(common::Disque& disque, const Fichiersdeditions& fichiers,
                      Commande& commande);

/// Makes the lists and puts them in the place of those of `dossier`. False if it was stopped:
/// nothing has changed then. Throws `common::Faute`; nothing has changed then either.
[[nodiscard]] bool fabriquer(const atelier::Chemins& chemins, const Commande& commande,
                             const std::filesystem::path& dossier, const Avance& avance,
                             const atelier::Ecrire& ecrire = atelier::ecrirefichier);

}  // namespace carnet
