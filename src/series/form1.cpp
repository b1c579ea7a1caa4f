#include "form1.h"

#include <algorithm>
#include <utility>

#include "listes.h"
#include "saisie.h"

namespace series {
namespace {

constexpr std::int32_t dixheures = 36000;

/// The reference lists may be as long as those that come with the program.
Limites placesdeslistes() {
    Limites limites{};
    std::transform(common::listesreference.begin(), common::listesreference.end(), limites.begin(),
                   [](const common::ListeReference& liste) { return liste.places; });
    return limites;
}

std::string enligne(std::string_view tirage, std::string_view suite, std::size_t /*nbsolutions*/) {
    return std::string(tirage).append(";").append(suite);
}

const Gabarit gabaritform1{
    .nom = "Form1",
    .titre = "ENTRAINEMENT AU SCRABBLE - Orvane",
    .nbcadres = 3,
    .nblignes = 5,
    .regles = {.nbplaces = common::tiragesform1,
               .nbboites = common::tiragesform1,
               .limiterangees = common::rangeesform1,
               .comblement = Comblement::Dernier,
               .enligne = enligne,
               .rendlettresnues = false,
               .jugesiaffiche = false,
               .marquesgardees = "-+("},
    .parcours = [](int boite, int code,
                   int /*nbsolutions*/) { return parcours(boite, code, common::tiragesform1); },
    .videenfaute = false,
    .longsgardentpolice = true,
    .nomdesfautes = "nbftot",
    .enmoinsde = "Eliminer un mot trouvé en moins de",
    .troptard = "NON",
    .limites = placesdeslistes(),
    .limitenotes = common::lignesinfosouris,
    .lignesdemots = Lignesdemots::Paires,
    .notessurletirage = true,
    .limitetotal = dixheures,
};

}  // namespace

Form1::Form1(ui::Plateforme& plateforme, const Voisins& voisins)
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
    fond = voisins_.menu.fond();
    Formserie::coloration();
    for (auto* cadre : {Frame1[0], Frame1[2]})
        cadre->fond = fond();
}

}  // namespace series
