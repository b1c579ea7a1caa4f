// The words that are Qt's.

#include <memory>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <gmock/gmock.h>

#include "traduction.h"

namespace test_traduction {
namespace {

TEST(Traduction, les_mots_de_qt_sont_francais) {
    ASSERT_TRUE(carnet::traduire());
    QLineEdit texte;
    const std::unique_ptr<QMenu> menu(texte.createStandardContextMenu());
    EXPECT_THAT(menu->actions().front()->text().toStdString(), testing::HasSubstr("Annuler"));
    const QDialogButtonBox boite(QDialogButtonBox::Cancel | QDialogButtonBox::Save);
    EXPECT_EQ(boite.button(QDialogButtonBox::Cancel)->text().remove('&'), "Annuler");
    EXPECT_EQ(boite.button(QDialogButtonBox::Save)->text().remove('&'), "Enregistrer");
}

}  // namespace
}  // namespace test_traduction
