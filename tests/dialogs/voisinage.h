#pragma once

// Neighbours that write down what a dialog asks of them.

#include <string>
#include <string_view>
#include <utility>

#include "faces.h"
#include "journal.h"
#include "machine.h"
#include "valeurs.h"

namespace essai {

class Menu : public ui::FaceMenu {
  public:
    explicit Menu(Journal& journal) : journal_(journal) {}
    void montrer() override { journal_.emplace_back("menu montrer"); }
    void maj() override { journal_.emplace_back("menu maj"); }
    ui::Couleur fond() override { return fond_; }
    void donnerfond(ui::Couleur couleur) override {
        fond_ = couleur;
        noter(journal_, "menu fond ", couleur.nom());
    }
    bool app() override { return false; }
    void aide(std::string_view texte) override { noter(journal_, "aide ", texte); }
    void patienter(bool attente) override {
        noter(journal_, "menu pointeur ", attente ? "attente" : "normal");
    }

  private:
    Journal& journal_;
    ui::Couleur fond_;
};

class Serie : public ui::FaceSerie {
  public:
    Serie(Journal& journal, std::string nom) : journal_(journal), nom_(std::move(nom)) {}
    void patienter() override { noter(journal_, nom_, " patienter"); }
    void coloration() override { noter(journal_, nom_, " coloration"); }
    void montrer() override { noter(journal_, nom_, " montrer"); }
    void commencer(std::string_view chemin) override {
        noter(journal_, nom_ + " commencer ", chemin);
    }
    void activerseuil(bool /*actif*/) override { noter(journal_, nom_, " activerseuil"); }
    void donnerfond(ui::Couleur couleur) override {
        noter(journal_, nom_ + " fond ", couleur.nom());
    }

  private:
    Journal& journal_;
    std::string nom_;
};

/// A machine, the shared variables as a new user has them, the menu and `Multi`.
template <class Machine>
struct VoisinageSur {
    Machine plateforme;
    common::VariablesForm3 form3;
    common::VariablesDialog2 dialog2;
    Menu menu{plateforme.journal};
    Serie multi{plateforme.journal, "Multi"};

    VoisinageSur() {
        form3.util = "Léa";
        form3.versionlocale = "2.68";
        form3.dateversion = "24/08/2019";
        dialog2.seuilch = 95;
        dialog2.seuilcb = 80;
        dialog2.tempsparmot = 8;
        dialog2.nbechantillon = 5;
        dialog2.son = 1;
        dialog2.saisieassistee = 1;
    }
    /// The journal, which starts anew.
    Journal relever() { return std::exchange(plateforme.journal, {}); }
};

using Voisinage = VoisinageSur<Plateforme>;

}  // namespace essai
