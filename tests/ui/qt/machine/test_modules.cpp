// The parts of the program that are loaded at their first use.

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "modules.h"
#include "reseau.h"
#include "son.h"

namespace {

TEST(Modules, le_son_et_le_reseau_se_trouvent) {
    EXPECT_NE(qobject_cast<ui::qt::Son*>(ui::qt::module(ui::qt::moduleson)), nullptr);
    EXPECT_NE(qobject_cast<ui::qt::Reseau*>(ui::qt::module(ui::qt::modulereseau)), nullptr);
}

TEST(Modules, un_module_qui_manque_n_est_pas_une_faute) {
    EXPECT_EQ(ui::qt::module("orvane-absent"), nullptr);
}

TEST(Modules, un_fichier_qui_n_est_pas_un_module_n_est_pas_une_faute) {
    const QTemporaryDir dossier(QDir::tempPath() + "/modules d'été XXXXXX");
    QFile fichier(dossier.filePath("orvane-faux.so"));
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write("pas un module");
    fichier.close();
    QCoreApplication::addLibraryPath(dossier.path());
    EXPECT_EQ(ui::qt::module("orvane-faux"), nullptr);
    QCoreApplication::removeLibraryPath(dossier.path());
}

}  // namespace
