// The window of a form: scale, showing and hiding, closing, leaving.

#include <algorithm>
#include <cmath>

#include <QApplication>
#include <QCloseEvent>
#include <QPointer>
#include <QScreen>
#include <QTest>
#include <QWindow>

#include "bureauqt.h"

namespace test_fenetre {
namespace {

using essais::BureauQt;

class Fenetres : public BureauQt {
  protected:
    [[nodiscard]] QRect place(const ui::Controle& controle) const {
        return widget(controle).geometry();
    }
    /// Gives the form another design, in pixels.
    void dessiner(int largeur, int hauteur) {
        forme->largeur = largeur * twips;
        forme->hauteur = hauteur * twips;
        fenetrier->rafraichir();
    }
};

TEST_F(Fenetres, porte_le_titre_de_la_forme) {
    EXPECT_EQ(fenetre().windowTitle(), "Essai");
    forme->texte = "Autre titre";
    fenetrier->rafraichir();
    EXPECT_EQ(fenetre().windowTitle(), "Autre titre");
}

TEST_F(Fenetres, a_la_taille_du_dessin_un_pixel_vaut_quinze_twips) {
    EXPECT_EQ(place(*solution[1]), QRect(180, 100, 150, 40));
}

TEST_F(Fenetres, tout_grandit_ensemble) {
    fenetre().resize(1200, 800);
    EXPECT_EQ(place(*solution[1]), QRect(360, 200, 300, 80));
}

TEST_F(Fenetres, garde_ses_proportions_au_milieu_de_la_place) {
    fenetre().resize(800, 400);
    EXPECT_EQ(place(*solution[1]), QRect(100 + 180, 100, 150, 40));
    fenetre().resize(600, 500);
    EXPECT_EQ(place(*solution[1]), QRect(180, 50 + 100, 150, 40));
}

TEST_F(Fenetres, des_controles_qui_se_touchent_se_touchent_a_toute_echelle) {
    auto& voisine = poser(ui::Genre::Bouton, "Command1", 1, {406, 100, 56, 56});
    forme->texte = "Essai 2";
    for (int largeur = 601; largeur < 700; largeur += 7) {
        fenetre().resize(largeur, largeur * 2 / 3);
        fenetrier->rafraichir();
        EXPECT_EQ(place(*tuile).right() + 1, place(voisine).left()) << largeur;
    }
}

TEST_F(Fenetres, au_depart_tient_dans_l_ecran) {
    ui::Formulaire grande(plateforme, "Multi");
    grande.largeur = 40000;
    grande.hauteur = 11000;
    fenetrier->accueillir(grande);
    montrer(grande);
    const auto ecran = QGuiApplication::primaryScreen()->availableGeometry();
    const auto* vue = fenetrier->fenetre(grande);
    EXPECT_LE(vue->width(), ecran.width());
    EXPECT_LE(vue->height(), ecran.height());
    EXPECT_EQ(vue->width(), ecran.width());
}

TEST_F(Fenetres, un_dessin_qui_change_change_la_fenetre) {
    forme->largeur = 300 * twips;
    forme->hauteur = 350 * twips;
    fenetrier->rafraichir();
    EXPECT_EQ(fenetre().size(), QSize(300, 350));
    EXPECT_EQ(place(*etiquette), QRect(20, 10, 200, 24));
}

TEST_F(Fenetres, un_dessin_trop_grand_n_est_reduit_que_le_temps_qu_il_est_la) {
    dessiner(1600, 400);
    EXPECT_EQ(fenetre().size(), QSize(800, 200));
    EXPECT_EQ(place(*etiquette), QRect(10, 5, 100, 12));
    dessiner(600, 400);
    EXPECT_EQ(fenetre().size(), QSize(600, 400));
    EXPECT_EQ(place(*etiquette), QRect(20, 10, 200, 24));
}

TEST_F(Fenetres, une_taille_choisie_par_l_usager_sert_aux_dessins_suivants) {
    fenetre().resize(900, 600);
    dessiner(200, 200);
    EXPECT_EQ(fenetre().size(), QSize(300, 300));
    dessiner(1600, 400);
    fenetre().resize(640, 160);
    dessiner(600, 400);
    EXPECT_EQ(fenetre().size(), QSize(240, 160));
}

TEST_F(Fenetres, une_taille_quittee_puis_reprise_est_un_choix) {
    dessiner(1600, 400);
    fenetre().resize(700, 175);
    fenetre().resize(800, 200);
    dessiner(600, 400);
    EXPECT_EQ(fenetre().size(), QSize(300, 200));
}

TEST_F(Fenetres, un_dessin_suit_son_echelle_meme_dans_une_fenetre_qui_garde_sa_taille) {
    dessiner(1200, 1200);
    const auto taille = fenetre().size();
    dessiner(2400, 2400);
    EXPECT_EQ(fenetre().size(), taille);
    EXPECT_EQ(fenetre().echelle().unite(), taille.height() / 2400.0);
    EXPECT_EQ(place(*solution[1]).width(), std::lround(150 * taille.height() / 2400.0));
}

TEST_F(Fenetres, la_plus_petite_taille_suit_le_dessin) {
    fenetre().resize(10, 10);
    EXPECT_EQ(fenetre().size(), QSize(210, 140));
    dessiner(1000, 1000);
    EXPECT_EQ(fenetre().minimumSize(), QSize(350, 350));
    EXPECT_EQ(fenetre().size(), QSize(350, 350));
    EXPECT_DOUBLE_EQ(fenetre().echelle().unite(), .35);
    dessiner(300, 200);
    EXPECT_EQ(fenetre().minimumSize(), QSize(105, 70));
    EXPECT_EQ(fenetre().size(), QSize(105, 70));
    EXPECT_EQ(place(*etiquette), QRect(7, 4, 70, 8));
}

TEST_F(Fenetres, une_fenetre_agrandie_prend_la_taille_d_un_nouveau_dessin_a_son_retour) {
    fenetre().showMaximized();
    laisser();
    ASSERT_TRUE(fenetre().isMaximized());
    dessiner(300, 350);
    EXPECT_DOUBLE_EQ(fenetre().echelle().unite(),
                     std::min(fenetre().width() / 300.0, fenetre().height() / 350.0));
    fenetre().showNormal();
    laisser();
    EXPECT_EQ(fenetre().size(), QSize(300, 350));
    EXPECT_EQ(place(*etiquette), QRect(20, 10, 200, 24));
}

TEST_F(Fenetres, la_case_de_fermeture_va_au_modele) {
    int fermetures = 0;
    forme->fermeture = [&fermetures] { ++fermetures; };
    EXPECT_FALSE(fenetre().close());
    EXPECT_EQ(fermetures, 1);
    EXPECT_TRUE(fenetre().isVisible());
    forme->fermeture = nullptr;
    fenetre().close();
    EXPECT_FALSE(forme->visible());
    EXPECT_FALSE(fenetre().isVisible());
}

TEST_F(Fenetres, une_forme_cachee_puis_montree_dans_le_meme_evenement_ne_bouge_pas) {
    fenetrier->executer([this] {
        forme->visible = false;
        forme->visible = true;
    });
    EXPECT_TRUE(fenetre().isVisible());
}

TEST_F(Fenetres, une_forme_deja_montree_que_l_on_montre_revient_devant) {
    ui::Formulaire autre(plateforme, "Dialog1");
    autre.largeur = 200 * twips;
    autre.hauteur = 100 * twips;
    fenetrier->accueillir(autre);
    montrer(autre);
    ASSERT_FALSE(fenetre().isActiveWindow());
    fenetrier->executer([this] { forme->visible = true; });
    laisser();
    EXPECT_FALSE(fenetre().isActiveWindow());
    fenetrier->executer([this] { forme->montrer(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
}

TEST_F(Fenetres, une_forme_reduite_en_icone_que_l_on_montre_se_deplie) {
    fenetre().showMinimized();
    laisser();
    ASSERT_TRUE(fenetre().isMinimized());
    fenetrier->executer([this] { forme->montrer(); });
    EXPECT_FALSE(fenetre().isMinimized());
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
    EXPECT_EQ(fenetre().size(), QSize(600, 400));
}

TEST_F(Fenetres, montrer_une_forme_cachee_la_montre) {
    fenetrier->executer([this] { forme->visible = false; });
    EXPECT_FALSE(fenetre().isVisible());
    fenetrier->executer([this] { forme->montrer(); });
    EXPECT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
    EXPECT_TRUE(forme->visible());
}

TEST_F(Fenetres, une_forme_dechargee_pendant_son_propre_evenement_s_en_va_sans_dommage) {
    const QPointer<ui::qt::Fenetre> vue = &fenetre();
    auto* bouton = &widget(*valider);
    valider->clic = [this] { plateforme.apres([this] { forme.reset(); }); };
    QTest::mouseClick(bouton, Qt::LeftButton);
    EXPECT_EQ(forme, nullptr);
    ASSERT_FALSE(vue.isNull());
    EXPECT_FALSE(vue->isVisible());
    QTest::mouseClick(bouton, Qt::LeftButton);
    QTest::keyClick(vue.data(), Qt::Key_F8);
    laisser();
    EXPECT_TRUE(vue.isNull());
    EXPECT_TRUE(fenetrier->fenetres().empty());
}

/// Asks, whenever a window is no longer the active one, which one dialogs would be in front of.
class Curieux : public QObject {
  public:
    explicit Curieux(const ui::qt::Fenetrier& fenetrier) : fenetrier_(fenetrier) {}
    int demandes = 0;

  protected:
    bool eventFilter(QObject* objet, QEvent* evenement) override {
        if (evenement->type() == QEvent::WindowDeactivate) {
            ++demandes;
            EXPECT_NE(fenetrier_.proprietaire(), objet);
        }
        return false;
    }

  private:
    const ui::qt::Fenetrier& fenetrier_;
};

TEST_F(Fenetres, une_fenetre_qui_s_en_va_n_est_plus_celle_des_dialogues) {
    Curieux curieux(*fenetrier);
    fenetre().installEventFilter(&curieux);
    forme.reset();
    EXPECT_GT(curieux.demandes, 0);
    EXPECT_EQ(fenetrier->proprietaire(), nullptr);
}

TEST_F(Fenetres, le_fenetrier_peut_partir_avant_les_formes) {
    fenetrier.reset();
    EXPECT_EQ(forme->vue, nullptr);
    EXPECT_EQ(valider->vue, nullptr);
    valider->texte = "Encore";
    forme->texte = "Encore";
    SUCCEED();
}

TEST_F(Fenetres, un_handler_qui_finit_le_programme_est_le_dernier) {
    valider->clic = [] { ui::Plateforme::terminer(); };
    cliquer(*valider);
    EXPECT_TRUE(plateforme.fini());
    journal.clear();
    cliquer(*tuile);
    EXPECT_EQ(journal, std::vector<std::string>{});
}

TEST_F(Fenetres, une_faute_est_rapportee_et_non_propagee) {
    valider->clic = [] { throw std::runtime_error("rien ne va"); };
    cliquer(*valider);
    EXPECT_TRUE(plateforme.fini());
    EXPECT_EQ(plateforme.statut(), 1);
}

/// A form that stays in front, and another one to be in front of.
class Devant : public Fenetres {
  protected:
    void SetUp() override {
        BureauQt::SetUp();
        for (auto* petite : {&options, &serie}) {
            petite->largeur = 200 * twips;
            petite->hauteur = 100 * twips;
            fenetrier->accueillir(*petite);
        }
        options.devant = true;
        montrer(options);
    }
    [[nodiscard]] const QWindow* systeme(const ui::Formulaire& f) const {
        return fenetrier->fenetre(f)->windowHandle();
    }

    ui::Formulaire options{plateforme, "Dialog2"};
    ui::Formulaire serie{plateforme, "Multi"};
};

TEST_F(Devant, s_ouvre_en_dialogue_de_celle_qui_est_active) {
    const auto* vue = fenetrier->fenetre(options);
    ASSERT_NE(vue->windowHandle(), nullptr);
    EXPECT_EQ(vue->windowHandle()->type(), Qt::Dialog);
    EXPECT_EQ(systeme(options)->transientParent(), systeme(*forme));
    EXPECT_EQ(vue->windowModality(), Qt::NonModal);
    EXPECT_EQ(systeme(*forme)->type(), Qt::Window);
}

TEST_F(Devant, suit_celle_qui_prend_la_place_d_une_autre) {
    const auto place = fenetrier->fenetre(options)->pos();
    fenetrier->executer([this] {
        forme->visible = false;
        serie.visible = true;
    });
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetrier->fenetre(serie)));
    EXPECT_EQ(systeme(options)->transientParent(), systeme(serie));
    EXPECT_TRUE(fenetrier->fenetre(options)->isVisible());
    EXPECT_EQ(fenetrier->fenetre(options)->pos(), place);
    fenetrier->executer([this] {
        serie.visible = false;
        forme->visible = true;
    });
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
    EXPECT_EQ(systeme(options)->transientParent(), systeme(*forme));
}

TEST_F(Devant, suit_celle_ou_l_usager_va) {
    montrer(serie);
    EXPECT_EQ(systeme(options)->transientParent(), systeme(serie));
    fenetre().activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&fenetre()));
    laisser();
    EXPECT_EQ(systeme(options)->transientParent(), systeme(*forme));
    EXPECT_TRUE(fenetre().isActiveWindow());
}

TEST_F(Devant, reste_quand_la_sienne_s_en_va_et_garde_le_clavier) {
    montrer(serie);
    fenetrier->fenetre(options)->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetrier->fenetre(options)));
    fenetrier->executer([this] { serie.visible = false; });
    ASSERT_TRUE(QTest::qWaitForWindowActive(fenetrier->fenetre(options)));
    EXPECT_TRUE(fenetrier->fenetre(options)->isVisible());
    EXPECT_EQ(systeme(options)->transientParent(), systeme(*forme));
}

TEST_F(Devant, suit_la_sienne_sans_prendre_le_clavier_d_un_autre_programme) {
    montrer(serie);
    QWindow autre;  // to the widgets it is another program's
    autre.show();
    autre.requestActivate();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&autre));
    fenetrier->executer([this] { serie.visible = false; });
    laisser();
    EXPECT_EQ(systeme(options)->transientParent(), systeme(*forme));
    EXPECT_FALSE(fenetre().isActiveWindow());
}

}  // namespace
}  // namespace test_fenetre
