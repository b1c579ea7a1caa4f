#include "menucontextuel.h"

#include <QCursor>
#include <QMenu>
#include <QTimer>
#include <QWidget>

#include "hote.h"
#include "texteqt.h"

namespace ui::qt {

QMenu* MenuContextuel::menu() const {
    return menu_;
}

void MenuContextuel::accorder(Formulaire* formulaire) {
    formulaire_ = formulaire;
    const auto* voulu = formulaire == nullptr ? nullptr : formulaire->menuouvert();
    if (voulu == montre_)
        return;
    fermer();
    if (voulu != nullptr)
        ouvrir(*voulu);
    montre_ = voulu;
}

void MenuContextuel::ouvrir(const Menu& menu) {
    menu_ = new QMenu(&fenetre_);
    menu_->setObjectName(versqt(menu.nom));
    menu_->setFont(hote_.fontedemenu());
    for (auto* entree : menu.entrees) {
        auto* action = menu_->addAction(versqt(entree->texte()));
        action->setObjectName(versqt(entree->nomcomplet()));
        action->setEnabled(entree->actif());
        action->setVisible(entree->visible());
        QObject::connect(action, &QAction::triggered, &fenetre_, [this, entree] {
            hote_.executer([&] { formulaire_->choisirentree(*entree); });
        });
    }
    // Qt hides a menu before it tells the choice: whether there was one is known afterwards.
    QObject::connect(menu_, &QMenu::aboutToHide, &fenetre_, [this, cache = menu_] {
        QTimer::singleShot(0, &fenetre_, [this, cache] {
            if (formulaire_ != nullptr && cache != nullptr && menu_ == cache)
                hote_.executer([this] { formulaire_->fermermenu(); });
        });
    });
    auto place = QCursor::pos();
    const auto* focus = fenetre_.focusWidget();
    if (!fenetre_.geometry().contains(place) && focus != nullptr)
        place = focus->mapToGlobal(QPoint(0, focus->height()));
    menu_->popup(place);
}

void MenuContextuel::fermer() {
    if (menu_.isNull())
        return;
    auto* ancien = menu_.data();
    menu_.clear();
    montre_ = nullptr;
    ancien->close();
    ancien->deleteLater();
}

}  // namespace ui::qt
