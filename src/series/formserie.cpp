#include "formserie.h"

#include <array>
#include <utility>

#include "faute.h"
#include "fichier.h"
#include "paroles.h"
#include "polices.h"

namespace series {
namespace {

constexpr std::string_view aucuneserie = "0 série déjà réalisée";

std::string numerote(std::string_view quoi, std::size_t rang) {
    return std::string(quoi) + " " + std::to_string(rang + 1);
}

}  // namespace

Formserie::Formserie(ui::Plateforme& plateforme, common::Voisins& voisins, const Gabarit& gabarit)
    : Formulaire(plateforme, std::string(gabarit.nom)),
      voisins_(voisins),
      gabarit_(gabarit),
      rangees_(gabarit.limiterangees),
      rapide_(static_cast<std::size_t>(gabarit.nbboites), -1),
      boitesutiles_(gabarit.nbboites),
      Frame1(rangerde(ui::Genre::Cadre, "Frame1", gabarit.nbcadres)),
      lignes(rangerde(ui::Genre::Ligne, "Line", gabarit.nblignes, 1)),
      tirage(rangerde(ui::Genre::Boite, "tirage", gabarit.nbtirages)),
      solution(rangerde(ui::Genre::Boite, "solution", gabarit.nbboites)),
      Label7(ajouter(ui::Genre::Etiquette, "Label7")),
      Label5(ajouter(ui::Genre::Etiquette, "Label5")),
      seuiltxt(ajouter(ui::Genre::Boite, "seuiltxt")),
      Label6(ajouter(ui::Genre::Etiquette, "Label6")),
      voyant(ajouter(ui::Genre::Etiquette, "voyant")),
      Command4(ajouter(ui::Genre::Bouton, "Command4")),
      chronos(*this, gabarit.limitetotal),
      Label4(ajouter(ui::Genre::Etiquette, "Label4")),
      motsleft(ajouter(ui::Genre::Boite, "motsleft")),
      Label8(ajouter(ui::Genre::Etiquette, "Label8")),
      fautesaffichees(ajouter(ui::Genre::Etiquette, gabarit.nomdesfautes)),
      nbseries(ajouter(ui::Genre::Etiquette, "nbseries")),
      score(ajouter(ui::Genre::Etiquette, "score")),
      tps(ajouter(ui::Genre::Etiquette, "tps")),
      cache(ajouter(ui::Genre::Boite, "cache")),
      Command2(ajouter(ui::Genre::Bouton, "Command2")),
      tuiles(*this),
      recherche(ajouter(ui::Genre::Boite, "recherche")),
      valider(ajouter(ui::Genre::Bouton, "valider")),
      corriger(ajouter(ui::Genre::Bouton, "corriger")),
      restart(ajouter(ui::Genre::Bouton, "restart")),
      quitter(ajouter(ui::Genre::Bouton, "quitter")),
      Command3(ajouter(ui::Genre::Bouton, "Command3")),
      police(ajouter(ui::Genre::Etiquette, "police")),
      marques(*this, solution.size(), gabarit.limites),
      InfoSourisText(ajouter(ui::Genre::Boite, "InfoSourisText")),
      menumot(*this),
      rangboite_(tirage.size(), -1),
      lignesdufichier_(tirage.size()),
      ligneboite_(tirage.size()),
      enrevision_(tirage.size(), false),
      entame_(tirage.size(), false),
      juges_(tirage.size()) {
    texte = std::string(gabarit.titre);
    traduirecouleurs();
    habillerboites();
    habillerpanneaux();
    brancher();
    brancherboites();
    brancherrecherche();
}

std::vector<ui::Controle*> Formserie::rangerde(ui::Genre genre, std::string_view nomcommun,
                                               int nombre, int premier) {
    std::vector<ui::Controle*> rang;
    for (int i = 0; i < nombre; ++i) {
        // Lines stand alone, numbered in their names; the others are control arrays.
        const bool seule = genre == ui::Genre::Ligne;
        const auto nomseul = std::string(nomcommun) + (seule ? std::to_string(i + premier) : "");
        rang.push_back(&ajouter(genre, nomseul, seule ? -1 : i));
    }
    return rang;
}

void Formserie::charger() {
    tuiles.relever();
    coloration();
    marques.charger();
    for (std::size_t i = 0; i < solution.size(); ++i)
        marques.placer(i, *solution[i]);
    for (auto* boite : tirage)
        boite->pointeur = ui::Pointeur::Fleche;
    for (auto* boite : solution)
        boite->pointeur = ui::Pointeur::Fleche;
    initchrono();
}

void Formserie::coloration() {
    for (auto* controle :
         {&chronos.Check1, &chronos.Label1, &chronos.Label2, &chronos.Label3, &Label4, &Label5,
          &Label6, &Label7, &Label8, &nbseries, &score, &police, &tps, &voyant, &fautesaffichees})
        controle->fond = fond();
}

void Formserie::habillerboites() {
    for (std::size_t i = 0; i < tirage.size(); ++i) {
        tirage[i]->verrou = true;
        tirage[i]->fond = ui::couleurs::tirageaurepos;
        tirage[i]->accessible = numerote("Tirage", i);
    }
    for (std::size_t i = 0; i < solution.size(); ++i) {
        solution[i]->fond = ui::couleurs::solutionaurepos;
        solution[i]->taille = tailleinitiale;
        solution[i]->police = std::string(policedessolutions);
        solution[i]->accessible = numerote("Réponse", i);
    }
    for (auto* boites : {&tirage, &solution}) {
        for (auto* boite : *boites) {
            boite->alignement = ui::Alignement::Centre;
            boite->aspect = ui::Aspect::Case;
        }
    }
}

/// Keeps what is heard in step with what is seen, whatever paints.
void Formserie::traduirecouleurs() {
    for (auto* boite : tirage)
        boite->repeint = [this, boite] {
            boite->description = std::string(parolesdutirage(boite->fond(), serieouverte()));
        };
    for (auto* boite : solution)
        boite->repeint = [boite] {
            boite->description = std::string(parolesdelareponse(boite->fond()));
        };
    for (auto* horloge : {&chronos.temps, &chronos.tempstot})
        horloge->repeint = [horloge] {
            horloge->description = std::string(parolesdelhorloge(horloge->fond()));
        };
}

void Formserie::ecriretextes() {
    const std::array<std::pair<ui::Controle*, std::string_view>, 18> textes = {{
        {&Label5, "Eliminer un mot après "},
        {&seuiltxt, "1"},
        {&Label6, "réussites."},
        {&Command4, "Changer de critère"},
        {&Label4, "Tirages restants :"},
        {&Label8, "Nombre de fautes :"},
        {&fautesaffichees, "0"},
        {&nbseries, aucuneserie},
        {&cache, "Text1"},
        {&Command2, "Command2"},
        {&valider, "Valider"},
        {&corriger, "Corriger (F12)"},
        {&restart, "Nouvelle série(F8)"},
        {&quitter, "Retour au sommaire"},
        {&Command3, "Changer de police"},
        {&police, "1"},
        {&Label7, ""},
        {&voyant, ""},
    }};
    for (const auto& [controle, texteinitial] : textes)
        controle->texte = std::string(texteinitial);
}

void Formserie::habillerpanneaux() {
    ecriretextes();
    seuiltxt.accessible = "Seuil d'élimination";
    motsleft.accessible = "Tirages restants";
    recherche.accessible = "Ligne de saisie";
    InfoSourisText.accessible = "Notes sur les mots de la série";
    fautesaffichees.accessible = "Nombre de fautes";
    for (auto* boite : {&seuiltxt, &motsleft, &recherche})
        boite->alignement = ui::Alignement::Centre;
    for (auto* boite : {&motsleft, &cache, &InfoSourisText})
        boite->verrou = true;
    cache.focalisable = false;
    Command2.focalisable = false;
    InfoSourisText.multiligne = true;
    motsleft.aspect = ui::Aspect::Horloge;
    for (auto* bouton : {&corriger, &restart})
        bouton->aspect = ui::Aspect::Principal;
    Label7.aspect = ui::Aspect::Titre;
    for (auto* resultat : {&score, &tps}) {
        resultat->gras = true;
        resultat->taille = 18;
    }
    Label7.taille = 15;
    Label7.gras = true;
    recherche.taille = 16;
    for (auto* compte : {&motsleft, &fautesaffichees, &voyant})
        compte->gras = true;
    for (auto* cachee : {&score, &tps, &InfoSourisText})
        cachee->visible = false;
}

void Formserie::brancher() {
    toucheenfoncee = [this](ui::Touche& touche) {
        const auto* bouton = touche.code == ui::touches::f12  ? &corriger
                             : touche.code == ui::touches::f8 ? &restart
                                                              : nullptr;
        if (bouton == nullptr)
            return;
        touche.avalee = true;
        if (bouton->actif())
            ui::declencher(bouton->clic);
    };
    corriger.clic = [this] { corrigerserie(); };
    restart.clic = [this] {
        pointeur = ui::Pointeur::Attente;
        nouvelleserie();
    };
    quitter.clic = [this] { quitterserie(); };
    Command3.clic = [this] { changerpolice(); };
    chronos.auterme = [this] { corrigerserie(); };
    chronos.alalimite = [this] {
        throw common::Faute(common::rapportfichier(
            "Chronomètre total de la liste", fich_,
            "il ne peut pas atteindre 10 heures ; la limite est de 9:59:59. Les révisions des "
            "séries corrigées sont enregistrées ; la liste en cours n'a pas de résultat"));
    };
    chronos.serieouverte = [this] { return serieouverte(); };
    chronos.surpause = [this](bool pause) {
        recherche.actif = !pause;
        for (int i = 0; i < gabarit_.nbboites; ++i)
            solution[static_cast<std::size_t>(i)]->verrou = pause && i < boitesutiles_;
    };
    menumot.fichier = [this] { return getnomfichierderev(); };
}

std::vector<ui::Controle*> Formserie::boitesvisibles() const {
    auto boites = tirage;
    boites.insert(boites.end(), solution.begin(), solution.begin() + boitesutiles_);
    return boites;
}

void Formserie::changerpolice() {
    const bool droite = numpolice_ >= 3;  // the last two fonts are set upright
    for (auto* boite : boitesvisibles()) {
        boite->police = std::string(cycledespolices[numpolice_]);
        if (droite)
            boite->italique = false;
    }
    numpolice_ = (numpolice_ + 1) % cycledespolices.size();
    police.texte = std::to_string(numpolice_ + 1);
}

void Formserie::quitterserie() {
    chronos.arreterserie();
    chronos.quitterboite();
    tuiles.peindre(ui::couleurs::tuile);
    rangernotes(false);
    initchrono();
    chronos.remettretotal();
    nbseriesfaites_ = 0;
    tuiles.oublier();
    nbseries.texte = std::string(aucuneserie) + ".";
    fautesaffichees.texte = "0";
    plateforme().laissercourir();
    visible = false;
    voisins_.menu.montrer();
    voisins_.menu.maj();
}

void Formserie::reglerpolices(std::size_t longueur) {
    const bool longs = longueur > longueurgrandetaille;
    for (auto* boite : boitesvisibles()) {
        boite->taille = longs ? petitetaille : grandetaille;
        const bool rack = boite->nom() == tirage.front()->nom();
        if (rack || !longs || !gabarit_.longsgardentpolice)
            boite->police = std::string(policedesseries);
    }
}

}  // namespace series
