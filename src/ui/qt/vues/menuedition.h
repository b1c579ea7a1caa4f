#pragma once

#include <functional>

class QFont;
class QPoint;
class QWidget;

namespace ui::qt {

/// The entries of a text box's context menu.
struct MenuEdition {
    struct Entree {
        bool possible = false;  ///< the entry is enabled
        std::function<void()> action;
    };
    Entree couper;
    Entree copier;
    Entree coller;
    Entree toutselectionner;
};

/// Opens the menu at a point of the screen. It deletes itself when it is closed.
void deroulermenuedition(QWidget& boite, const QPoint& place, const QFont& fonte,
                         const MenuEdition& menu);

}  // namespace ui::qt
