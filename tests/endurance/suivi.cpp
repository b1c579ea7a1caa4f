#include "suivi.h"

#include <algorithm>
#include <array>

#include "listes.h"
#include "regles.h"

namespace endurance {

int Moment::secondes() const {
    return ordre.nom == "avancer" ? entier(ordre.suite) : 0;
}

Suivi::Suivi(bool multi, const common::VariablesForm3& menu,
             const common::VariablesDialog2& options)
    : multi_(multi),
      menu_(menu),
      options_(options),
      nbtirages_(multi ? common::tiragesmulti : common::tiragesform1) {}

const Rangee* Suivi::rangee(int place) const {
    return place >= 0 && place < places() ? &tirees_[static_cast<std::size_t>(place)] : nullptr;
}

int Suivi::boites() const {
    return nbtirages_ * static_cast<int>(nbsolutions_);
}

bool Suivi::assistee() const {
    return menu_.nombase != "Benjamins uniques" && menu_.typ != common::typrallonges &&
           options_.saisieassistee != 0;
}

void Suivi::commencer(const Lancement& lancement, const std::vector<std::string>& lignes,
                      const Moment& moment, Constats& constats) {
    lancement_ = lancement;
    rangees_ = lesrangees(lignes);
    constats.egal(rangees_.size(), lignes.size(), "rangées lues");
    distinctes_ = distinctes(rangees_);
    nbsolutions_ = multi_ ? nbsolutions(rangees_) : 1;
    restantes_.clear();
    for (const auto& rangee : rangees_)
        ++restantes_[rangee.ligne()];
    base_ = static_cast<int>(rangees_.size());
    if (menu_.toue == common::modes::echantillon) {
        const std::array tailles{options_.nbechuni, options_.nbechduo, options_.nbechtri,
                                 options_.nbechqua, options_.nbechqui};
        base_ = std::min<int>(base_, tailles.at(nbsolutions_ - 1));
    }
    moins_ = plus_ = base_;
    succes_.clear();
    fautes_.clear();
    fautessures_ = true;
    auto& admises = admises_[lancement.revision];
    admises.insert(moment.fichiersapres.revision.begin(), moment.fichiersapres.revision.end());
    for (const auto& rangee : rangees_)
        for (auto& forme : formes(rangee, multi_, nbsolutions_))
            admises.insert(std::move(forme));
    const auto& ecran = moment.apres;
    constats.egal(ecran.titre, menu_.nombase, "titre de la liste");
    constats.egal(ecran.seuilvisible, menu_.toue == common::modes::revision || lancement.app,
                  "seuil montré");
    verifierecran(ecran, constats);
    tirer(moment, constats);
}

void Suivi::suivre(const Moment& moment, Constats& constats) {
    avancer(moment, constats);
    verifierecran(moment.apres, constats);
    const auto avant = moment.avant.etat();
    const auto apres = moment.apres.etat();
    if (multi_ && avant == Etat::Ouverte && (moment.avant.secondes() || moment.apres.secondes()))
        fautessures_ = false;  // every departure from a box has judged its rack
    if (avant == Etat::Ouverte && apres == Etat::Ouverte)
        verifierouverte(moment, constats);
    else if (avant == Etat::Ouverte)
        corriger(moment, constats);
    else if (apres == Etat::Ouverte)
        tirer(moment, constats);
    else
        verifierfigee(moment, constats);
    constats.exiger(avant != Etat::Finie || apres == Etat::Finie, "une liste finie a repris");
    verifierfichiers(moment, constats);
}

void Suivi::cacher(const Moment& moment) {
    if (moment.avant.visible && !moment.apres.visible) {
        series_ = 0;
        total_ = 0;
        tirees_.clear();
        return;
    }
    if (moment.avant.minuteries[1])
        battre(moment.secondes());
}

/// The total clock runs for so many seconds.
void Suivi::battre(int secondes) {
    total_ += secondes;
    if (secondes > 0)
        textetotal_ = textetotal(total_);
}

void Suivi::avancer(const Moment& moment, Constats& constats) {
    const auto& avant = moment.avant;
    const auto& apres = moment.apres;
    const int passees = moment.secondes();
    int courues = passees;
    if (avant.minuteries[0] && passees > 0) {
        const bool sonne = passees >= restant_;
        // The total clock stops in the second in which a list ends, before its own tick.
        if (sonne && apres.etat() == Etat::Finie)
            courues = restant_ - 1;
        restant_ = std::max(0, restant_ - passees);
        constats.egal(apres.temps, texteserie(restant_), "temps de la série");
        constats.egal(apres.corriger, !sonne, "série ouverte");
    }
    if (avant.minuteries[1])
        battre(courues);
    constats.egal(apres.tempstot, textetotal_, "temps total");
}

void Suivi::compter(const Ecran& ecran, Constats& constats) {
    const int montres = entier(ecran.motsleft);
    constats.exiger(montres >= moins_ && montres <= plus_,
                    "tirages restants : lu " + ecran.motsleft + ", attendu de " +
                        std::to_string(moins_) + " à " + std::to_string(plus_));
    moins_ = plus_ = montres;
}

void Suivi::tirer(const Moment& moment, Constats& constats) {
    const auto& ecran = moment.apres;
    compter(ecran, constats);
    tirerracks(moment, constats);
    const auto utiles = static_cast<std::size_t>(boites());
    for (std::size_t i = 0; i < ecran.solution.size(); ++i) {
        const auto& boite = ecran.solution[i];
        constats.egal(boite.visible, i < utiles, "boîte " + std::to_string(i) + " montrée");
        const bool libre = i >= utiles || jugeeautirage(placede(static_cast<int>(i)), moment);
        constats.exiger(libre || boite.texte.empty(),
                        "boîte " + std::to_string(i) + " remplie au tirage");
    }
    constats.egal(ecran.boiteactive, 0, "boîte active au tirage");
    constats.exiger(!ecran.pause, "pause au tirage");
    restant_ = options_.tempsparmot * boites();
}

/// On `Multi` under the seconds criterion the box that the draw takes the focus from is judged,
/// which writes the solutions of its new rack.
bool Suivi::jugeeautirage(int place, const Moment& moment) const {
    const int quittee = moment.avant.boiteactive;
    const bool alasouris = moment.ordre.suite.ends_with(".restart");  // the click has left it first
    return multi_ && moment.apres.secondes() && !alasouris && quittee >= 0 &&
           placede(quittee) == place;
}

/// The rack on screen is the one of this row.
bool Suivi::montree(const Rangee& rangee, int place, const Moment& moment) const {
    const auto& texte = moment.apres.tirage[static_cast<std::size_t>(place)].texte;
    if (place > 0)
        return texte == rangee.tirage;
    // Assisted entry has taken the mark-up, or the letters, off the rack of the box in focus.
    if (jugeeautirage(place, moment)) {
        const auto solutions = rangee.solutions();
        const bool ecrite =
            solutions.empty() || solutions.front() == moment.apres.solution[0].texte;
        return ecrite && (texte == rangee.tirage || tirede(texte, net(rangee.tirage)));
    }
    return texte == rangee.tirage || texte == net(rangee.tirage);
}

/// Each rack is that of a row that is left, and none comes more often than such rows are. The first
/// rack, of which the letters alone may show, takes what the others leave.
void Suivi::tirerracks(const Moment& moment, Constats& constats) {
    auto reste = restantes_;
    const int nombre = std::min(plus_, nbtirages_);
    tirees_.assign(static_cast<std::size_t>(nombre), {});
    for (int place = nbtirages_ - 1; place >= 0; --place) {
        const auto& texte = moment.apres.tirage[static_cast<std::size_t>(place)].texte;
        if (place >= nombre) {
            constats.egal(texte, std::string(), "tirage " + std::to_string(place));
            continue;
        }
        const auto trouvee =
            std::find_if(rangees_.begin(), rangees_.end(), [&](const Rangee& rangee) {
                return montree(rangee, place, moment) && reste[rangee.ligne()] > 0;
            });
        constats.exiger(trouvee != rangees_.end(), "tirage " + std::to_string(place) + " « " +
                                                       texte +
                                                       " » : aucune rangée restante de ce nom");
        if (trouvee == rangees_.end())
            continue;
        --reste[trouvee->ligne()];
        tirees_[static_cast<std::size_t>(place)] = *trouvee;
    }
}

}  // namespace endurance
