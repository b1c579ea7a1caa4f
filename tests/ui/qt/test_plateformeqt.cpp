// The player's machine: message boxes, fault report, shell, clock, end of the program.

#include <functional>
#include <string>
#include <vector>

#include <QApplication>
#include <QDateTime>
#include <QDir>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "faute.h"
#include "fenetre.h"
#include "navigateur.h"
#include "plateformeqt.h"
#include "texteqt.h"

namespace essais {

class Machine : public testing::Test {
  protected:
    Machine() : avant_(QDir::currentPath()), dossier_(QDir::tempPath() + "/machine d'été XXXXXX") {
        QDir::setCurrent(dossier_.path());
    }
    ~Machine() override {
        QDir::setCurrent(avant_);
        // A program that has ended would leave the next test without event loops.
        QTimer::singleShot(0, &QCoreApplication::quit);
        QCoreApplication::exec();
    }

    /// A message box that is on screen, as the player finds it, and what he does with it.
    struct Vue {
        QString titre;
        QString texte;
        QMessageBox::Icon icone = QMessageBox::NoIcon;
        QStringList boutons;
    };
    /// Waits for a message box, looks at it, then clicks a button of it or presses a key.
    void repondre(const QString& bouton) {
        QTimer::singleShot(0, &plateforme.fenetrier(), [this, bouton] {
            auto* boite = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(boite, nullptr);
            vue = {boite->windowTitle(), boite->text(), boite->icon(), {}};
            for (auto* b : boite->buttons())
                vue.boutons << b->text();
            if (bouton == "Echap") {
                QTest::keyClick(boite, Qt::Key_Escape);
                return;
            }
            for (auto* b : boite->buttons()) {
                if (b->text() == bouton)
                    QTest::mouseClick(b, Qt::LeftButton);
            }
        });
    }

    QString avant_;
    QTemporaryDir dossier_;
    ui::qt::PlateformeQt plateforme;
    Vue vue;
};

TEST_F(Machine, l_horloge_est_celle_du_systeme) {
    const auto avant = QDateTime::currentDateTime();
    const auto instant = plateforme.maintenant();
    const auto apres = QDateTime::currentDateTime();
    const QDateTime lu(QDate(instant.annee, instant.mois, instant.jour),
                       QTime(instant.heure, instant.minute, instant.seconde));
    EXPECT_LE(avant.toSecsSinceEpoch(), lu.toSecsSinceEpoch());
    EXPECT_GE(apres.toSecsSinceEpoch(), lu.toSecsSinceEpoch());
}

TEST_F(Machine, un_programme_installe_se_trouve_chez_son_joueur) {
    EXPECT_NE(plateforme.dossierprogramme(), "");
    plateforme.installee(true);
    EXPECT_EQ(plateforme.dossierprogramme(), "");
}

TEST_F(Machine, un_message_porte_le_nom_du_programme_et_se_ferme_par_ok) {
    repondre("OK");
    plateforme.message("AEINRST;ENTRAIS a été effacé", ui::Icone::Information);
    EXPECT_EQ(vue.titre, "Orvane");
    EXPECT_EQ(vue.texte, "AEINRST;ENTRAIS a été effacé");
    EXPECT_EQ(vue.icone, QMessageBox::Information);
    EXPECT_EQ(vue.boutons, QStringList{"OK"});
}

TEST_F(Machine, une_question_se_repond_par_oui_ou_par_non) {
    repondre("Oui");
    EXPECT_TRUE(plateforme.question("Voulez-vous la télécharger ?"));
    EXPECT_EQ(vue.icone, QMessageBox::Question);
    EXPECT_EQ(vue.boutons, (QStringList{"Oui", "Non"}));
    repondre("Non");
    EXPECT_FALSE(plateforme.question("Voulez-vous la télécharger ?"));
    repondre("Echap");
    EXPECT_FALSE(plateforme.question("Voulez-vous la télécharger ?"));
}

TEST_F(Machine, un_message_n_est_pas_du_texte_enrichi) {
    repondre("OK");
    plateforme.message("<b>a</b> & b");
    EXPECT_EQ(vue.texte, "<b>a</b> & b");
}

TEST_F(Machine, un_message_laisse_battre_les_minuteries_et_retient_la_souris) {
    ui::Formulaire forme(plateforme, "Form1");
    forme.largeur = 3000;
    forme.hauteur = 3000;
    auto& bouton = forme.ajouter(ui::Genre::Bouton, "valider");
    bouton.placer({0, 0, 1500, 600});
    int clics = 0;
    bouton.clic = [&clics] { ++clics; };
    auto& minuterie = forme.ajouterminuterie("Timer1");
    int tics = 0;
    minuterie.tic = [&] {
        if (++tics == 1)
            repondre("OK");
    };
    plateforme.accueillir(forme);
    forme.visible = true;
    plateforme.fenetrier().rafraichir();
    auto* fenetre = plateforme.fenetrier().fenetre(forme);
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetre));
    minuterie.actif = true;
    QTimer::singleShot(0, &plateforme.fenetrier(), [&] {
        EXPECT_EQ(QApplication::activeModalWidget()->parentWidget(), fenetre);
        QTest::mouseClick(fenetre->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    });
    QTimer secours;  // closes a box that no tick has answered
    QObject::connect(&secours, &QTimer::timeout,
                     [] { QApplication::activeModalWidget()->close(); });
    secours.start(5 * static_cast<int>(ui::qt::Minuteur::periode));
    plateforme.message("un instant");
    EXPECT_EQ(tics, 1);
    EXPECT_EQ(clics, 0);
    QTest::mouseClick(fenetre->windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(20, 10));
    EXPECT_EQ(clics, 1);
}

