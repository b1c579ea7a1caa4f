#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "propriete.h"
#include "valeurs.h"

namespace ui {

class Formulaire;
class Controle;
class Minuterie;

/// The handler of an event, if any. An empty one must not be called: use `declencher`.
template <class... Arguments>
using Evenement = std::function<void(Arguments...)>;

/// Calls the handler if there is one.
template <class E, class... A>
void declencher(const E& evenement, A&&... arguments) {
    if (evenement)
        evenement(std::forward<A>(arguments)...);
}

/// While it lives, an unexpected error is reported as one of this control, timer or form.
class Lieu {
  public:
    explicit Lieu(const Controle& controle);
    explicit Lieu(const Minuterie& minuterie);
    explicit Lieu(const Formulaire& formulaire);
    Lieu(const Lieu&) = delete;
    Lieu& operator=(const Lieu&) = delete;
    ~Lieu();

  private:
    const Formulaire& formulaire_;
    const Controle* controle_ = nullptr;
    const Minuterie* minuterie_ = nullptr;
    int erreurs_;  ///< on their way when it was made
};

/// Calls a handler of a control, a timer or a form, if it has one, as what happens to it.
template <class Objet, class E, class... A>
void survenir(const Objet& objet, const E& evenement, A&&... arguments) {
    if (!evenement)
        return;
    const Lieu lieu(objet);
    evenement(std::forward<A>(arguments)...);
}

/// A key being pressed; a handler may swallow it.
struct Touche {
    int code = 0;  ///< virtual key code
    bool maj = false;
    bool ctrl = false;
    bool avalee = false;
};

/// Names a property of a control, to tell its view which one has changed.
enum class Champ : std::uint8_t {
    Texte,
    Infobulle,
    Accessible,
    Fond,
    Couleur,
    Visible,
    Actif,
    Verrou,
    Coche,
    Pointeur,
    Police,
    Taille,
    Gras,
    Italique,
    Barre,
    Alignement,
    Aspect,
    Image,
    Gauche,
    Haut,
    Largeur,
    Hauteur,
    Selection,    ///< caret or selection of a text box
    Choix,        ///< entries of a combo box
    PremierPlan,  ///< the control was brought to the front
    Fondu,        ///< transparent background
    Description
};

/// Draws a control; the model tells it what has changed.
class VueControle {
  public:
    VueControle() = default;
    VueControle(const VueControle&) = delete;
    VueControle& operator=(const VueControle&) = delete;
    virtual ~VueControle() = default;
    virtual void modifie(Champ champ) = 0;
};

/// Position and size in twips, 1440 to the inch.
struct Cadrage {
    int gauche = 0;
    int haut = 0;
    int largeur = 0;
    int hauteur = 0;
};

/// A control of a form: its properties, its events, and for a text box the editing of its text.
/// A control lives as long as its form, which finds it by design name and index.
class Controle : public Observe<Champ> {
  public:
    template <class T>
    using P = Propriete<T, Champ>;

    Controle(Formulaire& formulaire, Genre genre, std::string nom, int index);
    Controle(const Controle&) = delete;
    Controle& operator=(const Controle&) = delete;
    virtual ~Controle() = default;

    [[nodiscard]] Formulaire& formulaire() const { return formulaire_; }
    [[nodiscard]] Genre genre() const { return genre_; }
    /// Design name, without the index.
    [[nodiscard]] const std::string& nom() const { return nom_; }
    /// Index in its control array, -1 for a control outside any array.
    [[nodiscard]] int index() const { return index_; }
    /// "tirage(3)" or "corriger".
    [[nodiscard]] std::string nomcomplet() const;

    P<std::string> texte{*this, Champ::Texte, {}};
    P<std::string> infobulle{*this, Champ::Infobulle, {}};
    /// Name for assistive technologies, in French; if empty, the view uses the text.
    P<std::string> accessible{*this, Champ::Accessible, {}};
    /// What the colours mean, for assistive technologies, in French; empty if they mean nothing.
    P<std::string> description{*this, Champ::Description, {}};
    P<Couleur> fond{*this, Champ::Fond, Couleur::bouton()};
    P<bool> fondu{*this, Champ::Fondu, false};
    P<Couleur> couleur{*this, Champ::Couleur, couleurs::noir};
    P<bool> visible{*this, Champ::Visible, true};
    P<bool> actif{*this, Champ::Actif, true};
    P<bool> verrou{*this, Champ::Verrou, false};
    P<bool> coche{*this, Champ::Coche, false};
    P<Pointeur> pointeur{*this, Champ::Pointeur, Pointeur::Normal};
    P<std::string> police{*this, Champ::Police, {}};  ///< family; empty: that of the program
    P<double> taille{*this, Champ::Taille, 10};       ///< points
    P<bool> gras{*this, Champ::Gras, false};
    P<bool> italique{*this, Champ::Italique, false};
    P<bool> barre{*this, Champ::Barre, false};
    P<Alignement> alignement{*this, Champ::Alignement, Alignement::Gauche};
    P<Aspect> aspect{*this, Champ::Aspect, Aspect::Courant};
    P<std::string> image{*this, Champ::Image, {}};  ///< path of a picture file
    P<int> gauche{*this, Champ::Gauche, 0};         ///< twips, like the next three
    P<int> haut{*this, Champ::Haut, 0};
    P<int> largeur{*this, Champ::Largeur, 0};
    P<int> hauteur{*this, Champ::Hauteur, 0};
    P<std::vector<std::string>> choix{*this, Champ::Choix, {}};  ///< entries of a combo box
    /// The user may cut from the box and paste into it, unless it is locked.
    bool pressepapiers = true;
    /// A text box of several lines; its view handles keys and clipboard by itself.
    bool multiligne = false;
    /// A box of several lines always shows its vertical scroll bar, even if the text fits.
    bool ascenseur = false;
    /// A click or Tab can give it the focus: buttons, boxes, check boxes, combo boxes.
    bool focalisable = false;

