#include "serveur.h"

#include <QTcpSocket>
#include <QTimer>

namespace essai {
namespace {

constexpr int entregouttes = 10;  // milliseconds

}  // namespace

Serveur::Serveur(std::unique_ptr<QTcpServer> ecoute, const char* protocole)
    : ecoute_(std::move(ecoute)) {
    if (!ecoute_->listen(QHostAddress::LocalHost))
        qFatal("127.0.0.1 : %s", qPrintable(ecoute_->errorString()));
    racine_ = std::string(protocole) + "://127.0.0.1:" + std::to_string(ecoute_->serverPort());
    QObject::connect(ecoute_.get(), &QTcpServer::pendingConnectionAvailable, ecoute_.get(),
                     [this] { accueillir(*ecoute_->nextPendingConnection()); });
}

std::string Serveur::adresse(const std::string& chemin) const {
    return racine_ + chemin;
}

void Serveur::accueillir(QTcpSocket& ligne) {
    auto tete = std::make_shared<QByteArray>();
    const auto lire = [this, &ligne, tete] {
        tete->append(ligne.readAll());
        if (!tete->contains("\r\n\r\n"))
            return;
        demandes.push_back(std::exchange(*tete, {}));
        const auto chemin = demandes.back().split(' ').value(1).toStdString();
        const auto page = pages.find(chemin);
        repondre(ligne, page == pages.end() ? Page{"absente", 404} : page->second);
    };
    QObject::connect(&ligne, &QTcpSocket::readyRead, &ligne, lire);
    QObject::connect(&ligne, &QTcpSocket::disconnected, &ligne, &QObject::deleteLater);
    lire();  // what came with the handshake
}

void Serveur::repondre(QTcpSocket& ligne, const Page& page) {
    if (page.muette)
        return;
    constexpr int sansfin = 1'000'000;
    const auto annonce = page.corps.size() + (page.goutte ? sansfin : page.coupe);
    ligne.write("HTTP/1.1 " + QByteArray::number(page.statut) +
                " .\r\nConnection: close\r\nContent-Length: " + QByteArray::number(annonce) +
                "\r\n" + page.entetes + "\r\n" + page.corps);
    if (!page.goutte) {
        ligne.disconnectFromHost();
        return;
    }
    auto* rythme = new QTimer(&ligne);
    QObject::connect(rythme, &QTimer::timeout, &ligne, [&ligne] { ligne.write("."); });
    rythme->start(entregouttes);
}

}  // namespace essai
