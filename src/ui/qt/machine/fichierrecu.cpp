#include "fichierrecu.h"

#include <QFileInfo>

namespace ui::qt {
namespace {

/// The file is missing, or may be changed.
bool inscriptible(common::Appels& appels, const std::filesystem::path& chemin) {
    const auto erreur = common::Descripteur(appels).ouvrir(chemin, common::Ouverture::Modification);
    return !erreur || erreur == std::errc::no_such_file_or_directory;
}

}  // namespace

FichierRecu::FichierRecu(const QString& chemin)
    : cible_(QFileInfo(chemin).filesystemFilePath()), fichier_(common::appelsdusysteme()) {}

bool FichierRecu::ouvrir() {
    auto& appels = common::appelsdusysteme();
    return !common::destination(appels, cible_) && inscriptible(appels, cible_) &&
           !fichier_.creer(cible_);
}

bool FichierRecu::ecrire(const QByteArray& octets) {
    taille_ += octets.size();
    somme_.addData(octets);
    return !fichier_.remplir({octets.constData(), static_cast<std::size_t>(octets.size())});
}

bool FichierRecu::achever() {
    return !fichier_.placer();
}

}  // namespace ui::qt
