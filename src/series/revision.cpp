#include "revision.h"

#include <algorithm>
#include <memory>

#include "faute.h"
#include "listes.h"
#include "partage.h"
#include "reference.h"
#include "texte.h"

namespace series {
namespace {

/// Rows for a report, each of them shortened.
std::string citer(std::span<const std::string> lignes) {
    constexpr std::size_t longueurcitee = 200;
    std::string citees;
    for (const auto& ligne : lignes) {
        const auto debut = common::debut(ligne, longueurcitee);
        citees.append(citees.empty() ? "« " : ", « ").append(debut);
        citees.append(debut.size() < ligne.size() ? "… »" : " »");
    }
    return citees;
}

std::string actiondajout(std::span<const std::string> lignes) {
    return "Ajout au fichier de révision de " + citer(lignes);
}

std::vector<bool> chercher(common::Disque& disque, std::string_view chemin,
                           std::span<const std::string> lignes, std::string_view action) {
    std::vector<bool> presents(lignes.size(), false);
    const Recherche recherche(lignes);
    common::Items(disque, common::sanspartie(chemin), action, common::limiterangee)
        .chaque([&](std::string_view item, std::size_t /*ligne*/) {
            for (const auto rang : recherche.rangs(item))
                presents[rang] = true;
        });
    return presents;
}

}  // namespace

std::string nomfichierderevision(std::string_view fich, std::string_view toue,
                                 std::string_view util) {
    return toue == common::modes::revision ? common::sanspartie(fich)
                                           : common::cheminrevision(util, common::nomdeliste(fich));
}

std::vector<bool> presentsenrevision(common::Disque& disque, std::string_view chemin,
                                     std::span<const std::string> lignes) {
    return chercher(disque, chemin, lignes, "Lecture des révisions");
}

std::vector<bool> ajoutsdejapresents(common::Disque& disque, std::string_view chemin,
                                     std::span<const std::string> lignes) {
    return chercher(disque, chemin, lignes, actiondajout(lignes));
}

void ajouterenrevision(common::Disque& disque, std::string_view chemin,
                       std::span<const std::string> lignes) {
    if (lignes.empty())
        return;
    common::ajouterlignes(disque, chemin, lignes, actiondajout(lignes), common::limiterangee);
}

void retirerderevision(common::Disque& disque, std::string_view chemin, std::string_view ligne) {
    const std::string retiree(ligne);
    const auto action = "Suppression dans le fichier de révision de " + citer({&retiree, 1});
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
