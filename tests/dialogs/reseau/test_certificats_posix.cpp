// The update check against a server of https, whose certificate the system's own tool makes.

#include <QProcess>
#include <QSslCertificate>
#include <QSslConfiguration>
#include <QSslKey>
#include <QSslServer>

#include "verification.h"

namespace test_certificats_posix {
namespace {

using namespace essai;

/// A key and a certificate that nobody has signed, for 127.0.0.1.
class Certifie : public Reseau {
  protected:
    QSslCertificate certificat;
    int poignees = 0;  ///< handshakes begun

    Serveur https() {
        const QStringList ordre{"req",
                                "-x509",
                                "-newkey",
                                "ec",
                                "-pkeyopt",
                                "ec_paramgen_curve:prime256v1",
                                "-nodes",
                                "-days",
                                "2",
                                "-subj",
                                "/CN=essai",
                                "-addext",
                                "subjectAltName=IP:127.0.0.1",
                                "-keyout",
                                "cle.pem",
                                "-out",
                                "certificat.pem"};
        QProcess openssl;
        openssl.start("openssl", ordre);
        if (!openssl.waitForFinished() || openssl.exitCode() != 0)
            qFatal("openssl : %s", openssl.readAllStandardError().constData());
        certificat = QSslCertificate::fromPath("certificat.pem").value(0);
        const auto cle = contenu("cle.pem").value_or("");
        QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
        tls.setLocalCertificate(certificat);
        tls.setPrivateKey(QSslKey(QByteArray::fromStdString(cle), QSsl::Ec));
        auto ecoute = std::make_unique<QSslServer>();
        ecoute->setSslConfiguration(tls);
        QObject::connect(ecoute.get(), &QSslServer::startedEncryptionHandshake, ecoute.get(),
                         [this] { ++poignees; });
        return Serveur(std::move(ecoute), "https");
    }
};

TEST_F(Certifie, un_certificat_que_personne_n_a_signe_est_un_echec) {
    auto sur = https();
    sur.pages[cheminversion] = {"2.68\r\n"};
    EXPECT_EQ(verifier(sur), (Journal{echecverification, ouvrirpage}));
    EXPECT_EQ(poignees, 1);
    EXPECT_TRUE(sur.demandes.empty()) << "nothing is asked of a server that is not trusted";
}

TEST_F(Certifie, un_certificat_reconnu_est_servi) {
    auto sur = https();
    sur.pages[cheminversion] = {"2.68\r\n"};
    const auto defaut = QSslConfiguration::defaultConfiguration();
    auto reconnue = defaut;
    reconnue.addCaCertificate(certificat);
    QSslConfiguration::setDefaultConfiguration(reconnue);
    EXPECT_EQ(verifier(sur), Journal{ajour});
    QSslConfiguration::setDefaultConfiguration(defaut);
}

}  // namespace
}  // namespace test_certificats_posix
