// The pop-up menu of a form.

#include <QApplication>
#include <QMenu>
#include <QMouseEvent>
#include <QTest>

#include "bureauqt.h"

namespace test_menu {
namespace {

using essais::BureauQt;

class Menus : public BureauQt {
  protected:
    QMenu* ouvrir() {
        fenetrier->executer([this] { forme->ouvrirmenu(*menu); });
        return fenetrier->menu(*forme);
    }
};

TEST_F(Menus, montre_les_entrees_et_leur_etat) {
    const auto* liste = ouvrir();
    ASSERT_NE(liste, nullptr);
    EXPECT_TRUE(liste->isVisible());
    ASSERT_EQ(liste->actions().size(), 2);
    EXPECT_EQ(liste->actions()[0]->text(), "Ajouter au fichier de révision");
    EXPECT_EQ(liste->actions()[0]->objectName(), "addrevmenu");
    EXPECT_TRUE(liste->actions()[0]->isEnabled());
    EXPECT_FALSE(liste->actions()[1]->isEnabled());
}

TEST_F(Menus, un_choix_clique_l_entree_et_ferme_le_menu) {
    auto* liste = ouvrir();
    const auto place = liste->actionGeometry(liste->actions()[0]).center();
    // A click without moves before it would count as the end of the one that opened the menu.
    for (int reste = 8; reste >= 0; --reste) {
        const auto ici = place - QPoint(reste, 0);
        QMouseEvent passage(QEvent::MouseMove, ici, liste->mapToGlobal(ici), Qt::NoButton,
                            Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(liste, &passage);
    }
    QTest::mouseClick(liste, Qt::LeftButton, Qt::NoModifier, place);
    EXPECT_EQ(journal, std::vector<std::string>{"addrevmenu!"});
    EXPECT_EQ(forme->menuouvert(), nullptr);
    laisser();
    EXPECT_EQ(fenetrier->menu(*forme), nullptr);
}

TEST_F(Menus, sans_choix_le_modele_apprend_la_fermeture) {
    auto* liste = ouvrir();
    QTest::keyClick(liste, Qt::Key_Escape);
    laisser();
    EXPECT_EQ(forme->menuouvert(), nullptr);
    EXPECT_EQ(fenetrier->menu(*forme), nullptr);
    EXPECT_EQ(journal, std::vector<std::string>{});
}

TEST_F(Menus, le_modele_ferme_le_menu) {
    ouvrir();
    fenetrier->executer([this] { forme->fermermenu(); });
    EXPECT_EQ(fenetrier->menu(*forme), nullptr);
    EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(Menus, il_ne_bloque_rien_et_n_est_pas_un_changement_de_focus) {
    forme->donnerfocus(*solution[0]);
    fenetrier->rafraichir();
    journal.clear();
    int desactivations = 0;
    forme->desactivation = [&desactivations] { ++desactivations; };
    ouvrir();
    solution[1]->texte = "A";
    laisser();
    EXPECT_EQ(journal, std::vector<std::string>{});
    EXPECT_EQ(desactivations, 0);
    fenetrier->executer([this] { forme->fermermenu(); });
}

TEST_F(Menus, il_se_rouvre_apres_un_choix) {
    ouvrir()->actions()[0]->trigger();
    EXPECT_EQ(fenetrier->menu(*forme), nullptr);
    auto* liste = ouvrir();
    ASSERT_NE(liste, nullptr);
    laisser();
    EXPECT_EQ(forme->menuouvert(), menu);
    EXPECT_TRUE(liste->isVisible());
    fenetrier->executer([this] { forme->fermermenu(); });
}

}  // namespace
}  // namespace test_menu
