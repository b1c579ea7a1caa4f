#pragma once

// Remakes all lists, from a dictionary of the player's own or from the free lexicon.

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

/// Called with how much of the work is done, in thousandths, and with the present step, in French.
/// Returns false to stop the work.
using Avance = std::function<bool(int millemes, std::string_view quoi)>;

/// What the lists are made from.
struct Commande {
    std::optional<atelier::Dictionnaire> dictionnaire;  ///< none: the whole lexicon
    atelier::Nouveautes nouveautes;
    recherche::Envigueur envigueur;  ///< to be recorded; its number of words is filled in
};

/// Editions of a dictionary that a player may own: the marked ones and the one before them.
inline constexpr std::size_t nombrededitions = atelier::editions.size() + 1;
/// Their files, the oldest first; empty where the player has none.
using Fichiersdeditions = std::array<std::string, nombrededitions>;

/// Compares each edition with the one before it, where both are given, into `commande`. Throws
/// `common::Faute` for a file that holds no words.
void comparereditions(common::Disque& disque, const Fichiersdeditions& fichiers,
                      Commande& commande);

/// Makes the lists and replaces those of `dossier`. False if it was stopped. Throws
/// `common::Faute`. In both cases nothing has changed.
[[nodiscard]] bool fabriquer(const atelier::Chemins& chemins, const Commande& commande,
                             const std::filesystem::path& dossier, const Avance& avance,
                             const atelier::Ecrire& ecrire = atelier::ecrirefichier);

}  // namespace carnet
