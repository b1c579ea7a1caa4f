// Form1: the list, its sample, the criterion of elimination.

#include "faute.h"
#include "fichier.h"
#include "form1.h"

namespace series {

void Form1::commencer(std::string_view chemin) {
    ouvrirliste(chemin);
    motsfaux_.clear();
    reglerpolices(rangees_.longueurdernier());
    ouvrircritere();
    if (voisins_.form3.toue == common::modes::echantillon)
        echantillonner(tailleechantillon());
    nbmotsinitial_ = rangees_.nbmots();
    if (modecompact_)
        rangernotes(false);
    nouvelleserie();
}

/// Offers the criterion, as it stands, or forces the first success.
void Form1::ouvrircritere() {
    const bool libre = criterelibre();
    for (auto* controle : {&Command4, &seuiltxt}) {
        controle->actif = libre;
        controle->visible = libre;
    }
    for (auto* controle : {&voyant, &Label5, &Label6})
        controle->visible = libre;
    if (!libre)
        fixercritere(false);
}

void Form1::fixercritere(bool secondes) {
    libellercritere(secondes);
    seuiltxt.texte = secondes ? "5" : "1";
    placercritere();
}

void Form1::changercritere() {
    fixercritere(!criteresecondes());
    voyant.visible = criteresecondes();
}

/// `nbechuni`, which is not cut down to the list.
int Form1::tailleechantillon() const {
    const int taille = voisins_.dialog2.nbechuni;
    const auto refuser = [&](const std::string& ennui) {
        throw common::Faute(common::rapportfichier(
            "Tirage de l'échantillon", fich_,
            "l'échantillon demandé est de " + std::to_string(taille) + " mots ; " + ennui));
    };
    if (taille > limiteechantillon)
        refuser("la limite est de " + std::to_string(limiteechantillon));
    if (taille > rangees_.nbmots())
        refuser("la liste n'en compte que " + std::to_string(rangees_.nbmots()));
    return taille;
}

std::string Form1::lignedelaliste(int rang) const {
    return rangees_.tirage(rang) + ";" + rangees_.suite(rang);
}

}  // namespace series
