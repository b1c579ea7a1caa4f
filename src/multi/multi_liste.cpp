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

void Multi::commencer(std::string_view chemin) {
    ouvrirliste(chemin);
    boitesutiles_ = nbtirages * static_cast<int>(nbsolutionsdelaliste(rangees_, fich_));
    disposercolonne();
    reglerpolices(rangees_.longueurdernier());
    ouvrircritere();
    initchrono();
    if (voisins_.form3.toue == common::modes::echantillon)
        echantillonner(tailleechantillon());
    ratages_ = {};
    nbmotstotal_ = totaliser();
    nouvelleserie();
}

/// Shows the criterion where the user may set it. Hidden, it stays in force as it was.
void Multi::ouvrircritere() {
    const bool libre = criterelibre();
    for (auto* controle : {&seuiltxt, &Command4, &Label5, &Label6})
        controle->visible = libre;
    seuiltxt.actif = libre;
}

/// The size told for this number of solutions, cut down to the list.
int Multi::tailleechantillon() const {
    constexpr std::string_view action = "Tirage de l'échantillon";
    const auto& options = voisins_.dialog2;
    const int rangees = rangees_.nbmots();
    if (static_cast<std::size_t>(rangees) > common::rangeesmulti) {
        throw common::Faute(common::rapportligne(
            action, fich_, common::rangeesmulti + 1,
            "la liste est trop longue pour un échantillon ; la limite est de " +
                std::to_string(common::rangeesmulti) + " lignes"));
    }
    const std::array tailles{options.nbechduo, options.nbechtri, options.nbechqua,
                             options.nbechqui};
    const int taille = std::min<int>(tailles.at(nbsolutions() - minsolutions), rangees);
    if (taille > limiteechantillon) {
        throw common::Faute(common::rapportfichier(
            action, fich_,
            "l'échantillon demandé est de " + std::to_string(taille) +
                " tirages ; la limite est de " + std::to_string(limiteechantillon)));
    }
    return taille;
}

/// Solutions of the run, in 16 bits.
std::int16_t Multi::totaliser() const {
    constexpr auto limite = std::numeric_limits<std::int16_t>::max();
    const auto rangees = static_cast<std::size_t>(rangees_.nbmots());
    if (rangees * nbsolutions() > limite) {
        throw common::Faute(common::rapportligne(
            "Lecture de la liste", fich_, limite / nbsolutions() + 1,
            "trop de solutions à trouver, à raison de " + std::to_string(nbsolutions()) +
                " par tirage ; la limite est de " + std::to_string(limite)));
    }
    return static_cast<std::int16_t>(rangees * nbsolutions());
}

std::vector<std::string> Multi::solutionsdelarangee(int rang) const {
    return solutions(rangees_.suite(rang));
}

std::string Multi::lignedelaliste(int rang) const {
    return lignederangee(rangees_.tirage(rang), solutionsdelarangee(rang), nbsolutions());
}

/// The limit stays as it stands; only the words change, and the place of what follows them.
void Multi::changercritere() {
    constexpr int deplacement = 950;
    constexpr int gaucheseuil = 1800;
    constexpr int gauchelabel6 = 2160;
    const bool secondes = !criteresecondes();
    libellercritere(secondes);
    seuiltxt.gauche = secondes ? seuiltxt.gauche() + deplacement : gaucheseuil;
    Label6.gauche = secondes ? Label6.gauche() + deplacement : gauchelabel6;
    Label5.largeur = seuiltxt.gauche() - Label5.gauche();
}

}  // namespace multi
