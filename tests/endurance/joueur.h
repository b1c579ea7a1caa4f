#pragma once

// A player who does anything, the likely things more often.

#include <cstddef>
#include <string>
#include <vector>

#include "alea.h"
#include "fabrique.h"
#include "partie.h"

namespace endurance {

class Joueur {
  public:
    Joueur(Partie& partie, std::uint64_t graine) : partie_(partie), alea_(graine) {}

    /// Fills the folder and starts the program, by the login or straight into a list.
    void preparer();
    /// Plays until so many orders were given in all, or the program has ended, or something is
    /// wrong.
    void jouer(std::size_t ordres);

  private:
    /// Something to do: the chance that it gets, and the doing.
    struct Coup {
        std::size_t poids;
        void (Joueur::*faire)();
    };
    void faire(const std::vector<Coup>& coups);
    bool donner(const std::string& ordre, const std::vector<std::string>& lignes = {}) {
        return partie_.donner(ordre, lignes);
    }
    [[nodiscard]] bool continuer() const { return !partie_.finie() && partie_.constats().aucun(); }

    // joueur.cpp: the folder, the choice.
    void ecrirelistes();
    void ecrirereferences();
    void ecrireprofils();
    void ecrirerevisions();
    void connecter();
    void choisir();

    // joueur_menu.cpp
    void jouermenu();
    void ouvrirpanneau();
    void lancer();
    void lancerdirectement();
    void lancerpersonnel();
    void cliquerlibelle();
    void survoler();
    void apprentissage();
    void options();
    void reglagedesoptions();
    void fermerfenetres();
    void patienter();
    void quitterleprogramme();

    // joueur_serie.cpp
    void jouerserie();
    void repondrejuste();
    void taperlettres();
    void taperautre();
    void seplacer();
    void effacer();
    void corriger();
    void nouvelleserie();
    void remplir();
    void cliquer();
    void cliquertuile();
    void cliquerdeuxfois();
    void attendre();
    void attendrelongtemps();
    void chercher();
    void regler();
    void pause();
    void partir();
    void taper(const std::string& texte);
    [[nodiscard]] std::string reponse(int boite);
    [[nodiscard]] std::string form() const { return multi_ ? "Multi" : "Form1"; }
    [[nodiscard]] const Ecran& ecran() const { return partie_.ecran(multi_); }
    [[nodiscard]] std::vector<std::string> accessibles(const std::string& formulaire,
                                                       bool focalisables) const;

    Partie& partie_;
    fuzz::Alea alea_;
    std::vector<Listefaite> listes_;
    std::string util_ = "Essai";
    std::string panneau_;
    bool multi_ = false;  ///< the series form that is shown
};

}  // namespace endurance
