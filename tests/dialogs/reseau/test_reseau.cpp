// The update check against a web server on 127.0.0.1, through the download that players get.

#include <optional>

#include <QApplication>
#include <QFile>
#include <QTemporaryDir>

#include "verification.h"

namespace test_reseau {
namespace {

using namespace essai;

/// Qt for the whole program; what it warns of is a failure.
class Bureau : public testing::Environment {
  public:
    void SetUp() override {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("XDG_RUNTIME_DIR", QFile::encodeName(execution_.path()));
        qInstallMessageHandler(
            [](QtMsgType genre, const QMessageLogContext& /*contexte*/, const QString& texte) {
                if (genre != QtDebugMsg && genre != QtInfoMsg)
                    ADD_FAILURE() << "Qt: " << texte.toStdString();
            });
        qt_.emplace(nombre_, arguments_);
        QCoreApplication::addLibraryPath(ORVANE_MODULES);
    }
    void TearDown() override { qt_.reset(); }

  private:
    int nombre_ = 1;
    char nom_[7] = "essais";
    char* arguments_[2] = {nom_, nullptr};
    QTemporaryDir execution_;
    std::optional<QApplication> qt_;
};

const auto* const bureau = testing::AddGlobalTestEnvironment(new Bureau);

TEST_F(Reseau, personne_a_l_adresse) {
    serveur.fermer();
    EXPECT_EQ(verifier(), (Journal{echecverification, ouvrirpage}));
    EXPECT_EQ(contenu("version_en_ligne.txt"), std::nullopt);
}

/// An answer to the request of the version that is no version.
struct Echec {
    const char* nom;
    Page page;
};

void PrintTo(const Echec& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}

class Manque : public Reseau, public testing::WithParamInterface<Echec> {};

TEST_P(Manque, ouvre_la_page_et_laisse_le_fichier_d_avant) {
    std::ofstream("version_en_ligne.txt") << "avant";
    serveur.pages[cheminversion] = GetParam().page;
    EXPECT_EQ(verifier(), (Journal{echecverification, ouvrirpage}));
    EXPECT_FALSE(serveur.demandes.empty());
    EXPECT_EQ(contenu("version_en_ligne.txt"), "avant");
    EXPECT_EQ(std::distance(fs::directory_iterator("."), {}), 1) << "nothing half downloaded";
}

const Echec echecs[] = {
    {"page_absente", {"absente", 404}},
    {"serveur_en_panne", {"2.68\r\n", 500}},
    {"coupee_en_route", {"2.68\r\n", 200, 100}},
    {"coupee_avant_le_premier_octet", {"", 200, 100}},
    {"jamais_de_reponse", {.muette = true}},
    {"octets_sans_fin", {.corps = "2.68\r\n", .goutte = true}},
    {"trop_longue", {QByteArray(64 * 1024 + 1, 'x')}},
    {"renvoi_sans_fin",
     {.statut = 302, .entetes = QByteArray("Location: ") + cheminversion + "\r\n"}},
};

INSTANTIATE_TEST_SUITE_P(Reseau, Manque, testing::ValuesIn(echecs), nommer<Echec>);

TEST_F(Reseau, meme_version) {
    publier("2.680\r\n");
    EXPECT_EQ(verifier(), Journal{ajour});
    EXPECT_EQ(contenu("version_en_ligne.txt"), "2.680\r\n");
}

TEST_F(Reseau, autres_versions_proposees_puis_refusees) {
    v.plateforme.reponse = ui::Reponse::Non;
    for (const auto* version : {"2.7", "2.6", "2,68", ""}) {
        publier(version);
        EXPECT_EQ(verifier(), Journal{proposer(version)});
    }
    EXPECT_EQ(contenu("downloadlink.txt"), std::nullopt);
}

TEST_F(Reseau, ce_qui_est_publie_se_voit_aussitot) {
    serveur.pages[cheminversion] = {.corps = "2.68\r\n",
                                    .entetes = "Cache-Control: max-age=100000\r\n"};
    EXPECT_EQ(verifier(), Journal{ajour});
    v.plateforme.reponse = ui::Reponse::Non;
    serveur.pages[cheminversion].corps = "2.7\r\n";
    EXPECT_EQ(verifier(), Journal{proposer("2.7")});
    ASSERT_EQ(serveur.demandes.size(), 2U);
    EXPECT_THAT(serveur.demandes[1].toLower().toStdString(),
                testing::HasSubstr("cache-control: no-cache"));
}

TEST_F(Reseau, un_renvoi_est_suivi) {
    serveur.pages[cheminversion] = {.statut = 302, .entetes = "Location: /ailleurs\r\n"};
    serveur.pages["/ailleurs"] = {"2.68\r\n"};
    EXPECT_EQ(verifier(), Journal{ajour});
}

TEST_F(Reseau, lien_absent) {
    publier("2.7\r\n");
    EXPECT_EQ(verifier(), telechargement({echeclien, ouvrirpage}));
    EXPECT_EQ(contenu("downloadlink.txt"), std::nullopt);
}

TEST_F(Reseau, lien_coupe_en_route) {
    toutpublier();
    serveur.pages[cheminlien].coupe = 5;
    EXPECT_EQ(verifier(), telechargement({echeclien, ouvrirpage}));
}

TEST_F(Reseau, lien_vide) {
    toutpublier();
    serveur.pages[cheminlien].corps.clear();
    EXPECT_EQ(verifier(), telechargement({}));
    EXPECT_EQ(contenu("downloadlink.txt"), "");
    EXPECT_FALSE(v.plateforme.fini());
}

TEST_F(Reseau, lien_vers_autre_chose_que_le_web) {
    std::ofstream("secret") << "secret";
    for (const std::string& lien :
         {std::string(), std::string("file://") + fs::absolute("secret").string(),
          std::string("orvane_setup.exe"), std::string("http://")}) {
        toutpublier();
        serveur.pages[cheminlien] = {QByteArray::fromStdString(lien) + "\r\n"};
        EXPECT_EQ(verifier(), echecdelinstalleur()) << lien;
        EXPECT_EQ(contenu("orvane_setup.exe"), std::nullopt);
    }
}

TEST_F(Reseau, installeur_absent) {
    toutpublier();
    serveur.pages.erase(chemininstalleur);
    EXPECT_EQ(verifier(), echecdelinstalleur());
}

TEST_F(Reseau, installeur_coupe_en_route_ne_s_ouvre_pas) {
    toutpublier();
    serveur.pages[chemininstalleur].coupe = 1;
    EXPECT_EQ(verifier(), echecdelinstalleur());
    EXPECT_EQ(contenu("orvane_setup.exe"), std::nullopt);
}

TEST_F(Reseau, installeur_qui_ne_vient_jamais) {
    toutpublier();
    serveur.pages[chemininstalleur].muette = true;
    EXPECT_EQ(verifier(), echecdelinstalleur());
}

TEST_F(Reseau, tout_va_bien) {
    toutpublier();
    EXPECT_EQ(verifier(), telechargement({"menu pointeur normal", aurevoir,
                                          "ouvrir orvane_setup.exe", "fin 0"}));
    EXPECT_EQ(contenu("orvane_setup.exe"), "MZ");
    EXPECT_EQ(contenu("downloadlink.txt"), std::nullopt);
    EXPECT_EQ(contenu("version_en_ligne.txt"), std::nullopt);
    EXPECT_EQ(v.plateforme.statut(), 0);
}

TEST_F(Reseau, l_installeur_a_la_somme_publiee_ou_ne_s_ouvre_pas) {
    toutpublier();
    const auto somme = QCryptographicHash::hash("MZ", QCryptographicHash::Sha256).toHex();
    publier("2.7\r\n" + somme + "\r\n");
    serveur.pages[chemininstalleur].corps = "MZ, mais un autre";
    EXPECT_EQ(verifier(), echecdelinstalleur());
    EXPECT_EQ(contenu("orvane_setup.exe"), std::nullopt);
    serveur.pages[chemininstalleur].corps = "MZ";
    EXPECT_EQ(verifier(), telechargement({"menu pointeur normal", aurevoir,
                                          "ouvrir orvane_setup.exe", "fin 0"}));
}

TEST_F(Reseau, un_lien_en_clair_vers_une_autre_machine) {
    toutpublier();
    const auto lien = QByteArray::fromStdString(serveur.adresse(chemininstalleur))
                          .replace("127.0.0.1", "localhost");
    serveur.pages[cheminlien] = {lien + "\r\n"};
    EXPECT_EQ(verifier(), echecdelinstalleur());
    EXPECT_EQ(serveur.demandes.size(), 2U) << "the installer is not asked for";
}

TEST_F(Reseau, une_adresse_https_sur_un_serveur_qui_ne_l_est_pas) {
    publier("2.68\r\n");
    auto adresse = serveur.adresse(cheminversion);
    adresse.replace(0, 4, "https");
    dialogs::MiseAJour verification(v.plateforme, v.form3, v.menu, {adresse, "", page});
    v.plateforme.executer([&] { verification.verifier(); });
    EXPECT_EQ(v.relever(), (Journal{echecverification, ouvrirpage}));
}

}  // namespace
}  // namespace test_reseau
