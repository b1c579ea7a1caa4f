#pragma once

// What comes with the program: the sum and name of each file (format: docs/formats.md).

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
    std::string chemin;  ///< a path of the rules, relative to the folder
    bool operator==(const Fourni&) const = default;
};

/// A file's line: its sum, two blanks, "./" and its path with slashes.
[[nodiscard]] std::string lignede(const Fourni& fourni);

struct Inventaire {
    std::string version;  ///< empty if nobody has given one
    std::vector<Fourni> fichiers;
};

/// The inventory of a folder as it stands, in the order of the paths, without its inventory. Throws
/// `common::Faute`.
[[nodiscard]] Inventaire inventorier(const std::filesystem::path& dossier);

/// A version that tells two sets of files apart even if their program bears one number.
[[nodiscard]] std::string versionde(std::string_view numero, const std::vector<Fourni>& fichiers);

/// The inventory as a text, and back. Reading throws `common::Faute` for what is no inventory.
[[nodiscard]] std::string ecrire(const Inventaire& inventaire);
[[nodiscard]] Inventaire lireinventaire(common::Disque& disque);

}  // namespace installation
