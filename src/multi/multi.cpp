#include "multi.h"

#include <utility>

#include "listes.h"
#include "parcours.h"
#include "rangeesmulti.h"

namespace multi {
namespace {

constexpr int nbboites = nbtirages * static_cast<int>(maxsolutions);

std::string enligne(std::string_view tirage, std::string_view suite, std::size_t nbsolutions) {
    return lignederangee(tirage, solutions(suite), nbsolutions);
}

const series::Gabarit gabaritmulti{
    .nom = "Multi",
    .titre = "ENTRAINEMENT SCRABBLE",
    .nbcadres = 2,
    .nblignes = 0,
    .regles = {.nbplaces = nbtirages,
               .nbboites = nbboites,
               .limiterangees = limiterangees,
               .comblement = series::Comblement::Suivants,
               .enligne = enligne,
               .rendlettresnues = true,
               .jugesiaffiche = true,
               .marquesgardees = "-"},
    .parcours = parcours,
    .videenfaute = true,
    .longsgardentpolice = false,
    .nomdesfautes = "nbftotal",
    .enmoinsde = "Eliminer un tirage trouvé en moins de",
    .troptard = "NO",
    .limites = {5001, 10001, 10001, 4001, 20001, 2001},
    .limitenotes = common::lignesinfosourismulti,
    .lignesdemots = series::Lignesdemots::Toutes,
    .notessurletirage = false,
    .limitetotal = std::nullopt,
};

}  // namespace

Multi::Multi(ui::Plateforme& plateforme, const Voisins& voisins)
    : Formserie(plateforme, voisins, gabaritmulti) {
    Command4.clic = [this] { changercritere(); };
    fermeture = [] {};  // only "Retour au sommaire" leaves
    branchersaisie();
    disposer();
    ordonner();
}

/// Tab goes through the answers as Enter does, then to the foot and the side of the window.
void Multi::ordonner() {
    std::vector<ui::Controle*> ordre;
    for (int place = 0; place < nbtirages; ++place)
        for (std::size_t mot = 0; mot < maxsolutions; ++mot)
            ordre.push_back(&boite(place, mot));
    ordre.insert(ordre.end(), {&recherche, &valider});
    ordre.insert(ordre.end(), tuiles.controles().begin(), tuiles.controles().end());
    ordre.insert(ordre.end(), {&corriger, &restart, &chronos.Command5, &Command3, &Command4,
                               &quitter, &seuiltxt, &chronos.Check1});
    tabulation(std::move(ordre));
}

void Multi::branchersaisie() {
    for (int i = 0; i < nbboites; ++i)
        solution[static_cast<std::size_t>(i)]->doubleclic = [this, i] { ouvrirmenudesolution(i); };
    for (int place = 0; place < nbtirages; ++place)
        tirage[static_cast<std::size_t>(place)]->doubleclic = [this, place] {
            ouvrirmenudetirage(place);
        };
    recherche.entree = [this] { mettredefaut(valider); };
    recherche.clic = [this] { cliquerrecherche(boite_); };
}

void Multi::validerrecherche() {
    Formserie::validerrecherche();
    if (!serie_.ouverte)
        mettredefaut(Command2);
}

void Multi::coloration() {
    Formserie::coloration();
    for (auto* cadre : Frame1)
        cadre->fond = fond();
}

ui::Controle& Multi::boite(int place, std::size_t mot) const {
    return *solution[mot * nbtirages + static_cast<std::size_t>(place)];
}

}  // namespace multi
