// What a series writes: the revision file and the history.

#include <algorithm>

#include "suivi.h"

namespace endurance {

void Suivi::verifierfichiers(const Moment& moment, Constats& constats) const {
    const bool finie = moment.avant.etat() != Etat::Finie && moment.apres.etat() == Etat::Finie;
    if (!finie)
        constats.egal(moment.fichiersapres.hist, moment.fichiersavant.hist, "historique");
    verifierrevision(moment, constats);
    if (garde() && moment.avant.etat() == Etat::Ouverte && moment.apres.etat() != Etat::Ouverte)
        verifierratees(moment, constats);
    if (moment.apres.menu && !moment.avant.menu)
        verifiermenu(moment, constats);
}

bool Suivi::parlacorrection(const std::vector<std::string>& ajoutees, const Moment& moment) const {
    const bool corrigee =
        moment.avant.etat() == Etat::Ouverte && moment.apres.etat() != Etat::Ouverte;
    const bool jugee = multi_ && moment.avant.secondes() && moment.apres.etat() == Etat::Ouverte;
    if (!garde() || !(corrigee || jugee))
        return ajoutees.empty();
    const auto& avant = moment.fichiersavant.revision;
    if (!multi_) {
        std::vector<std::string> attendues;
        for (std::size_t i = 0; i < tirees_.size(); ++i) {
            const auto ligne = tirees_[i].ligne();
            const bool fausse = moment.apres.solution[i].fond == ui::couleurs::faux;
            if (fausse && std::count(avant.begin(), avant.end(), ligne) == 0 &&
                std::count(attendues.begin(), attendues.end(), ligne) == 0)
                attendues.push_back(ligne);
        }
        return ajoutees == attendues;
    }
    return std::all_of(ajoutees.begin(), ajoutees.end(), [&](const std::string& ligne) {
        const bool tiree = std::any_of(tirees_.begin(), tirees_.end(), [&](const Rangee& rangee) {
            const auto lesformes = formes(rangee, true, nbsolutions_);
            return std::count(lesformes.begin(), lesformes.end(), ligne) > 0;
        });
        return tiree && std::count(avant.begin(), avant.end(), ligne) == 0 &&
               std::count(ajoutees.begin(), ajoutees.end(), ligne) == 1;
    });
}

/// Every rack that shows as failed is in the revision file, in one form or the other.
void Suivi::verifierratees(const Moment& moment, Constats& constats) const {
    const auto& lignes = moment.fichiersapres.revision;
    for (std::size_t i = 0; i < tirees_.size(); ++i) {
        if (moment.apres.tirage[i].fond == ui::couleurs::tirageaurepos)
            continue;
        const auto lesformes = formes(tirees_[i], multi_, nbsolutions_);
        constats.exiger(std::any_of(lesformes.begin(), lesformes.end(),
                                    [&](const std::string& forme) {
                                        return std::count(lignes.begin(), lignes.end(), forme) > 0;
                                    }),
                        "tirage raté absent des révisions : " + tirees_[i].ligne());
    }
}

void Suivi::verifierrevision(const Moment& moment, Constats& constats) const {
    const auto& avant = moment.fichiersavant.revision;
    const auto& apres = moment.fichiersapres.revision;
    if (moment.ordre.nom == "menu" && moment.ordre.suite.ends_with(".supprevmenu")) {
        constexpr std::string_view annonce = " a été effacé du fichier de révision";
        constats.exiger(moment.message.ends_with(annonce), "message du retrait");
        auto attendu = avant;
        std::erase(attendu, moment.message.substr(0, moment.message.size() - annonce.size()));
        constats.egal(apres, attendu, "révisions après un retrait");
        return;
    }
    const bool suite =
        apres.size() >= avant.size() && std::equal(avant.begin(), avant.end(), apres.begin());
    constats.exiger(suite, "les révisions d'avant ne sont plus là");
    if (!suite)
        return;
    const std::vector<std::string> ajoutees(
        apres.begin() + static_cast<std::ptrdiff_t>(avant.size()), apres.end());
    if (moment.ordre.nom == "menu" && moment.ordre.suite.ends_with(".addrevmenu")) {
        constats.exiger(ajoutees.size() == 1 && moment.message == ajoutees[0] +
                                                                      " ajouté au fichier de "
                                                                      "révision",
                        "ajout à la main : " + moment.message);
    } else {
        std::string texte;
        for (const auto& ligne : ajoutees)
            texte += ligne + " | ";
        constats.exiger(parlacorrection(ajoutees, moment), "révisions ajoutées : " + texte);
    }
    const auto& admises = admises_.at(lancement_.revision);
    for (const auto& ligne : ajoutees) {
        constats.exiger(admises.contains(ligne), "révision qui n'est pas de la liste : " + ligne);
        constats.exiger(!distinctes_ || std::count(apres.begin(), apres.end(), ligne) == 1,
                        "révision en double : " + ligne);
    }
}

/// The word menu offers to add a row or to take it out, never both; on `Form1`, as the file is.
void Suivi::verifiermenu(const Moment& moment, Constats& constats) const {
    const auto& apres = moment.apres;
    constats.exiger(apres.ajouter != apres.supprimer, "entrées du menu des révisions");
    const auto ouvrante = moment.ordre.suite.find('(');
    const auto* sienne = ouvrante == std::string::npos
                             ? nullptr
                             : rangee(placede(std::stoi(moment.ordre.suite.substr(ouvrante + 1))));
    if (sienne == nullptr || multi_ || !distinctes_)
        return;
    const auto& lignes = moment.fichiersapres.revision;
    const bool dedans = std::count(lignes.begin(), lignes.end(), sienne->ligne()) > 0;
    constats.egal(apres.supprimer, dedans, "retrait offert pour " + sienne->ligne());
}

}  // namespace endurance
