#include "ecranqt.h"

#include <vector>

#include <QApplication>
#include <QMouseEvent>
#include <QPointer>
#include <QWindow>
#include <QtTest/QTest>

#include "seance.h"

namespace banc {

void laissercourir() {
    constexpr int tours = 3;  // an event may post others
    for (int i = 0; i < tours; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

void attendredevant(const QWidget& fenetre) {
    constexpr int limite = 5000;  // milliseconds
    static_cast<void>(QTest::qWaitFor(
        [&] {
            return QApplication::activeWindow() == &fenetre && fenetre.windowHandle()->isExposed();
        },
        limite));
    laissercourir();
}

QPoint placelibre(QWidget& fenetre, QWidget& widget, QPoint voulue) {
    constexpr int pas = 8;
    std::vector<QPoint> places{voulue, widget.rect().center()};
    for (int y = 1; y < pas; ++y) {
        for (int x = 1; x < pas; ++x)
            places.emplace_back(widget.width() * x / pas, widget.height() * y / pas);
    }
    for (const auto& place : places) {
        const auto point = widget.mapTo(&fenetre, place);
        const auto* touche = fenetre.childAt(point);
        if (touche == &widget || (touche != nullptr && widget.isAncestorOf(touche)))
            return point;
    }
    throw Refus("à l'écran, la souris n'atteint pas le contrôle " +
                widget.objectName().toStdString());
}

void souris(QWidget& fenetre, QPoint place, QEvent::Type genre, Qt::MouseButton bouton) {
    auto* enfant = fenetre.childAt(place);
    auto& cible = enfant == nullptr ? fenetre : *enfant;
    const auto locale = cible.mapFrom(&fenetre, place);
    const bool leve = genre == QEvent::MouseButtonRelease;
    QMouseEvent evenement(genre, locale, place, fenetre.mapToGlobal(place), bouton,
                          leve ? Qt::NoButton : bouton, Qt::NoModifier);
    QCoreApplication::sendEvent(&cible, &evenement);
}

void clic(QWidget& fenetre, QPoint place, Qt::MouseButton bouton) {
    const QPointer<QWidget> encore(&fenetre);
    souris(fenetre, place, QEvent::MouseButtonPress, bouton);
    if (!encore.isNull())
        souris(*encore, place, QEvent::MouseButtonRelease, bouton);
}

}  // namespace banc
