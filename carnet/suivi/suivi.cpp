#include "suivi.h"

#include "faute.h"

namespace carnet {
namespace {

/// Thrown through the reading when the player stops it.
struct Arret {};

constexpr std::size_t pas = 50'000;  // lines between two looks at the player

void lirejournal(common::Disque& disque, Suivi& suivi, const Lues& lues) {
    const auto chemin = profiles::cheminjournal(suivi.util);
    std::size_t lignes = 0;
    const auto erreur = profiles::parcourirjournal(
        disque, chemin,
        [&](const profiles::Lignejournal& ligne) {
            if (lignes++ % pas == 0 && !lues(lignes))
                throw Arret();
            suivi.echelle.prendre(ligne);
            suivi.travail.prendre(ligne);
        },
        suivi.lecture);
    if (erreur)
        suivi.ennui = common::rapportfichier("Lecture du journal", chemin, common::raison(erreur));
}

}  // namespace

bool liresuivi(common::Disque& disque, Suivi& suivi, const Lues& lues) try {
    lirejournal(disque, suivi, lues);
    try {
        suivi.bilans = lirebilans(disque, suivi.util);
    } catch (const common::Faute& faute) {
        suivi.ennui += (suivi.ennui.empty() ? "" : " ") + std::string(faute.what());
    }
    return true;
} catch (const Arret&) {
    return false;
}

}  // namespace carnet
