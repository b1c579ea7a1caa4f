// Form1: the list, its sample, the criterion of elimination.

#include "faute.h"
#include "fichier.h"
#include "form1.h"

namespace series {

int tailleechantillon(const Serie& serie, int demandee) {
    const auto refuser = [&](const std::string& ennui) {
        throw common::Faute(common::rapportfichier(
            "Tirage de l'échantillon", serie.fich,
            "l'échantillon demandé est de " + std::to_string(demandee) + " mots ; " + ennui));
    };
    if (demandee > limiteechantillon)
        refuser("la limite est de " + std::to_string(limiteechantillon));
    if (demandee > serie.rangees.nbmots())
        refuser("la liste n'en compte que " + std::to_string(serie.rangees.nbmots()));
    return demandee;
}

void Form1::commencer(std::string_view chemin) {
    ouvrirliste(chemin);
    motsfaux_ = {};
    reglerpolices(serie_.rangees.longueurdernier());
    ouvrircritere();
    if (voisins_.form3.toue == common::modes::echantillon)
        garderechantillon(tailleechantillon(serie_, voisins_.dialog2.nbechuni));
    nbmotsinitial_ = serie_.rangees.nbmots();
    if (modecompact_)
        rangernotes(false);
    nouvelleserie();
}

/// Shows the criterion if the user may set it; otherwise sets it to the first success.
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
    serie_.critere.secondes = secondes;
    libellercritere();
    seuiltxt.texte = secondes ? "5" : "1";
    placercritere();
}

void Form1::changercritere() {
    fixercritere(!serie_.critere.secondes);
    voyant.visible = serie_.critere.secondes;
}

}  // namespace series
