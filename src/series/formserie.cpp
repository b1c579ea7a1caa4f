#include "formserie.h"

#include <algorithm>
#include <array>
#include <utility>

#include "hist.h"
#include "nombre.h"
#include "polices.h"
#include "revision.h"

namespace series {
namespace {

constexpr std::string_view sonduliste = "APP05.WAV";
constexpr std::string_view bravo = "BRAVO!";
constexpr std::string_view aucuneserie = "0 série déjà réalisée";

std::string numerote(std::string_view quoi, std::size_t rang) {
    return std::string(quoi) + " " + std::to_string(rang + 1);
}

void annoter(ui::Controle& boite, const std::string& note) {
    boite.infobulle = note;
    boite.pointeur = ui::Pointeur::Texte;
}

}  // namespace

Formserie::Formserie(ui::Plateforme& plateforme, common::Voisins& voisins, const Gabarit& gabarit)
    : Formulaire(plateforme, std::string(gabarit.nom)),
      voisins_(voisins),
      gabarit_(gabarit),
      rangboite_(static_cast<std::size_t>(gabarit.nbtirages), -1),
      ligneboite_(rangboite_.size()),
      enrevision_(rangboite_.size(), false),
      rapide_(static_cast<std::size_t>(gabarit.nbboites), -1),
      boitesutiles_(gabarit.nbboites),
      Frame1(rangerde(ui::Genre::Cadre, "Frame1", 3)),
      lignes(rangerde(ui::Genre::Ligne, "Line", 5, 1)),
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
      menumot(*this) {
    texte = std::string(gabarit.titre);
    habillerboites();
    habillerpanneaux();
    brancher();
    brancherboites();
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
    chronos.donner(tempsdeserie());
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

void Formserie::habillerpanneaux() {
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
    corriger.aspect = ui::Aspect::Principal;
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
    chronos.serieouverte = [this] { return serieouverte(); };
    chronos.surpause = [this](bool pause) {
        recherche.actif = !pause;
        for (int i = 0; i < boitesutiles_; ++i)
            solution[static_cast<std::size_t>(i)]->verrou = pause;
    };
    menumot.fichier = [this] { return getnomfichierderev(); };
}

std::string Formserie::getnomfichierderev() const {
    return nomfichierderevision(fich_, voisins_.form3.toue, voisins_.form3.util);
}

void Formserie::changerpolice() {
    const bool droite = numpolice_ >= 3;  // the last two fonts are set upright
    for (auto* boites : {&tirage, &solution}) {
        for (auto* boite : *boites) {
            boite->police = std::string(cycledespolices[numpolice_]);
            if (droite)
                boite->italique = false;
        }
    }
    numpolice_ = (numpolice_ + 1) % cycledespolices.size();
    police.texte = std::to_string(numpolice_ + 1);
}

double Formserie::seuil() const {
    return common::valeur(seuiltxt.texte());
}

bool Formserie::criterelibre() const {
    return voisins_.form3.toue == "R" || voisins_.menu.app();
}

bool Formserie::erreursaurevision() const {
    return voisins_.form3.toue != "R" && !voisins_.menu.app();
}

void Formserie::effacerserie(int nbmots) {
    marques.cacher();
    for (auto* boites : {&tirage, &solution}) {
        for (auto* boite : *boites) {
            boite->infobulle = "";
            boite->pointeur = ui::Pointeur::Fleche;
        }
    }
    motsleft.texte = std::to_string(nbmots);
    for (auto* resultat : {&score, &tps, &InfoSourisText})
        resultat->visible = false;
    InfoSourisText.texte = "";
    if (chronos.enpause())
        chronos.basculerpause();
}

void Formserie::prendrerevisions(std::vector<std::string> lignesdelaserie) {
    std::fill(enrevision_.begin(), enrevision_.end(), false);
    const auto presents =
        presentsenrevision(plateforme().disque(), getnomfichierderev(), lignesdelaserie);
    std::copy(presents.begin(), presents.end(), enrevision_.begin());
    std::move(lignesdelaserie.begin(), lignesdelaserie.end(), ligneboite_.begin());
}

void Formserie::ouvrirserie() {
    pointeur = ui::Pointeur::Normal;
    seuiltxt.fond = ui::Couleur::fenetre();
    for (auto* boite : solution)
        boite->pressepapiers = true;
    corriger.actif = true;
    restart.actif = false;
    lettres_.annoncer("");
    // By way of the clock, so that box 0 is entered even if it has the focus.
    donnerfocus(chronos.temps);
    focaliserboite(0);
    chronos.temps.fond = ui::Couleur::fenetre();
    chronos.donner(tempsdeserie());
    chronos.lancer();
}

void Formserie::afficherscore(int justes, int tirages) {
    score.texte = std::to_string(justes) + "/" + std::to_string(tirages);
    score.visible = true;
    nbseriesfaites_ =
        common::entier16(std::int64_t{nbseriesfaites_} + 1, "Nombre de séries réalisées");
    nbseries.texte = std::to_string(nbseriesfaites_) + " série(s) déjà réalisée(s).";
    tps.texte = chronos.utilise();
    tps.visible = true;
}

void Formserie::montrernotes(std::span<const Note> notes, std::span<const int> boites,
                             std::span<const std::string> mots) {
    if (notes.empty())
        return;
    std::vector<const Note*> parboite;
    for (const auto& note : notes)
        parboite.push_back(&note);
    const auto boite = [&](const Note* note) { return boites[note->mot]; };
    std::stable_sort(parboite.begin(), parboite.end(),
                     [&](const Note* a, const Note* b) { return boite(a) < boite(b); });
    std::string textedesnotes;
    for (const auto* note : parboite) {
        const auto rang = static_cast<std::size_t>(boite(note));
        annoter(*solution[rang], note->texte);
        if (gabarit_.notessurletirage)
            annoter(*tirage[rang % tirage.size()], note->texte);
        textedesnotes += mots[note->mot] + " " + note->texte + "\n";
    }
    InfoSourisText.texte = textedesnotes;
    InfoSourisText.visible = true;
    InfoSourisText.premierplan();
}

void Formserie::finirliste(std::int64_t base, std::int64_t fautes) {
    chronos.arretertotal();
    chronos.tempstot.fond = ui::couleurs::juste;
    const auto& menu = voisins_.form3;
    if (base != 0) {
        const auto pourc = profiles::pourcentage(base, fautes);
        fautesaffichees.texte = fautesaffichees.texte() + " - " + common::textenombre(pourc) + " %";
        const auto nom = profiles::nomcourt(fich_, menu.toue, menu.util);
        profiles::ajouterhist(
            plateforme().disque(), menu.util,
            profiles::enregistrement(plateforme().maintenant(), pourc, menu.toue, nom));
    }
    tuiles.peindre(ui::couleurs::faux);
    motsleft.texte = "0";
    lettres_.annoncer(bravo);
    afficherlettres();
    if (InfoSourisText.visible())
        rangernotes(true);
    restart.actif = false;
    plateforme().laissercourir();
    if (voisins_.options.check1())
        plateforme().jouerson(sonduliste);
    quitter.fond = ui::couleurs::tuile;
}

void Formserie::quitterserie() {
    chronos.arreterserie();
    chronos.quitterboite();
    tuiles.peindre(ui::couleurs::tuile);
    rangernotes(false);
    chronos.donner(tempsdeserie());
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
    for (auto* boites : {&tirage, &solution}) {
        for (auto* boite : *boites)
            boite->taille = longs ? petitetaille : grandetaille;
    }
    for (auto* boite : tirage)
        boite->police = std::string(policedesseries);
    // With long racks the answers keep the font that they had.
    if (longs)
        return;
    for (auto* boite : solution)
        boite->police = std::string(policedesseries);
}

}  // namespace series
