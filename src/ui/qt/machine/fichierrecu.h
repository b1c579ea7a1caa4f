#pragma once

#include <filesystem>

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>

#include "provisoire.h"

namespace ui::qt {

/// A file that is received piece by piece. It is written beside its destination, as
/// `<name>.<number>.tmp`, and replaces the destination in one step when it is complete. Until then
/// the destination is unchanged. An object that is destroyed earlier deletes what it has written.
class FichierRecu {
  public:
    explicit FichierRecu(const QString& chemin);

    /// Creates the temporary file, and deletes those that interrupted programs have left; false if
    /// the disk refuses or the destination may not be written.
    [[nodiscard]] bool ouvrir();
    /// Appends bytes; false if not all of them could be written.
    [[nodiscard]] bool ecrire(const QByteArray& octets);
    /// Bytes given to `ecrire` so far.
    [[nodiscard]] qint64 taille() const { return taille_; }
    /// SHA-256 of those bytes, as 64 hexadecimal digits in lower case.
    [[nodiscard]] QByteArray somme() const { return somme_.result().toHex(); }
    /// Replaces the destination, whose bytes are then on the disk; false if the disk refuses.
    [[nodiscard]] bool achever();

  private:
    std::filesystem::path cible_;
    common::Provisoire fichier_;
    QCryptographicHash somme_{QCryptographicHash::Sha256};
    qint64 taille_ = 0;
};

}  // namespace ui::qt
