// Multi: the correction of a series, marks and notes, the word menu.

#include <algorithm>
#include <numeric>

#include "multi.h"
#include "parcours.h"

namespace multi {

void Multi::corrigerserie() {
    arreterserie();
    const auto correction = multi::corriger(serie_, ratages_, reponses(), chronos.tempsmot());
    fermersaisie();
    appliquer(correction, "OK");
    const auto fautes = std::to_string(ratages_.nbfautes()) + "/" + std::to_string(nbmotstotal_);
    fautesaffichees.texte = fautes;
    afficherscore(correction);
    annoterboites();
    finserie(nbmotstotal_, ratages_.nbfautes(), fautes);
}

series::Correction Multi::jugerdepart(int boite) {
    return jugerboite(serie_, ratages_, reponses(), boite, chronos.tempsmot());
}

/// Shows the marks and notes of the words that the boxes show after the correction.
void Multi::annoterboites() {
    std::vector<int> boites(static_cast<std::size_t>(serie_.boitesutiles));
    std::iota(boites.begin(), boites.end(), 0);
    std::vector<std::string> mots(boites.size());
    std::transform(solution.begin(), solution.begin() + serie_.boitesutiles, mots.begin(),
                   [](const ui::Controle* reponse) { return reponse->texte(); });
    marques.montrer(mots);
    montrernotes(mots, boites);
}

/// A definition is offered for the word of a box that was judged.
void Multi::ouvrirmenudesolution(int rang) {
    const auto i = static_cast<std::size_t>(rang);
    const bool jugee = serie_.verdicts[i] != series::Etatreponse::Repos;
    ouvrirmenumot(serie_.placede(rang), *solution[i], solution[i]->texte(), jugee);
}

void Multi::ouvrirmenudetirage(int place) {
    ouvrirmenumot(place, *tirage[static_cast<std::size_t>(place)], boite(place, 0).texte(), false);
}

}  // namespace multi
