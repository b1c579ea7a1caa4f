#include "listedujour.h"

#include <algorithm>

#include "catalogue.h"
#include "listes.h"
#include "maliste.h"
#include "texte.h"

namespace carnet {
namespace {

/// Puts a rack on its list, unless it cannot be played there.
void poser(Paire& paire, std::string_view identifiant, std::string_view liste) {
    auto rangee = common::depuis1252(identifiant);
    const auto separateur = rangee.find(';');
    const auto virgules = static_cast<std::size_t>(
        std::count(rangee.begin() + static_cast<std::ptrdiff_t>(separateur), rangee.end(), ','));
    if (!surlarangee(liste) || virgules + 1 > common::solutionsmulti) {
        ++paire.laisses;
        return;
    }
    std::replace(rangee.begin() + static_cast<std::ptrdiff_t>(separateur), rangee.end(), ',', ';');
    (virgules == 0 ? paire.simple : paire.multiple).push_back(std::move(rangee));
}

std::string ecrireune(common::Disque& disque, std::string_view fichier,
                      const std::vector<std::string>& rangees) {
    const auto chemin = common::cheminliste(fichier);
    std::error_code erreur;
    if (!rangees.empty())
        erreur = enregistrer(disque, fichier, rangees);
    else if (disque.existe(chemin))
        erreur = disque.supprimer(chemin);
    return erreur ? common::rapportfichier("Écriture", chemin, common::raison(erreur)) : "";
}

}  // namespace

bool surlarangee(std::string_view liste) {
    const auto* rangee = menu::rangeedefichier(common::depuis1252(liste));
    return rangee == nullptr || rangee->reponses == menu::Reponses::mots;
}

Paire listedujour(std::span<const Echeance> dues, int plafond) {
    Paire paire;
    for (const auto& due : dues) {
        if (paire.taille() < static_cast<std::size_t>(plafond))
            poser(paire, due.identifiant, due.liste);
        else
            ++(surlarangee(due.liste) ? paire.attendent : paire.laisses);
    }
    return paire;
}

Paire listedesdurs(std::span<const Tiragedur> durs) {
    Paire paire;
    for (const auto& dur : durs)
        poser(paire, dur.identifiant, dur.liste);
    return paire;
}

std::string ecrirepaire(common::Disque& disque, const Paire& paire, const Nomsdepaire& noms) {
    auto ennui = ecrireune(disque, noms.simple, paire.simple);
    const auto second = ecrireune(disque, noms.multiple, paire.multiple);
    if (!ennui.empty() && !second.empty())
        ennui += ' ';
    return ennui + second;
}

std::string commentjouerpaire(const Paire& paire, const Nomsdepaire& noms) {
    if (paire.taille() == 0)
        return {};
    auto texte = commentjouer(paire.simple.empty() ? noms.multiple : noms.simple);
    if (!paire.simple.empty() && !paire.multiple.empty())
        texte.append(" Ensuite de même ").append(noms.multiple).append(".");
    return texte;
}

}  // namespace carnet
