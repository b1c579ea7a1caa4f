#include "commande.h"

#include <ostream>

#include "recherche.h"

namespace recherche {

bool commander(std::string_view criteres, const Contexte& contexte, std::uint64_t graine,
               std::ostream& sortie, std::ostream& erreurs) {
    const auto refuser = [&](const Refus& refus) {
        erreurs << refus.texte() << '\n';
        return false;
    };
    const auto lue = liredemande(criteres, contexte);
    if (const auto* refus = std::get_if<Refus>(&lue))
        return refuser(*refus);
    const auto& demande = std::get<Demande>(lue);
    const auto places = chercher(contexte.glossaire, demande, graine);
    for (const auto& remarque : demande.remarques)
        erreurs << remarque << '\n';
    if (places.empty())
        erreurs << "Aucun mot ne répond à ces critères.\n";
    if (demande.forme == Forme::mots) {
        for (const auto place : places)
            sortie << contexte.glossaire.fiches()[place].texte() << '\n';
        return true;
    }
    const auto faite = enliste(contexte.glossaire, places);
    if (const auto* refus = std::get_if<Refus>(&faite))
        return refuser(*refus);
    const auto& liste = std::get<Liste>(faite);
    for (const auto& rangee : liste.rangees)
        sortie << rangee << '\n';
    for (const auto& laisse : liste.laisses)
        erreurs << laisse << '\n';
    return true;
}

}  // namespace recherche
