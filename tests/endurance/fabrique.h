#pragma once

// Lists that a session plays, and the files that it finds.

#include <cstddef>
#include <string>
#include <vector>

#include "alea.h"

namespace endurance {

enum class Sorte {
    Simple,    ///< letters in order
    Balisee,   ///< with mark-up
    Longue,    ///< more letters than there are tiles
    Double,    ///< rows that stand twice
    Rallonge,  ///< a word and the letters that extend it
};

/// The lines of a list of `nombre` rows, but for doubles each on letters of its own.
[[nodiscard]] std::vector<std::string> lignesdeliste(fuzz::Alea& alea, Sorte sorte, bool multi,
                                                     std::size_t nombre);

/// A list of the catalogue that a session has filled.
struct Listefaite {
    std::string panneau;
    std::size_t rangee = 0;
    std::string fichier;
    std::size_t parties = 0;
    bool multi = false;
    bool cassee = false;  ///< one of its lines is no row
    std::vector<std::string> lignes;
};

/// Fills some lists of the catalogue.
[[nodiscard]] std::vector<Listefaite> fairelistes(fuzz::Alea& alea);

/// Words of the lists, and others, for the reference lists and the notes.
[[nodiscard]] std::vector<std::string> motsconnus(const std::vector<Listefaite>& listes,
                                                  fuzz::Alea& alea);

}  // namespace endurance
