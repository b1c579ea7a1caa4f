#include "module_reseau.h"

#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QNetworkRequest>

namespace ui::qt {
namespace {

constexpr int statutservi = 200;     // of http
constexpr int renvoislimite = 20;    // redirections of one transfer
constexpr qint64 bloc = 1 << 16;     // bytes handed over at once
constexpr qint64 avance = 4 * bloc;  // bytes that may wait to be handed over

QNetworkRequest requete(const QUrl& adresse, int silence) {
    QNetworkRequest requete(adresse);
    requete.setAttribute(QNetworkRequest::CacheLoadControlAttribute,
                         QNetworkRequest::AlwaysNetwork);
    requete.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    requete.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::ManualRedirectPolicy);
    requete.setRawHeader("Cache-Control", "no-cache");
    requete.setRawHeader("Pragma", "no-cache");
    // A few packed bytes could unfold into any number of them.
    requete.setRawHeader("Accept-Encoding", "identity");
    requete.setTransferTimeout(silence);
    return requete;
}

/// Redirections are followed here, each once its own answer has ended: a reply that is destroyed
/// while Qt follows one for it leaks what its network thread has not taken yet.
class TransfertQt : public Transfert {
  public:
    explicit TransfertQt(const Demande& demande) : demande_(demande) { partir(demande.adresse); }
    TransfertQt(const TransfertQt&) = delete;
    TransfertQt& operator=(const TransfertQt&) = delete;
    ~TransfertQt() override { reponse_->disconnect(); }

  private:
    void partir(const QUrl& adresse) {
        reponse_ = reseau_.get(requete(adresse, demande_.silence));
        reponse_->setReadBufferSize(avance);
        QObject::connect(reponse_, &QNetworkReply::readyRead, reponse_, [this] {
            if (!lire())
                reponse_->abort();
        });
        QObject::connect(reponse_, &QNetworkReply::finished, reponse_, [this] { aboutir(); });
    }

    void aboutir() {
        const auto cible = reponse_->attribute(QNetworkRequest::RedirectionTargetAttribute);
        const bool entier = reponse_->error() == QNetworkReply::NoError;
        if (!entier || !cible.isValid()) {
            demande_.finir(entier && servi() && lire());
            return;
        }
        const auto ailleurs = reponse_->url().resolved(cible.toUrl());
        if (++renvois_ > renvoislimite || !demande_.suivre(ailleurs)) {
            demande_.finir(false);
            return;
        }
        reponse_->disconnect();
        reponse_->deleteLater();
        partir(ailleurs);
    }

    [[nodiscard]] bool servi() const {
        return reponse_->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() == statutservi;
    }

    /// Hands over what has come; what comes with another status is dropped.
    bool lire() {
        const auto longueur = reponse_->header(QNetworkRequest::ContentLengthHeader);
        const auto annonce = longueur.isValid() ? longueur.toLongLong() : -1;
        while (reponse_->bytesAvailable() > 0) {
            const auto octets = reponse_->read(bloc);
            if (servi() && !demande_.recevoir(octets, annonce))
                return false;
        }
        return true;
    }

    Demande demande_;
    QNetworkAccessManager reseau_;
    QNetworkReply* reponse_ = nullptr;  // of the manager
    int renvois_ = 0;
};

}  // namespace

std::unique_ptr<Transfert> ModuleReseau::demander(const Demande& demande) {
    return std::make_unique<TransfertQt>(demande);
}

}  // namespace ui::qt