    void placer(const Cadrage& cadre);
    /// Brings the control in front of the others.
    void premierplan();
    /// A control with a higher number lies in front of one with a lower number; of two with the
    /// same number, the one created later lies in front.
    [[nodiscard]] int plan() const { return plan_; }

    Evenement<> clic;
    Evenement<> doubleclic;
    Evenement<> entree;  ///< the control has got the focus
    Evenement<> sortie;  ///< the control is losing the focus
    Evenement<Touche&> toucheenfoncee;
    /// The typed character's code in Windows-1252; the handler may change it, or set it to 0 to
    /// drop the character.
    Evenement<int&> caractere;
    Evenement<int> toucherelachee;
    Evenement<> survol;   ///< the mouse passes over
    Evenement<> relache;  ///< a mouse button is released on it
    Evenement<> change;   ///< the text has changed, by the user or by the program
    Evenement<> repeint;  ///< the colour of the text or of the background has changed

    // Editing of a text box. Positions count characters; the caret runs from 0 to the text's
    // length.
    [[nodiscard]] std::size_t curseur() const { return curseur_; }
    [[nodiscard]] std::size_t ancre() const { return ancre_; }
    [[nodiscard]] std::size_t selection() const;
    [[nodiscard]] std::string texteselectionne() const;
    void selectionner(std::size_t ancre, std::size_t curseur);
    void toutselectionner();
    /// Replaces the selection by a text, as typing does.
    void inserer(std::string_view caracteres);
    /// Collects accepted characters, which `deposer` then inserts all at once.
    void amasser(std::string_view caracteres) { amas_ += caracteres; }
    void deposer();
    /// Gives up what was collected.
    void oublieramas() { amas_.clear(); }
    /// The next character typed will replace the whole text, which may be empty.
    [[nodiscard]] bool remplacetout() const { return amas_.empty() && selection() == longueur_; }
    /// Backspace (`avant`) or Delete: removes the selection, or else one character.
    void effacer(bool avant);

    /// The view, if there is one. It is not owned.
    VueControle* vue = nullptr;

    void modifie(Champ champ) override;

  private:
    void notifier(Champ champ) const {
        if (vue != nullptr)
            vue->modifie(champ);
    }
    void textechange();
    void ecrire(std::string nouveau, std::size_t curseur);

    Formulaire& formulaire_;
    std::string nom_;
    std::string amas_;          ///< collected characters
    std::size_t longueur_ = 0;  ///< of the text, to notice that it has become shorter
    std::size_t curseur_ = 0;
    std::size_t ancre_ = 0;
    int index_;
    int plan_;
    Genre genre_;
    bool saisie_ = false;  ///< an edit, which sets the caret itself, is writing the text
};

/// A timer that ticks every second. Setting `actif` starts a new second.
class Minuterie final : public Observe<bool> {
  public:
    Minuterie(Formulaire& formulaire, std::string nom)
        : formulaire_(formulaire), nom_(std::move(nom)) {}
    Minuterie(const Minuterie&) = delete;
    Minuterie& operator=(const Minuterie&) = delete;
    virtual ~Minuterie() = default;
    [[nodiscard]] Formulaire& formulaire() const { return formulaire_; }
    [[nodiscard]] const std::string& nom() const { return nom_; }
    Propriete<bool, bool> actif{*this, true, false};
    Evenement<> tic;
    /// Called at each start and stop; set by the platform.
    std::function<void(Minuterie&)> surchangement;
    void modifie(bool /*champ*/) override {
        if (surchangement)
            surchangement(*this);
    }

  private:
    Formulaire& formulaire_;
    std::string nom_;
};

}  // namespace ui
