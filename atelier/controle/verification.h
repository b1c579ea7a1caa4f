#pragma once

// Checks of lists, whether generated or written by hand.

#include <cstddef>
#include <string>
#include <vector>

namespace atelier {

/// How serious a finding is.
enum class Gravite {
    remarque,  ///< the program can still read the list
    faute,
};

struct Constat {
    Gravite gravite = Gravite::faute;
    std::string fichier;
    std::size_t ligne = 0;  ///< from 1; 0 for the file as a whole
    std::string ennui;      ///< French

    [[nodiscard]] std::string texte() const;
};

/// Checks one list file (`chemin` is a path of the system). A name in the catalogue tells what its
/// rows must be; a file with any other name is checked as a personal list.
[[nodiscard]] std::vector<Constat> verifierfichier(const std::string& chemin);

/// Checks the folder of an installed program: the lists in it or in its subfolder `listes`, none of
/// which may be missing; that the parts make up their whole lists; the reference lists; the notes.
[[nodiscard]] std::vector<Constat> verifierdossier(const std::string& chemin);

}  // namespace atelier
