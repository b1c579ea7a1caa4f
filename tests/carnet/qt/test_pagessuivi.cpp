// The pages of what is due, of what was done and of the player's data, without a screen.

#include <algorithm>
#include <filesystem>
#include <set>

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTableView>
#include <gmock/gmock.h>

#include "chemin.h"
#include "dessin.h"
#include "dossiertemporaire.h"
#include "fenetrecarnet.h"
#include "pagedonnees.h"
#include "pageprogres.h"
#include "pagerevoir.h"
#include "sauvegarde.h"
#include "seance.h"

namespace test_pagessuivi {
namespace {

using namespace carnet;
using testing::HasSubstr;
using testing::Not;

constexpr Jour jour = 18000;  // 14/04/2019

class Suividunjoueur : public testing::Test {
  protected:
    Suividunjoueur() { std::filesystem::create_directories(dossier.chemin() / "listes"); }
    void inscrire() {
        std::filesystem::create_directories(dossier.chemin() / common::chemin("Zoé"));
        std::filesystem::create_directories(dossier.chemin() / "Anne");
        dossier.ecrire("users.dat", "Anne\r\nZo\xE9\r\n");
    }
    void jouer() {
        inscrire();
        dossier.ecrire("Zoé/journal.txt",
                       "12/04/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\n"
                       "12/04/2019 - 14:35:10;duos7.txt;T;ENZ;NEZ,ZEN;0;\r\n"
                       "12/04/2019 - 14:35:10;rallonge_av_7a8L.txt;T;ABC;D;0;\r\n"
                       "13/04/2019 - 14:35:10;3lc.txt;T;IOU;OUI;1;OUI\r\n"
                       "14/04/2019 - 14:35:10;3lc.txt;T;KOW;WOK;0;\r\n");
        dossier.ecrire("Zoé/hist.dat",
                       "12/04/2019 - 14:36 - 75% - T - 3lc.txt\r\n"
                       "14/04/2019 - 14:36 - 50% - E - 3lc.txt\r\n");
    }
    void lire() {
        QSignalSpy espion(&seance.lecture(), &Tache::change);
        seance.relirejoueurs();
        while (seance.lecture().encours())
            ASSERT_TRUE(espion.wait(60000));
    }
    template <class Page>
    static QString dit(const Page& page, const char* nom) {
        const auto* label = page.template findChild<QLabel*>(QString::fromUtf8(nom));
        return label == nullptr ? QStringLiteral("?") : label->text();
    }
    essais::DossierTemporaire dossier;
    Seance seance{options(), [] { return jour; }};

  private:
    [[nodiscard]] Options options() const {
        Options o;
        o.dossier = dossier.chemin();
        return o;
    }
};

TEST_F(Suividunjoueur, sans_joueur_chaque_page_dit_que_faire) {
    const Pagerevoir revoir(seance, nullptr);
    const Pageprogres progres(seance, nullptr);
    const Pagedonnees donnees(seance, nullptr);
    lire();
    EXPECT_THAT(dit(revoir, "detail").toStdString(), HasSubstr("Lancez Orvane"));
    EXPECT_FALSE(revoir.findChild<QPushButton*>(QStringLiteral("preparer"))->isEnabled());
    EXPECT_THAT(dit(progres, "vide").toStdString(), HasSubstr("Lancez Orvane"));
    EXPECT_THAT(dit(donnees, "aquisont").toStdString(), HasSubstr("rien à copier"));
}

TEST_F(Suividunjoueur, sans_journal_dit_comment_commencer) {
    inscrire();
    const Pagerevoir revoir(seance, nullptr);
    const Pageprogres progres(seance, nullptr);
    lire();
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("Rien à revoir aujourd'hui"));
    EXPECT_THAT(dit(revoir, "detail").toStdString(), HasSubstr("Jouez une liste dans Orvane"));
    EXPECT_THAT(dit(progres, "vide").toStdString(), HasSubstr("Rien de corrigé"));
}

TEST_F(Suividunjoueur, compte_ce_qui_est_du_et_prepare_les_deux_listes) {
    jouer();
    const Pagerevoir revoir(seance, nullptr);
    lire();
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("3 tirages à revoir aujourd'hui"));
    EXPECT_THAT(dit(revoir, "detail").toStdString(), HasSubstr("1 laissé de côté"));
    revoir.findChild<QPushButton*>(QStringLiteral("preparer"))->click();
    EXPECT_EQ(dossier.lire("listes/dujour.txt"), "AEX;AXE\r\n");
    EXPECT_EQ(dossier.lire("listes/dujour-multi.txt"), "ENZ;NEZ;ZEN\r\n");
    EXPECT_THAT(dit(revoir, "commentjouer").toStdString(), HasSubstr("« Listes diverses »"));
}

