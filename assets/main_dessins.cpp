// orvane-dessins FOLDER: draws every picture of the program into FOLDER.

#include <iostream>

#include "dessins.h"
#include "disquereel.h"
#include "image.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: orvane-dessins DOSSIER\n";
        return 2;
    }
    common::DisqueReel disque(argv[1]);
    for (const assets::Tableau& tableau : assets::tableaux()) {
        if (const auto erreur = disque.remplacer(tableau.nom, assets::fichier(tableau))) {
            std::cerr << tableau.nom << ": " << erreur.message() << '\n';
            return 1;
        }
    }
    return 0;
}
