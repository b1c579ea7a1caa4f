// Files that the shell is asked to open, where it is asked through Qt.

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "navigateur.h"
#include "plateformeqt.h"

namespace test_ouvertures_posix {
namespace {

TEST(Ouvertures, un_fichier_s_ouvre_par_son_chemin_entier) {
    const QTemporaryDir dossier(QDir::tempPath() + "/ouvertures d'été XXXXXX");
    const essais::Navigateur navigateur;
    ui::qt::PlateformeQt plateforme;
    plateforme.ouvrir("listes\\à lire.txt");
    plateforme.ouvrir(dossier.path().toStdString() + "\\orvane_setup.exe");
    ASSERT_EQ(navigateur.ouvertures.size(), 2U);
    EXPECT_EQ(navigateur.ouvertures[0].toLocalFile(),
              QDir::current().absoluteFilePath("listes/à lire.txt"));
    EXPECT_EQ(navigateur.ouvertures[1].toLocalFile(), dossier.filePath("orvane_setup.exe"));
}

}  // namespace
}  // namespace test_ouvertures_posix
