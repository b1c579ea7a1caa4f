// Multi: the judgement of racks, the missed rows, marks and notes, the word menu.

#include <algorithm>
#include <numeric>

#include "faute.h"
#include "fichier.h"
#include "multi.h"
#include "parcours.h"
#include "rangeesmulti.h"

namespace multi {
namespace {

/// Those of a rack's texts that count in its judgement.
std::vector<std::string> juges(const Rack& rack, std::span<const std::string> textes) {
    const auto comptent = textes.first(nombrejuge(rack.solutions));
    return {comptent.begin(), comptent.end()};
}

}  // namespace

void Multi::corrigerserie() {
    arreterserie();
    fermersaisie();
    rendretirages();
    const int nombre = nombredelaserie();
    const int justes = jugertirages(nombre);
    tenirjournal(nombre);
    fautesaffichees.texte =
        std::to_string(ratages_.nbfautes()) + "/" + std::to_string(nbmotstotal_);
    afficherscore(justes, nombre);
    if (criteresecondes()) {
        for (int place = 0; place < nombre; ++place)
            if (rapide_[static_cast<std::size_t>(place)] == 1)
                rangees_.eliminer(rangee(place));
    }
    annoterboites();
    finserie(nbmotstotal_, ratages_.nbfautes());
}

/// Judges all racks of the series, and eliminates under the successes criterion; the number of
/// right ones.
int Multi::jugertirages(int nombre) {
    const bool secondes = criteresecondes();
    int justes = 0;
    std::vector<Ratee> ratees;
    // The last rack may never be left: it is judged here as at a departure.
    if (secondes && nombre > 0)
        juger(nombre - 1, nombre - 1, ratees);
    for (int place = 0; place < nombre; ++place) {
        if (!corrigertirage(place, ratees))
            continue;
        ++justes;
        if (!secondes && seuil() == rangees_.reussir(rangee(place)))
            rangees_.eliminer(rangee(place));
    }
    garderenrevision(ratees);
    return justes;
}

/// Judges a rack and shows it; true for a right one. A failed rack joins `ratees`, if it is to go
/// to the revision file.
bool Multi::corrigertirage(int place, std::vector<Ratee>& ratees) {
    const auto& rack = *tirage[static_cast<std::size_t>(place)];
    Rack ajuger{rack.texte(), rack.fond(), {}, solutionsdelarangee(rangee(place))};
    for (std::size_t mot = 0; mot < nbsolutions(); ++mot)
        ajuger.saisis.push_back(boite(place, mot).texte());
    retenirjugement(place, juges(ajuger, ajuger.solutions), juges(ajuger, ajuger.saisis));
    const auto verdict = multi::corrigertirage(ajuger, ratages_);
    montrer(place, verdict);
    if (verdict.debordement != Debordement::Aucun) {
        garderenrevision(ratees);  // of the racks before this one
        deborder(place, verdict.debordement);
    }
    if (!verdict.juste && erreursaurevision()) {
        const auto nombre = nombrejuge(ajuger.solutions);
        ratees.push_back({place, lignederangee(ajuger.texte, ajuger.solutions, nombre)});
    }
    return verdict.juste;
}

void Multi::montrer(int place, const Verdict& verdict) {
    for (std::size_t mot = 0; mot < verdict.boites.size(); ++mot) {
        const auto& jugee = verdict.boites[mot];
        auto& reponse = boite(place, mot);
        reponse.fond = jugee.bonne ? ui::couleurs::juste : ui::couleurs::tirageaurepos;
        reponse.texte = jugee.texte;
        if (jugee.infobulle)
            reponse.infobulle = *jugee.infobulle;
    }
    auto& rack = *tirage[static_cast<std::size_t>(place)];
    rack.fond = verdict.fond;
    rack.infobulle = verdict.infobulle;
}

void Multi::deborder(int place, Debordement debordement) const {
    const bool mots = debordement == Debordement::Motsfaux;
    const auto limite = mots ? Ratages::limitemots : Ratages::limitetirages;
    throw common::Faute(common::rapportligne(
        "Correction de la série", fich_, lignedufichier(place),
        "trop de " + std::string(mots ? "solutions manquées" : "tirages manqués") +
            " dans cette liste ; la limite est de " + std::to_string(limite)));
}

/// The seconds criterion: the judgement of a whole rack, held for box `rang`.
void Multi::juger(int place, int rang, std::vector<Ratee>& ratees) {
    const bool atemps = seuil() > chronos.tempsmot();
    const bool juste = corrigertirage(place, ratees);
    retenirrapide(rang, juste && atemps, "OK");
}

void Multi::jugerboite(int rang) {
    std::vector<Ratee> ratees;
    juger(placede(rang), rang, ratees);
    garderenrevision(ratees);
}

/// Marks and notes of the words that the boxes show by now.
void Multi::annoterboites() {
    std::vector<int> boites(static_cast<std::size_t>(boitesutiles_));
    std::iota(boites.begin(), boites.end(), 0);
    std::vector<std::string> mots(boites.size());
    std::transform(solution.begin(), solution.begin() + boitesutiles_, mots.begin(),
                   [](const ui::Controle* reponse) { return reponse->texte(); });
    marques.montrer(mots);
    montrernotes(mots, boites);
}

/// A definition is offered for a word in the colours of a corrected box.
void Multi::ouvrirmenudesolution(int rang) {
    const auto& reponse = *solution[static_cast<std::size_t>(rang)];
    const bool corrigee =
        reponse.fond() == ui::couleurs::juste || reponse.fond() == ui::couleurs::tirageaurepos;
    ouvrirmenumot(placede(rang), reponse, reponse.texte(), corrigee);
}

void Multi::ouvrirmenudetirage(int place) {
    ouvrirmenumot(place, *tirage[static_cast<std::size_t>(place)], boite(place, 0).texte(), false);
}

}  // namespace multi