TEST_F(Machine, une_faute_est_montree_et_finit_le_programme) {
    repondre("OK");
    plateforme.fenetrier().executer(
        [] { throw common::Faute("Lecture d'une liste : fichier introuvable."); });
    EXPECT_EQ(vue.titre, "Orvane");
    EXPECT_EQ(vue.icone, QMessageBox::Critical);
    EXPECT_EQ(vue.texte, "Lecture d'une liste : fichier introuvable.");
    EXPECT_TRUE(plateforme.fini());
    EXPECT_EQ(plateforme.statut(), 1);
}

TEST_F(Machine, la_fin_du_programme_quitte_la_boucle_et_les_boites_ouvertes) {
    QEventLoop boucle;
    QTimer::singleShot(0, &plateforme.fenetrier(), [this] {
        QTimer::singleShot(0, &plateforme.fenetrier(), [this] {
            plateforme.fenetrier().executer([] { ui::Plateforme::terminer(); });
        });
        plateforme.fenetrier().executer([this] {
            plateforme.message("un instant");
            ADD_FAILURE() << "le programme a continué";
        });
    });
    boucle.exec();
    EXPECT_TRUE(plateforme.fini());
    EXPECT_EQ(plateforme.statut(), 0);
}

TEST_F(Machine, une_adresse_s_ouvre_telle_quelle) {
    const Navigateur navigateur;
    plateforme.ouvrir("https://exemple.test/definition/entrais");
    ASSERT_EQ(navigateur.ouvertures.size(), 1U);
    EXPECT_EQ(navigateur.ouvertures[0].toString(), "https://exemple.test/definition/entrais");
}

TEST_F(Machine, un_telechargement_manque_laisse_le_fichier_comme_il_etait) {
    ASSERT_FALSE(plateforme.disque().remplacer("version_en_ligne.txt", "2.68\r\n"));
    EXPECT_FALSE(plateforme.telecharger("http://127.0.0.1:1/version.txt", "version_en_ligne.txt",
                                        {.taille = 1000}));
    QFile fichier("version_en_ligne.txt");
    ASSERT_TRUE(fichier.open(QIODevice::ReadOnly));
    EXPECT_EQ(fichier.readAll(), "2.68\r\n");
    EXPECT_EQ(QDir::current().entryList(QDir::Files), QStringList{"version_en_ligne.txt"});
}

TEST_F(Machine, laisser_courir_montre_ce_qui_vient_de_changer) {
    ui::Formulaire forme(plateforme, "Form3");
    forme.largeur = 3000;
    forme.hauteur = 3000;
    plateforme.accueillir(forme);
    plateforme.executer([&] {
        forme.visible = true;
        forme.texte = "Téléchargement en cours";
        plateforme.laissercourir();
        const auto* fenetre = plateforme.fenetrier().fenetre(forme);
        EXPECT_TRUE(fenetre->isVisible());
        EXPECT_EQ(fenetre->windowTitle(), "Téléchargement en cours");
    });
}

}  // namespace essais