TEST_F(Suividunjoueur, tient_le_plafond_et_le_retient) {
    jouer();
    {
        const Pagerevoir revoir(seance, nullptr);
        lire();
        auto* plafond = revoir.findChild<QSpinBox*>(QStringLiteral("plafond"));
        EXPECT_EQ(plafond->value(), 60);
        EXPECT_EQ(plafond->minimum(), 1);
        EXPECT_EQ(plafond->maximum(), 900);
        plafond->setValue(1);
        EXPECT_THAT(dit(revoir, "detail").toStdString(), HasSubstr("1 attendra demain"));
        revoir.findChild<QPushButton*>(QStringLiteral("preparer"))->click();
        EXPECT_EQ(dossier.lire("listes/dujour.txt"), "AEX;AXE\r\n");
        EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "listes" / "dujour-multi.txt"));
    }
    const Pagerevoir encore(seance, nullptr);
    EXPECT_EQ(encore.findChild<QSpinBox*>(QStringLiteral("plafond"))->value(), 1);
}

TEST_F(Suividunjoueur, un_autre_joueur_a_son_journal) {
    jouer();
    dossier.ecrire("Anne/journal.txt", "14/04/2019 - 14:35:10;3lc.txt;T;KOW;WOK;0;\r\n");
    const Pagerevoir revoir(seance, nullptr);
    lire();
    EXPECT_EQ(seance.joueur(), QStringLiteral("Zoé"));
    QSignalSpy espion(&seance.lecture(), &Tache::change);
    seance.choisirjoueur(QStringLiteral("Anne"));
    while (seance.lecture().encours())
        ASSERT_TRUE(espion.wait(60000));
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("Rien à revoir aujourd'hui"));
    EXPECT_EQ(dit(revoir, "detail"), QStringLiteral("Prochains : 1 tirage le 15/04/2019."));
}

TEST_F(Suividunjoueur, ce_qui_se_joue_entretemps_est_relu) {
    inscrire();
    const Pagerevoir revoir(seance, nullptr);
    lire();
    jouer();
    lire();
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("3 tirages à revoir aujourd'hui"));
}

TEST_F(Suividunjoueur, un_journal_abime_est_dit) {
    inscrire();
    dossier.ecrire("Zoé/journal.txt", "rien\r\n12/04/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\nmoit");
    const Pagerevoir revoir(seance, nullptr);
    lire();
    EXPECT_THAT(dit(revoir, "detail").toStdString(),
                HasSubstr("2 lignes du journal sont illisibles."));
}

/// What each view of the page shows: rows of its table, and a text of one.
struct Casdevue {
    const char* vue;
    int rangees;
    const char* cellule;
};
void PrintTo(const Casdevue& cas, std::ostream* sortie) {
    *sortie << cas.vue;
}
class Vues : public Suividunjoueur, public testing::WithParamInterface<Casdevue> {};

TEST_P(Vues, ont_leur_image_et_leur_tableau) {
    jouer();
    Pageprogres progres(seance, nullptr);
    lire();
    auto* vues = progres.findChild<QComboBox*>(QStringLiteral("voir"));
    vues->setCurrentText(QString::fromUtf8(GetParam().vue));
    ASSERT_EQ(vues->currentText(), QString::fromUtf8(GetParam().vue));
    const auto* table = progres.findChild<QTableView*>();
    ASSERT_EQ(table->model()->rowCount(), GetParam().rangees);
    QString cellules;
    for (int i = 0; i < GetParam().rangees; ++i)
        for (int j = 0; j < table->model()->columnCount(); ++j)
            cellules += table->model()->index(i, j).data().toString() + QLatin1Char('|');
    EXPECT_THAT(cellules.toStdString(), HasSubstr(GetParam().cellule));
    EXPECT_FALSE(table->accessibleName().isEmpty());
    EXPECT_TRUE(dit(progres, "vide").isEmpty());

    auto* dessin = progres.findChild<Dessin*>();
    EXPECT_FALSE(dessin->accessibleName().isEmpty());
    dessin->resize(dessin->minimumSize().expandedTo({500, 300}));
    // Without its colours too, the picture is more than its ground.
    const auto gris = dessin->image().convertToFormat(QImage::Format_Grayscale8);
    int autres = 0;
    for (int y = 0; y < gris.height(); ++y)
        for (int x = 0; x < gris.width(); ++x)
            autres += gris.pixel(x, y) != gris.pixel(0, 0) ? 1 : 0;
    EXPECT_GT(autres, 300);
}

