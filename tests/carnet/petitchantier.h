#pragma once

// Making lists of the small lexicon in a folder of its own.

#include <filesystem>
#include <map>
#include <string>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "fabrique.h"

namespace essais {

inline atelier::Chemins petitschemins() {
    const std::string petit = ORVANE_PETIT;
    return {petit + "/petit.dic", petit + "/petit.aff", petit + "/petit.dat", false};
}

inline bool continuer(int /*millemes*/, std::string_view /*quoi*/) {
    return true;
}

/// A command for these words.
inline carnet::Commande perso(std::initializer_list<const char*> mots) {
    carnet::Commande commande;
    commande.dictionnaire.emplace();
    for (const auto* mot : mots)
        commande.dictionnaire->emplace_back(mot);
    std::sort(commande.dictionnaire->begin(), commande.dictionnaire->end());
    commande.envigueur.fichier = "miens.txt";
    return commande;
}

/// Every file of a folder, with its bytes.
inline std::map<std::string, std::string> contenu(const DossierTemporaire& dossier) {
    std::map<std::string, std::string> fichiers;
    for (const auto& entree : std::filesystem::recursive_directory_iterator(dossier.chemin())) {
        const auto nom = entree.path().lexically_relative(dossier.chemin()).generic_string();
        if (entree.is_regular_file())
            fichiers[nom] = dossier.lire(nom);
    }
    return fichiers;
}

}  // namespace essais
