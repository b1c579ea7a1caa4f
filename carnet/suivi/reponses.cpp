#include "reponses.h"

#include <algorithm>

#include "faute.h"
#include "listes.h"
#include "nombre.h"
#include "progres.h"
#include "texte.h"

namespace carnet {
namespace {

/// A player has a folder.
std::optional<Refus> sansdossier(common::Disque& disque, std::string_view util) {
    if (nomdejoueur(util) && disque.estdossier(util))
        return std::nullopt;
    return Refus{"Pas de joueur « " + std::string(util) + " » dans ce dossier de jeu."};
}

std::string accord(std::size_t lignes) {
    return std::to_string(lignes) + (lignes > 1 ? " lignes illisibles" : " ligne illisible");
}

}  // namespace

bool nomdejoueur(std::string_view util) {
    return !util.empty() && util != "." && util != ".." && util != common::dossierlistes &&
           util != common::dossierimages && util.find_first_of("/\\") == std::string_view::npos;
}

std::optional<int> lireplafond(std::string_view texte) {
    constexpr std::size_t chiffres = 3;
    const auto lu = texte.size() > chiffres ? std::nullopt : common::entierdechiffres(texte);
    return lu && *lu >= plafondminimum && *lu <= plafondmaximum ? lu : std::nullopt;
}

Reponse echeances(common::Disque& disque, std::string_view util, Jour jour,
                  std::optional<int> plafond, std::string& avis) {
    avis.clear();
    if (auto refus = sansdossier(disque, util))
        return *refus;
    Echelle echelle;
    profiles::Lecturejournal lecture;
    const auto chemin = profiles::cheminjournal(util);
    if (const auto erreur = profiles::parcourirjournal(
            disque, chemin, [&](const profiles::Lignejournal& l) { echelle.prendre(l); }, lecture))
        return Refus{common::rapportfichier("Lecture du journal", chemin, common::raison(erreur))};
    if (lecture.sautees > 0)
        avis = "Journal « " + chemin + " » : " + accord(lecture.sautees) + " sur " +
               std::to_string(lecture.lues + lecture.sautees) + ".";
    auto dues = echelle.dues(jour);
    if (plafond)
        dues.resize(std::min(dues.size(), static_cast<std::size_t>(*plafond)));
    std::string lignes;
    for (const auto& due : dues) {
        lignes += textejour(due.jour) + ";" + std::to_string(due.palier + 1) + ";";
        lignes += common::depuis1252(due.identifiant) + "\n";
    }
    return lignes;
}

Reponse progres(common::Disque& disque, std::string_view util) {
    if (auto refus = sansdossier(disque, util))
        return *refus;
    try {
        std::string lignes;
        for (const auto& [liste, bilan] : lirebilans(disque, util))
            lignes += liste + ";" + std::to_string(bilan.passages) + ";" + bilan.dernier + ";" +
                      bilan.meilleur + ";" + bilan.derniereon + "\n";
        return lignes;
    } catch (const common::Faute& faute) {
        return Refus{faute.what()};
    }
}

}  // namespace carnet
