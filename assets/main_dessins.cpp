// orvane-dessins FOLDER: draws every picture of the program into FOLDER.
// orvane-dessins --icones FOLDER: draws the icons for a desktop there.

#include <iostream>
#include <string_view>

#include "dessins.h"
#include "disquereel.h"
#include "image.h"

int main(int argc, char** argv) {
    const bool icones = argc == 3 && std::string_view(argv[1]) == "--icones";
    if (argc != 2 && !icones) {
        std::cerr << "usage: orvane-dessins [--icones] DOSSIER\n";
        return 2;
    }
    common::DisqueReel disque(argv[argc - 1]);
    for (const assets::Tableau& tableau : icones ? assets::icones() : assets::tableaux()) {
        if (const auto erreur = disque.remplacer(tableau.nom, assets::fichier(tableau))) {
            std::cerr << tableau.nom << ": " << erreur.message() << '\n';
            return 1;
        }
    }
    return 0;
}
