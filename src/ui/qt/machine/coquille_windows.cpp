#include "coquille.h"

#include <windows.h>
#include <shellapi.h>

#include <QDir>

namespace ui::qt {

void ouvrirfichier(const QString& chemin) {
    const auto cible = QDir::toNativeSeparators(chemin).toStdWString();
    // It starts in the root of its drive: a program must be able to replace or delete our folder,
    // which it could not while it stands in it.
    constexpr qsizetype racine = 3;
    const auto dossier = QDir::toNativeSeparators(chemin.left(racine)).toStdWString();
    ShellExecuteW(nullptr, L"open", cible.c_str(), nullptr, dossier.c_str(), SW_SHOWNORMAL);
}

}  // namespace ui::qt
