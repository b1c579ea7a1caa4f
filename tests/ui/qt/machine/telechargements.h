#pragma once

// Downloads, from a server of this process.

#include <functional>
#include <optional>

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTemporaryDir>
#include <QTimer>
#include <gtest/gtest.h>

#include "minuteur.h"
#include "telechargement.h"

namespace essais {

class Telechargements : public testing::Test {
  protected:
    Telechargements() {
        EXPECT_TRUE(serveur.listen(QHostAddress::LocalHost));
        QObject::connect(&serveur, &QTcpServer::newConnection, [this] {
            auto* client = serveur.nextPendingConnection();
            QObject::connect(client, &QTcpSocket::readyRead, [this, client] {
                demande += client->readAll();
                if (!demande.contains("\r\n\r\n"))
                    return;
                demandes.push_back(demande);
                demande.clear();
                repondre(*client);
            });
        });
    }
    [[nodiscard]] std::string adresse(const char* chemin = "/Orvane/version.txt") const {
        return "http://127.0.0.1:" + std::to_string(serveur.serverPort()) + chemin;
    }
    /// The bytes of a file of the folder; nothing if there is none.
    [[nodiscard]] std::optional<std::string> contenu(const char* nom = "recu.txt") const {
        QFile fichier(dossier.filePath(nom));
        if (!fichier.open(QIODevice::ReadOnly))
            return std::nullopt;
        return fichier.readAll().toStdString();
    }
    void ecrire(const QString& nom, const QByteArray& octets) const {
        QFile fichier(dossier.filePath(nom));
        ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
        fichier.write(octets);
    }
    [[nodiscard]] QStringList fichiers() const {
        return QDir(dossier.path()).entryList(QDir::Files | QDir::Hidden);
    }
    bool enregistrer(const std::string& ou, const ui::Exigence& exigence = {.taille = 1000}) {
        return telechargement.enregistrer(ou, dossier.filePath("recu.txt"), exigence);
    }
    std::optional<std::string> lire(const std::string& ou,
                                    const ui::Exigence& exigence = {.taille = 1000}) {
        return enregistrer(ou, exigence) ? contenu() : std::nullopt;
    }
    static void repondrecorps(QTcpSocket& client, const QByteArray& tete, const QByteArray& corps) {
        client.write("HTTP/1.1 " + tete + "\r\nContent-Length: " +
                     QByteArray::number(corps.size()) + "\r\nConnection: close\r\n\r\n" + corps);
        client.disconnectFromHost();
    }

    QTcpServer serveur;
    QByteArray demande;
    std::vector<QByteArray> demandes;
    std::function<void(QTcpSocket&)> repondre = [](QTcpSocket& c) {
        repondrecorps(c, "200 OK", "2.68\r\n");
    };
    ui::qt::Minuteur minuteur{[](const auto& evenement) { evenement(); }};
    QTemporaryDir dossier{QDir::tempPath() + "/reçus d'été XXXXXX"};
    ui::qt::Telechargement telechargement{minuteur, {.silence = 300, .duree = 2000}};
};

}  // namespace essais
