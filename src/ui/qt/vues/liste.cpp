#include "liste.h"

#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include "dessin.h"
#include "formulaire.h"
#include "texteqt.h"
#include "theme.h"

namespace ui::qt {
namespace {

constexpr double largeurfleche = 24;  // pixels of the design

}  // namespace

Liste::Liste(QWidget& parent, Hote& hote, Controle& controle) : Boite(parent, hote, controle) {}

QString Liste::description() const {
    return QStringLiteral("Liste : la touche Bas l'ouvre");
}

double Liste::margedroite() const {
    return largeurfleche;
}

QRectF Liste::placefleche() const {
    const double l = largeurfleche * unite();
    return {width() - l, 0, l, static_cast<double>(height())};
}

void Liste::completer(QPainter& peintre) {
    dessin::fleche(peintre, placefleche(), unite(),
                   QColor::fromRgb(isEnabled() ? teintes::encre : teintes::encrepale));
}

void Liste::mousePressEvent(QMouseEvent* evenement) {
    if (controle() != nullptr && isEnabled() && evenement->button() == Qt::LeftButton &&
        placefleche().contains(evenement->position())) {
        evenement->accept();
        derouler();
        return;
    }
    Boite::mousePressEvent(evenement);
}

void Liste::mouseMoveEvent(QMouseEvent* evenement) {
    setCursor(placefleche().contains(evenement->position()) ? Qt::ArrowCursor : Qt::IBeamCursor);
    Boite::mouseMoveEvent(evenement);
}

bool Liste::touchepropre(const QKeyEvent& evenement) {
    if (evenement.key() != Qt::Key_Down && evenement.key() != Qt::Key_F4)
        return false;
    derouler();
    return true;
}

void Liste::derouler() {
    if (controle()->choix().empty())
        return;
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setMinimumWidth(width());
    menu->setFont(fonte());
    for (const auto& entree : controle()->choix()) {
        // A menu would read a mnemonic into "&".
        auto* ligne =
            menu->addAction(versqt(entree).replace(QLatin1String("&"), QLatin1String("&&")));
        ligne->setCheckable(true);
        ligne->setChecked(entree == controle()->texte());
        if (ligne->isChecked())
            menu->setActiveAction(ligne);
        QObject::connect(ligne, &QAction::triggered, this, [this, entree] {
            if (controle() != nullptr)
                executer([&] { Formulaire::choisir(*controle(), entree); });
        });
    }
    menu->popup(mapToGlobal(QPoint(0, height())));
}

}  // namespace ui::qt
