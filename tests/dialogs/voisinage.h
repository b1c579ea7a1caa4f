#pragma once

// Neighbours that write down what a dialog asks of them.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "formulaires.h"
#include "journal.h"
#include "machine.h"
#include "valeurs.h"

namespace essai {

/// A colour as journals show it.
inline std::string couleur(std::uint32_t rvb) {
    return ui::Couleur(rvb).nom();
}

class Menu : public common::FaceMenu {
  public:
    explicit Menu(Journal& journal) : journal_(journal) {}
    void montrer() override { journal_.emplace_back("menu montrer"); }
    void maj() override { journal_.emplace_back("menu maj"); }
    std::uint32_t fond() override { return fond_; }
    void donnerfond(std::uint32_t rvb) override {
        fond_ = rvb;
        noter(journal_, "menu fond ", couleur(rvb));
    }
    bool app() override { return false; }
    void aide(std::string_view texte) override { noter(journal_, "aide ", texte); }
    void patienter(bool attente) override {
        noter(journal_, "menu pointeur ", attente ? "attente" : "normal");
    }

  private:
    Journal& journal_;
    std::uint32_t fond_ = 0;
};

class Serie : public common::FaceSerie {
  public:
    Serie(Journal& journal, std::string nom) : journal_(journal), nom_(std::move(nom)) {}
    void patienter() override { noter(journal_, nom_, " patienter"); }
    void coloration() override { noter(journal_, nom_, " coloration"); }
    void montrer() override { noter(journal_, nom_, " montrer"); }
    void commencer(std::string_view chemin) override {
        noter(journal_, nom_ + " commencer ", chemin);
    }
    void activerseuil(bool /*actif*/) override { noter(journal_, nom_, " activerseuil"); }
    void donnerfond(std::uint32_t rvb) override { noter(journal_, nom_ + " fond ", couleur(rvb)); }

  private:
    Journal& journal_;
    std::string nom_;
};

class Options : public common::FaceOptions {
  public:
    bool check1() override { return true; }
    void choisircouleur(std::string_view /*nom*/) override {}
    void ouvrir() override {}
};

class Historique : public common::FaceHistorique {
  public:
    void montrer(std::string_view /*titre*/) override {}
    void ajouter(std::span<const std::string> /*lignes*/) override {}
};

class Apropos : public common::FaceApropos {
  public:
    void apropos() override {}
    void montrerimage(int /*index*/) override {}
    void verifiermiseajour() override {}
};

/// A machine, the shared variables as a new user has them, and all the neighbours.
template <class Machine>
struct VoisinageSur {
    Machine plateforme;
    common::VariablesForm3 form3;
    common::VariablesDialog2 dialog2;
    Menu menu{plateforme.journal};
    Serie form1{plateforme.journal, "Form1"};
    Serie multi{plateforme.journal, "Multi"};
    Options options;
    Historique historique;
    Apropos apropos;
    common::Voisins voisins{form3, dialog2, menu, options, form1, multi, historique, apropos};

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
