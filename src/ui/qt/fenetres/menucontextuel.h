#pragma once

#include <QPointer>

#include "formulaire.h"

class QMenu;
class QWidget;

namespace ui::qt {

class Hote;

/// The pop-up menu of a form: on screen as long as the model has it open. Meanwhile events run as
/// usual.
class MenuContextuel {
  public:
    MenuContextuel(QWidget& fenetre, Hote& hote) : fenetre_(fenetre), hote_(hote) {}

    /// Opens or closes the menu as the form has it; null once the form is gone.
    void accorder(Formulaire* formulaire);
    /// Null if none is on screen.
    [[nodiscard]] QMenu* menu() const;

  private:
    void ouvrir(const Menu& menu);
    void fermer();

    QWidget& fenetre_;
    Hote& hote_;
    Formulaire* formulaire_ = nullptr;
    QPointer<QMenu> menu_;
    const Menu* montre_ = nullptr;
};

}  // namespace ui::qt
