#pragma once

// Neighbours that write down what a form asks of them, and a machine on a folder of its own.

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "dossier.h"
#include "faces.h"
#include "formulaire.h"
#include "plateformesimulee.h"
#include "texte.h"

namespace essai {

using Journal = std::vector<std::string>;

class Serie : public ui::FaceSerie {
  public:
    Serie(Journal& journal, std::string nom) : journal_(journal), nom_(std::move(nom)) {}
    void patienter() override { noter("patienter"); }
    void coloration() override { noter("coloration"); }
    void montrer() override { noter("montrer"); }
    void commencer(std::string_view chemin) override { noter("commencer " + std::string(chemin)); }
    void activerseuil(bool actif) override { noter(actif ? "seuil actif" : "seuil inactif"); }
    void donnerfond(ui::Couleur couleur) override { noter("fond " + couleur.nom()); }

  private:
    void noter(const std::string& quoi) { journal_.push_back(nom_ + " " + quoi); }

    Journal& journal_;
    std::string nom_;
};

class Menu : public ui::FaceMenu {
  public:
    explicit Menu(Journal& journal) : journal_(journal) {}
    void montrer() override { journal_.emplace_back("menu montrer"); }
    void maj() override { journal_.emplace_back("menu maj"); }
    ui::Couleur fond() override { return {}; }
    void donnerfond(ui::Couleur couleur) override {
        journal_.push_back("menu fond " + couleur.nom());
    }
    bool app() override { return false; }
    void aide(std::string_view texte) override { journal_.push_back("aide " + std::string(texte)); }
    void patienter(bool /*attente*/) override { journal_.emplace_back("menu patienter"); }

  private:
    Journal& journal_;
};

/// The options, which tell what the variables held when the colour came.
class Options : public ui::FaceOptions {
  public:
    Options(Journal& journal, const common::VariablesDialog2& variables)
        : journal_(journal), variables_(variables) {}
    bool check1() override { return true; }
    void choisircouleur(std::string_view nom) override {
        journal_.push_back("couleur " + std::string(nom) + ", son " +
                           std::to_string(variables_.son) + ", saisie " +
                           std::to_string(variables_.saisieassistee));
    }
    void ouvrir() override { journal_.emplace_back("options ouvrir"); }

  private:
    Journal& journal_;
    const common::VariablesDialog2& variables_;
};

class Historique : public ui::FaceHistorique {
  public:
    explicit Historique(Journal& journal) : journal_(journal) {}
    void montrer(std::string_view titre) override {
        journal_.push_back("historique " + std::string(titre));
    }
    void ajouter(std::span<const std::string> lignes) override {
        for (const auto& ligne : lignes)
            journal_.push_back("ligne " + ligne);
    }

  private:
    Journal& journal_;
};

class Apropos : public ui::FaceApropos {
  public:
    explicit Apropos(Journal& journal) : journal_(journal) {}
    void apropos() override { journal_.emplace_back("apropos"); }
    void montrerimage(int index) override { journal_.push_back("image " + std::to_string(index)); }
    void verifiermiseajour() override { journal_.emplace_back("mise à jour"); }

  private:
    Journal& journal_;
};

/// The shared variables and all neighbours, on one journal.
struct Voisinage {
    Journal journal;
    common::VariablesForm3 form3;
    common::VariablesDialog2 dialog2;
    Menu menu{journal};
    Options options{journal, dialog2};
    Serie form1{journal, "Form1"};
    Serie multi{journal, "Multi"};
    Historique historique{journal};
    Apropos apropos{journal};

    /// The journal, which starts anew.
    Journal relever() { return std::exchange(journal, {}); }
};

/// A machine whose disk is a new folder, of a name with a blank and an accent.
struct Machine {
    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};

    [[nodiscard]] banc::DisqueSimule& disque() { return plateforme.disque(); }
    [[nodiscard]] std::filesystem::path chemin(std::string_view nom) {
        return disque().systeme(nom);
    }
    /// Writes a file, bytes as they are, and the folders it needs.
    void ecrire(std::string_view nom, std::string_view octets) {
        std::filesystem::create_directories(chemin(nom).parent_path());
        std::ofstream(chemin(nom), std::ios::binary) << octets;
    }
    /// The bytes of a file; "absent" if there is none.
    [[nodiscard]] std::string lire(std::string_view nom) {
        std::ifstream flux(chemin(nom), std::ios::binary);
        if (!flux)
            return "absent";
        return {std::istreambuf_iterator<char>(flux), {}};
    }
};

}  // namespace essai
