// A download in the place of a link, and rights that Windows does not have.

#include "telechargements.h"

namespace test_telechargement_posix {
namespace {

using essais::Telechargements;

TEST_F(Telechargements, un_lien_symbolique_et_les_droits_restent) {
    ecrire("vrai.txt", "avant");
    constexpr auto droits = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
    QFile::setPermissions(dossier.filePath("vrai.txt"), droits);
    ASSERT_TRUE(QFile::link(dossier.filePath("vrai.txt"), dossier.filePath("recu.txt")));
    EXPECT_TRUE(enregistrer(adresse()));
    EXPECT_TRUE(QFileInfo(dossier.filePath("recu.txt")).isSymLink());
    EXPECT_EQ(contenu("vrai.txt"), "2.68\r\n");
    EXPECT_TRUE(QFile::permissions(dossier.filePath("vrai.txt")).testFlag(QFile::ExeOwner));
}

}  // namespace
}  // namespace test_telechargement_posix
