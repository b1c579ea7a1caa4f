#pragma once

// Every picture of the program: what it shows, its file and its size.

#include <string>
#include <vector>

#include "trait.h"

namespace assets {

/// One file of the folder `images`. A name that ends in .png is written as PNG, any other as
/// bitmap. The marks and badges come in their nominal size, told by their name in pixels, and in
/// twins twice and four times as fine, with "@2x" and "@4x" before the ending.
struct Tableau {
    std::string nom;
    Dessin dessin;
    int largeur;  // pixels
    int hauteur;
};

[[nodiscard]] std::vector<Tableau> tableaux();

/// The bytes of the picture's file.
[[nodiscard]] std::string fichier(const Tableau& tableau);

/// A letter tile of side 1 with its value in the corner.
[[nodiscard]] Dessin jeton(char lettre, int valeur);

/// The picture of the login form: tiles on a rack that spell the program's name.
[[nodiscard]] Dessin naturemorte();

}  // namespace assets
