#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "formulaire.h"

namespace endurance {

/// A rack or an answer, as shown.
struct Boite {
    std::string texte;
    ui::Couleur fond;
    bool verrou = false;
    bool visible = false;
    friend bool operator==(const Boite&, const Boite&) = default;
};

/// Where a list stands.
enum class Etat : std::uint8_t { Ouverte, Corrigee, Finie };

/// What a series form shows at one moment.
struct Ecran {
    bool visible = false;
    bool corriger = false;  ///< enabled, like the next one
    bool restart = false;
    bool recherche = false;  ///< enabled
    bool pause = false;
    bool menu = false;  ///< the word menu is open
    bool ajouter = false;
    bool supprimer = false;
    bool marques = false;  ///< one of them is shown
    bool notesvisibles = false;
    bool scorevisible = false;
    bool seuilvisible = false;
    bool focusaccessible = true;
    std::array<bool, 3> minuteries{};
    int boiteactive = -1;  ///< answer box that has the focus
    bool saisie = false;   ///< a box that takes characters has it
    std::vector<Boite> tirage;
    std::vector<Boite> solution;
    std::vector<ui::Couleur> tuiles;
    ui::Couleur fondtemps;
    ui::Couleur fondtempstot;
    ui::Couleur fondquitter;
    std::string motsleft;
    std::string score;
    std::string fautes;
    std::string nbseries;
    std::string critere;
    std::string seuil;
    std::string temps;
    std::string tempstot;
    std::string titre;
    std::string notes;
    friend bool operator==(const Ecran&, const Ecran&) = default;

    [[nodiscard]] Etat etat() const {
        return corriger ? Etat::Ouverte : restart ? Etat::Corrigee : Etat::Finie;
    }
    [[nodiscard]] bool secondes() const { return critere.starts_with('s'); }
};

/// Reads the screen of a series form.
class Lecteurecran {
  public:
    explicit Lecteurecran(const ui::Formulaire& formulaire);
    [[nodiscard]] Ecran lire() const;

  private:
    [[nodiscard]] const ui::Controle& controle(std::string_view nom) const;
    [[nodiscard]] std::vector<const ui::Controle*> rang(std::string_view nom) const;
    void lirefocus(Ecran& ecran) const;
    void liretextes(Ecran& ecran) const;

    const ui::Formulaire& formulaire_;
    std::vector<const ui::Controle*> tirage_;
    std::vector<const ui::Controle*> solution_;
    std::vector<const ui::Controle*> tuiles_;
    std::vector<const ui::Controle*> marques_;
};

}  // namespace endurance
