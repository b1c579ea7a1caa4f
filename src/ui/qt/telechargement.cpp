#include "telechargement.h"

#include <memory>

#include <QEventLoop>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QUrl>

#include "attente.h"
#include "minuteur.h"
#include "texteqt.h"

namespace ui::qt {

std::optional<std::string> Telechargement::lire(std::string_view adresse) {
    const QUrl url(versqt(adresse).trimmed());
    const bool connue =
        url.scheme() == QLatin1String("http") || url.scheme() == QLatin1String("https");
    if (!url.isValid() || !connue)
        return std::nullopt;
    QNetworkRequest demande(url);
    demande.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    demande.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    demande.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    demande.setRawHeader("Cache-Control", "no-cache");
    demande.setRawHeader("Pragma", "no-cache");
    demande.setTransferTimeout(limites_.silence);
    const std::unique_ptr<QNetworkReply> reponse(reseau_.get(demande));
    const bool venue = attendre(minuteur_, limites_.duree, [&](QEventLoop& boucle) {
        QObject::connect(reponse.get(), &QNetworkReply::finished, &boucle, &QEventLoop::quit);
        QObject::connect(reponse.get(), &QNetworkReply::downloadProgress, &boucle,
                         [&](qint64 recus, qint64 total) {
                             if (recus > limites_.taille || total > limites_.taille)
                                 reponse->abort();
                         });
    });
    if (!venue || !reponse->isFinished() || reponse->error() != QNetworkReply::NoError)
        return std::nullopt;
    if (reponse->bytesAvailable() > limites_.taille)  // came before any progress was told
        return std::nullopt;
    return reponse->readAll().toStdString();
}

}  // namespace ui::qt
