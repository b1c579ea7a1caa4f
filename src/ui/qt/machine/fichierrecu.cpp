#include "fichierrecu.h"

#include <filesystem>
#include <system_error>

#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QRegularExpression>

#ifdef Q_OS_WIN
#include <io.h>
#else
#include <unistd.h>
#endif

#include "appels.h"

namespace ui::qt {
namespace {

/// Brings a file's bytes onto the disk.
bool poser(int numero) {
#ifdef Q_OS_WIN
    return ::_commit(numero) == 0;
#else
    return ::fsync(numero) == 0 || errno == EINVAL;  // a disk may know no such thing
#endif
}

/// The file that a name stands for, through symbolic links.
QString veritable(const QString& chemin) {
    const auto lien = QFileInfo(chemin).canonicalFilePath();
    return lien.isEmpty() ? chemin : lien;
}

void balayer(const QFileInfo& cible, qint64 age) {
    const QRegularExpression provisoire(QRegularExpression::anchoredPattern(
        QRegularExpression::escape(cible.fileName()) + QStringLiteral("\\.[A-Za-z]{6}\\.tmp")));
    const auto limite = QDateTime::currentDateTimeUtc().addMSecs(-age);
    const auto restes = cible.dir().entryInfoList({cible.fileName() + QStringLiteral(".*.tmp")},
                                                  QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    for (const auto& reste : restes) {
        if (provisoire.match(reste.fileName()).hasMatch() && reste.lastModified() < limite)
            QFile::remove(reste.filePath());
    }
}

}  // namespace

FichierRecu::FichierRecu(const QString& chemin, qint64 age)
    : chemin_(veritable(chemin)), fichier_(chemin_ + QStringLiteral(".XXXXXX.tmp")) {
    balayer(QFileInfo(chemin_), age);
}

bool FichierRecu::ouvrir() {
    return fichier_.open();
}

bool FichierRecu::ecrire(const QByteArray& octets) {
    taille_ += octets.size();
    somme_.addData(octets);
    return fichier_.write(octets) == octets.size();
}

bool FichierRecu::achever() {
    const QFileInfo ancien(chemin_);
    constexpr auto lisible =
        QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther;
    if (ancien.exists() && (!ancien.isFile() || !ancien.isWritable()))
        return false;
    fichier_.setPermissions(ancien.exists() ? ancien.permissions() : lisible);
    if (!fichier_.flush() || !poser(fichier_.handle()))
        return false;
    const auto provisoire = QFileInfo(fichier_.fileName()).filesystemFilePath();
    fichier_.close();
    const auto cible = ancien.filesystemFilePath();
    std::error_code refus;
    std::filesystem::rename(provisoire, cible, refus);
    if (refus)
        return false;
    // The file is there: a folder that cannot be synchronised takes nothing back.
    static_cast<void>(common::appelsdusysteme().synchroniserdossier(cible.parent_path()));
    return true;
}

}  // namespace ui::qt
