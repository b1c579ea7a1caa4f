#pragma once

// Which dictionary the lists were made of, remembered beside them.

#include <array>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fabrication.h"
#include "glossaire.h"
#include "nouveautes.h"

namespace recherche {

/// The file that remembers it, in the folder of the lists (format: docs/formats.md).
inline constexpr std::string_view fichierenvigueur = "dictionnaire.dat";

struct Envigueur {
    std::string fichier;   ///< name of the player's file, UTF-8; empty for the free lexicon
    std::size_t mots = 0;  ///< in force
    /// For each edition, names of the files that were compared; empty if none were.
    std::array<std::string, atelier::editions.size()> comparaisons;

    [[nodiscard]] bool libre() const { return fichier.empty(); }
    [[nodiscard]] bool operator==(const Envigueur&) const = default;
};

[[nodiscard]] std::string octets(const Envigueur& envigueur);
/// Reads the bytes of that file; nothing if they are damaged.
[[nodiscard]] std::optional<Envigueur> lireenvigueur(std::string_view octets);

/// A file name as it is remembered: characters that Windows-1252 lacks become "?".
[[nodiscard]] std::string nomretenu(std::string_view fichier);

/// What is put beside the lists: the words, and what they are. Sets `envigueur.mots`.
[[nodiscard]] std::vector<atelier::Fichier> fichiers(const Glossaire& glossaire,
                                                     Envigueur envigueur);

}  // namespace recherche
