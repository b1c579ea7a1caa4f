#include "references.h"

#include <algorithm>

#include "invariables.h"

namespace atelier {
namespace {

std::vector<Capitales> lettres(const Selection& mots, std::size_t placesmax) {
    std::vector<Capitales> resultat;
    for (const auto* mot : mots)
        resultat.push_back(mot->lettres);
    resultat.resize(std::min(resultat.size(), placesmax));
    return resultat;
}

/// Infinitives of the verbs of which no participle agrees, and these participles, where the same
/// letters are nothing that agrees: "pécher" is left out for "pêcher".
std::vector<Capitales> participesinvariables(const Matiere& m) {
    const auto est = [&](const Mot& mot, Temps temps, bool varie) {
        return m.mots.une(mot, [&](const Lecture& l) {
            const auto& lemme = m.mots.lemme(l);
            return l.al(temps) && (varie ? lemme.participevarie : lemme.participesinvariables());
        });
    };
    const auto nonverbal = [&](const Mot& mot) {
        return m.mots.une(mot, [](const Lecture& l) { return l.nonverbale(); });
    };
    return lettres(choisir(m.mots, longueurmin, longueurmax,
                           [&](const Mot& mot) {
                               if (est(mot, infinitif, false))
                                   return !est(mot, infinitif, true);
                               return est(mot, participepasse, false) &&
                                      !est(mot, participepasse, true) && !nonverbal(mot);
                           }),
                   common::listevbi.places);
}

std::vector<Capitales> transitifs(const Matiere& m) {
    return lettres(choisir(m.mots, 4, 10,
                           [&](const Mot& mot) {
                               return m.mots.une(mot, [](const Lecture& l) {
                                   return l.al(infinitif) && l.code.transitif;
                               });
                           }),
                   common::listevbt.places);
}

std::vector<Capitales> motsinvariables(const Matiere& m) {
    return lettres(choisir(m.mots, longueurmin, longueurmax,
                           [&](const Mot& mot) { return invariable(m.mots, mot); }),
                   common::listeinv.places);
}

}  // namespace

std::vector<Reference> references() {
    std::vector<Reference> toutes;
    for (std::size_t i = 0; i < editions.size(); ++i) {
        toutes.push_back(
            {editions.at(i).liste,
             "Les mots entrés en " + std::string(editions.at(i).annee) +
                 " ; vide tant que l'on n'a pas comparé les éditions que l'on possède.",
             [i](const Matiere& m) { return m.nouveautes.at(i); }});
    }
    toutes.push_back({common::listevbi,
                      "Les verbes dont le participe passé est invariable, et ces participes.",
                      participesinvariables});
    toutes.push_back({common::listevbt, "Les verbes transitifs de 4 à 10 lettres.", transitifs});
    toutes.push_back(
        {common::listeinv, "Les mots invariables, les plus courts d'abord.", motsinvariables});
    return toutes;
}

}  // namespace atelier
