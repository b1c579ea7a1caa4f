// Multi: the list, its sample, the criterion of elimination.

#include <algorithm>
#include <array>
#include <limits>

#include "faute.h"
#include "fichier.h"
#include "listes.h"
#include "multi.h"
#include "parcours.h"
#include "rangeesmulti.h"

namespace multi {

int tailleechantillon(const series::Serie& serie, int demandee) {
    constexpr std::string_view action = "Tirage de l'échantillon";
    const int rangees = serie.rangees.nbmots();
    if (static_cast<std::size_t>(rangees) > common::rangeesmulti) {
        throw common::Faute(common::rapportligne(
            action, serie.fich, common::rangeesmulti + 1,
            "la liste est trop longue pour un échantillon ; la limite est de " +
                std::to_string(common::rangeesmulti) + " lignes"));
    }
    const int taille = std::min(demandee, rangees);
    if (taille > limiteechantillon) {
        throw common::Faute(common::rapportfichier(
            action, serie.fich,
            "l'échantillon demandé est de " + std::to_string(taille) +
                " tirages ; la limite est de " + std::to_string(limiteechantillon)));
    }
    return taille;
}

std::int16_t totaldessolutions(const series::Serie& serie) {
    constexpr auto limite = std::numeric_limits<std::int16_t>::max();
    const auto rangees = static_cast<std::size_t>(serie.rangees.nbmots());
    const auto total = rangees * serie.nbsolutions();
    if (total > limite) {
        throw common::Faute(common::rapportligne(
            "Lecture de la liste", serie.fich, limite / serie.nbsolutions() + 1,
            "trop de solutions à trouver, à raison de " + std::to_string(serie.nbsolutions()) +
                " par tirage ; la limite est de " + std::to_string(limite)));
    }
    return static_cast<std::int16_t>(total);
}

void Multi::commencer(std::string_view chemin) {
    ouvrirliste(chemin);
    serie_.boitesutiles =
        nbtirages * static_cast<int>(nbsolutionsdelaliste(serie_.rangees, serie_.fich));
    disposercolonne();
    reglerpolices(serie_.rangees.longueurdernier());
    ouvrircritere();
    initchrono();
    if (voisins_.form3.toue == common::modes::echantillon)
        garderechantillon(tailleechantillon(serie_, taillevoulue()));
    ratages_ = {};
    nbmotstotal_ = totaldessolutions(serie_);
    nouvelleserie();
}

/// Shows the criterion if the user may set it. A hidden criterion stays in force.
void Multi::ouvrircritere() {
    const bool libre = criterelibre();
    for (auto* controle : {&seuiltxt, &Command4, &Label5, &Label6})
        controle->visible = libre;
    seuiltxt.actif = libre;
}

/// The sample size in the options, for the number of solutions of the list.
int Multi::taillevoulue() const {
    const auto& options = voisins_.dialog2;
    const std::array tailles{options.nbechduo, options.nbechtri, options.nbechqua,
                             options.nbechqui};
    return tailles.at(serie_.nbsolutions() - minsolutions);
}

/// The threshold stays; only the words change, and the place of what follows them.
void Multi::changercritere() {
    constexpr int deplacement = 950;
    constexpr int gaucheseuil = 1800;
    constexpr int gauchelabel6 = 2160;
    const bool secondes = !serie_.critere.secondes;
    serie_.critere.secondes = secondes;
    libellercritere();
    seuiltxt.gauche = secondes ? seuiltxt.gauche() + deplacement : gaucheseuil;
    Label6.gauche = secondes ? Label6.gauche() + deplacement : gauchelabel6;
    Label5.largeur = seuiltxt.gauche() - Label5.gauche();
}

}  // namespace multi
