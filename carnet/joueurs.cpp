#include "joueurs.h"

#include <algorithm>

#include "fichier.h"
#include "reponses.h"
#include "texte.h"
#include "utilisateurs.h"

namespace carnet {
namespace {

std::string cheminplafond(std::string_view util) {
    return std::string(util) + "\\carnet.dat";
}

}  // namespace

std::vector<std::string> joueurs(common::Disque& disque) {
    std::string octets;
    if (common::essayerlire(disque, profiles::fichierusers, octets))
        return {};
    const auto lus = profiles::utilisateurs(octets);
    auto noms = lus.noms;
    std::erase_if(noms, [&](const std::string& nom) {
        return !nomdejoueur(nom) || !profiles::dossierexiste(disque, nom);
    });
    std::sort(noms.begin(), noms.end());
    noms.erase(std::unique(noms.begin(), noms.end()), noms.end());
    const auto dernier = std::find(noms.begin(), noms.end(), lus.derniereligne);
    if (dernier != noms.end())
        std::rotate(noms.begin(), dernier, dernier + 1);
    return noms;
}

int lireplafonddejoueur(common::Disque& disque, std::string_view util) {
    std::string octets;
    if (common::essayerlire(disque, cheminplafond(util), octets))
        return plafondordinaire;
    return lireplafond(std::string_view(octets).substr(0, octets.find_first_of("\r\n")))
        .value_or(plafondordinaire);
}

std::error_code ecrireplafonddejoueur(common::Disque& disque, std::string_view util, int plafond) {
    return disque.remplacer(cheminplafond(util),
                            std::to_string(plafond).append(common::findeligne));
}

}  // namespace carnet
