#include "multi.h"

#include <utility>

#include "faute.h"
#include "fichier.h"
#include "parcours.h"
#include "rangeesmulti.h"

namespace multi {
namespace {

constexpr int nbboites = nbtirages * static_cast<int>(maxsolutions);

const series::Gabarit gabaritmulti{
    .nom = "Multi",
    .titre = "ENTRAINEMENT SCRABBLE",
    .nbcadres = 2,
    .nblignes = 0,
    .nbtirages = nbtirages,
    .nbboites = nbboites,
    .limiterangees = limiterangees,
    .comblement = series::Comblement::Suivants,
    .longsgardentpolice = false,
    .nomdesfautes = "nbftotal",
    .enmoinsde = "Eliminer un tirage trouvé en moins de",
    .troptard = "NO",
    .limites = {5001, 10001, 10001, 4001, 20001, 2001},
    .limitenotes = 20001,
    .lignesdemots = series::Lignesdemots::Toutes,
    .notessurletirage = false,
    .marquesgardees = "-",
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
    valider.clic = [this] {
        validerrecherche();
        if (!serieouverte())
            mettredefaut(Command2);
    };
}

void Multi::coloration() {
    Formserie::coloration();
    for (auto* cadre : Frame1)
        cadre->fond = fond();
}

std::size_t Multi::nbsolutions() const {
    return static_cast<std::size_t>(boitesutiles_ / nbtirages);
}

ui::Controle& Multi::boite(int place, std::size_t mot) const {
    return *solution[mot * nbtirages + static_cast<std::size_t>(place)];
}

std::optional<int> Multi::boitevoisine(int rang, int code) const {
    return parcours(rang, code, static_cast<int>(nbsolutions()));
}

std::string Multi::tirageasaisir(int place) const {
    if (rangee(place) < 0) {
        throw common::Faute(common::rapportfichier(
            "Saisie d'une réponse", fich_,
            "le tirage n° " + std::to_string(place + 1) +
                " est vide et n'admet aucune lettre ; la série s'arrête au tirage n° " +
                std::to_string(nombredelaserie())));
    }
    return tiragedelarangee(place);
}

/// The letters without mark-up, which is gone from the box from now on.
void Multi::rendreletirage(int place) {
    if (!lettres_.tiragenet().empty())
        tirage[static_cast<std::size_t>(place)]->texte = lettres_.tiragenet();
}

bool Multi::occupee(int place) const {
    return Formserie::occupee(place) && !tirage[static_cast<std::size_t>(place)]->texte().empty();
}

}  // namespace multi
