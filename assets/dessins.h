#pragma once

// The pictures of the program: drawing, file and size.

#include <string>
#include <vector>

#include "trait.h"

namespace assets {

/// A file of the folder `images`: PNG or SVG if its name says so, otherwise a bitmap. Marks and
/// badges come in three variants: nominal size, and with twice and four times as many pixels each
/// way, marked by "@2x" and "@4x" before the extension.
struct Tableau {
    std::string nom;
    Dessin dessin;
    int largeur;  // pixels
    int hauteur;
};

[[nodiscard]] std::vector<Tableau> tableaux();

/// The icons of the program for a desktop: squares of 16 to 512 pixels, in files named after their
/// side, and one that scales.
[[nodiscard]] std::vector<Tableau> icones();

/// The bytes of the picture's file.
[[nodiscard]] std::string fichier(const Tableau& tableau);

/// A letter tile with side 1 and its points in the corner.
[[nodiscard]] Dessin jeton(char lettre, int valeur);

/// The picture of the login form: a rack whose tiles spell the name of the program.
[[nodiscard]] Dessin naturemorte();

}  // namespace assets
