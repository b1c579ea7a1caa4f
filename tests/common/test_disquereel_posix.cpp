// What only a POSIX system has: pipes and devices in the place of files, modes and owners, symbolic
// links, a limit on the size of files.

#include <fcntl.h>
#include <grp.h>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "plafond_posix.h"
#include "programme.h"

namespace test_disquereel_posix {
namespace {

class DisqueReelPosix : public testing::Test {
  protected:
    essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
    common::DisqueReel disque{dossier.chemin(), appels};
};

TEST_F(DisqueReelPosix, un_ajout_qui_echoue_laisse_le_fichier_tel_quel) {
    dossier.ecrire("f.txt", "AB;BA\r\n");
    const essais::Plafond plafond(10);
    EXPECT_TRUE(disque.ajouter("f.txt", "CD;DC\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "AB;BA\r\n");
}

TEST_F(DisqueReelPosix, un_premier_ajout_qui_echoue_ne_laisse_pas_de_fichier) {
    {
        const essais::Plafond plafond(2);
        EXPECT_TRUE(disque.ajouter("f.txt", "CD;DC\r\n"));
    }
    EXPECT_FALSE(disque.existe("f.txt"));
}

TEST_F(DisqueReelPosix, un_remplacement_qui_echoue_laisse_l_ancien_et_rien_d_autre) {
    dossier.ecrire("f.txt", "ancien");
    {
        const essais::Plafond plafond(10);
        EXPECT_TRUE(disque.remplacer("f.txt", std::string(100, 'x')));
    }
    EXPECT_EQ(dossier.lire("f.txt"), "ancien");
    int fichiers = 0;
    for ([[maybe_unused]] const auto& fichier :
         std::filesystem::directory_iterator(dossier.chemin()))
        ++fichiers;
    EXPECT_EQ(fichiers, 1);
}

/// A FIFO, a socket or a device in the place of a file.
class Faux : public DisqueReelPosix, public testing::WithParamInterface<const char*> {
  protected:
    Faux() {
        const auto chemin = dossier.chemin() / "f.txt";
        if (std::string(GetParam()) == "tube")
            EXPECT_EQ(::mkfifo(chemin.c_str(), 0666), 0);
        else if (std::string(GetParam()) == "prise")
            EXPECT_EQ(::mknod(chemin.c_str(), S_IFSOCK | 0666, 0), 0);
        else
            std::filesystem::create_symlink("/dev/zero", chemin);
    }
};

TEST_P(Faux, fichier_se_dit_aussitot) {
    std::unique_ptr<common::Flux> flux;
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_EQ(disque.ouvrir("f.txt", flux), common::Ennui::PasUnFichier);
    EXPECT_EQ(disque.ajouter("f.txt", "A\r\n"), common::Ennui::PasUnFichier);
    EXPECT_EQ(disque.ajouter("f.txt", ""), common::Ennui::PasUnFichier);
    EXPECT_EQ(disque.remplacer("f.txt", "A\r\n"), common::Ennui::PasUnFichier);
    EXPECT_EQ(disque.verrouiller("f.txt", verrou), common::Ennui::PasUnFichier);
    EXPECT_EQ(common::raison(common::Ennui::PasUnFichier), "ce n'est pas un fichier ordinaire");
    EXPECT_EQ(dossier.noms(), std::vector<std::string>{"f.txt"});
}
INSTANTIATE_TEST_SUITE_P(Table, Faux, testing::Values("tube", "prise", "peripherique"),
                         [](const auto& cas) { return std::string(cas.param); });

/// Another program's lock, a reader's or a writer's.
class Retenu : public DisqueReelPosix, public testing::WithParamInterface<int> {
  protected:
    Retenu() {
        dossier.ecrire("f.txt", "A\r\n");
        numero_ = ::open((dossier.chemin() / "f.txt").c_str(), O_RDONLY | O_CLOEXEC);
        EXPECT_EQ(::flock(numero_, GetParam()), 0);
    }
    ~Retenu() override { lacher(); }
    void lacher() {
        if (numero_ >= 0)
            ::close(numero_);
        numero_ = -1;
    }

  private:
    int numero_ = -1;
};

TEST_P(Retenu, fichier_se_dit_au_bout_de_cinq_secondes) {
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_EQ(disque.ajouter("f.txt", "B\r\n"), common::Ennui::Retenu);
    EXPECT_EQ(appels.attendu, 5000);
    EXPECT_EQ(disque.verrouiller("f.txt", verrou), common::Ennui::Retenu);
    EXPECT_EQ(appels.attendu, 10000);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    EXPECT_EQ(common::raison(common::Ennui::Retenu),
              "un autre programme le retient ; la limite d'attente est de 5 secondes. Fermez "
              "l'autre programme et recommencez");
    lacher();
    EXPECT_FALSE(disque.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(appels.attendu, 10000);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

TEST_P(Retenu, fichier_se_lit_et_se_remplace) {
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(disque.ouvrir("f.txt", flux));
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    EXPECT_EQ(appels.attendu, 0);
}
INSTANTIATE_TEST_SUITE_P(Table, Retenu, testing::Values(LOCK_SH, LOCK_EX), [](const auto& cas) {
    return cas.param == LOCK_SH ? "en_lecture" : "en_ecriture";
});

TEST_F(DisqueReelPosix, un_fichier_remplace_garde_son_mode) {
    dossier.ecrire("f.txt", "A\r\n");
    const auto chemin = dossier.chemin() / "f.txt";
    const auto mode = [&] { return std::filesystem::status(chemin).permissions(); };
    const auto prive = static_cast<std::filesystem::perms>(0604);
    std::filesystem::permissions(chemin, prive);
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    EXPECT_EQ(mode(), prive);
    EXPECT_FALSE(disque.ajouter("f.txt", "C\r\n"));
    EXPECT_EQ(mode(), prive);
    EXPECT_EQ(dossier.lire("f.txt"), "B\r\nC\r\n");
}

TEST_F(DisqueReelPosix, le_fichier_d_un_autre_garde_son_groupe) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "only the administrator can make a file of another";
    constexpr uid_t autre = 12345;
    constexpr uid_t joueur = 12346;
    constexpr gid_t commun = 12347;
    dossier.ecrire("f.txt", "A\r\n");
    const auto chemin = dossier.chemin() / "f.txt";
    ASSERT_EQ(::chown(chemin.c_str(), autre, commun), 0);
    ASSERT_EQ(::chmod(chemin.c_str(), 0660), 0);
    ASSERT_EQ(::chmod(dossier.chemin().c_str(), 0777), 0);
    EXPECT_EQ(essais::encopie([&] {
                  // From inside: the folders around may be closed to the player.
                  if (::chdir(dossier.chemin().c_str()) != 0 || ::setgroups(1, &commun) != 0 ||
                      ::setgid(joueur) != 0 || ::setuid(joueur) != 0)
                      return 2;
                  return common::DisqueReel().ajouter("f.txt", "B\r\n") ? 1 : 0;
              }),
              0);
    struct stat lu = {};
    ASSERT_EQ(::stat(chemin.c_str(), &lu), 0);
    EXPECT_EQ(lu.st_gid, commun);
    EXPECT_EQ(lu.st_mode & 0777U, 0660U);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

TEST_F(DisqueReelPosix, un_lien_reste_et_ce_qu_il_designe_change) {
    EXPECT_FALSE(disque.creerdossier("ailleurs"));
    dossier.ecrire("ailleurs/f.txt", "A\r\n");
    std::filesystem::create_symlink("ailleurs/g.txt", dossier.chemin() / "f.txt");
    std::filesystem::create_symlink("f.txt", dossier.chemin() / "ailleurs" / "g.txt");
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("ailleurs/f.txt"), "B\r\n");
    EXPECT_FALSE(disque.ajouter("f.txt", "C\r\n"));
    EXPECT_EQ(dossier.lire("ailleurs/f.txt"), "B\r\nC\r\n");
    EXPECT_TRUE(std::filesystem::is_symlink(dossier.chemin() / "f.txt"));
    EXPECT_TRUE(std::filesystem::is_symlink(dossier.chemin() / "ailleurs" / "g.txt"));
    std::filesystem::remove(dossier.chemin() / "ailleurs" / "f.txt");
    EXPECT_FALSE(disque.ajouter("f.txt", "D\r\n"));
    EXPECT_EQ(dossier.lire("ailleurs/f.txt"), "D\r\n");
}

TEST_F(DisqueReelPosix, des_liens_en_rond_se_disent) {
    std::filesystem::create_symlink("g.txt", dossier.chemin() / "f.txt");
    std::filesystem::create_symlink("f.txt", dossier.chemin() / "g.txt");
    EXPECT_EQ(disque.remplacer("f.txt", "A"), std::errc::too_many_symbolic_link_levels);
}

TEST_F(DisqueReelPosix, un_dossier_de_programme_a_barre_inverse_ne_se_dit_pas) {
    const auto nomme = dossier.chemin() / "a\\b";
    std::filesystem::create_directory(nomme);
    EXPECT_EQ(common::dossierprogramme(appels, nomme, dossier.chemin()), "");
}

}  // namespace
}  // namespace test_disquereel_posix
