#include "module_reseau.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace ui::qt {
namespace {

constexpr int statutservi = 200;     // of http
constexpr qint64 bloc = 1 << 16;     // bytes handed over at once
constexpr qint64 avance = 4 * bloc;  // bytes that may wait to be handed over

QNetworkRequest requete(const Demande& demande) {
    QNetworkRequest requete(demande.adresse);
    requete.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    requete.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::UserVerifiedRedirectPolicy);
    requete.setRawHeader("Cache-Control", "no-cache");
    requete.setRawHeader("Pragma", "no-cache");
    // A few packed bytes could unfold into any number of them.
    requete.setRawHeader("Accept-Encoding", "identity");
    requete.setTransferTimeout(demande.silence);
    return requete;
}

class TransfertQt : public Transfert {
  public:
    explicit TransfertQt(const Demande& demande)
        : demande_(demande), reponse_(reseau_.get(requete(demande))) {
        auto* reponse = reponse_.get();
        reponse->setReadBufferSize(avance);
        QObject::connect(reponse, &QNetworkReply::redirected, reponse,
                         [this](const QUrl& ailleurs) {
                             if (demande_.suivre(ailleurs))
                                 emit reponse_->redirectAllowed();
                             else
                                 reponse_->abort();
                         });
        QObject::connect(reponse, &QNetworkReply::readyRead, reponse, [this] {
            if (!lire())
                reponse_->abort();
        });
        QObject::connect(reponse, &QNetworkReply::finished, reponse, [this] {
            // A ring of redirections ends without an error, at the last of them.
            const auto statut = reponse_->attribute(QNetworkRequest::HttpStatusCodeAttribute);
            const bool servi =
                reponse_->error() == QNetworkReply::NoError && statut.toInt() == statutservi;
            demande_.finir(servi && lire());
        });
    }
    TransfertQt(const TransfertQt&) = delete;
    TransfertQt& operator=(const TransfertQt&) = delete;
    ~TransfertQt() override { reponse_->disconnect(); }

  private:
    /// Hands over what has come.
    bool lire() {
        const auto longueur = reponse_->header(QNetworkRequest::ContentLengthHeader);
        const auto annonce = longueur.isValid() ? longueur.toLongLong() : -1;
        while (reponse_->bytesAvailable() > 0) {
            if (!demande_.recevoir(reponse_->read(bloc), annonce))
                return false;
        }
        return true;
    }

    Demande demande_;
    QNetworkAccessManager reseau_;
    std::unique_ptr<QNetworkReply> reponse_;
};

}  // namespace

std::unique_ptr<Transfert> ModuleReseau::demander(const Demande& demande) {
    return std::make_unique<TransfertQt>(demande);
}

}  // namespace ui::qt
