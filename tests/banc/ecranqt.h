#pragma once

// The screen, as the user of real windows has it.

#include <QEvent>
#include <QPoint>
#include <QWidget>

namespace banc {

/// Runs what waits, deletions included.
void laissercourir();

/// Waits until a window is in front: a desktop takes its time.
void attendredevant(const QWidget& fenetre);

/// A place of a widget, in its window, where the mouse meets it and no other: first the one that
/// is asked for, then its middle, then any. Throws `Refus` if there is none.
[[nodiscard]] QPoint placelibre(QWidget& fenetre, QWidget& widget, QPoint voulue);

/// Sends an event of the mouse to what lies at a place of a window.
void souris(QWidget& fenetre, QPoint place, QEvent::Type genre, Qt::MouseButton bouton);

/// A button of the mouse goes down and up.
void clic(QWidget& fenetre, QPoint place, Qt::MouseButton bouton = Qt::LeftButton);

}  // namespace banc
