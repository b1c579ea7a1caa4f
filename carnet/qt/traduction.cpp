#include "traduction.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QTranslator>

namespace carnet {

bool traduire() {
    auto* traducteur = new QTranslator(QCoreApplication::instance());
    for (const auto& dossier :
         {QStringLiteral(":/traductions"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)})
        if (traducteur->load(QStringLiteral("qtbase_fr"), dossier))
            return QCoreApplication::installTranslator(traducteur);
    delete traducteur;
    return false;
}

}  // namespace carnet
