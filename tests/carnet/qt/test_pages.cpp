// The widgets of the carnet, without a screen.

#include <atomic>
#include <set>

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPdfWriter>
#include <QSignalSpy>
#include <QThread>
#include <gmock/gmock.h>

#include "criteresqt.h"
#include "dossiertemporaire.h"
#include "fenetrecarnet.h"
#include "impression.h"
#include "modelemots.h"
#include "petitglossaire.h"

namespace {

using namespace carnet;
using testing::HasSubstr;

std::vector<std::string> rangees(std::size_t nombre) {
    std::vector<std::string> toutes;
    for (std::size_t i = 0; i < nombre; ++i)
        toutes.emplace_back("AEGINRST;GANTIERS;INGRATES");
    return toutes;
}

/// Pages of a PDF of that many rows.
std::size_t pages(const essais::DossierTemporaire& dossier, std::size_t nombre) {
    const auto chemin = (dossier.chemin() / "liste.pdf").string();
    {
        QPdfWriter papier(QString::fromStdString(chemin));
        papier.setPageSize(QPageSize(QPageSize::A4));
        EXPECT_TRUE(imprimer(papier, rangees(nombre), QStringLiteral("Essai")));
    }
    const auto octets = dossier.lire("liste.pdf");
    EXPECT_EQ(octets.substr(0, 5), "%PDF-");
    const auto compte = octets.find("/Count ");
    return compte == std::string::npos ? 0 : std::stoul(octets.substr(compte + 7));
}

TEST(Impression, chaque_page_de_tirages_a_sa_page_de_reponses) {
    const essais::DossierTemporaire dossier;
    EXPECT_EQ(pages(dossier, 1), 2U);
    const auto longue = pages(dossier, 2000);
    EXPECT_EQ(longue % 2, 0U);
    EXPECT_GT(longue, 10U);
    EXPECT_LT(longue, 80U);
}

TEST(Impression, un_papier_qui_ne_peut_s_ecrire_est_dit) {
    QPdfWriter papier(QStringLiteral("/nulle/part/liste.pdf"));
    EXPECT_FALSE(imprimer(papier, rangees(1), QStringLiteral("Essai")));
}

class Formulaire : public testing::Test {
  protected:
    QLineEdit* ligne(const char* cle) {
        return criteres.findChild<QLineEdit*>(QString::fromUtf8(cle));
    }
    QComboBox* choix(const char* cle) {
        return criteres.findChild<QComboBox*>(QString::fromUtf8(cle));
    }
    Criteres criteres{nullptr};
};

TEST_F(Formulaire, vide_ne_demande_rien) {
    EXPECT_EQ(criteres.texte(), QString());
}

TEST_F(Formulaire, dit_ses_criteres_en_texte) {
    ligne("longueur")->setText(QStringLiteral(" 7-8 "));
    ligne("contient")->setText(QStringLiteral("qu,k"));
    choix("nature_nom")->setCurrentIndex(1);
    choix("nature_pluriel")->setCurrentIndex(2);
    choix("dans")->setEditText(QStringLiteral("la mienne.txt"));
    choix("par")->setCurrentIndex(1);
    choix("ordre")->setCurrentIndex(4);
    ligne("max")->setText(QStringLiteral("500"));
    EXPECT_EQ(criteres.texte().toStdString(),
              "longueur=7-8 contient=qu,k nature=nom,!pluriel dans=\"la mienne.txt\" par=1 "
              "ordre=hasard graine=1 max=500");
}

TEST_F(Formulaire, efface_tout_en_une_fois) {
    ligne("motif")->setText(QStringLiteral("A*"));
    choix("nature_nom")->setCurrentIndex(1);
    const QSignalSpy changes(&criteres, &Criteres::change);
    criteres.effacer();
    EXPECT_EQ(criteres.texte(), QString());
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(Formulaire, dit_l_ennui_sous_le_champ_qu_il_vise) {
    criteres.dire({"motif", "il manque « ] »"});
    const auto* sous = criteres.findChild<QLabel*>(QStringLiteral("motif_ennui"));
    const auto* ailleurs = criteres.findChild<QLabel*>(QStringLiteral("debut_ennui"));
    EXPECT_FALSE(sous->isHidden());
    EXPECT_EQ(sous->text(), QStringLiteral("il manque « ] »"));
    EXPECT_TRUE(ailleurs->isHidden());
    criteres.dire({});
    EXPECT_TRUE(sous->isHidden());
}

TEST_F(Formulaire, a_un_champ_pour_chaque_cle_de_recherche) {
    for (const auto cle : recherche::cles()) {
        if (cle == "forme" || cle == "graine")
            continue;
        const auto nom = QString::fromUtf8(cle.data(), static_cast<int>(cle.size()));
        EXPECT_NE(criteres.findChild<QWidget*>(nom), nullptr) << cle;
    }
}

TEST(Modele, montre_ce_qu_on_sait_d_un_mot) {
    const auto g = std::make_shared<const recherche::Glossaire>(
        essais::glossaire(essais::vocabulaire(essais::noms({"ail", "bail"}))));
    Modelemots modele;
    modele.montrer(g, {*g->chercher("AIL")});
    ASSERT_EQ(modele.rowCount(), 1);
    QStringList cellules;
    for (int i = 0; i < modele.columnCount(); ++i)
        cellules << modele.data(modele.index(0, i), Qt::DisplayRole).toString();
    EXPECT_EQ(cellules.join(QLatin1Char('|')).toStdString(), "AIL|AIL|nom, entrée|0|B|S");
}

/// The window on a play folder of its own, with the small lexicon.
class Fenetre : public testing::Test {
  protected:
    static Options options(const essais::DossierTemporaire& dossier) {
        const std::string petit = ORVANE_PETIT;
        Options o;
        o.dossier = dossier.chemin();
        o.chemins = {petit + "/petit.dic", petit + "/petit.aff", petit + "/petit.dat"};
        return o;
    }
    void attendre(QObject* quoi, const char* signal) {
        QSignalSpy espion(quoi, signal);
        EXPECT_TRUE(espion.wait(60000));
    }
    essais::DossierTemporaire dossier;
    Seance seance{options(dossier)};
    Fenetrecarnet fenetre{seance};
};

TEST_F(Fenetre, dit_qu_elle_lit_puis_montre_les_mots) {
    const auto* compte = fenetre.findChild<QLabel*>(QStringLiteral("compte"));
    EXPECT_EQ(compte->text(), QStringLiteral("Lecture des mots…"));
    seance.relire();
    attendre(&seance, SIGNAL(motschanges()));
    EXPECT_EQ(compte->text(), QStringLiteral("17 mots"));
}

TEST_F(Fenetre, chaque_controle_a_un_nom_pour_qui_ne_voit_pas) {
    std::set<std::string> sansnom;
    for (const auto* controle : fenetre.findChildren<QWidget*>()) {
        const bool saisi = qobject_cast<const QLineEdit*>(controle) != nullptr ||
                           qobject_cast<const QComboBox*>(controle) != nullptr;
        const bool dedans = qobject_cast<const QComboBox*>(controle->parent()) != nullptr;
        if (saisi && !dedans && controle->accessibleName().isEmpty())
            sansnom.insert(controle->objectName().toStdString());
    }
    EXPECT_THAT(sansnom, testing::IsEmpty());
}

TEST(Fenetrefermee, en_plein_travail_l_attend_sans_le_finir) {
    const essais::DossierTemporaire dossier;
    Options o;
    o.dossier = dossier.chemin();
    Seance seance(o);
    bool fini = false;
    std::atomic<bool> sorti = false;
    {
        const Fenetrecarnet fenetre(seance);
        EXPECT_TRUE(seance.tache().lancer(
            [&](const Avance& avance) {
                while (avance(1, "Travail"))
                    QThread::yieldCurrentThread();
                sorti = true;
            },
            [&](const QString&) { fini = true; }));
        EXPECT_FALSE(seance.tache().lancer([](const Avance&) {}, [](const QString&) {}));
    }
    EXPECT_TRUE(sorti);
    QCoreApplication::processEvents();
    EXPECT_FALSE(fini);
    EXPECT_FALSE(seance.tache().encours());
}

TEST(Fenetresansmots, dit_pourquoi_et_reste_ouverte) {
    const essais::DossierTemporaire dossier;
    Options o;
    o.dossier = dossier.chemin();
    o.chemins = {"nul.dic", "nul.aff", "nul.dat"};
    Seance seance(o);
    const Fenetrecarnet fenetre(seance);
    QSignalSpy espion(&seance, &Seance::motschanges);
    seance.relire();
    ASSERT_TRUE(espion.wait(60000));
    EXPECT_EQ(fenetre.findChild<QLabel*>(QStringLiteral("compte"))->text(),
              QStringLiteral("Pas de mots"));
    EXPECT_THAT(fenetre.findChild<QLabel*>(QStringLiteral("message"))->text().toStdString(),
                HasSubstr("nul.dat"));
}

}  // namespace

int main(int nombre, char** arguments) {
    testing::InitGoogleMock(&nombre, arguments);
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QApplication application(nombre, arguments);
    return RUN_ALL_TESTS();
}
