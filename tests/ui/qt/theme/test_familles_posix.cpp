// Families of fonts that the machine lacks, where fontconfig finds others for them.

#include <QFontInfo>
#include <QPixmap>
#include <gtest/gtest.h>

#include "fonte.h"

namespace test_familles_posix {
namespace {

TEST(Fontes, les_familles_nommees_ont_des_remplacantes_differentes) {
    QStringList trouvees;
    for (const char* famille : {"Arial", "Verdana", "Times New Roman", "Lucida Sans", "Georgia"}) {
        const auto reelle = QFontInfo(QFont(QString::fromLatin1(famille)));
        trouvees << reelle.family();
    }
    EXPECT_EQ(trouvees.removeDuplicates(), 0) << trouvees.join(", ").toStdString();
}

TEST(Fontes, une_famille_absente_cede_a_celle_que_qt_prendrait) {
    const QPixmap support(10, 10);
    for (const auto* nom : {"Arial", "Verdana", "Times New Roman", "Lucida Sans", "Georgia",
                            "Constantia", "Segoe UI"}) {
        const auto fonte = ui::qt::fonte(nom, 20, support);
        EXPECT_EQ(QFontInfo(fonte).family(), QFontInfo(QFont(nom)).family()) << nom;
        EXPECT_TRUE(QFontInfo(fonte).family().startsWith(fonte.family())) << nom;
    }
}

}  // namespace
}  // namespace test_familles_posix
