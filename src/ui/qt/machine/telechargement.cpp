#include "telechargement.h"

#include <memory>

#include <QUrl>

#include "attente.h"
#include "confiance.h"
#include "fichierrecu.h"
#include "minuteur.h"
#include "modules.h"
#include "reseau.h"
#include "texteqt.h"

namespace ui::qt {
namespace {

bool joignable(const QUrl& url, const Exigence& exigence) {
    const bool connue =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    return url.isValid() && connue && !url.host().isEmpty() &&
           (!exigence.sure || adressesure(url.toEncoded().toStdString()));
}

bool convient(const FichierRecu& fichier, const Exigence& exigence) {
    return !exigence.somme || memesomme(*exigence.somme, fichier.somme().toStdString());
}

}  // namespace

bool Telechargement::enregistrer(std::string_view adresse, const QString& chemin,
                                 const Exigence& exigence) {
    QUrl url(versqt(adresse).trimmed());
    auto* const reseau =
        joignable(url, exigence) ? qobject_cast<Reseau*>(module(modulereseau)) : nullptr;
    FichierRecu fichier(chemin);
    if (reseau == nullptr || !fichier.ouvrir())
        return false;
    std::unique_ptr<Transfert> transfert;
    bool complet = false;
    const bool venue = attendre(minuteur_, limites_.duree, [&](const auto& finir) {
        Demande demande{.adresse = url, .silence = limites_.silence};
        demande.suivre = [&](const QUrl& ailleurs) {
            const bool moinssure = url.scheme() == QLatin1String("https") &&
                                   ailleurs.scheme() != QLatin1String("https");
            url = ailleurs;
            return !moinssure && joignable(ailleurs, exigence);
        };
        demande.recevoir = [&](const QByteArray& octets, qint64 annonce) {
            return annonce <= exigence.taille &&
                   fichier.taille() + octets.size() <= exigence.taille && fichier.ecrire(octets);
        };
        demande.finir = [&complet, finir](bool entier) {
            complet = entier;
            finir();
        };
        transfert = reseau->demander(demande);
    });
    transfert.reset();
    return venue && complet && convient(fichier, exigence) && fichier.achever();
}

}  // namespace ui::qt
