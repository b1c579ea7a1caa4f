// The widgets of the carnet, without a screen.

#include <algorithm>
#include <atomic>
#include <set>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPdfWriter>
#include <QPushButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <gmock/gmock.h>

#include "criteresqt.h"
#include "dossiertemporaire.h"
#include "fenetrecarnet.h"
#include "impression.h"
#include "modelemots.h"
#include "petitchantier.h"
#include "petitglossaire.h"

namespace test_pages {
namespace {

using namespace carnet;
using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

std::vector<std::string> rangees(std::size_t nombre) {
    std::vector<std::string> toutes;
    for (std::size_t i = 0; i < nombre; ++i)
        toutes.emplace_back("AEGINRST;GANTIERS;INGRATES");
    return toutes;
}

/// Pages of a PDF of that many rows.
std::size_t pages(std::size_t nombre) {
    const auto octets = enpdf(rangees(nombre), QStringLiteral("Essai"));
    EXPECT_EQ(octets.substr(0, 5), "%PDF-");
    const auto compte = octets.find("/Count ");
    return compte == std::string::npos ? 0 : std::stoul(octets.substr(compte + 7));
}

TEST(Impression, chaque_page_de_tirages_a_sa_page_de_reponses) {
    EXPECT_EQ(pages(1), 2U);
    const auto longue = pages(2000);
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
    EXPECT_THAT(criteres.texte().toStdString(),
                AllOf(StartsWith("longueur=7-8 contient=qu,k nature=nom,!pluriel "
                                 "dans=\"la mienne.txt\" par=1 ordre=hasard graine="),
                      EndsWith(" max=500")));
}

TEST_F(Formulaire, au_hasard_choisi_de_nouveau_en_tire_d_autres) {
    choix("ordre")->setCurrentIndex(4);
    const auto premier = criteres.texte();
    ligne("max")->setText(QStringLiteral("9"));
    EXPECT_EQ(criteres.texte(), premier + QStringLiteral(" max=9"));
    const QSignalSpy changes(&criteres, &Criteres::change);
    emit choix("ordre")->activated(4);
    EXPECT_NE(criteres.texte(), premier + QStringLiteral(" max=9"));
    EXPECT_EQ(changes.count(), 1);
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
        o.chemins = {petit + "/petit.dic", petit + "/petit.aff", petit + "/petit.dat", false};
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

TEST_F(Fenetre, un_critere_a_corriger_est_dit_meme_quand_rien_ne_l_etait) {
    seance.relire();
    attendre(&seance, SIGNAL(motschanges()));
    auto* longueur = fenetre.findChild<QLineEdit*>(QStringLiteral("longueur"));
    const auto* message = fenetre.findChild<QLabel*>(QStringLiteral("message"));
    longueur->setText(QStringLiteral("3"));
    EXPECT_TRUE(message->isHidden());
    longueur->setText(QStringLiteral("3-"));
    EXPECT_FALSE(message->isHidden());
    EXPECT_THAT(message->text().toStdString(), HasSubstr("longueur : on attend un nombre"));
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

TEST_F(Fenetre, tient_sur_un_ecran_de_1366_points_grossi_deux_fois) {
    constexpr QSize ecran(683, 384);
    EXPECT_LE(fenetre.minimumSizeHint().width(), ecran.width());
    EXPECT_LE(fenetre.minimumSizeHint().height(), ecran.height());
}

/// Letters that Alt gives on the page in front, menus included, one after the other.
std::vector<QChar> lettres(const Fenetrecarnet& fenetre) {
    std::vector<QChar> toutes;
    const auto prendre = [&](const QString& texte) {
        const auto touche = QKeySequence::mnemonic(texte);
        if (!touche.isEmpty())
            toutes.push_back(QChar(touche[0].key()));
    };
    for (const auto* menu : fenetre.menuBar()->actions())
        prendre(menu->text());
    const auto vu = [&](const QWidget* quoi) { return quoi->isVisibleTo(&fenetre); };
    for (const auto* libelle : fenetre.findChildren<QLabel*>()) {
        if (vu(libelle) && libelle->buddy() != nullptr)
            prendre(libelle->text());
    }
    for (const auto* bouton : fenetre.findChildren<QPushButton*>()) {
        if (vu(bouton))
            prendre(bouton->text());
    }
    return toutes;
}

TEST_F(Fenetre, une_lettre_ne_mene_qu_a_un_endroit) {
    auto* onglets = fenetre.findChild<QTabWidget*>();
    fenetre.show();
    for (int i = 0; i < onglets->count(); ++i) {
        onglets->setCurrentIndex(i);
        const auto toutes = lettres(fenetre);
        for (const auto lettre : toutes)
            EXPECT_EQ(std::count(toutes.begin(), toutes.end(), lettre), 1)
                << onglets->tabText(i).toStdString() << " : Alt+" << lettre.toLatin1();
        EXPECT_GT(toutes.size(), 2U);
    }
}

/// What Tab can reach among what is on show.
std::vector<QWidget*> atteignables(const Fenetrecarnet& fenetre) {
    std::vector<QWidget*> tous;
    for (auto* quoi : fenetre.findChildren<QWidget*>()) {
        const bool tab = (quoi->focusPolicy() & Qt::TabFocus) != 0;
        if (tab && quoi->focusProxy() == nullptr && quoi->isVisible() && quoi->isEnabled() &&
            qobject_cast<QComboBox*>(quoi->parent()) == nullptr)
            tous.push_back(quoi);
    }
    return tous;
}

TEST_F(Fenetre, la_touche_tab_mene_partout) {
    seance.relire();
    attendre(&seance, SIGNAL(motschanges()));
    auto* onglets = fenetre.findChild<QTabWidget*>();
    fenetre.show();
    fenetre.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    for (int i = 0; i < onglets->count(); ++i) {
        onglets->setCurrentIndex(i);
        qobject_cast<QScrollArea*>(onglets->currentWidget())->widget()->setFocus();
        std::set<const QWidget*> vus;
        const auto tous = atteignables(fenetre);
        for (std::size_t pas = 0; pas < 2 * tous.size(); ++pas) {
            vus.insert(QApplication::focusWidget());
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        for (const auto* quoi : tous)
            EXPECT_TRUE(vus.contains(quoi))
                << onglets->tabText(i).toStdString() << " : " << quoi->metaObject()->className()
                << ' ' << quoi->objectName().toStdString() << ' '
                << quoi->accessibleName().toStdString();
    }
}

TEST_F(Fenetre, ce_qui_prend_le_focus_se_voit) {
    fenetre.show();
    fenetre.resize(fenetre.minimumSizeHint());
    fenetre.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre));
    for (const char* cle : {"max", "longueur", "nature_entree"}) {
        auto* champ = fenetre.findChild<QWidget*>(QString::fromUtf8(cle));
        champ->setFocus(Qt::ShortcutFocusReason);
        EXPECT_FALSE(champ->visibleRegion().isEmpty()) << cle;
    }
}

TEST_F(Fenetre, la_verification_attend_la_fin_d_un_travail) {
    const auto actions = fenetre.findChildren<QAction*>();
    const auto verifier = std::find_if(actions.begin(), actions.end(), [](const QAction* une) {
        return une->text() == QStringLiteral("&Vérifier une liste…");
    });
    ASSERT_NE(verifier, actions.end());
    EXPECT_TRUE((*verifier)->isEnabled());
    seance.relire();
    EXPECT_FALSE((*verifier)->isEnabled());
    attendre(&seance.tache(), SIGNAL(change()));
    EXPECT_TRUE((*verifier)->isEnabled());
}

TEST_F(Fenetre, des_editions_seules_gardent_le_dictionnaire_du_joueur) {
    ASSERT_TRUE(fabriquer(essais::petitschemins(), essais::perso({"NEZ", "WOK", "XYSTE"}),
                          dossier.chemin(), essais::continuer));
    seance.relire();
    attendre(&seance, SIGNAL(motschanges()));
    dossier.ecrire("avant.txt", "nez\n");
    dossier.ecrire("apres.txt", "nez\nwok\n");
    const auto saisir = [&](const char* edition, const char* fichier) {
        for (auto* saisie : fenetre.findChildren<QLineEdit*>()) {
            if (saisie->accessibleName() == QString::fromUtf8(edition))
                saisie->setText(QString::fromStdString((dossier.chemin() / fichier).string()));
        }
    };
    saisir("Édition de 2008", "avant.txt");
    saisir("Édition de 2012", "apres.txt");
    for (auto* bouton : fenetre.findChildren<QPushButton*>()) {
        if (bouton->text() == QStringLiteral("&Faire les listes"))
            bouton->click();
    }
    attendre(&seance, SIGNAL(motschanges()));
    EXPECT_EQ(seance.envigueur().fichier, "miens.txt");
    EXPECT_EQ(seance.envigueur().mots, 3U);
    EXPECT_EQ(dossier.lire("listes/ods6.txt"), "WOK\r\n");
}

TEST_F(Fenetre, des_marques_ne_se_perdent_pas_sans_question) {
    auto commande = essais::perso({"NEZ", "WOK", "XYSTE"});
    commande.envigueur.comparaisons.at(1) = "a.txt, b.txt";
    ASSERT_TRUE(fabriquer(essais::petitschemins(), commande, dossier.chemin(), essais::continuer));
    seance.relire();
    attendre(&seance, SIGNAL(motschanges()));
    dossier.ecrire("b.txt", "nez\n");
    for (auto* saisie : fenetre.findChildren<QLineEdit*>()) {
        const auto nom = saisie->accessibleName();
        if (nom == QStringLiteral("Édition de 2012") || nom == QStringLiteral("Édition de 2016"))
            saisie->setText(QString::fromStdString((dossier.chemin() / "b.txt").string()));
    }
    QString question;
    QTimer::singleShot(0, [&] {
        auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(boite, nullptr);
        question = boite->text();
        boite->reject();
    });
    for (auto* bouton : fenetre.findChildren<QPushButton*>()) {
        if (bouton->text() == QStringLiteral("&Faire les listes"))
            bouton->click();
    }
    EXPECT_THAT(question.toStdString(), HasSubstr("2012"));
    EXPECT_FALSE(seance.tache().encours());
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
}  // namespace test_pages

int main(int nombre, char** arguments) {
    testing::InitGoogleMock(&nombre, arguments);
    qputenv("QT_QPA_PLATFORM", ORVANE_ECRAN);
    const QApplication application(nombre, arguments);
    return RUN_ALL_TESTS();
}
