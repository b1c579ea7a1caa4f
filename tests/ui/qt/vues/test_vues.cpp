// Every genre of control shows its model and follows it.

#include <QAbstractButton>
#include <QAccessible>
#include <QCheckBox>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPlainTextEdit>
#include <QTemporaryDir>
#include <QTest>

#include "bureauqt.h"
#include "theme.h"

namespace test_vues {
namespace {

using essais::BureauQt;
using ui::Couleur;

class Vues : public BureauQt {};

TEST_F(Vues, chaque_widget_porte_le_nom_de_son_controle) {
    for (const auto& controle : forme->controles()) {
        if (controle->genre() == ui::Genre::Entree) {
            EXPECT_EQ(fenetrier->widget(*controle), nullptr);
            continue;
        }
        EXPECT_EQ(widget(*controle).objectName().toStdString(), controle->nomcomplet());
    }
    EXPECT_EQ(widget(*solution[2]).objectName(), "solution(2)");
    EXPECT_EQ(widget(*valider).objectName(), "valider");
}

TEST_F(Vues, le_nom_accessible_est_celui_du_modele_ou_son_texte) {
    EXPECT_EQ(widget(*valider).accessibleName(), "Valider");
    solution[1]->accessible = "Réponse 2";
    solution[1]->texte = "MOT";
    fenetrier->rafraichir();
    EXPECT_EQ(widget(*solution[1]).accessibleName(), "Réponse 2");
    etiquette->texte = "Série 2";
    fenetrier->rafraichir();
    EXPECT_EQ(widget(*etiquette).accessibleName(), "Série 2");
}

TEST_F(Vues, ce_que_disent_les_couleurs_est_dit_aussi) {
    const auto dite = [this](const ui::Controle& controle) {
        auto* interface = QAccessible::queryAccessibleInterface(&widget(controle));
        return interface->text(QAccessible::Description).toStdString();
    };
    solution[1]->description = "Juste";
    etiquette->description = "Rouge";
    fenetrier->rafraichir();
    EXPECT_EQ(dite(*solution[1]), "Juste");
    EXPECT_EQ(dite(*etiquette), "Rouge");
    EXPECT_EQ(dite(*solution[0]), "");
    EXPECT_EQ(dite(*user), "Liste : la touche Bas l'ouvre");
    solution[1]->description = "";
    fenetrier->rafraichir();
    EXPECT_EQ(dite(*solution[1]), "");
}

TEST_F(Vues, une_description_qui_reste_n_est_pas_redite) {
    // Off screen nobody listens: a description that is set anew is another copy of the text.
    const auto dire = [this](const char* description) {
        solution[1]->description = "";
        solution[1]->description = description;
        fenetrier->rafraichir();
        return widget(*solution[1]).accessibleDescription();
    };
    const auto dite = dire("Juste");
    EXPECT_EQ(dite, "Juste");
    EXPECT_EQ(dire("Juste").constData(), dite.constData());
    EXPECT_EQ(dire("Fausse"), "Fausse");
}

TEST_F(Vues, les_roles_accessibles_disent_le_genre) {
    const auto role = [this](const ui::Controle& controle) {
        return QAccessible::queryAccessibleInterface(&widget(controle))->role();
    };
    EXPECT_EQ(role(*etiquette), QAccessible::StaticText);
    EXPECT_EQ(role(*solution[0]), QAccessible::EditableText);
    EXPECT_EQ(role(*notes), QAccessible::EditableText);
    EXPECT_EQ(role(*valider), QAccessible::PushButton);
    EXPECT_EQ(role(*app), QAccessible::CheckBox);
}

TEST_F(Vues, les_textes_suivent_le_modele) {
    etiquette->texte = "Total";
    solution[0]->texte = "ÉTÉ";
    notes->texte = "une ligne\r\nune autre";
    fenetrier->rafraichir();
    EXPECT_EQ(static_cast<QLabel&>(widget(*etiquette)).text(), "Total");
    EXPECT_EQ(static_cast<QLineEdit&>(widget(*solution[0])).text(), "ÉTÉ");
    EXPECT_EQ(static_cast<QPlainTextEdit&>(widget(*notes)).toPlainText(), "une ligne\nune autre");
}

TEST_F(Vues, un_changement_venu_d_ailleurs_se_montre_des_que_les_evenements_courent) {
    solution[0]->texte = "A";
    EXPECT_EQ(static_cast<QLineEdit&>(widget(*solution[0])).text(), "");
    laisser();
    EXPECT_EQ(static_cast<QLineEdit&>(widget(*solution[0])).text(), "A");
}

TEST_F(Vues, la_case_est_cochee_par_le_modele_seul) {
    auto& coche = static_cast<QCheckBox&>(widget(*app));
    cliquer(*app);
    EXPECT_TRUE(app->coche());
    EXPECT_TRUE(coche.isChecked());
    app->coche = false;
    fenetrier->rafraichir();
    EXPECT_FALSE(coche.isChecked());
}

TEST_F(Vues, un_controle_cache_ou_inactif_l_est_a_l_ecran) {
    valider->visible = false;
    app->actif = false;
    fenetrier->rafraichir();
    EXPECT_FALSE(widget(*valider).isVisible());
    EXPECT_FALSE(widget(*app).isEnabled());
    valider->visible = true;
    app->actif = true;
    fenetrier->rafraichir();
    EXPECT_TRUE(widget(*valider).isVisible());
    EXPECT_TRUE(widget(*app).isEnabled());
}

TEST_F(Vues, un_controle_inactif_ne_recoit_rien) {
    int passages = 0;
    for (auto* controle : {valider, tuile, app, solution[0], notes, user, etiquette}) {
        controle->actif = false;
        controle->survol = [&passages] { ++passages; };
    }
    fenetrier->rafraichir();
    for (auto* controle : {valider, tuile, app, solution[0], notes, user, etiquette}) {
        cliquer(*controle);
        doublecliquer(*controle);
        QTest::mouseMove(&widget(*controle), QPoint(5, 5));
    }
    laisser();
    EXPECT_EQ(journal, std::vector<std::string>{});
    EXPECT_EQ(passages, 0);
    EXPECT_EQ(forme->focus(), nullptr);
}

TEST_F(Vues, le_fond_des_boites_est_celui_du_modele) {
    const QPoint coin(8, 8);
    EXPECT_EQ(couleur(*solution[0], coin).name().toUpper(), "#FFC080");
    solution[0]->fond = ui::couleurs::faux;
    fenetrier->rafraichir();
    EXPECT_EQ(couleur(*solution[0], coin).name().toUpper(), "#FF8080");
    solution[0]->fond = Couleur::fenetre();
    fenetrier->rafraichir();
    EXPECT_EQ(couleur(*solution[0], coin), QColor(Qt::white));
}

TEST_F(Vues, une_etiquette_de_la_couleur_de_la_forme_laisse_voir_ce_qui_est_dessous) {
    auto& titre = *etiquette;
    titre.placer({20 * twips, 310 * twips, 150 * twips, 24 * twips});
    titre.fond = forme->fond();
    titre.texte = "";
    fenetrier->rafraichir();
    const QPoint milieu(75, 12);
    const auto carte = couleur(titre, milieu);
    EXPECT_NE(carte, ui::qt::couleurqt(forme->fond()));
    titre.fond = Couleur(0x101418);
    fenetrier->rafraichir();
    EXPECT_EQ(couleur(titre, milieu).name(), "#101418");
    titre.fondu = true;
    fenetrier->rafraichir();
    EXPECT_EQ(couleur(titre, milieu), carte);
}

TEST_F(Vues, la_fenetre_a_le_fond_de_la_forme) {
    forme->fond = Couleur(0xC0C0FF);
    fenetrier->rafraichir();
    EXPECT_EQ(fenetre().grab().toImage().pixelColor(590, 5).name().toUpper(), "#C0C0FF");
}

TEST_F(Vues, l_infobulle_montre_le_texte_tel_quel) {
    valider->infobulle = "a < b & c";
    fenetrier->rafraichir();
    EXPECT_TRUE(widget(*valider).toolTip().contains("a &lt; b &amp; c"));
    valider->infobulle = "";
    fenetrier->rafraichir();
    EXPECT_EQ(widget(*valider).toolTip(), "");
}

TEST_F(Vues, le_pointeur_suit_le_controle_et_l_attente_de_la_forme) {
    const auto forme1 = [this](const ui::Controle& c) { return widget(c).cursor().shape(); };
    solution[0]->pointeur = ui::Pointeur::Fleche;
    solution[1]->pointeur = ui::Pointeur::Texte;
    fenetrier->rafraichir();
    EXPECT_EQ(forme1(*solution[0]), Qt::ArrowCursor);
    EXPECT_EQ(forme1(*solution[1]), Qt::IBeamCursor);
    forme->pointeur = ui::Pointeur::Attente;
    fenetrier->rafraichir();
    EXPECT_EQ(forme1(*solution[0]), Qt::WaitCursor);
    EXPECT_EQ(forme1(*valider), Qt::WaitCursor);
    EXPECT_EQ(fenetre().cursor().shape(), Qt::WaitCursor);
    forme->pointeur = ui::Pointeur::Normal;
    fenetrier->rafraichir();
    EXPECT_EQ(forme1(*solution[0]), Qt::ArrowCursor);
    EXPECT_EQ(forme1(*valider), Qt::ArrowCursor);
}

TEST_F(Vues, un_controle_mis_au_premier_plan_couvre_les_autres) {
    cadre->placer({180 * twips, 50 * twips, 150 * twips, 40 * twips});
    fenetrier->rafraichir();
    const QPoint milieu(180 + 75, 50 + 20);
    EXPECT_EQ(fenetre().childAt(milieu), &widget(*solution[0]));
    cadre->premierplan();
    fenetrier->rafraichir();
    EXPECT_EQ(fenetre().childAt(milieu), &widget(*cadre));
    solution[0]->premierplan();
    fenetrier->rafraichir();
    EXPECT_EQ(fenetre().childAt(milieu), &widget(*solution[0]));
}

/// A form whose controls all lie in one place, named in the order in which they are made.
class Piles : public BureauQt {
  protected:
    Piles() {
        pile.largeur = 300 * twips;
        pile.hauteur = 200 * twips;
        for (int i = 0; i < 3; ++i)
            empiler();
        fenetrier->accueillir(pile);
    }
    ui::Controle& empiler() {
        const auto rang = static_cast<int>(pile.controles().size());
        auto& controle = pile.ajouter(ui::Genre::Bouton, "Command1", rang);
        controle.placer({0, 0, 300 * twips, 200 * twips});
        return controle;
    }
    [[nodiscard]] ui::Controle& controle(std::size_t i) const { return *pile.controles()[i]; }
    /// The indexes of the controls, as they lie, the one in front first.
    std::vector<int> ordre() {
        fenetrier->rafraichir();
        std::vector<int> lus;
        const auto& enfants = fenetrier->fenetre(pile)->children();
        for (auto enfant = enfants.rbegin(); enfant != enfants.rend(); ++enfant) {
            for (const auto& controle : pile.controles()) {
                if (fenetrier->widget(*controle) == *enfant)
                    lus.push_back(controle->index());
            }
        }
        return lus;
    }

