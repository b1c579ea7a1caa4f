#pragma once

// The command line.

#include <array>
#include <optional>
#include <span>
#include <stdexcept>
#include <string>
#include <vector>

#include "nouveautes.h"

namespace atelier {

enum class Commande { fabriquer, verifier, decrire, aide, version };

/// Two editions of a dictionary to compare: their files.
struct Comparaison {
    std::string ancienne;
    std::string nouvelle;
};

struct Options {
    Commande commande = Commande::aide;
    std::string cible;  ///< folder to fill, folder or file to check, list to describe
    std::string lexique;
    std::string affixes;
    std::string thesaurus;
    bool ajouts = true;               ///< add the words that the lexicon lacks
    std::optional<std::string> mots;  ///< a player's own dictionary
    std::array<std::optional<Comparaison>, editions.size()> comparaisons;
};

/// A wrong use of the command line, explained in French.
class MauvaisUsage : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name. Throws `MauvaisUsage`.
[[nodiscard]] Options lireoptions(std::span<const std::string> arguments);

/// The help text of the program, in French.
[[nodiscard]] std::string aide();

}  // namespace atelier
