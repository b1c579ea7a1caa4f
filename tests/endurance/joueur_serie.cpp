// What the player does in a series.

#include <algorithm>
#include <array>

#include "joueur.h"
#include "listes.h"

namespace endurance {
namespace {

std::string boitede(const std::string& form, int boite) {
    return form + ".solution(" + std::to_string(boite) + ")";
}

}  // namespace

void Joueur::jouerserie() {
    using J = Joueur;
    static const std::vector<Coup> ouverte{
        {18, &J::repondrejuste},  {8, &J::taperlettres}, {6, &J::taperautre},
        {12, &J::seplacer},       {6, &J::effacer},      {4, &J::corriger},
        {7, &J::remplir},         {10, &J::cliquer},     {3, &J::cliquertuile},
        {3, &J::cliquerdeuxfois}, {6, &J::attendre},     {1, &J::attendrelongtemps},
        {4, &J::chercher},        {2, &J::regler},       {2, &J::pause},
        {1, &J::partir},
    };
    static const std::vector<Coup> corrigee{
        {40, &J::nouvelleserie}, {4, &J::taperlettres}, {4, &J::taperautre},
        {5, &J::seplacer},       {3, &J::effacer},      {25, &J::cliquerdeuxfois},
        {8, &J::cliquer},        {2, &J::cliquertuile}, {4, &J::attendre},
        {2, &J::chercher},       {3, &J::regler},       {2, &J::pause},
        {2, &J::partir},
    };
    static const std::vector<Coup> finie{
        {40, &J::partir},  {20, &J::cliquerdeuxfois}, {6, &J::cliquer},  {3, &J::taperautre},
        {3, &J::seplacer}, {2, &J::attendre},         {2, &J::regler},   {2, &J::pause},
        {2, &J::corriger}, {2, &J::nouvelleserie},    {2, &J::chercher},
    };
    // Another window may have come in front: the keys would go to it.
    if (partie_.seance().plateforme.bureau.actif() != partie_.formulaire(form())) {
        donner("clic " + form() + ".Command3");
        return;
    }
    const auto etat = ecran().etat();
    faire(etat == Etat::Ouverte ? ouverte : etat == Etat::Corrigee ? corrigee : finie);
}

/// In a box the text as it is; elsewhere one key, since a blank may click a button.
void Joueur::taper(const std::string& texte) {
    const auto* actif = partie_.seance().plateforme.bureau.actif();
    const auto* focus = actif == nullptr ? nullptr : actif->focus();
    const bool boite = focus != nullptr && focus->genre() == ui::Genre::Boite;
    donner("taper \"" + (boite ? texte : texte.substr(0, texte.empty() || texte[0] < 0 ? 0 : 1)) +
           "\"");
}

/// A right word for a box; empty where there is no rack.
std::string Joueur::reponse(int boite) {
    const auto& suivi = *partie_.serie();
    const auto* rangee = suivi.rangee(suivi.placede(boite));
    if (rangee == nullptr)
        return {};
    if (!multi_)
        return rangee->suite;
    const auto solutions = rangee->solutions();
    const auto mot = static_cast<std::size_t>(boite / common::tiragesmulti);
    return mot < solutions.size() ? solutions[solutions.size() - 1 - mot] : std::string();
}

void Joueur::repondrejuste() {
    const int boite = ecran().boiteactive;
    if (boite < 0) {
        seplacer();
        return;
    }
    const auto mot = reponse(boite);
    if (mot.empty())
        return;
    const bool remplie = !ecran().solution[static_cast<std::size_t>(boite)].texte.empty();
    if (remplie && !donner("selectionner"))
        return;
    taper(alea_.surcent(50) ? mot : mot.substr(0, alea_.entre(1, mot.size())));
    if (continuer() && alea_.surcent(80))
        donner(alea_.surcent(70) ? "touche Entree" : "touche Bas");
}

void Joueur::taperlettres() {
    const int boite = ecran().boiteactive;
    const auto& suivi = *partie_.serie();
    const auto* rangee = boite < 0 ? nullptr : suivi.rangee(suivi.placede(boite));
    // A letter in a place without a rack ends the program on Multi: once in a while.
    if (rangee == nullptr && multi_ && alea_.surcent(97))
        return;
    std::string texte;
    const std::string lettres = rangee == nullptr ? "ABE" : rangee->tirage;
    for (auto n = alea_.entre(1, 6); n > 0; --n)
        texte += lettres[alea_.sous(lettres.size())];
    taper(texte);
}

void Joueur::taperautre() {
    constexpr std::array morceaux{"Z", "e", " ",  "3", "é", "È", "{", "%", "'", "(",  "€",
                                  "œ", "ÿ", "漢", "°", ".", "~", "¨", "Q", "w", "\"", "¡"};
    const auto& suivi = *partie_.serie();
    const int boite = ecran().boiteactive;
    if (multi_ && boite >= 0 && suivi.rangee(suivi.placede(boite)) == nullptr && alea_.surcent(97))
        return;
    std::string texte;
    for (auto n = ecran().saisie ? alea_.entre(1, 4) : 1; n > 0; --n)
        texte += alea_.choisir(morceaux);
    donner("taper \"" + texte + "\"");
}

void Joueur::seplacer() {
    constexpr std::array touches{"Entree", "Entree", "Bas", "Haut",   "Gauche",
                                 "Droite", "Tab",    "Tab", "MajTab", "Echap"};
    const auto boites = static_cast<std::size_t>(partie_.serie()->boites());
    if (alea_.surcent(40))
        donner("focus " + boitede(form(), static_cast<int>(alea_.sous(boites))));
    else
        donner("touche " + std::string(alea_.choisir(touches)));
}

void Joueur::effacer() {
    constexpr std::array touches{"Retour", "Retour", "Suppr"};
    const bool dansuneboite = ecran().boiteactive >= 0;
    if (dansuneboite && alea_.surcent(25))
        donner("selectionner");
    if (continuer())
        donner("touche " + std::string(alea_.choisir(touches)));
}

void Joueur::corriger() {
    if (ecran().corriger && alea_.surcent(30))
        donner("clic " + form() + ".corriger");
    else
        donner("touche F12");
}

void Joueur::nouvelleserie() {
    if (ecran().restart && alea_.surcent(30))
        donner("clic " + form() + ".restart");
    else
        donner("touche F8");
}

/// Most of the series answered, and corrected.
void Joueur::remplir() {
    const std::size_t reussite = alea_.choisir(std::array<std::size_t, 4>{50, 85, 98, 100});
    const int boites = partie_.serie()->boites();
    for (int boite = 0; boite < boites && continuer() && ecran().corriger; ++boite) {
        const auto mot = reponse(boite);
        if (mot.empty() || !alea_.surcent(reussite))
            continue;
        if (!donner("focus " + boitede(form(), boite)))
            return;
        const bool remplie = !ecran().solution[static_cast<std::size_t>(boite)].texte.empty();
        if (remplie && !donner("selectionner"))
            return;
        if (!donner("taper \"" + mot + "\""))
            return;
        if (alea_.surcent(3))
            attendre();
    }
    if (continuer() && ecran().corriger && alea_.surcent(80))
        corriger();
}

std::vector<std::string> Joueur::accessibles(const std::string& formulaire,
                                             bool focalisables) const {
    std::vector<std::string> noms;
    const auto* form = partie_.formulaire(formulaire);
    if (form == nullptr || !form->visible())
        return noms;
    for (const auto& c : form->controles()) {
        const bool sien = c->genre() != ui::Genre::Entree && ui::Formulaire::accessible(*c);
        if (sien && (c->focalisable || !focalisables))
            noms.push_back(formulaire + "." + c->nomcomplet());
    }
    return noms;
}

/// Anything but the way out and the button that cannot be undone.
void Joueur::cliquer() {
    auto controles = accessibles(form(), alea_.surcent(80));
    std::erase(controles, form() + ".quitter");
    const auto& controle = alea_.choisir(controles);
    const bool compact = controle.ends_with(".Command6");
    if (!compact || alea_.surcent(20))
        donner("clic " + controle);
}

void Joueur::cliquertuile() {
    donner("clic " + form() + ".Command1(" + std::to_string(alea_.sous(9)) + ")");
}

/// A double click, and an entry of the menu if it opens one.
void Joueur::cliquerdeuxfois() {
    const auto boites = static_cast<std::size_t>(partie_.serie()->boites());
    const auto tirages = ecran().tirage.size();
    const bool tirage = alea_.surcent(50);
    const auto boite = tirage ? form() + ".tirage(" + std::to_string(alea_.sous(tirages)) + ")"
                              : boitede(form(), static_cast<int>(alea_.sous(boites)));
    if (!donner("doubleclic " + boite) || !ecran().menu)
        return;
    const auto choix = alea_.sous(10);
    const auto* definition = partie_.formulaire(form())->trouver("defsolu");
    if (choix < 6)
        donner("menu " + form() + (ecran().ajouter ? ".addrevmenu" : ".supprevmenu"));
    else if (choix < 8 && definition->actif())
        donner("menu " + form() + ".defsolu");
    else if (choix < 9)
        donner("menu aucun");
    else
        donner("clic " + form() + ".Command3");  // a click elsewhere closes it
}

void Joueur::attendre() {
    donner("avancer " + std::to_string(alea_.entre(1, 12)));
}

void Joueur::attendrelongtemps() {
    const auto secondes = alea_.surcent(2) ? 36500 : alea_.entre(60, 900);
    donner("avancer " + std::to_string(secondes));
}

/// The second line of entry.
void Joueur::chercher() {
    if (!ecran().recherche)
        return;
    const auto boite = form() + ".recherche";
    if (!donner((alea_.surcent(60) ? "focus " : "clic ") + boite))
        return;
    const auto* rangee = partie_.serie()->rangee(0);
    auto mot = rangee == nullptr ? std::string("AB") : rangee->suite.substr(0, 5);
    if (alea_.surcent(20))
        mot += "é9 ";
    if (!donner("taper \"" + mot + "\""))
        return;
    if (alea_.surcent(60))
        donner("touche Entree");
    else
        donner("clic " + form() + ".valider");
}

/// The criterion and its threshold, where they are offered; fonts and clocks.
void Joueur::regler() {
    constexpr std::array seuils{"1", "2", "3", "", "5", "0", "40", "2x", "-1", "1.5"};
    if (!ecran().seuilvisible || alea_.surcent(20)) {
        donner("clic " + form() + (alea_.surcent(50) ? ".Check1" : ".Command3"));
        return;
    }
    if (alea_.surcent(50)) {
        donner("clic " + form() + ".Command4");
        return;
    }
    const auto* boite = partie_.formulaire(form())->trouver("seuiltxt");
    if (!ui::Formulaire::accessible(*boite) || !donner("focus " + form() + ".seuiltxt") ||
        !donner("selectionner"))
        return;
    const std::string seuil = alea_.choisir(seuils);
    donner(seuil.empty() ? "touche Suppr" : "taper \"" + seuil + "\"");
}

void Joueur::pause() {
    donner("clic " + form() + ".Command5");
}

void Joueur::partir() {
    const bool fermable = !multi_ && alea_.surcent(30);
    donner(fermable ? "fermer " + form() : "clic " + form() + ".quitter");
}

}  // namespace endurance
