// orvane-son FOLDER: composes the sound of the end of a list into FOLDER.

#include <iostream>

#include "disquereel.h"
#include "son.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: orvane-son DOSSIER\n";
        return 2;
    }
    common::DisqueReel disque(argv[1]);
    if (const auto erreur = disque.remplacer(assets::nomson, assets::wav(assets::phrase()))) {
        std::cerr << assets::nomson << ": " << erreur.message() << '\n';
        return 1;
    }
    return 0;
}
