// Form1: the list, its sample, the draw of a series, the criteria and the end of the list.

#include <algorithm>

#include "faute.h"
#include "fichier.h"
#include "form1.h"
#include "tirage.h"

namespace series {
namespace {

constexpr std::string_view apressucces = "Eliminer un mot après";
constexpr std::string_view enmoinsde = "Eliminer un mot trouvé en moins de";

}  // namespace

void Form1::commencer(std::string_view chemin) {
    quitter.fond = ui::Couleur::bouton();
    Label7.texte = voisins_.form3.nombase;
    fich_ = chemin;
    motsfaux_.clear();
    rangees_.lire(plateforme().disque(), fich_);
    reglerpolices(rangees_.longueurdernier());
    chronos.tempstot.fond = ui::Couleur::fenetre();
    ouvrircritere();
    if (voisins_.form3.toue == "E")
        echantillonner();
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
    Label5.texte = std::string(secondes ? enmoinsde : apressucces);
    seuiltxt.texte = secondes ? "5" : "1";
    Label6.texte = secondes ? "secondes." : "réussites.";
    placercritere();
}

void Form1::changercritere() {
    fixercritere(!criteresecondes());
    voyant.visible = criteresecondes();
}

/// Keeps `nbechuni` rows drawn by chance. The size is not cut down to the list.
void Form1::echantillonner() {
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
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    rangees_.garder(tirersansremise(hasard, rangees_.nbmots(), taille, Comblement::Dernier));
}

void Form1::nouvelleserie() {
    for (int i = 1; i < nbboitesform1; ++i)
        peindreaurepos(i);
    effacerserie(rangees_.nbmots());
    auto& hasard = plateforme().hasard();
    hasard.amorcer(plateforme().maintenant().secondesdepuisminuit());
    const auto tires =
        tirersansremise(hasard, rangees_.nbmots(), nombredelaserie(), Comblement::Dernier);
    std::fill(rangboite_.begin(), rangboite_.end(), -1);
    std::copy(tires.begin(), tires.end(), rangboite_.begin());
    std::fill(rapide_.begin(), rapide_.end(), -1);
    tuiles.oublier();
    std::vector<std::string> lignesdelaserie;
    for (int i = 0; i < nbboitesform1; ++i) {
        const auto place = static_cast<std::size_t>(i);
        solution[place]->texte = "";
        solution[place]->barre = false;
        tirage[place]->texte = tiragedelarangee(i);
        if (rangee(i) >= 0)
            lignesdelaserie.push_back(tiragedelarangee(i) + ";" + rangees_.solution(rangee(i)));
    }
    prendrerevisions(std::move(lignesdelaserie));
    ouvrirserie();
}

void Form1::finserie() {
    rangees_.compacter();
    if (rangees_.nbmots() > 0)
        return;
    finirliste(nbmotsinitial_, static_cast<std::int64_t>(motsfaux_.size()));
}

}  // namespace series
