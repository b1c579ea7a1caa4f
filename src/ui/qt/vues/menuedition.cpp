#include "menuedition.h"

#include <QMenu>

namespace ui::qt {

void deroulermenuedition(QWidget& boite, const QPoint& place, const QFont& fonte,
                         const MenuEdition& menu) {
    auto* liste = new QMenu(&boite);
    liste->setFont(fonte);
    liste->setAttribute(Qt::WA_DeleteOnClose);
    const auto ajouter = [&](const char* texte, const MenuEdition::Entree& entree) {
        auto* ligne = liste->addAction(QString::fromUtf8(texte), entree.action);
        ligne->setEnabled(entree.possible);
    };
    ajouter("Couper", menu.couper);
    ajouter("Copier", menu.copier);
    ajouter("Coller", menu.coller);
    liste->addSeparator();
    ajouter("Tout sélectionner", menu.toutselectionner);
    liste->popup(place);
}

}  // namespace ui::qt
