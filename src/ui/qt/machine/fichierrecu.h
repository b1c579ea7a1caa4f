#pragma once

#include <QByteArray>
#include <QCryptographicHash>
#include <QString>
#include <QTemporaryFile>

namespace ui::qt {

/// A file that is written bit by bit under a name that nobody can foresee, beside its own
/// (`<name>.XXXXXX.tmp`, or none at all where the disk knows such files), and takes its own name in
/// one step when it is whole. Until then the file of that name is what it was; what was written
/// goes with this.
class FichierRecu {
  public:
    /// Takes away what a program that is gone has left of earlier ones: files under such a name
    /// that nobody has written to for longer than `age` milliseconds.
    FichierRecu(const QString& chemin, qint64 age);

    /// Opens the file for writing; false if the disk refuses.
    [[nodiscard]] bool ouvrir();
    [[nodiscard]] bool ecrire(const QByteArray& octets);
    [[nodiscard]] qint64 taille() const { return taille_; }
    /// SHA-256 of what was written, as 64 hexadecimal digits in lower case.
    [[nodiscard]] QByteArray somme() const { return somme_.result().toHex(); }
    /// The file takes its name; false if the disk refuses.
    [[nodiscard]] bool achever();

  private:
    QString chemin_;
    QTemporaryFile fichier_;
    QCryptographicHash somme_{QCryptographicHash::Sha256};
    qint64 taille_ = 0;
};

}  // namespace ui::qt