    ui::Formulaire pile{plateforme, "Form2"};
};

TEST_F(Piles, les_controles_faits_plus_tard_couvrent_les_autres) {
    montrer(pile);
    EXPECT_EQ(ordre(), (std::vector{2, 1, 0}));
    empiler();
    EXPECT_EQ(ordre(), (std::vector{3, 2, 1, 0}));
}

TEST_F(Piles, un_premier_plan_demande_avant_la_fenetre_vaut_quand_elle_se_montre) {
    controle(1).premierplan();
    controle(0).premierplan();
    EXPECT_EQ(ordre(), std::vector<int>{});
    montrer(pile);
    EXPECT_EQ(ordre(), (std::vector{0, 1, 2}));
    controle(2).premierplan();
    EXPECT_EQ(ordre(), (std::vector{2, 0, 1}));
}

TEST_F(Piles, un_controle_fait_apres_un_premier_plan_le_couvre) {
    controle(0).premierplan();
    empiler();
    montrer(pile);
    EXPECT_EQ(ordre(), (std::vector{3, 0, 2, 1}));
    controle(1).premierplan();
    empiler();
    EXPECT_EQ(ordre(), (std::vector{4, 1, 3, 0, 2}));
    empiler();
    controle(2).premierplan();
    EXPECT_EQ(ordre(), (std::vector{2, 5, 4, 1, 3, 0}));
}

TEST_F(Vues, un_controle_ajoute_apres_l_accueil_recoit_sa_vue) {
    auto& tardif = poser(ui::Genre::Bouton, "Command9", -1, {480, 50, 100, 40});
    tardif.texte = "Plus tard";
    forme->texte = "Essai 2";
    fenetrier->rafraichir();
    ASSERT_NE(fenetrier->widget(tardif), nullptr);
    EXPECT_TRUE(widget(tardif).isVisible());
    cliquer(tardif);
    EXPECT_EQ(journal.front(), "Command9+");
}

TEST_F(Vues, seul_ce_qui_a_change_est_remesure) {
    auto& boite = static_cast<QLineEdit&>(widget(*solution[0]));
    solution[0]->texte = "ABC";
    fenetrier->rafraichir();
    boite.setObjectName("temoin");
    boite.setToolTip("temoin");
    solution[0]->fond = ui::couleurs::juste;
    fenetrier->rafraichir();
    EXPECT_EQ(boite.toolTip(), "temoin");
    solution[0]->infobulle = "note";
    fenetrier->rafraichir();
    EXPECT_TRUE(boite.toolTip().contains("note"));
}

TEST_F(Vues, un_clic_rapide_sur_un_bouton_est_un_clic_comme_un_autre) {
    doublecliquer(*tuile);
    const std::vector<std::string> attendu{"Command1(0)+", "Command1(0)!", "Command1(0)^",
                                           "Command1(0)!", "Command1(0)^"};
    EXPECT_EQ(journal, attendu);
}

TEST_F(Vues, le_clic_part_au_relachement_dans_le_controle) {
    for (auto* controle : {valider, etiquette}) {
        journal.clear();
        auto& cible = widget(*controle);
        QTest::mousePress(&cible, Qt::LeftButton);
        EXPECT_EQ(std::count(journal.begin(), journal.end(), controle->nomcomplet() + "!"), 0);
        QTest::mouseRelease(&cible, Qt::LeftButton);
        EXPECT_EQ(std::count(journal.begin(), journal.end(), controle->nomcomplet() + "!"), 1);
        journal.clear();
        QTest::mousePress(&cible, Qt::LeftButton);
        QTest::mouseRelease(&cible, Qt::LeftButton, Qt::NoModifier, QPoint(-20, -20));
        EXPECT_EQ(std::count(journal.begin(), journal.end(), controle->nomcomplet() + "!"), 0);
    }
}

TEST_F(Vues, un_double_clic_est_un_clic_puis_un_double_clic) {
    etiquette->doubleclic = [this] { journal.emplace_back("Label1!!"); };
    doublecliquer(*etiquette);
    const std::vector<std::string> attendu{"Label1!", "Label1^", "Label1!!", "Label1^"};
    EXPECT_EQ(journal, attendu);
}

TEST_F(Vues, la_souris_qui_passe_est_rapportee) {
    int passages = 0;
    valider->survol = [&passages] { ++passages; };
    QTest::mouseMove(&widget(*valider), QPoint(5, 5));
    QTest::mouseMove(&widget(*valider), QPoint(9, 9));
    laisser();
    EXPECT_GE(passages, 1);
}

TEST_F(Vues, un_bouton_n_a_pas_de_mnemonique) {
    valider->texte = "&Valider";
    fenetrier->rafraichir();
    EXPECT_TRUE(static_cast<QAbstractButton&>(widget(*valider)).shortcut().isEmpty());
    EXPECT_EQ(widget(*valider).accessibleName(), "&Valider");
}

TEST_F(Vues, une_technologie_d_assistance_presse_un_bouton) {
    auto* interface = QAccessible::queryAccessibleInterface(&widget(*valider));
    ASSERT_NE(interface->actionInterface(), nullptr);
    interface->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    const auto clics = [this] { return std::count(journal.begin(), journal.end(), "valider!"); };
    EXPECT_TRUE(QTest::qWaitFor([&] { return clics() > 0; }));
    EXPECT_EQ(clics(), 1);
}

TEST_F(Vues, une_image_que_la_reserve_de_qt_refuse_n_est_lue_qu_une_fois) {
    const QTemporaryDir dossier(QDir::tempPath() + "/images d'été XXXXXX");
    const auto chemin = dossier.filePath("grande.bmp");
    QImage grande(200, 200, QImage::Format_RGB32);
    grande.fill(Qt::red);
    ASSERT_TRUE(grande.save(chemin));
    const int avant = QPixmapCache::cacheLimit();
    QPixmapCache::setCacheLimit(1);
    marque->image = chemin.toStdString();
    fenetrier->rafraichir();
    EXPECT_EQ(couleur(*marque, {5, 5}), QColor(Qt::red));
    ASSERT_TRUE(QFile::remove(chemin));
    EXPECT_EQ(couleur(*marque, {5, 5}), QColor(Qt::red));
    QPixmapCache::setCacheLimit(avant);
    marque->image = dossier.filePath("autre.bmp").toStdString();
    fenetrier->rafraichir();
    EXPECT_NE(couleur(*marque, {5, 5}), QColor(Qt::red));
}

}  // namespace
}  // namespace test_vues
