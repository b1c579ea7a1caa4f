#include "scenario.h"

#include <istream>
#include <ostream>

#include "dossier.h"

namespace banc {

void jouer(std::istream& scenario, const std::string& nom, const Reglages& reglages,
           std::ostream& sortie, Bilan& bilan) {
    Lecteur lecteur(scenario);
    if (lecteur.destination() != Destination::Tous && lecteur.destination() != reglages.pilote)
        return;
    const auto dossier = reglages.dossier ? std::make_unique<Dossier>(*reglages.dossier)
                                          : std::make_unique<Dossier>();
    Seance seance(dossier->chemin(), reglages.programme, reglages.fabriquepilote);
    if (!reglages.dossier) {
        auto& disque = seance.plateforme.disque();
        disque.reserver(fournitures(reglages.jeu));
        if (reglages.pilote == Destination::Qt)  // the windows read pictures by their own means
            static_cast<void>(disque.systeme("images"));
    }
    bool bon = true;
    Ordre ordre;
    while (lecteur.suivant(ordre)) {
        auto reponse = seance.repondre(ordre);
        if (reponse.starts_with("erreur:")) {
            bon = false;
            reponse += " (" + nom + ":" + std::to_string(ordre.numero) + ")";
        }
        sortie << reponse << std::endl;  // who gives the orders may be waiting for the answer
    }
    ++(bon ? bilan.reussis : bilan.echoues);
}

}  // namespace banc
