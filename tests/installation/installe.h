#pragma once

#include <map>
#include <string>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "inventaire.h"
#include "lieux.h"

namespace essais {

/// An installed program and the home of its player.
class Installe {
  public:
    using Contenu = std::map<std::string, std::string>;  // bytes by path, with slashes

    Installe() { std::filesystem::create_directories(programme()); }

    /// Installs these files, in the place of those that were.
    void installer(const Contenu& fichiers) const {
        std::filesystem::remove_all(fournis());
        for (const auto& [nom, octets] : fichiers)
            ecrire(fournis() / common::chemin(nom), octets);
        auto inventaire = installation::inventorier(fournis());
        inventaire.version = installation::versionde("2.68", inventaire.fichiers);
        ecrire(fournis() / installation::fichierinventaire, installation::ecrire(inventaire));
    }
    /// What the player does to a file of his.
    void jouer(const std::string& nom, const std::string& octets) const {
        ecrire(jeu() / common::chemin(nom), octets);
    }
    /// The play folder as it is, without what the program keeps for itself there.
    [[nodiscard]] Contenu contenu() const {
        Contenu lus;
        if (!std::filesystem::exists(jeu()))
            return lus;
        for (const auto& entree : std::filesystem::recursive_directory_iterator(jeu())) {
            const auto nom = entree.path().lexically_relative(jeu()).generic_string();
            if (entree.is_regular_file() && !nom.starts_with("."))
                lus[nom] = dossier_.lire("maison/joueur/orvane/" + nom);
        }
        return lus;
    }

    [[nodiscard]] const std::filesystem::path& racine() const { return dossier_.chemin(); }
    /// Lets the programs go that wait for the file `feu`.
    void allumer() const { dossier_.ecrire("feu", ""); }
    [[nodiscard]] std::filesystem::path programme() const {
        return dossier_.chemin() / "usr/games";
    }
    [[nodiscard]] std::filesystem::path fournis() const {
        return dossier_.chemin() / "usr/share/games/orvane";
    }
    [[nodiscard]] std::filesystem::path jeu() const {
        return dossier_.chemin() / "maison/joueur/orvane";
    }
    [[nodiscard]] installation::Environs environs() const { return {programme(), jeu()}; }
    [[nodiscard]] std::string lire(const std::string& nom) const {
        return dossier_.lire("maison/joueur/orvane/" + nom);
    }

  private:
    void ecrire(const std::filesystem::path& chemin, const std::string& octets) const {
        std::filesystem::create_directories(chemin.parent_path());
        dossier_.ecrire(chemin.lexically_relative(dossier_.chemin()).string(), octets);
    }
    DossierTemporaire dossier_;
};

}  // namespace essais
