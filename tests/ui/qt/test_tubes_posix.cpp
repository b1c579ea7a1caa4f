// A pipe in the place of a file is not waited for.

#include <sys/stat.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "hautparleur.h"
#include "images.h"
#include "minuteur.h"

namespace test_tubes_posix {
namespace {

class Tubes : public testing::Test {
  protected:
    Tubes() : dossier(QDir::tempPath() + "/tubes d'été XXXXXX") {}
    [[nodiscard]] QString tube(const QString& nom) const {
        const auto chemin = dossier.filePath(nom);
        EXPECT_EQ(::mkfifo(QFile::encodeName(chemin).constData(), 0666), 0);
        return chemin;
    }
    QTemporaryDir dossier;
};

TEST_F(Tubes, a_la_place_du_son) {
    ui::qt::Minuteur minuteur{[](const auto& evenement) { evenement(); }};
    ui::qt::jouer(minuteur, tube("APP05.WAV"));
    SUCCEED();
}

TEST_F(Tubes, a_la_place_d_une_image) {
    EXPECT_TRUE(ui::qt::image(tube("marque.bmp"), {28, 28}, 1).isNull());
}

}  // namespace
}  // namespace test_tubes_posix
