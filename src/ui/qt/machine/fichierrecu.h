#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>
#include <QTemporaryFile>

namespace ui::qt {

/// A file that is received piece by piece. It is written beside its destination, under the random
/// name `<name>.XXXXXX.tmp` or, where the system can, under none, and replaces the destination in
/// one step when it is complete. Until then the destination is unchanged. An object that is
/// destroyed earlier deletes what it has written.
class FichierRecu {
  public:
    /// Also deletes the temporary files of `chemin` that an interrupted program has left: those
    /// last written to more than `age` milliseconds ago.
    FichierRecu(const QString& chemin, qint64 age);

    /// Creates the temporary file; false if the disk refuses.
    [[nodiscard]] bool ouvrir();
    /// Appends bytes; false if not all of them could be written.
    [[nodiscard]] bool ecrire(const QByteArray& octets);
    /// Bytes given to `ecrire` so far.
    [[nodiscard]] qint64 taille() const { return taille_; }
    /// SHA-256 of those bytes, as 64 hexadecimal digits in lower case.
    [[nodiscard]] QByteArray somme() const { return somme_.result().toHex(); }
    /// Replaces the destination, whose bytes are then on the disk; false if the disk refuses or the
    /// destination may not be written.
    [[nodiscard]] bool achever();

  private:
    QString chemin_;
    QTemporaryFile fichier_;
    QCryptographicHash somme_{QCryptographicHash::Sha256};
    qint64 taille_ = 0;
};

}  // namespace ui::qt
