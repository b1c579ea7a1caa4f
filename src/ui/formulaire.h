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

/// Names a property of a form, to tell its view which one has changed.
enum class ChampFormulaire : std::uint8_t {
    Texte,
    Fond,
    Pointeur,
    Visible,
    Montre,  ///< `montrer` was called, whether or not the form was visible
    Devant,
    Largeur,
    Hauteur,
    Focus,  ///< another control has got it, or none
    Menu    ///< a pop-up menu was opened or closed
};

/// Draws a form.
class VueFormulaire {
  public:
    VueFormulaire() = default;
    VueFormulaire(const VueFormulaire&) = delete;
    VueFormulaire& operator=(const VueFormulaire&) = delete;
    virtual ~VueFormulaire() = default;
    virtual void modifie(ChampFormulaire champ) = 0;
    /// The form is being destroyed: the view must not use it any more.
    virtual void adieu() = 0;
};

/// A pop-up menu: its entries in order, controls of `Genre::Entree`.
struct Menu {
    std::string nom;
    std::vector<Controle*> entrees;
};

/// A form: its controls, timers and menus, the focus, the keys and the default button. All state is
/// here. A view draws it, and reports what the user does through the second half of this class.
/// Reports run handlers, so they are made inside `Plateforme::executer`.
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

    /// Called before the handler of the control that has the focus, and when no control has it.
    Evenement<Touche&> toucheenfoncee;
    /// The close box was clicked; without a handler, that hides the form.
    Evenement<> fermeture;
    /// Another window has come in front.
    Evenement<> desactivation;

    /// Shows the form, or brings it to the front if it is already visible.
    void montrer();

    /// Creates a control, in front of those created before.
    Controle& ajouter(Genre genre, std::string_view nomducontrole, int index = -1);
    /// Creates a control with its text and position; a label gets a transparent background.
    Controle& poser(Genre genre, std::string_view nomducontrole, int index,
                    std::string_view libelle, const Cadrage& cadre);
    Minuterie& ajouterminuterie(std::string_view nomdelaminuterie);
    Menu& ajoutermenu(std::string_view nomdumenu);
    /// The control with a design name and index (-1: without index); null if there is none.
    [[nodiscard]] Controle* trouver(std::string_view nomducontrole, int index = -1) const;
    /// The same, for a control that must exist. Throws `std::out_of_range`, with the name, if it
    /// does not.
    [[nodiscard]] Controle& controle(std::string_view nomducontrole, int index = -1) const;
    [[nodiscard]] const std::vector<std::unique_ptr<Controle>>& controles() const {
        return controles_;
    }
    [[nodiscard]] const std::vector<std::unique_ptr<Minuterie>>& minuteries() const {
        return minuteries_;
    }
    /// Called for each timer created from now on; set by whoever drives the timers.
    std::function<void(Minuterie&)> surminuterie;

    /// The highest `plan` of a control: how often one was brought to the front.
    [[nodiscard]] int plan() const { return plan_; }
    /// A new highest `plan`, for a control that comes to the front.
    [[nodiscard]] int nouveauplan() { return ++plan_; }

    /// The controls that Tab goes through, in order.
    void tabulation(std::vector<Controle*> ordre) { ordre_ = std::move(ordre); }
    [[nodiscard]] const std::vector<Controle*>& tabulation() const { return ordre_; }

    [[nodiscard]] Controle* focus() const { return focus_; }
    /// Gives a control the focus. Does nothing if it has it. Otherwise calls `sortie` of the
    /// control that had it, then `entree` of this one. A hidden or disabled control does not get
    /// it; then no control has it.
    void donnerfocus(Controle& controle);
    /// The control cannot keep the focus; the next Tab starts from its position.
    void perdrefocus(Controle& controle);

    [[nodiscard]] Controle* defaut() const { return defaut_; }
    /// Sets the default button: the one that Enter clicks from a box.
    void mettredefaut(Controle& bouton) { defaut_ = &bouton; }
    /// Removes the default button.
    void sansdefaut() { defaut_ = nullptr; }

    void ouvrirmenu(Menu& menu);
    [[nodiscard]] Menu* menuouvert() const { return menuouvert_; }

    // What the user does, reported by a view or by the bench.

    /// The control can be clicked: it is visible and enabled.
    [[nodiscard]] static bool accessible(const Controle& controle);
    /// The user moves the focus with the mouse or with a key of the system.
    void focaliser(Controle& controle);
    void cliquer(Controle& controle);
    void doublecliquer(Controle& controle);
    /// A key is pressed, with the character that it types, if any.
    void enfoncer(Touche touche, std::optional<char32_t> caractere = std::nullopt);
    void relacher(int code);
    void tabuler(bool enarriere);
    /// Pastes into the control that has the focus. `caractere` is called for each character as if
    /// it were typed; those accepted are inserted all at once, and refusals make a single beep.
    void coller(std::string_view texteacoller);
    /// Cuts the selection of the control that has the focus; empty if it does not allow that.
    std::string couper();
    /// The user picks an entry of a combo box.
    static void choisir(Controle& liste, std::string_view entree);
    /// The user picks an entry of the open menu, which closes it.
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
    Controle* repere_ = nullptr;  ///< where Tab starts from when no control has the focus
    Controle* defaut_ = nullptr;
    Menu* menuouvert_ = nullptr;
    int plan_ = 0;
};

}  // namespace ui
