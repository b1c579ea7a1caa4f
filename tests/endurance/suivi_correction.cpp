// The judgement of a series and the end of a list.

#include <algorithm>

#include "nombre.h"
#include "regles.h"
#include "suivi.h"

namespace endurance {
namespace {

namespace c = ui::couleurs;

std::string dela(const char* quoi, int place) {
    return std::string(quoi) + " " + std::to_string(place);
}

}  // namespace

void Suivi::corriger(const Moment& moment, Constats& constats) {
    const int justes = multi_ ? corrigermulti(moment, constats) : corrigerform1(moment, constats);
    // Which rows were fast enough is not told on screen, nor what earlier departures have judged.
    if (moment.apres.secondes() || !fautessures_)
        moins_ = std::max(0, moins_ - places());
    verifiercompteurs(justes, moment, constats);
    if (moment.apres.etat() == Etat::Finie)
        finir(moment, constats);
    else
        constats.exiger(plus_ > 0, "toutes les rangées sont éliminées et la liste n'est pas finie");
}

/// Marks and successes of a right row: it leaves when it has enough of them.
void Suivi::eliminer(const Rangee& rangee, const Ecran& ecran) {
    if (ecran.secondes())
        return;
    const double seuil = common::valeur(ecran.seuil);
    const int succes = ++succes_[rangee.ligne()];
    // Equal rows share a count here and not in the program.
    const bool sur = distinctes_ || (!multi_ && seuil <= 1);
    const bool part = multi_ ? seuil == succes : seuil <= succes;
    if (!sur || part)
        --moins_;
    if (sur && part) {
        --plus_;
        --restantes_[rangee.ligne()];
    }
}

int Suivi::corrigerform1(const Moment& moment, Constats& constats) {
    auto reste = restantes_;
    int justes = 0;
    for (int place = 0; place < places(); ++place) {
        const auto i = static_cast<std::size_t>(place);
        auto& rangee = tirees_[i];
        const auto& rack = moment.apres.tirage[i];
        const auto& reponse = moment.apres.solution[i];
        const auto& saisi = moment.avant.solution[i].texte;
        const bool juste = reponse.fond == c::juste;
        // Rows of one rack are told apart by the solution that is shown.
        rangee.suite = juste ? reponse.texte : rack.texte;
        constats.exiger(--reste[rangee.ligne()] >= 0,
                        dela("rangée corrigée", place) + " inconnue : " + rangee.ligne());
        constats.egal(juste, saisi == rangee.suite, dela("jugement de la réponse", place));
        if (juste) {
            ++justes;
            constats.egal(rack.texte, rangee.tirage, dela("tirage d'une réponse juste", place));
            eliminer(rangee, moment.apres);
        } else {
            corrigerfaute(place, moment, constats);
        }
    }
    return justes;
}

void Suivi::corrigerfaute(int place, const Moment& moment, Constats& constats) {
    const auto i = static_cast<std::size_t>(place);
    const auto& rangee = tirees_[i];
    const auto& saisi = moment.avant.solution[i].texte;
    const auto& reponse = moment.apres.solution[i];
    fautes_.insert(rangee.ligne());
    const bool montre = saisi.empty() || menu_.typ == "rallong";
    constats.egal(reponse.texte, montre ? rangee.tirage : saisi, dela("réponse fausse", place));
    constats.exiger(reponse.fond == c::faux && moment.apres.tirage[i].fond == c::juste,
                    dela("couleurs d'une réponse fausse", place));
}

int Suivi::corrigermulti(const Moment& moment, Constats& constats) {
    if (!fautessures_)
        return -1;
    int justes = 0;
    for (int place = 0; place < places(); ++place) {
        const auto& rangee = tirees_[static_cast<std::size_t>(place)];
        const auto solutions = rangee.solutions();
        const auto boite = [&](std::size_t mot) {
            return mot * static_cast<std::size_t>(nbtirages_) + static_cast<std::size_t>(place);
        };
        std::vector<std::string> saisis;
        for (std::size_t mot = 0; mot < solutions.size(); ++mot)
            saisis.push_back(moment.avant.solution[boite(mot)].texte);
        const auto jugement = juger(saisis, solutions);
        fautes_.insert(jugement.manquees.begin(), jugement.manquees.end());
        for (std::size_t mot = 0; mot < solutions.size(); ++mot) {
            const auto& reponse = moment.apres.solution[boite(mot)];
            constats.egal(reponse.texte, jugement.textes[mot], dela("réponse corrigée", place));
            constats.exiger(reponse.fond == (jugement.bonnes[mot] ? c::juste : c::tirageaurepos),
                            dela("couleur de la réponse", place));
        }
        if (!jugement.juste)
            continue;
        ++justes;
        eliminer(rangee, moment.apres);
    }
    return justes;
}

void Suivi::verifiercompteurs(int justes, const Moment& moment, Constats& constats) {
    const auto& ecran = moment.apres;
    const auto surtant = "/" + std::to_string(places());
    if (justes >= 0)
        constats.egal(ecran.score, std::to_string(justes) + surtant, "score");
    else
        constats.exiger(ecran.score.ends_with(surtant), "score : " + ecran.score);
    ++series_;
    constats.egal(ecran.nbseries, std::to_string(series_) + " série(s) déjà réalisée(s).",
                  "séries réalisées");
    auto fautes = ecran.fautes.substr(0, ecran.fautes.find(" - "));
    if (multi_) {
        const auto total = "/" + std::to_string(base_ * static_cast<int>(nbsolutions_));
        constats.exiger(fautes.ends_with(total), "total des solutions : " + fautes);
        fautes = fautes.substr(0, fautes.size() - std::min(fautes.size(), total.size()));
    }
    if (fautessures_)
        constats.egal(fautes, std::to_string(fautes_.size()), "fautes");
}

void Suivi::finir(const Moment& moment, Constats& constats) {
    const auto& ecran = moment.apres;
    constats.egal(moins_, 0, "rangées restantes à la fin de la liste, au moins");
    constats.egal(ecran.motsleft, std::string("0"), "tirages restants à la fin");
    const auto base = base_ * static_cast<int>(nbsolutions_);
    if (base == 0) {
        constats.egal(moment.fichiersapres.hist, moment.fichiersavant.hist, "historique");
        return;
    }
    const auto fautes = entier(ecran.fautes.substr(0, ecran.fautes.find_first_of("/ ")));
    const auto pourcent = pourcentage(base, fautes);
    constats.exiger(ecran.fautes.ends_with(" - " + pourcent + " %"),
                    "pourcentage affiché : " + ecran.fautes + ", attendu " + pourcent);
    auto attendu = moment.fichiersavant.hist;
    const auto& lus = moment.fichiersapres.hist;
    constexpr std::size_t largeurdate = 18;
    const auto date = lus.empty() ? std::string() : lus.back().substr(0, largeurdate);
    const auto quand = [](const std::string& texte) {  // dd/mm/yyyy - HH:MM in order of time
        return texte.substr(6, 4) + texte.substr(3, 2) + texte.substr(0, 2) + texte.substr(13);
    };
    const auto texte = [](const common::Instant& instant) {
        return instant.date() + " - " + instant.heuredujour().substr(0, 5);
    };
    constats.exiger(date.size() == largeurdate && quand(date) >= quand(texte(moment.debut)) &&
                        quand(date) <= quand(texte(moment.fin)),
                    "date de l'enregistrement : " + date);
    attendu.push_back(date + record(pourcent));
    constats.egal(lus, attendu, "historique");
}

/// What follows the date and time.
std::string Suivi::record(const std::string& pourcent) const {
    const auto mode = menu_.toue.empty() ? std::string() : menu_.toue + " - ";
    return " - " + pourcent + "% - " + mode + lancement_.nom;
}

}  // namespace endurance
