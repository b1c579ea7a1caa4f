// Form1: the correction of a series and the word menu.

#include <iterator>
#include <utility>

#include "faute.h"
#include "fichier.h"
#include "form1.h"
#include "reference.h"
#include "texte.h"

namespace series {
namespace {

/// One word for each letter: with a joker the letters are so many answers. One word past the limit
/// tells that there are too many.
std::vector<std::string> variantes(std::string_view mot, std::string_view lettres, bool devant) {
    std::vector<std::string> mots;
    for (const auto& lettre : common::caracteres(common::debut(lettres, limitevariantes + 1)))
        mots.push_back(devant ? lettre + std::string(mot) : std::string(mot) + lettre);
    return mots;
}

}  // namespace

std::vector<std::string> motsdesnotes(std::string_view tirage, std::string_view solution,
                                      Nature nature) {
    if (nature == Nature::Rallongesavant) {
        if (tirage.starts_with('?'))
            return variantes(tirage.substr(1), solution, true);
        return {std::string(solution) + std::string(tirage)};
    }
    if (nature == Nature::Rallongesarriere) {
        if (tirage.ends_with('?'))
            return variantes(tirage.substr(0, tirage.size() - 1), solution, false);
        return {std::string(tirage) + std::string(solution)};
    }
    if (nature == Nature::Rallongesautres)
        return {};
    return {std::string(solution)};
}

Correction Form1::jugerdepart(int boite) {
    Correction correction;
    correction.atemps = jugerboite(
        serie_, boite, solution[static_cast<std::size_t>(boite)]->texte(), chronos.tempsmot());
    return correction;
}

void Form1::corrigerserie() {
    arreterserie();
    marquer();
    noter();
    const auto correction = series::corriger(serie_, motsfaux_, reponses(), chronos.tempsmot());
    fermersaisie();
    appliquer(correction, "OUI");
    afficherscore(correction);
    const auto fautes = std::to_string(motsfaux_.nombre());
    fautesaffichees.texte = fautes;
    finserie(nbmotsinitial_, motsfaux_.nombre(), fautes);
}

void Form1::marquer() {
    std::vector<std::string> mots;
    for (int i = 0; i < serie_.nombre(); ++i)
        mots.push_back(serie_.place(i).suite);
    marques.montrer(mots);
}

void Form1::noter() {
    std::vector<std::string> mots;
    std::vector<int> boites;
    for (int i = 0; i < serie_.nombre() && avecnotes(serie_.nature); ++i) {
        const auto& place = serie_.place(i);
        auto motsdelarangee = motsdesnotes(place.tirage, place.suite, serie_.nature);
        if (motsdelarangee.size() > limitevariantes) {
            throw common::Faute(common::rapportligne(
                actioncorrection, serie_.fich, place.ligne,
                "la solution d'un tirage à joker a trop de lettres ; la limite est de " +
                    std::to_string(limitevariantes)));
        }
        boites.insert(boites.end(), motsdelarangee.size(), i);
        std::move(motsdelarangee.begin(), motsdelarangee.end(), std::back_inserter(mots));
    }
    montrernotes(mots, boites);
}

/// A definition is offered for the box that shows the right word.
void Form1::ouvrirmenu(int rang, bool surletirage) {
    const auto i = static_cast<std::size_t>(rang);
    const auto& boite = surletirage ? *tirage[i] : *solution[i];
    const bool definition = montrelemot(serie_, rang, surletirage) && !rallonges(serie_.nature);
    ouvrirmenumot(rang, boite, boite.texte(), definition);
}

}  // namespace series
