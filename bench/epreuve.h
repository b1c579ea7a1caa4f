#pragma once

#include <array>
#include <filesystem>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "application.h"
#include "dossier.h"
#include "formulaire.h"
#include "plateformesimulee.h"

namespace bench {

/// The files that a correction reads.
inline constexpr std::array referencesdescorrections{
    "listes/ods5.txt",    "listes/ods6.txt", "listes/ods7.txt", "listes/vbi.txt",
    "listes/vbt4-10.txt", "listes/inv.txt",  "infosouris.txt"};

/// The number of lines of each of these files, in the same order.
using Tailles = std::array<std::size_t, referencesdescorrections.size()>;

/// The program on the simulated machine and a real disk, in a temporary folder.
class Epreuve {
  public:
    Epreuve();

    void ecrire(const std::string& fichier, const std::string& octets) const;
    /// Fills the reference files with words that are in no list, and the notes file with notes.
    void garnirreferences(const Tailles& tailles) const;
    /// Paths of the files that a correction reads, the revision file included.
    [[nodiscard]] std::vector<std::string> fichierslus() const;
    [[nodiscard]] std::string chemin(const std::string& fichier) const {
        return (dossier_.chemin() / fichier).string();
    }
    /// Starts a series from `listes\x.txt`, as the menu does.
    void lancer(bool multi);
    /// Logs a user in and shows the menu.
    void montrermenu();
    /// Clicks a control of the form.
    void cliquer(std::string_view controle, int index = -1);
    [[nodiscard]] ui::Voisins& voisins() { return programme_.voisins(); }
    /// Runs an event, and stops the program if it faults.
    void executer(const std::function<void()>& evenement);
    /// Lets a second pass.
    void seconde();
    void touche(int code);
    /// Presses and releases the key of a letter.
    void taper(char lettre);
    [[nodiscard]] ui::Formulaire& form() { return *form_; }

  private:
    banc::Dossier dossier_;
    banc::PlateformeSimulee plateforme_{dossier_.chemin()};
    application::Application programme_{plateforme_};
    ui::Formulaire* form_ = nullptr;
};

/// A word of `longueur` capitals; different numbers give different words, with few exceptions.
[[nodiscard]] std::string mot(std::size_t numero, std::size_t longueur);

}  // namespace bench
