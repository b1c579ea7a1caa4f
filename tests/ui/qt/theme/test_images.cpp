// Pictures: the sharpest variant that a place needs.

#include <QColor>
#include <QFile>
#include <QImage>
#include <QPixmapCache>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "images.h"

namespace test_images {
namespace {

class Images : public testing::Test {
  protected:
    Images() : dossier(QDir::tempPath() + "/images d'été XXXXXX") { QPixmapCache::clear(); }

    void dessiner(const QString& nom, int cote, QColor couleur) const {
        QImage image(cote, cote, QImage::Format_RGB32);
        image.fill(couleur);
        ASSERT_TRUE(image.save(dossier.filePath(nom)));
    }
    [[nodiscard]] QPixmap image(int cote, double densite) const {
        return ui::qt::image(dossier.filePath("marque.bmp"), {cote, cote}, densite);
    }
    [[nodiscard]] QColor couleur(int cote, double densite) const {
        return image(cote, densite).toImage().pixelColor(2, 2);
    }

    QTemporaryDir dossier;
};

TEST_F(Images, prend_la_plus_petite_variante_qui_suffit) {
    dessiner("marque.bmp", 28, Qt::red);
    dessiner("marque@2x.bmp", 56, Qt::green);
    dessiner("marque@4x.bmp", 112, Qt::blue);
    EXPECT_EQ(couleur(28, 1), QColor(Qt::red));
    EXPECT_EQ(couleur(29, 1), QColor(Qt::green));
    EXPECT_EQ(couleur(28, 2), QColor(Qt::green));
    EXPECT_EQ(couleur(28, 2.5), QColor(Qt::blue));
    EXPECT_EQ(couleur(200, 2), QColor(Qt::blue));
}

TEST_F(Images, a_la_finesse_de_l_ecran) {
    dessiner("marque.bmp", 28, Qt::red);
    const auto vignette = image(42, 2);
    EXPECT_EQ(vignette.size(), QSize(84, 84));
    EXPECT_EQ(vignette.devicePixelRatio(), 2);
}

TEST_F(Images, garde_ses_proportions) {
    QImage large(40, 20, QImage::Format_RGB32);
    large.fill(Qt::red);
    ASSERT_TRUE(large.save(dossier.filePath("marque.bmp")));
    EXPECT_EQ(image(80, 1).size(), QSize(80, 40));
}

TEST_F(Images, annoncee_est_la_meme) {
    dessiner("marque.bmp", 120, Qt::red);
    dessiner("marque@2x.bmp", 240, Qt::green);
    const auto chemin = dossier.filePath("marque.bmp");
    for (const double densite : {1., 2.}) {  // the first one is never asked for
        ui::qt::annoncer(chemin, {150, 150}, densite);
        ui::qt::annoncer(chemin, {150, 150}, densite);
    }
    EXPECT_EQ(couleur(150, 2), QColor(Qt::green));
    EXPECT_EQ(image(150, 2).size(), QSize(300, 300));
    EXPECT_EQ(couleur(110, 1), QColor(Qt::red));
}

TEST_F(Images, annoncee_sans_fichier_n_est_rien) {
    ui::qt::annoncer(dossier.filePath("marque.bmp"), {150, 150}, 1);
    EXPECT_TRUE(image(150, 1).isNull());
    dessiner("marque.bmp", 150, Qt::red);
    EXPECT_EQ(couleur(150, 1), QColor(Qt::red));
}

TEST_F(Images, sans_fichier_il_n_y_a_rien_a_montrer) {
    EXPECT_TRUE(image(28, 1).isNull());
}

TEST_F(Images, un_fichier_qui_n_est_pas_une_image_ne_montre_rien) {
    QFile fichier(dossier.filePath("marque.bmp"));
    ASSERT_TRUE(fichier.open(QIODevice::WriteOnly));
    fichier.write("BM pas une image");
    fichier.close();
    EXPECT_TRUE(image(28, 1).isNull());
}

TEST_F(Images, le_contenu_l_emporte_sur_la_terminaison) {
    QImage image(28, 28, QImage::Format_RGB32);
    image.fill(Qt::green);
    ASSERT_TRUE(image.save(dossier.filePath("marque.bmp"), "PNG"));
    EXPECT_EQ(couleur(28, 1), QColor(Qt::green));
}

TEST_F(Images, l_icone_prend_les_tailles_presentes) {
    dessiner("orvane_32.png", 32, Qt::red);
    dessiner("orvane_64.png", 64, Qt::red);
    const auto icone = ui::qt::iconeprogramme([this](std::string_view image) {
        auto nom = QString::fromUtf8(image.data(), static_cast<qsizetype>(image.size()));
        return dossier.filePath(nom.section('\\', -1));
    });
    EXPECT_EQ(icone.availableSizes(), (QList<QSize>{{32, 32}, {64, 64}}));
}

}  // namespace
}  // namespace test_images