const Casdevue lesvues[] = {
    {"Le calendrier", 3, "12/04/2019|3|0|0 %|"},
    {"Les trente jours qui viennent", 31, "Aujourd'hui|3|15/04/2019|1|"},
    {"Les paliers", 9, "1|1 jour|4|"},
    {"Toutes les listes", 1, "3lc.txt|2|50 %|75 %|14/04/2019|0 jour|"},
    {"Une liste", 2, "14/04/2019|50 %|Échantillon|12/04/2019|75 %|Toute la liste|"},
    {"Les tirages les plus durs", 4, "ENZ|NEZ ZEN|1 fois|0 %|12/04/2019|duos7.txt|"}};
INSTANTIATE_TEST_SUITE_P(Progres, Vues, testing::ValuesIn(lesvues), [](const auto& cas) {
    std::string nom = cas.param.vue;
    std::replace(nom.begin(), nom.end(), ' ', '_');
    return nom;
});

TEST_F(Suividunjoueur, les_plus_durs_font_une_liste) {
    jouer();
    const Pageprogres progres(seance, nullptr);
    lire();
    progres.findChild<QComboBox*>(QStringLiteral("voir"))->setCurrentIndex(5);
    for (auto* action : progres.actions()) {
        if (action->text().contains(QStringLiteral("liste")))
            action->trigger();
    }
    EXPECT_EQ(dossier.lire("listes/difficiles.txt"), "KOW;WOK\r\nAEX;AXE\r\n");
    EXPECT_EQ(dossier.lire("listes/difficiles-multi.txt"), "ENZ;NEZ;ZEN\r\n");
    EXPECT_THAT(dit(progres, "fait").toStdString(), HasSubstr("tapez difficiles.txt"));
    EXPECT_THAT(dit(progres, "fait").toStdString(), HasSubstr("1 laissé de côté"));
}

TEST_F(Suividunjoueur, la_fenetre_laisse_choisir_le_joueur) {
    jouer();
    const Fenetrecarnet fenetre(seance);
    auto* choix = fenetre.findChild<QComboBox*>(QStringLiteral("joueur"));
    EXPECT_FALSE(choix->isEnabled());
    lire();
    EXPECT_TRUE(choix->isEnabled());
    EXPECT_EQ(choix->count(), 2);
    EXPECT_EQ(choix->currentText(), QStringLiteral("Zoé"));
    choix->setCurrentText(QStringLiteral("Anne"));
    EXPECT_EQ(seance.joueur(), QStringLiteral("Anne"));
}

TEST_F(Suividunjoueur, une_lecture_arretee_se_refait) {
    jouer();
    const Pagerevoir revoir(seance, nullptr);
    QSignalSpy espion(&seance, &Seance::suivichange);
    seance.relirejoueurs();
    seance.lecture().arreter();
    while (seance.lecture().encours())
        ASSERT_TRUE(espion.wait(60000));
    lire();
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("3 tirages à revoir aujourd'hui"));
}

TEST_F(Suividunjoueur, un_dossier_de_joueur_qui_disparait_laisse_la_place_a_un_autre) {
    jouer();
    const Pagerevoir revoir(seance, nullptr);
    lire();
    std::filesystem::remove_all(dossier.chemin() / common::chemin("Zoé"));
    lire();
    EXPECT_EQ(seance.joueur(), QStringLiteral("Anne"));
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("Rien à revoir aujourd'hui"));
    std::filesystem::remove_all(dossier.chemin() / "Anne");
    lire();
    EXPECT_EQ(dit(revoir, "dus"), QStringLiteral("Pas encore de joueur"));
}

TEST_F(Suividunjoueur, un_retour_inacheve_est_acheve_ou_dit) {
    inscrire();
    std::filesystem::create_directories(dossier.chemin() / dossierenattente("Anne"));
    std::filesystem::create_directories(dossier.chemin() / dossierenattente("Paul"));
    const Pagedonnees donnees(seance, nullptr);
    EXPECT_THAT(dit(donnees, "donnees").toStdString(), HasSubstr("« Retour de Anne »"));
    EXPECT_THAT(dit(donnees, "donnees").toStdString(), Not(HasSubstr("Paul")));
    EXPECT_TRUE(std::filesystem::is_directory(dossier.chemin() / "Paul"));
}

TEST(Formes, disent_le_mode_sans_la_couleur) {
    std::set<std::string> images;
    for (const char mode : {'T', 'E', 'R', ' '}) {
        Dessin dessin;
        dessin.resize(400, 300);
        dessin.montrer(Nuage{{{1, 50, mode}}});
        const auto gris = dessin.image().convertToFormat(QImage::Format_Grayscale8);
        images.emplace(reinterpret_cast<const char*>(gris.constBits()),
                       static_cast<std::size_t>(gris.sizeInBytes()));
    }
    EXPECT_EQ(images.size(), 4U);
}

}  // namespace
}  // namespace test_pagessuivi
