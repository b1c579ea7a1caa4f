// The program on a disk that is full, which a limit on the size of files stands for.

#include <string>

#include <gmock/gmock.h>

#include "dossiertemporaire.h"
#include "plafond_posix.h"
#include "processus.h"

namespace test_programme_posix {
namespace {

TEST(Programmeposix, un_disque_plein_est_une_faute_et_laisse_les_vieilles_listes) {
    const essais::DossierTemporaire dossier;
    const std::string petit = ORVANE_PETIT;
    const essais::Mots arguments{"--sortie",     "jeu",
                                 "--lexique",    petit + "/petit.dic",
                                 "--affixes",    petit + "/petit.aff",
                                 "--thesaurus",  petit + "/petit.dat",
                                 "--sans-ajouts"};
    ASSERT_EQ(essais::lancer(ORVANE_PROGRAMME, arguments, dossier.chemin()).etat, 0);
    const auto avant = dossier.lire("jeu/listes/3lc.txt");
    dossier.ecrire("jeu/infosouris.txt", "vieux\r\n");
    essais::Fin fin;
    {
        const essais::Plafond plafond(4096);  // the pictures are larger than that
        fin = essais::lancer(ORVANE_PROGRAMME, arguments, dossier.chemin());
    }
    EXPECT_EQ(fin.etat, 1);
    EXPECT_THAT(fin.erreurs, testing::StartsWith("Installation des listes : fichier « "));
    EXPECT_EQ(dossier.lire("jeu/listes/3lc.txt"), avant);
    EXPECT_EQ(dossier.lire("jeu/infosouris.txt"), "vieux\r\n");
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "jeu" / ".nouvelles-listes"));
}

}  // namespace
}  // namespace test_programme_posix
