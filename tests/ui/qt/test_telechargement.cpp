// Downloads, from a server of this process.

#include <functional>

#include <QByteArray>
#include <QTcpServer>
#include <QTcpSocket>
#include <gtest/gtest.h>

#include "minuteur.h"
#include "telechargement.h"

namespace {

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
    ui::qt::Telechargement telechargement{minuteur,
                                          {.silence = 300, .duree = 2000, .taille = 1000}};
};

TEST_F(Telechargements, rend_le_contenu_octet_pour_octet) {
    EXPECT_EQ(telechargement.lire(adresse()), "2.68\r\n");
    ASSERT_EQ(demandes.size(), 1U);
    EXPECT_TRUE(demandes[0].startsWith("GET /Orvane/version.txt HTTP/1.1\r\n"));
}

TEST_F(Telechargements, ne_vient_jamais_d_un_cache) {
    EXPECT_EQ(telechargement.lire(adresse()), "2.68\r\n");
    repondre = [](QTcpSocket& c) { repondrecorps(c, "200 OK", "2.7\r\n"); };
    EXPECT_EQ(telechargement.lire(adresse()), "2.7\r\n");
    for (const auto& recue : demandes)
        EXPECT_TRUE(recue.toLower().contains("cache-control: no-cache"));
}

TEST_F(Telechargements, une_redirection_est_suivie) {
    repondre = [this](QTcpSocket& c) {
        if (demandes.size() == 1)
            repondrecorps(c, "302 Found\r\nLocation: /ailleurs", "");
        else
            repondrecorps(c, "200 OK", "la");
    };
    EXPECT_EQ(telechargement.lire(adresse()), "la");
    EXPECT_TRUE(demandes.back().startsWith("GET /ailleurs "));
}

TEST_F(Telechargements, une_erreur_du_serveur_est_un_echec) {
    repondre = [](QTcpSocket& c) { repondrecorps(c, "404 Not Found", "absent"); };
    EXPECT_EQ(telechargement.lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_serveur_muet_finit_par_etre_quitte) {
    repondre = [](QTcpSocket& c) { c.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\ndeb"); };
    EXPECT_EQ(telechargement.lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_contenu_coupe_est_un_echec) {
    repondre = [](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\ndebut");
        c.disconnectFromHost();
    };
    EXPECT_EQ(telechargement.lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_contenu_demesure_est_un_echec) {
    repondre = [](QTcpSocket& c) { repondrecorps(c, "200 OK", QByteArray(5000, 'x')); };
    EXPECT_EQ(telechargement.lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_serveur_absent_est_un_echec) {
    const auto perdue = adresse();
    serveur.close();
    EXPECT_EQ(telechargement.lire(perdue), std::nullopt);
}

TEST_F(Telechargements, seules_les_adresses_du_reseau_sont_lues) {
    for (const char* autre : {"", "version.txt", "file:///etc/hostname", "data:text/plain,2.7",
                              "ftp://127.0.0.1/version.txt", "http://", "pas une adresse"})
        EXPECT_EQ(telechargement.lire(autre), std::nullopt) << autre;
}

TEST_F(Telechargements, les_minuteries_attendent_sa_fin) {
    QTimer::singleShot(0, [this] {
        // Due already, were the timers not silenced.
        minuteur.echoir();
    });
    EXPECT_EQ(telechargement.lire(adresse()), "2.68\r\n");
}

}  // namespace
