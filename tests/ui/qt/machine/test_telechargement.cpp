// Downloads, from a server of this process.

#include "chemin.h"
#include "provisoire.h"
#include "telechargements.h"

namespace test_telechargement {
namespace {

using essais::Telechargements;

TEST_F(Telechargements, rend_le_contenu_octet_pour_octet) {
    EXPECT_EQ(lire(adresse()), "2.68\r\n");
    ASSERT_EQ(demandes.size(), 1U);
    EXPECT_TRUE(demandes[0].startsWith("GET /Orvane/version.txt HTTP/1.1\r\n"));
}

TEST_F(Telechargements, ne_vient_jamais_d_un_cache) {
    EXPECT_EQ(lire(adresse()), "2.68\r\n");
    repondre = [](QTcpSocket& c) { repondrecorps(c, "200 OK", "2.7\r\n"); };
    EXPECT_EQ(lire(adresse()), "2.7\r\n");
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
    EXPECT_EQ(lire(adresse()), "la");
    EXPECT_TRUE(demandes.back().startsWith("GET /ailleurs "));
}

TEST_F(Telechargements, une_erreur_du_serveur_est_un_echec) {
    repondre = [](QTcpSocket& c) { repondrecorps(c, "404 Not Found", "absent"); };
    EXPECT_EQ(lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_serveur_muet_finit_par_etre_quitte) {
    repondre = [](QTcpSocket& c) { c.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\ndeb"); };
    EXPECT_EQ(lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_contenu_coupe_est_un_echec) {
    repondre = [](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\ndebut");
        c.disconnectFromHost();
    };
    EXPECT_EQ(lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_contenu_demesure_est_un_echec) {
    repondre = [](QTcpSocket& c) { repondrecorps(c, "200 OK", QByteArray(5000, 'x')); };
    EXPECT_EQ(lire(adresse()), std::nullopt);
}

TEST_F(Telechargements, un_serveur_absent_est_un_echec) {
    const auto perdue = adresse();
    serveur.close();
    EXPECT_EQ(lire(perdue), std::nullopt);
}

TEST_F(Telechargements, seules_les_adresses_du_reseau_sont_lues) {
    for (const char* autre : {"", "version.txt", "file:///etc/hostname", "data:text/plain,2.7",
                              "ftp://127.0.0.1/version.txt", "http://", "pas une adresse"})
        EXPECT_EQ(lire(autre), std::nullopt) << autre;
}

TEST_F(Telechargements, rien_ne_porte_son_nom_avant_d_etre_entier) {
    ecrire("recu.txt", "avant");
    std::optional<std::string> enroute;
    repondre = [&](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nContent-Length: 6\r\n\r\n2.6");
        QTimer::singleShot(50, &c, [&] {
            enroute = contenu();
            c.write("8\r\n");
        });
    };
    EXPECT_EQ(lire(adresse()), "2.68\r\n");
    EXPECT_EQ(enroute, "avant");
    EXPECT_EQ(fichiers(), QStringList{"recu.txt"});
}

TEST_F(Telechargements, un_echec_laisse_le_fichier_et_le_dossier_comme_ils_etaient) {
    ecrire("recu.txt", "avant");
    repondre = [](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nContent-Length: 100\r\n\r\ndebut");
        c.disconnectFromHost();
    };
    EXPECT_FALSE(enregistrer(adresse()));
    EXPECT_EQ(contenu(), "avant");
    EXPECT_EQ(fichiers(), QStringList{"recu.txt"});
}

TEST_F(Telechargements, une_reponse_sans_longueur_ni_fin_est_quittee_a_la_limite) {
    const QByteArray morceau = "400\r\n" + QByteArray(1024, 'x') + "\r\n";
    qint64 servis = 0;
    repondre = [&](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nTransfer-Encoding: chunked\r\n\r\n" + morceau);
        QObject::connect(&c, &QTcpSocket::bytesWritten, &c, [&, socket = &c](qint64 n) {
            servis += n;
            socket->write(morceau);
        });
    };
    EXPECT_FALSE(enregistrer(adresse(), {.taille = 1 << 20}));
    EXPECT_GT(servis, 1 << 20);
    EXPECT_LT(servis, 8 << 20);
    EXPECT_EQ(fichiers(), QStringList());
}

TEST_F(Telechargements, un_contenu_de_la_taille_permise_passe) {
    repondre = [](QTcpSocket& c) { repondrecorps(c, "200 OK", QByteArray(1000, 'x')); };
    EXPECT_EQ(lire(adresse()), std::string(1000, 'x'));
}

TEST_F(Telechargements, un_serveur_qui_goutte_finit_par_etre_quitte) {
    ui::qt::Telechargement presse(minuteur, {.silence = 300, .duree = 400});
    repondre = [](QTcpSocket& c) {
        c.write("HTTP/1.1 200 OK\r\nContent-Length: 100000\r\n\r\n");
        auto* goutte = new QTimer(&c);
        QObject::connect(goutte, &QTimer::timeout, &c, [&c] { c.write("."); });
        goutte->start(20);
    };
    EXPECT_FALSE(presse.enregistrer(adresse(), dossier.filePath("recu.txt"), {.taille = 1 << 20}));
}

TEST_F(Telechargements, rien_n_est_demande_en_paquet_serre) {
    EXPECT_EQ(lire(adresse()), "2.68\r\n");
    EXPECT_TRUE(demandes[0].toLower().contains("accept-encoding: identity"));
}

TEST_F(Telechargements, la_somme_publiee_doit_convenir) {
    // Of "2.68" and a line end.
    const std::string somme = "e87d7e4359c5535139dabb9ddac7f3a2ed14605fde47f171b6d29e486dd00fad";
    EXPECT_TRUE(enregistrer(adresse(), {.taille = 1000, .somme = somme}));
    ecrire("recu.txt", "avant");
    for (const auto& autre : {somme.substr(1), "0" + somme.substr(1), std::string()}) {
        EXPECT_FALSE(enregistrer(adresse(), {.taille = 1000, .somme = autre})) << autre;
        EXPECT_EQ(contenu(), "avant");
    }
}

TEST_F(Telechargements, ce_qui_doit_etre_sur_n_est_pas_demande_en_clair_a_une_autre_machine) {
    auto autre = adresse();
    autre.replace(autre.find("127.0.0.1"), 9, "localhost");
    EXPECT_TRUE(enregistrer(autre));
    EXPECT_FALSE(enregistrer(autre, {.sure = true, .taille = 1000}));
    EXPECT_TRUE(enregistrer(adresse(), {.sure = true, .taille = 1000}));
    EXPECT_EQ(demandes.size(), 2U);
}

TEST_F(Telechargements, ni_par_un_renvoi) {
    std::string ailleurs;
    repondre = [&](QTcpSocket& c) {
        if (demandes.back().startsWith("GET /ailleurs "))
            repondrecorps(c, "200 OK", "la");
        else
            repondrecorps(c, "302 Found\r\nLocation: " + QByteArray::fromStdString(ailleurs), "");
    };
    ailleurs = adresse("/ailleurs");
    EXPECT_TRUE(enregistrer(adresse(), {.sure = true, .taille = 1000}));
    ailleurs.replace(ailleurs.find("127.0.0.1"), 9, "localhost");
    EXPECT_TRUE(enregistrer(adresse()));
    demandes.clear();
    EXPECT_FALSE(enregistrer(adresse(), {.sure = true, .taille = 1000}));
    EXPECT_EQ(demandes.size(), 1U);
}

TEST_F(Telechargements, un_renvoi_vers_un_fichier_n_est_pas_suivi) {
    ecrire("secret", "secret");
    repondre = [this](QTcpSocket& c) {
        repondrecorps(
            c, "302 Found\r\nLocation: file://" + QFile::encodeName(dossier.path()) + "/secret",
            "");
    };
    EXPECT_FALSE(enregistrer(adresse()));
}

TEST_F(Telechargements, un_dossier_qui_manque_est_un_echec) {
    EXPECT_FALSE(telechargement.enregistrer(adresse(), dossier.filePath("absent/recu.txt"),
                                            {.taille = 1000}));
}

TEST_F(Telechargements, un_dossier_de_ce_nom_est_un_echec_et_reste) {
    ASSERT_TRUE(QDir(dossier.path()).mkdir("recu.txt"));
    EXPECT_FALSE(enregistrer(adresse()));
    EXPECT_TRUE(QDir(dossier.filePath("recu.txt")).exists());
}

TEST_F(Telechargements, ce_qu_un_programme_mort_a_laisse_est_emporte) {
    ecrire("recu.txt.1234.tmp", "d'un mort");
    ecrire("recu.txt.5678.tmp", "d'un vivant");
    ecrire("recu.txt.backup", "du joueur");
    common::Descripteur vivant(common::appelsdusysteme());
    const auto ecrit = common::chemin(dossier.filePath("recu.txt.5678.tmp").toStdString());
    ASSERT_FALSE(common::tenir(common::appelsdusysteme(), ecrit, vivant));
    EXPECT_TRUE(enregistrer(adresse()));
    EXPECT_EQ(fichiers(), (QStringList{"recu.txt", "recu.txt.5678.tmp", "recu.txt.backup"}));
}

TEST_F(Telechargements, les_minuteries_attendent_sa_fin) {
    QTimer::singleShot(0, [this] {
        // Due already, were the timers not silenced.
        minuteur.echoir();
    });
    EXPECT_EQ(lire(adresse()), "2.68\r\n");
}

}  // namespace
}  // namespace test_telechargement
