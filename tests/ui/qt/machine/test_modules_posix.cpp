// Modules that are files of their own.

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "modules.h"

namespace test_modules_posix {
namespace {

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
}  // namespace test_modules_posix
