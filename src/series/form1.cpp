#include "form1.h"

#include <algorithm>
#include <utility>

namespace series {
namespace {

constexpr std::int32_t dixheures = 36000;

const Gabarit gabaritform1{
    "Form1",       "ENTRAINEMENT AU SCRABBLE - Orvane",
    "nbftot",      nbboitesform1,
    nbboitesform1, {5001, 5001, 5001, 2501, 20001, 1001},
    500001,        Lignesdemots::Paires,
    true,          "-+(",
    dixheures,
};

}  // namespace

Form1::Form1(ui::Plateforme& plateforme, common::Voisins& voisins)
    : Formserie(plateforme, voisins, gabaritform1),
      Command6(ajouter(ui::Genre::Bouton, "Command6")) {
    Command6.texte = "Mode compact";
    Command6.infobulle = "Attention, il faudra fermer le logiciel pour revenir en mode normal";
    Command6.clic = [this] { passercompact(); };
    Command4.clic = [this] { changercritere(); };
    fermeture = [this] { ui::declencher(quitter.clic); };
    branchersaisie();
    disposer();
    ordonner();
}

/// Tab goes through the first racks, the answers, the other racks, then the foot of the window.
void Form1::ordonner() {
    constexpr auto premierstirages = 10;
    std::vector<ui::Controle*> ordre(tirage.begin(), tirage.begin() + premierstirages);
    ordre.insert(ordre.end(), solution.begin(), solution.end());
    ordre.insert(ordre.end(), tirage.begin() + premierstirages, tirage.end());
    ordre.insert(ordre.end(), {&recherche, &valider});
    ordre.insert(ordre.end(), tuiles.controles().begin(), tuiles.controles().end());
    ordre.insert(ordre.end(), {&corriger, &restart, &chronos.Command5, &Command3, &Command6,
                               &Command4, &quitter, &seuiltxt, &chronos.Check1});
    tabulation(std::move(ordre));
}

void Form1::coloration() {
    fond = ui::Couleur(voisins_.menu.fond());
    for (auto* controle : {Frame1[0], Frame1[2], &chronos.Check1, &chronos.Label1, &chronos.Label2,
                           &chronos.Label3, &Label4, &Label5, &Label6, &Label7, &Label8, &nbseries,
                           &score, &police, &tps, &voyant, &fautesaffichees})
        controle->fond = fond();
}

int Form1::nombredelaserie() const {
    return std::min(rangees_.nbmots(), nbboitesform1);
}

std::int32_t Form1::tempsdeserie() const {
    return std::int32_t{voisins_.dialog2.tempsparmot} * nbboitesform1;
}

std::string Form1::tiragedelarangee(int place) const {
    const int rang = rangee(place);
    return rang < 0 ? std::string() : rangees_.tirage(rang);
}

std::size_t Form1::lignedelarangee(int place) const {
    const int rang = rangee(place);
    return rang < 0 ? 0 : rangees_.ligne(rang);
}

}  // namespace series
