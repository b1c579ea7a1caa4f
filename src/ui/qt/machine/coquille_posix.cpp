#include "coquille.h"

#include <QDesktopServices>
#include <QUrl>

namespace ui::qt {

void ouvrirfichier(const QString& chemin) {
    QDesktopServices::openUrl(QUrl::fromLocalFile(chemin));
}

}  // namespace ui::qt
