#include <algorithm>

#include "catalogue.h"
#include "fichier.h"
#include "lignes.h"
#include "listes.h"
#include "recherche.h"
#include "valeurs.h"
#include "verification_rangee.h"

namespace recherche {
namespace {

using atelier::Sorte;

/// The extensions of a list stand in front of its racks.
bool rallongesdevant(std::string_view fichier) {
    const auto* rangee = menu::rangeedefichier(fichier);
    return rangee != nullptr && rangee->reponses == menu::Reponses::devant;
}

/// The words that a row asks.
void ajouter(std::vector<std::string>& mots, std::string_view ligne, Sorte sorte, bool devant) {
    const auto separateur = ligne.find(';');
    if (separateur == std::string_view::npos)
        return;
    std::string tirage(ligne.substr(0, separateur));
    auto solutions = ligne.substr(separateur + 1);
    if (sorte == Sorte::rallonge) {
        std::erase(tirage, '?');
        for (const char lettre : solutions)
            mots.push_back(devant ? lettre + tirage : tirage + lettre);
    } else if (sorte == Sorte::benjamin) {
        mots.push_back(std::string(solutions) + tirage);
    } else {
        while (!solutions.empty()) {
            const auto fin = solutions.find(';');
            mots.emplace_back(solutions.substr(0, fin));
            solutions.remove_prefix(fin == std::string_view::npos ? solutions.size() : fin + 1);
        }
    }
}

}  // namespace

Motsdeliste motsdeliste(common::Disque& disque, std::string_view fichier) {
    if (fichier.find_first_of("/\\:") != std::string_view::npos)
        return "on attend le nom d'un fichier du dossier listes, et non " +
               entreguillemets(fichier);
    std::string octets;
    if (const auto erreur = common::essayerlire(disque, common::cheminliste(fichier), octets))
        return "le fichier listes\\" + std::string(fichier) + " ne peut être lu (" +
               common::raison(erreur) + ")";
    const bool reference =
        std::any_of(common::listesreference.begin(), common::listesreference.end(),
                    [&](const auto& r) { return r.fichier == fichier; });
    const auto sorte = atelier::sorteconnue(fichier).value_or(Sorte::perso);
    const bool devant = rallongesdevant(fichier);
    std::vector<std::string> mots;
    common::Lignes(octets).chaque([&](std::string_view ligne, std::size_t /*numero*/) {
        if (reference)
            mots.emplace_back(ligne);
        else
            ajouter(mots, ligne, sorte, devant);
    });
    return mots;
}

}  // namespace recherche
