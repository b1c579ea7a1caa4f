#pragma once

// What comes with the program: the checksum and name of each file (format: docs/formats.md).

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

#include "disque.h"

namespace installation {

/// Name of the inventory, in the folder of the files that it names.
inline constexpr std::string_view fichierinventaire = "inventaire.txt";

struct Fourni {
    std::string somme;   ///< SHA-256 in lower-case hexadecimal
    std::string chemin;  ///< relative to the folder, with backslashes
    bool operator==(const Fourni&) const = default;
};

/// A file's line: its sum, two blanks, "./" and its path with slashes.
[[nodiscard]] std::string lignede(const Fourni& fourni);

struct Inventaire {
    std::string version;  ///< empty if none is stated
    std::vector<Fourni> fichiers;
};

/// The inventory of the files now in a folder, in the order of their paths. A file of that name is
/// left out. Throws `common::Faute`.
[[nodiscard]] Inventaire inventorier(const std::filesystem::path& dossier);

/// The version of a set of files: the program's number, then a checksum, so that two sets differ
/// even under the same number.
[[nodiscard]] std::string versionde(std::string_view numero, const std::vector<Fourni>& fichiers);

/// The inventory as a text, and back. Reading throws `common::Faute` for any other text.
[[nodiscard]] std::string ecrire(const Inventaire& inventaire);
[[nodiscard]] Inventaire lireinventaire(common::Disque& disque);

}  // namespace installation
