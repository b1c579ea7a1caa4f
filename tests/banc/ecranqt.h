#pragma once

// Real windows, as a user sees and works them.

#include <QEvent>
#include <QPoint>
#include <QWidget>

namespace banc {

/// Handles all pending events of Qt, deferred deletions included.
void laissercourir();

/// Waits until a window is in front, which a desktop does not do at once.
void attendredevant(const QWidget& fenetre);

/// A point of a widget, in coordinates of its window, where no other widget covers it: `voulue` if
/// possible, else its centre, else any. Throws `Refus` if there is none.
[[nodiscard]] QPoint placelibre(QWidget& fenetre, QWidget& widget, QPoint voulue);

/// Sends a mouse event to the widget at a point of a window.
void souris(QWidget& fenetre, QPoint place, QEvent::Type genre, Qt::MouseButton bouton);

/// Presses and releases a mouse button.
void clic(QWidget& fenetre, QPoint place, Qt::MouseButton bouton = Qt::LeftButton);

}  // namespace banc
