#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "controle.h"
#include "plateforme.h"

namespace ui {

/// The properties of a form, as its view is told of them.
enum class ChampFormulaire : std::uint8_t {
    Texte,
    Fond,
    Pointeur,
    Visible,
    Montre,  ///< asked for, shown already or not
    Devant,
    Largeur,
    Hauteur,
    Focus,  ///< another control has it, or none
    Menu    ///< a pop-up menu was opened or closed
};

/// What draws a form.
class VueFormulaire {
  public:
    VueFormulaire() = default;
    VueFormulaire(const VueFormulaire&) = delete;
    VueFormulaire& operator=(const VueFormulaire&) = delete;
    virtual ~VueFormulaire() = default;
    virtual void modifie(ChampFormulaire champ) = 0;
    /// The form is being destroyed: nothing of it may be touched any more.
    virtual void adieu() = 0;
};

/// A pop-up menu: entries in order, each a control of genre `Entree`.
struct Menu {
    std::string nom;
    std::vector<Controle*> entrees;
};

/// A form: its controls, timers and menus, the focus, the keys and the default button. The model
/// is the truth; a view draws it and reports what the user does through the second half of this
/// class. Reports run handlers, so they belong inside `Plateforme::executer`.
class Formulaire : public Observe<ChampFormulaire> {
  public:
    template <class T>
    using P = Propriete<T, ChampFormulaire>;

    Formulaire(Plateforme& plateforme, std::string nom);
    Formulaire(const Formulaire&) = delete;
    Formulaire& operator=(const Formulaire&) = delete;
    virtual ~Formulaire();

    [[nodiscard]] const std::string& nom() const { return nom_; }
    [[nodiscard]] Plateforme& plateforme() const { return plateforme_; }

    P<std::string> texte{*this, ChampFormulaire::Texte, {}};  ///< title of the window
    P<Couleur> fond{*this, ChampFormulaire::Fond, couleurs::parDefaut};
    P<Pointeur> pointeur{*this, ChampFormulaire::Pointeur, Pointeur::Normal};
    P<bool> visible{*this, ChampFormulaire::Visible, false};
    P<bool> devant{*this, ChampFormulaire::Devant, false};  ///< stays in front of the other forms
    P<int> largeur{*this, ChampFormulaire::Largeur, 0};     ///< of the design, in twips
    P<int> hauteur{*this, ChampFormulaire::Hauteur, 0};

    /// The form sees a key before the control that has the focus, or without any.
    Evenement<Touche&> toucheenfoncee;
    /// The close box; without a handler it hides the form.
    Evenement<> fermeture;
    /// Another window has come in front.
    Evenement<> desactivation;

    /// Shows the form, or brings it back in front of the others if it is shown.
    void montrer();

    /// Makes a control. Those made later lie in front.
    Controle& ajouter(Genre genre, std::string_view nomducontrole, int index = -1);
    /// Makes a control with its text and its place; a label lets the form show through.
    Controle& poser(Genre genre, std::string_view nomducontrole, int index,
                    std::string_view libelle, const Cadrage& cadre);
    Minuterie& ajouterminuterie(std::string_view nomdelaminuterie);
    Menu& ajoutermenu(std::string_view nomdumenu);
    /// The control of a design name and index (-1: none); null if there is none.
    [[nodiscard]] Controle* trouver(std::string_view nomducontrole, int index = -1) const;
    /// The same for a name that the form is known to have. Throws `std::out_of_range`, with the
    /// name, if it has not.
    [[nodiscard]] Controle& controle(std::string_view nomducontrole, int index = -1) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Controle>>& controles() const {
        return controles_;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<Minuterie>>& minuteries() const {
        return minuteries_;
    }
    /// Told of each timer that is made from now on; set by whoever drives them.
    std::function<void(Minuterie&)> surminuterie;

    /// How often a control was brought to the front: the `plan` of the one in front.
    [[nodiscard]] int plan() const { return plan_; }
    /// For a control that comes to the front.
    [[nodiscard]] int nouveauplan() { return ++plan_; }

    /// The controls that Tab goes through, in order.
    void tabulation(std::vector<Controle*> ordre) { ordre_ = std::move(ordre); }
    [[nodiscard]] const std::vector<Controle*>& tabulation() const { return ordre_; }

    [[nodiscard]] Controle* focus() const { return focus_; }
    /// Gives the focus: nothing if the control has it; otherwise the old one's `sortie` runs, then
    /// the new one's `entree`. A hidden or disabled control leaves it with nobody.
    void donnerfocus(Controle& controle);
    /// The control cannot keep the focus; Tab will go on from its place.
    void perdrefocus(Controle& controle);

    [[nodiscard]] Controle* defaut() const { return defaut_; }
    /// The button that Enter clicks from a box.
    void mettredefaut(Controle& bouton) { defaut_ = &bouton; }
    /// Enter clicks no button from a box.
    void sansdefaut() { defaut_ = nullptr; }

    void ouvrirmenu(Menu& menu);
    [[nodiscard]] Menu* menuouvert() const { return menuouvert_; }

    // What the user does, reported by a view or by the bench.

    /// A control that a click can reach: shown and enabled.
    [[nodiscard]] static bool accessible(const Controle& controle);
    /// The user moves the focus, by mouse or by a key of the system.
    void focaliser(Controle& controle);
    void cliquer(Controle& controle);
    void doublecliquer(Controle& controle);
    /// A key goes down, with the character that it types, if any.
    void enfoncer(Touche touche, std::optional<char32_t> caractere = std::nullopt);
    void relacher(int code);
    void tabuler(bool enarriere);
    /// Pastes into the control that has the focus. Each character goes through `caractere` as if it
    /// were typed; what they let through is written at once, and refusals make one beep in all.
    void coller(std::string_view texteacoller);
    /// Cuts the selection of the control that has the focus; empty if it refuses.
    std::string couper();
    /// Picks an entry of a combo box.
    static void choisir(Controle& liste, std::string_view entree);
    /// Picks an entry of the open menu, and closes it.
    void choisirentree(Controle& entree);
    void fermermenu();
    void fermer();

    /// The view, if there is one. It is not owned.
    VueFormulaire* vue = nullptr;

    void modifie(ChampFormulaire champ) override {
        if (vue != nullptr)
            vue->modifie(champ);
    }

  private:
    void prendrefocus(Controle* controle);
    bool touchedebouton(Controle& controle, const Touche& touche);
    void editer(Controle& controle, const Touche& touche);
    void taper(Controle& controle, char32_t caractere);
    [[nodiscard]] std::string accepter(Controle& controle, char32_t caractere);

    std::string nom_;
    Plateforme& plateforme_;
    std::vector<std::unique_ptr<Controle>> controles_;
    std::map<std::pair<std::string, int>, Controle*, std::less<>> parnom_;
    std::vector<std::unique_ptr<Minuterie>> minuteries_;
    std::vector<std::unique_ptr<Menu>> menus_;
    std::vector<Controle*> ordre_;
    Controle* focus_ = nullptr;
    Controle* repere_ = nullptr;  ///< where Tab goes on from when nobody has the focus
    Controle* defaut_ = nullptr;
    Menu* menuouvert_ = nullptr;
    int plan_ = 0;
};

}  // namespace ui
