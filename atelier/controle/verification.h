#pragma once

// Checks of lists, made or written by hand.

#include <cstddef>
#include <string>
#include <vector>

namespace atelier {

/// How much a finding matters.
enum class Gravite {
    remarque,  ///< the program reads the list all the same
    faute,
};

struct Constat {
    Gravite gravite = Gravite::faute;
    std::string fichier;
    std::size_t ligne = 0;  ///< from 1; 0 for the file as a whole
    std::string ennui;      ///< French

    [[nodiscard]] std::string texte() const;
};

/// Checks one list file (`chemin` is a path of the system). Its name, if the catalogue knows it,
/// tells what its rows hold; a file of another name is checked as a personal list.
[[nodiscard]] std::vector<Constat> verifierfichier(const std::string& chemin);

/// Checks a folder as a player's: the lists in it or in its folder `listes`, which have to be there
/// all, the parts against the wholes, the reference lists and the notes.
[[nodiscard]] std::vector<Constat> verifierdossier(const std::string& chemin);

}  // namespace atelier
