#pragma once

// The command line.

#include <array>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "chantier.h"
#include "nouveautes.h"

namespace atelier {

enum class Commande { fabriquer, verifier, decrire, chercher, aide, version };

/// Two editions to compare.
struct Comparaison {
    std::string ancienne;
    std::string nouvelle;
};

struct Options {
    Commande commande = Commande::aide;
    std::string cible;  ///< folder to fill, folder or file to check, list to describe, criteria
    Chemins chemins;
    std::optional<std::string> mots;  ///< a player's own dictionary
    std::array<std::optional<Comparaison>, editions.size()> comparaisons;
    bool desource = false;  ///< a source, a dictionary or editions were named
};

/// A wrong use of the command line, said in French.
class MauvaisUsage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments behind the program's name. Throws `MauvaisUsage`.
[[nodiscard]] Options lireoptions(std::span<const std::string> arguments);

/// What the program tells of its use.
[[nodiscard]] std::string aide();

}  // namespace atelier
