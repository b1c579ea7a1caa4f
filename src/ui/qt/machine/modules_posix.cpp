#include "modules.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QPluginLoader>

namespace ui::qt {
namespace {

/// Where modules may stand, in order.
QStringList dossiers() {
    const QDir programme(QCoreApplication::applicationDirPath());
    return QStringList{programme.path(),
                       programme.filePath(QStringLiteral("../lib/games/orvane"))} +
           QCoreApplication::libraryPaths();
}

}  // namespace

QObject* module(const char* nom) {
    QString ennui = QStringLiteral("introuvable");
    for (const auto& dossier : dossiers()) {
        QPluginLoader chargeur(dossier + QLatin1Char('/') + QLatin1String(nom));
        if (chargeur.fileName().isEmpty())
            continue;
        if (auto* racine = chargeur.instance())
            return racine;
        ennui = chargeur.errorString();
    }
    qInfo().noquote() << nom << ":" << ennui;
    return nullptr;
}

}  // namespace ui::qt
