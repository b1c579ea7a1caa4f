#pragma once

#include <array>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "formulaire.h"
#include "formulaires.h"
#include "options.h"

namespace dialogs {

/// Dialog2: the options (thresholds of the result colours, clock, samples, colour, sound, assisted
/// entry). It stays in front of the other forms without blocking them. The settings themselves are
/// public variables that outlive it; it is made afresh from them at each opening.
///
/// `Text1(0)` and `Text1(1)` are the green and the red threshold, `Text2` the seconds a word,
/// `Text3` the series of a sample, `Combo1` the colour, `Check1` the sound, `Check2` the assisted
/// entry, `Label4` the message area.
class Dialog2 : public ui::Formulaire, public common::FaceOptions {
  public:
    /// `decharger` makes the form go away, and the next touch make it anew.
    Dialog2(ui::Plateforme& plateforme, common::Voisins& voisins, std::function<void()> decharger);

    /// Takes everything from the variables. Throws `Faute` if a time or a sample passes 16 bits.
    void charger();

    [[nodiscard]] bool check1() override { return son_.coche(); }
    void choisircouleur(std::string_view nomdecouleur) override;
    void ouvrir() override;
    /// Applies the colour named by `Combo1` to this form, the menu and `Multi`.
    void Combo1_Click();

  private:
    void brancher();
    void change(options::Champ champ);
    void affichertailles();
    void colorerlabels();
    void cliquerok();
    void ranger();
    void partir();
    [[nodiscard]] options::Saisie saisie() const;

    common::Voisins& voisins_;
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
