#pragma once

// The pictures of the program.

#include <string>
#include <vector>

#include "trait.h"

namespace assets {

/// A picture of the folder `images`: a PNG, SVG, ICO or DIB file if its name says so, otherwise a
/// BMP file. Marks and badges have three files each: one at nominal size, one twice and one four
/// times as wide and high, with "@2x" and "@4x" before the extension.
struct Tableau {
    std::string nom;
    Dessin dessin;
    int largeur;  // pixels
    int hauteur;
};

/// All pictures.
[[nodiscard]] std::vector<Tableau> tableaux();

/// The icons of the program for a desktop: squares of 16 to 512 pixels, in files named after their
/// side, one that scales, one with all sizes up to 256 for the programs of Windows, and the picture
/// of their installer.
[[nodiscard]] std::vector<Tableau> icones();

/// The bytes of the picture's file.
[[nodiscard]] std::string fichier(const Tableau& tableau);

/// A letter tile with sides of length 1, and the points of the letter in its corner.
[[nodiscard]] Dessin jeton(char lettre, int valeur);

/// The picture of the login form: a rack whose tiles spell the name of the program.
[[nodiscard]] Dessin naturemorte();

}  // namespace assets
