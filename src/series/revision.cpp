#include "revision.h"

#include <algorithm>
#include <memory>

#include "faute.h"
#include "listes.h"
#include "partage.h"
#include "reference.h"
#include "texte.h"

namespace series {

std::string nomfichierderevision(std::string_view fich, std::string_view toue,
                                 std::string_view util) {
    return toue == common::modes::revision ? common::sanspartie(fich)
                                           : common::cheminrevision(util, common::nomdeliste(fich));
}

std::vector<bool> presentsenrevision(common::Disque& disque, std::string_view chemin,
                                     std::span<const std::string> lignes) {
    std::vector<bool> presents(lignes.size(), false);
    const Recherche recherche(lignes);
    common::Items(disque, common::sanspartie(chemin), "Lecture des révisions", common::limiterangee)
        .chaque([&](std::string_view item, std::size_t /*ligne*/) {
            for (const auto rang : recherche.rangs(item))
                presents[rang] = true;
        });
    return presents;
}

void ajouterenrevision(common::Disque& disque, std::string_view chemin,
                       std::span<const std::string> lignes) {
    if (lignes.empty())
        return;
    common::ajouterlignes(disque, chemin, lignes, "Ajout au fichier de révision",
                          common::limiterangee);
}

void retirerderevision(common::Disque& disque, std::string_view chemin, std::string_view ligne) {
    constexpr std::string_view action = "Suppression dans le fichier de révision";
    // A row that another program appends meanwhile would be lost with the old file.
    std::unique_ptr<common::Verrou> verrou;
    if (const auto erreur = disque.verrouiller(chemin, verrou))
        throw common::Faute(common::rapportfichier(action, chemin, common::raison(erreur)));
    std::vector<std::string> gardees;
    common::Items items(disque, chemin, action, common::limiterangee);
    std::string_view item;
    std::size_t nombre = 0;
    while (items.lireitem(item)) {
        if (++nombre > limiterevision) {
            throw common::Faute(common::rapportligne(
                action, chemin, items.numero(),
                "trop de lignes ; la limite est de " + std::to_string(limiterevision)));
        }
        auto texte = common::depuis1252(item);
        if (!texte.empty() && texte != ligne)
            gardees.push_back(std::move(texte));
    }
    common::remplacerlignes(disque, chemin, gardees, action, common::limiterangee);
}

}  // namespace series
