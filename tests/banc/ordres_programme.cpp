// Orders that take the program through its start, login, menu and series.

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "catalogue.h"
#include "cible.h"
#include "fichier.h"
#include "ordres.h"
#include "texte.h"
#include "textes.h"

namespace banc {
namespace {

constexpr std::string_view utilisateur = "Essai";
constexpr std::string_view dossierdeslistes = "listes\\";

/// What `panneau` takes for the buttons of the high-value letter, which open no panel.
constexpr std::string_view lettrechere = "lc78";

/// The buttons to click, in order, to reach one of the menu and click it.
std::vector<std::string> chemin(const menu::Bouton& bouton) {
    std::vector<std::string> boutons;
    for (const auto& groupe : menu::boutonsdegroupe()) {
        if (groupe.montre == bouton.groupe)
            boutons = chemin(groupe.bouton);
    }
    auto nom = "Form3." + std::string(bouton.nom);
    if (bouton.index >= 0)
        nom += "(" + std::to_string(bouton.index) + ")";
    boutons.push_back(std::move(nom));
    return boutons;
}

/// The button of a panel or group. Throws `Refus` if there is none of that name.
const menu::Bouton& acces(std::string_view cle) {
    if (const auto* panneau = menu::panneau(cle))
        return panneau->bouton;
    for (const auto& groupe : menu::boutonsdegroupe()) {
        if (cle == lettrechere && groupe.montre == menu::Groupe::chere)
            return groupe.bouton;
    }
    throw OrdreFaux("panneau inconnu : " + std::string(cle));
}

std::string demarrer(Seance& seance, const Ordre& /*ordre*/) {
    if (seance.demarree)
        throw Refus("le programme est déjà lancé");
    seance.demarree = true;
    seance.plateforme.executer([&] { seance.programme->demarrer(); });
    return {};
}

std::string connexion(Seance& seance, const Ordre& ordre) {
    if (!seance.demarree)
        static_cast<void>(demarrer(seance, ordre));
    auto& boite = atteindre(seance, "Form2.user");
    seance.pilote->cliquer(boite);
    seance.pilote->selectionner(boite);
    const auto nom = sansguillemets(ordre.suite);
    seance.executer(nom.empty() ? decouper("touche Suppr") : decouper("taper \"" + nom + "\""));
    seance.pilote->cliquer(atteindre(seance, "Form2.Command1"));
    return {};
}

std::string panneau(Seance& seance, const Ordre& ordre) {
    for (const auto& bouton : chemin(acces(ordre.suite))) {
        if (!seance.plateforme.fini())
            seance.pilote->cliquer(atteindre(seance, bouton));
    }
    return {};
}

/// What `serie` sets before it launches a list.
struct Lancement {
    std::string formulaire;
    std::string chemin;
    std::string toue = "T";
    std::string typ;
    std::string app = "0";
    std::string nombase = "Essai";
};

/// "FORM CHEMIN [toue=T] [typ=rallong] [app=1] [nombase=TITRE]"; the path may hold blanks.
Lancement analyser(const std::string& texte) {
    Lancement lancement;
    struct Option {
        std::string_view cle;
        std::string& valeur;
    };
    const std::array options{Option{" toue=", lancement.toue}, Option{" typ=", lancement.typ},
                             Option{" app=", lancement.app}};
    constexpr std::string_view cletitre = " nombase=";
    auto reste = decouper(texte);
    lancement.formulaire = reste.nom;
    auto& suite = reste.suite;
    if (const auto titre = suite.find(cletitre); titre != std::string::npos) {
        lancement.nombase = sansguillemets(suite.substr(titre + cletitre.size()));
        suite.resize(titre);
    }
    auto finduchemin = suite.size();
    for (const auto& option : options) {
        const auto place = suite.find(option.cle);
        if (place == std::string::npos)
            continue;
        const auto debut = place + option.cle.size();
        option.valeur = suite.substr(debut, suite.find(' ', debut) - debut);
        finduchemin = std::min(finduchemin, place);
    }
    lancement.chemin = suite.substr(0, finduchemin);
    const bool bon = (lancement.formulaire == "Form1" || lancement.formulaire == "Multi") &&
                     !lancement.chemin.empty() && (lancement.app == "0" || lancement.app == "1");
    if (!bon)
        throw OrdreFaux("serie Form1|Multi CHEMIN [toue=T] [typ=rallong] [app=1] [nombase=TITRE]");
    return lancement;
}

/// Makes what a first login makes, where it is missing.
void preparerutilisateur(Seance& seance) {
    const auto dossier = std::string(utilisateur) + "\\";
    auto& disque = seance.plateforme.disque();
    if (!disque.existe(dossier + "settings.dat")) {
        Ordre settings = decouper("fichier " + dossier + "settings.dat");
        settings.lignes = {"95", "80", "8", "5", "1", "Par défaut", "1"};
        seance.executer(settings);
    }
    if (!disque.existe(dossier + "hist.dat"))
        seance.executer(decouper("fichier " + dossier + "hist.dat"));
}

/// The revision file of a list: the whole list's, also when a part is launched.
std::string fichierderevision(const std::string& util, const Lancement& lancement) {
    if (lancement.toue == "R")
        return lancement.chemin;
    auto liste = lancement.chemin.starts_with(dossierdeslistes)
                     ? lancement.chemin.substr(dossierdeslistes.size())
                     : lancement.chemin.substr(lancement.chemin.rfind('\\') + 1);
    constexpr std::string_view extension = ".txt";
    const auto marque = extension.size() + 2;  // "_a" and the extension
    if (liste.size() >= marque && liste[liste.size() - marque] == '_')
        liste = liste.substr(0, liste.size() - marque).append(extension);
    return util + "\\rev-" + liste;
}

void lancer(Seance& seance, const Lancement& lancement) {
    auto& voisins = seance.programme->voisins();
    if (voisins.form3.util.empty())
        voisins.form3.util = utilisateur;
    static_cast<void>(voisins.menu.fond());  // makes the menu, which reads the settings
    auto& menu = *seance.plateforme.bureau.trouver("Form3");
    voisins.form3.toue = lancement.toue;
    voisins.form3.typ = lancement.typ;
    voisins.form3.nombase = lancement.nombase;
    if (auto* app = menu.trouver("app"))
        app->coche = lancement.app == "1";
    common::toucher(seance.plateforme.disque(), fichierderevision(voisins.form3.util, lancement),
                    "Lancement d'une liste");
    menu.visible = false;
    auto& serie = lancement.formulaire == "Form1" ? voisins.form1 : voisins.multi;
    serie.patienter();
    serie.coloration();
    serie.montrer();
    serie.commencer(lancement.chemin);
}

std::string serie(Seance& seance, const Ordre& ordre) {
    const auto lancement = analyser(ordre.suite);
    if (seance.programme->voisins().form3.util.empty())
        preparerutilisateur(seance);
    seance.plateforme.executer([&] { lancer(seance, lancement); });
    return {};
}

constexpr std::array commandesprogramme{
    Commande{"demarrer", demarrer},
    Commande{"connexion", connexion},
    Commande{"panneau", panneau},
    Commande{"serie", serie},
};

}  // namespace

std::span<const Commande> ordresduprogramme() {
    return commandesprogramme;
}

}  // namespace banc
