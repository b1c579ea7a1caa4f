// orvane-rafraichir SOURCE DEST: brings the lists, pictures and sound of SOURCE into the player's
// folder DEST, and says what stayed.
// orvane-rafraichir --inventaire SOURCE NUMBER: writes the inventory of SOURCE, for a program of
// that number, to the standard output.

#include <filesystem>
#include <iostream>
#include <string>
#include <vector>

#include "chemin.h"
#include "console.h"
#include "disquereel.h"
#include "faute.h"
#include "inventaire.h"
#include "rafraichissement.h"

namespace {

constexpr std::size_t nommes = 5;  // more of them are counted: a whole dictionary, perhaps

void dire(const installation::Bilan& bilan) {
    if (bilan.dictionnaireperso)
        std::cout << "Votre dictionnaire reste en vigueur / your own dictionary stays in force.\n";
    if (bilan.gardes.size() > nommes)
        std::cout << "Gardés tels quels / kept as you changed them: " << bilan.gardes.size()
                  << " fichiers / files\n";
    else
        for (const auto& chemin : bilan.gardes)
            std::cout << "Gardé tel quel / kept as you changed it: "
                      << common::DisqueReel().systeme(chemin).generic_string() << "\n";
}

void apporter(const std::filesystem::path& source, const std::filesystem::path& dest) {
    const auto inventaire = installation::inventorier(source);
    std::filesystem::create_directories(dest);
    dire(installation::rafraichir(common::appelsdusysteme(), source, dest, inventaire));
}

}  // namespace

int main(int nombre, char** arguments) {
    common::preparerconsole();
    const auto mots = common::arguments(nombre, arguments);
    const bool inventaire = mots.size() == 3 && mots[0] == "--inventaire";
    if (mots.size() != 2 && !inventaire) {
        std::cerr << "usage: orvane-rafraichir SOURCE DEST | --inventaire SOURCE NUMBER\n";
        return 2;
    }
    try {
        if (inventaire) {
            auto tout = installation::inventorier(common::chemin(mots[1]));
            tout.version = installation::versionde(mots[2], tout.fichiers);
            std::cout << installation::ecrire(tout);
        } else {
            apporter(common::chemin(mots[0]), common::chemin(mots[1]));
        }
    } catch (const std::exception& faute) {
        std::cerr << faute.what() << '\n';
        return 1;
    }
    return 0;
}
