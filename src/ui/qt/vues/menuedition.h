#pragma once

#include <functional>

class QFont;
class QPoint;
class QWidget;

namespace ui::qt {

/// The entries of a text box's own menu.
struct MenuEdition {
    struct Entree {
        bool possible = false;
        std::function<void()> action;
    };
    Entree couper;
    Entree copier;
    Entree coller;
    Entree toutselectionner;
};

/// Opens the menu at a place of the screen, in a font; it goes by itself.
void deroulermenuedition(QWidget& boite, const QPoint& place, const QFont& fonte,
                         const MenuEdition& menu);

}  // namespace ui::qt
