#pragma once

#include "formulaire.h"
#include "partage.h"

namespace dialogs {

/// Dialog1: the about panel. It shows the text about the program, or one of two pictures of racks
/// with many anagrams. `Text1` is the text, `Text2` a small box that has the focus in its place,
/// `Image1` the racks of 7 letters, `Image2` those of 8.
class Dialog1 : public ui::Formulaire {
  public:
    Dialog1(ui::Plateforme& plateforme, const common::VariablesForm3& form3);

    /// Shows the panel, sized for the text about the program.
    void montrertexte();
    /// Puts the text about the program in the panel.
    void apropos();
    /// Shows a picture in the panel, at the picture's size: the racks of 7 letters if `index` is 1,
    /// otherwise those of 8. If the picture cannot be read the panel keeps the size of the text.
    void montrerimage(int index);

  private:
    void dimensionner(int largeurforme, int hauteurforme);

    const common::VariablesForm3& form3_;  ///< its version and date are shown
    ui::Controle& image1_;
    ui::Controle& image2_;
    ui::Controle& appui_;
    ui::Controle& texte_;
};

}  // namespace dialogs
