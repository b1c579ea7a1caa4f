// Orders that take the program through its start, login, menu and series.

#include <algorithm>
#include <array>

#include "cible.h"
#include "fichier.h"
#include "ordres.h"
#include "texte.h"
#include "textes.h"

namespace banc {
namespace {

constexpr std::string_view utilisateur = "Essai";
constexpr std::string_view dossierdeslistes = "listes\\";

/// The buttons of the menu that open a panel, in the order of the clicks.
struct Acces {
    std::string_view cle;
    std::array<std::string_view, 3> boutons;
};

constexpr std::array acces{
    Acces{"bt", {"Command1"}},
    Acces{"ta", {"Command2"}},
    Acces{"conja", {"Command3", "Command7(0)"}},
    Acces{"6", {"Command3", "Command7(1)"}},
    Acces{"7", {"Command3", "Command7(2)"}},
    Acces{"8", {"Command3", "Command7(3)"}},
    Acces{"lc78", {"Command3", "Command7(4)"}},
    Acces{"78lca", {"Command3", "Command7(4)", "Command8"}},
    Acces{"78lcb", {"Command3", "Command7(4)", "Command9"}},
    Acces{"duos7", {"Command4", "Command7(5)"}},
    Acces{"duos8", {"Command4", "Command7(6)"}},
    Acces{"trios", {"Command4", "Command7(7)"}},
    Acces{"quatquin", {"Command4", "Command7(8)"}},
    Acces{"conjm", {"Command4", "Command7(9)"}},
    Acces{"formdif", {"Command5", "Command15(0)"}},
    Acces{"rallong", {"Command5", "Command15(1)"}},
    Acces{"autres", {"Command5", "Command15(2)"}},
};

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
    const auto* place = std::find_if(acces.begin(), acces.end(),
                                     [&](const Acces& a) { return a.cle == ordre.suite; });
    if (place == acces.end())
        throw OrdreFaux("panneau inconnu : " + ordre.suite);
    for (const auto bouton : place->boutons) {
        if (!bouton.empty() && !seance.plateforme.fini())
            seance.pilote->cliquer(atteindre(seance, "Form3." + std::string(bouton)));
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

constexpr std::array commandes{
    Commande{"demarrer", demarrer},
    Commande{"connexion", connexion},
    Commande{"panneau", panneau},
    Commande{"serie", serie},
};

}  // namespace

std::span<const Commande> ordresduprogramme() {
    return commandes;
}

}  // namespace banc
