#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "faces.h"
#include "formulaire.h"
#include "options.h"

namespace dialogs {

/// Dialog2: the options (thresholds of the result colours, clock, samples, colour, sound, assisted
/// entry). It stays in front of the other forms without blocking them. The settings themselves are
/// in `common::VariablesDialog2`; each opening makes a new form from them.
///
/// `Text1(0)` and `Text1(1)` are the green and the red threshold, `Text2` the seconds a word,
/// `Text3` the series of a sample, `Combo1` the colour, `Check1` the sound, `Check2` the assisted
/// entry, `Label4` the message area.
class Dialog2 : public ui::Formulaire {
  public:
    /// What it reads and sets, and the other forms that it calls.
    struct Voisins {
        common::VariablesForm3& form3;
        common::VariablesDialog2& dialog2;
        ui::FaceMenu& menu;
        ui::FaceSerie& multi;
    };
    /// `decharger` destroys the form; the next use makes a new one.
    Dialog2(ui::Plateforme& plateforme, const Voisins& voisins, std::function<void()> decharger);

    /// Fills the form from the settings. Throws `Faute` if the time of a series or the size of a
    /// sample exceeds 16 bits.
    void charger();

    /// The check box `Check1` ("Son") is ticked.
    [[nodiscard]] bool check1() const { return son_.coche(); }
    /// Chooses a colour by its name, as a choice in `Combo1` does.
    void choisircouleur(std::string_view nomdecouleur);
    /// Opens the form in front of the others, without blocking them.
    void ouvrir();
    /// Applies the colour named by `Combo1` to this form, the menu and `Multi`.
    void Combo1_Click();

  private:
    void disposer();  ///< the design (dialog2_ecran.cpp)
    void brancher();
    void change(options::Champ champ);
    void affichertailles();
    void colorerlabels();
    void cliquerok();
    void ranger();
    void partir();
    [[nodiscard]] options::Saisie saisie() const;

    Voisins voisins_;
    std::function<void()> decharger_;

    ui::Controle& vert_;
    ui::Controle& rouge_;
    ui::Controle& temps_;
    ui::Controle& base_;
    ui::Controle& couleur_;
    ui::Controle& son_;
    ui::Controle& assistance_;
    ui::Controle& duree_;
    ui::Controle& message_;
    ui::Controle& ok_;
    ui::Controle& annuler_;
    std::array<ui::Controle*, options::nbtailles> tailles_{};
};

}  // namespace dialogs
