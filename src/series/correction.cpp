#include "correction.h"

#include <algorithm>
#include <utility>

namespace series {
namespace {

/// An answer that is wrong, or none, with the solution.
void montrerfaute(const Serie& serie, int boite, const std::string& reponse,
                  Correction& correction) {
    const auto& place = serie.place(boite);
    Boitecorrigee faute{boite, Etatreponse::Fausse, reponse, std::nullopt, false};
    if (reponse.empty()) {
        faute.texte = place.affiche;
    } else if (rallonges(serie.nature)) {
        faute.infobulle = "Vous aviez saisi: " + reponse;
        faute.texte = place.affiche;
    } else {
        faute.infobulle = "Tirage: " + place.affiche;
        faute.barree = true;
    }
    correction.boites.push_back(std::move(faute));
    correction.tirages.push_back(
        {serie.placede(boite), Etattirage::Solution, place.suite, std::nullopt});
}

}  // namespace

std::vector<std::string> nouvellesrevisions(Serie& serie, std::span<const Ratee> ratees,
                                            const std::vector<bool>& presentes) {
    std::vector<std::string> nouvelles;
    for (std::size_t i = 0; i < ratees.size(); ++i) {
        const auto& ligne = ratees[i].ligne;
        if (presentes[i] || std::find(nouvelles.begin(), nouvelles.end(), ligne) != nouvelles.end())
            continue;
        nouvelles.push_back(ligne);
        serie.place(ratees[i].place).enrevision = true;
    }
    return nouvelles;
}

bool Motsfaux::ajouter(const std::string& ligne) {
    if (lignes_.size() == limite && !lignes_.contains(ligne))
        return false;
    lignes_.insert(ligne);
    return true;
}

std::optional<bool> jugerboite(Serie& serie, int boite, std::string_view reponse,
                               std::int16_t tempsmot) {
    const bool juste = reponse == serie.place(boite).suite;
    return retenir(serie, boite, juste && serie.critere.seuil > tempsmot);
}

Correction corriger(Serie& serie, Motsfaux& motsfaux, std::span<const std::string> reponses,
                    std::int16_t tempsmot) {
    const auto& critere = serie.critere;
    Correction correction;
    correction.nombre = serie.nombre();
    // The last box may never be left: it is judged here as at a departure.
    if (critere.secondes && correction.nombre > 0) {
        const int derniere = correction.nombre - 1;
        correction.atemps =
            jugerboite(serie, derniere, reponses[static_cast<std::size_t>(derniere)], tempsmot);
    }
    serie.ouverte = false;
    for (int boite = 0; boite < correction.nombre; ++boite) {
        const auto& reponse = reponses[static_cast<std::size_t>(boite)];
        const auto& place = serie.place(boite);
        const bool juste = reponse == place.suite;
        retenirjugement(serie, boite, {place.suite}, {reponse});
        if (!juste && !motsfaux.ajouter(place.texte)) {
            correction.pleine = {boite, "mots faux", Motsfaux::limite};
            return correction;
        }
        serie.verdicts[static_cast<std::size_t>(boite)] =
            juste ? Etatreponse::Juste : Etatreponse::Fausse;
        if (!juste) {
            montrerfaute(serie, boite, reponse, correction);
            correction.ratees.push_back({boite, place.texte});
            continue;
        }
        ++correction.justes;
        correction.boites.push_back({boite, Etatreponse::Juste, reponse, std::nullopt, false});
        if (!critere.secondes && critere.seuil <= serie.rangees.reussir(place.rang))
            serie.rangees.eliminer(place.rang);
    }
    if (critere.secondes)
        eliminerrapides(serie);
    return correction;
}

bool montrelemot(const Serie& serie, int boite, bool surletirage) {
    const auto verdict = serie.verdicts[static_cast<std::size_t>(boite)];
    return verdict == (surletirage ? Etatreponse::Fausse : Etatreponse::Juste);
}

}  // namespace series
