#include "hautparleur.h"

#include <algorithm>
#include <memory>

#include <QFile>
#include <QFileInfo>
#include <QtEndian>

#include "attente.h"
#include "minuteur.h"
#include "modules.h"
#include "son.h"

namespace ui::qt {
namespace {

constexpr std::int64_t millisecondes = 1000;
constexpr int marge = 500;             // milliseconds that a device may take to start and to drain
constexpr qsizetype tailleentete = 8;  // of a chunk: its name and its length

template <class T>
T nombre(const QByteArray& octets, qsizetype place) {
    return qFromLittleEndian<T>(octets.constData() + place);
}

struct Morceau {
    qsizetype debut = -1;
    qsizetype taille = 0;
};

/// A chunk of the file by its name; where the length runs past the end, what there is.
Morceau morceau(const QByteArray& octets, const char* nom) {
    constexpr qsizetype premier = 12;  // behind "RIFF", length and "WAVE"
    for (qsizetype i = premier; i + tailleentete <= octets.size();) {
        const auto taille = static_cast<qsizetype>(nombre<quint32>(octets, i + 4));
        const auto debut = i + tailleentete;
        if (octets.mid(i, 4) == nom)
            return {debut, std::min(taille, octets.size() - debut)};
        i = debut + taille + taille % 2;
    }
    return {};
}

}  // namespace

std::int64_t Onde::duree() const {
    constexpr int bitsparoctet = 8;
    const std::int64_t parseconde = std::int64_t{frequence} * voies * bits / bitsparoctet;
    return parseconde > 0 ? echantillons.size() * millisecondes / parseconde : 0;
}

std::optional<Onde> lireonde(const QByteArray& octets) {
    constexpr qsizetype tailleformat = 16;
    constexpr int echantillonsbruts = 1;
    if (!octets.startsWith("RIFF") || octets.mid(8, 4) != "WAVE")
        return std::nullopt;
    const auto entete = morceau(octets, "fmt ");
    const auto donnees = morceau(octets, "data");
    if (entete.debut < 0 || entete.taille < tailleformat || donnees.debut < 0)
        return std::nullopt;
    Onde onde;
    onde.voies = nombre<quint16>(octets, entete.debut + 2);
    onde.frequence = static_cast<int>(nombre<quint32>(octets, entete.debut + 4));
    onde.bits = nombre<quint16>(octets, entete.debut + 14);
    onde.echantillons = octets.mid(donnees.debut, donnees.taille);
    const bool lisible = nombre<quint16>(octets, entete.debut) == echantillonsbruts &&
                         (onde.voies == 1 || onde.voies == 2) && onde.frequence > 0 &&
                         (onde.bits == 8 || onde.bits == 16);
    return lisible ? std::optional(onde) : std::nullopt;
}

void jouer(Minuteur& minuteur, const QString& chemin) {
    QFile fichier(chemin);
    // A pipe would be waited for.
    if (!QFileInfo(chemin).isFile() || !fichier.open(QIODevice::ReadOnly))
        return;
    const auto onde = lireonde(fichier.readAll());
    if (!onde || onde->duree() == 0)
        return;
    auto* const son = qobject_cast<Son*>(module(moduleson));
    if (son == nullptr)
        return;
    const auto limite = static_cast<int>(std::min(onde->duree(), dureelimite)) + marge;
    std::unique_ptr<Lecture> lecture;
    // A device that sticks is left behind at the limit.
    static_cast<void>(attendre(minuteur, limite, [&](const auto& finir) {
        lecture = son->jouer(*onde, finir);
        if (lecture == nullptr)
            finir();
    }));
}

}  // namespace ui::qt
