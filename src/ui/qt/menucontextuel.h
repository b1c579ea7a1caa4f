#pragma once

#include <QPointer>

#include "formulaire.h"

class QMenu;

namespace ui::qt {

class Fenetre;

/// The pop-up menu of a form: on screen as long as the model has it open. It blocks nothing.
class MenuContextuel {
  public:
    explicit MenuContextuel(Fenetre& fenetre) : fenetre_(fenetre) {}

    /// Opens or closes the menu as the model wants it.
    void accorder();
    /// Null if none is on screen.
    [[nodiscard]] QMenu* menu() const;

  private:
    void ouvrir(const Menu& menu);
    void fermer();

    Fenetre& fenetre_;
    QPointer<QMenu> menu_;
    const Menu* montre_ = nullptr;
};

}  // namespace ui::qt
