#include <algorithm>
#include <csignal>
#include <fcntl.h>
#include <grp.h>
#include <string>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"

namespace {

/// No file may grow past a size while this lives, as on a full disk.
class Plafond {
  public:
    explicit Plafond(rlim_t octets) {
        ancienne_ = std::signal(SIGXFSZ, SIG_IGN);
        ::getrlimit(RLIMIT_FSIZE, &avant_);
        auto limite = avant_;
        limite.rlim_cur = octets;
        ::setrlimit(RLIMIT_FSIZE, &limite);
    }
    Plafond(const Plafond&) = delete;
    Plafond& operator=(const Plafond&) = delete;
    ~Plafond() {
        ::setrlimit(RLIMIT_FSIZE, &avant_);
        std::signal(SIGXFSZ, ancienne_);
    }

  private:
    rlimit avant_{};
    void (*ancienne_)(int);
};

class DisqueReel : public testing::Test {
  protected:
    essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
    common::DisqueReel disque{dossier.chemin(), appels};
};

TEST_F(DisqueReel, la_barre_oblique_inverse_separe_les_dossiers) {
    EXPECT_FALSE(disque.creerdossier("été d'hiver"));
    EXPECT_FALSE(disque.remplacer("été d'hiver\\fin août.txt", "x"));
    EXPECT_EQ(dossier.lire("été d'hiver/fin août.txt"), "x");
    EXPECT_TRUE(disque.existe("été d'hiver\\fin août.txt"));
    EXPECT_TRUE(disque.estdossier("été d'hiver"));
    EXPECT_FALSE(disque.estdossier("été d'hiver\\fin août.txt"));
    EXPECT_FALSE(disque.existe("absent"));
}

TEST_F(DisqueReel, ajouter_fait_le_fichier) {
    EXPECT_FALSE(disque.ajouter("f.txt", "A\r\n"));
    EXPECT_FALSE(disque.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

TEST_F(DisqueReel, ajouter_derriere_une_ligne_inachevee_commence_une_ligne) {
    dossier.ecrire("f.txt", "A\r\nB");
    EXPECT_FALSE(disque.ajouter("f.txt", "C\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\nC\r\n");
}

TEST_F(DisqueReel, ajouter_derriere_une_ligne_coupee_entre_CR_et_LF_la_finit) {
    dossier.ecrire("f.txt", "A\r\nB\r");
    EXPECT_FALSE(disque.ajouter("f.txt", "C\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\nC\r\n");
}

TEST_F(DisqueReel, ajouter_rien_ne_finit_pas_une_ligne_inachevee) {
    dossier.ecrire("f.txt", "A");
    EXPECT_FALSE(disque.ajouter("f.txt", ""));
    EXPECT_EQ(dossier.lire("f.txt"), "A");
}

TEST_F(DisqueReel, un_ajout_qui_echoue_laisse_le_fichier_tel_quel) {
    dossier.ecrire("f.txt", "AB;BA\r\n");
    const Plafond plafond(10);
    EXPECT_TRUE(disque.ajouter("f.txt", "CD;DC\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "AB;BA\r\n");
}

TEST_F(DisqueReel, un_premier_ajout_qui_echoue_ne_laisse_pas_de_fichier) {
    {
        const Plafond plafond(2);
        EXPECT_TRUE(disque.ajouter("f.txt", "CD;DC\r\n"));
    }
    EXPECT_FALSE(disque.existe("f.txt"));
}

TEST_F(DisqueReel, un_ajout_suit_le_fichier_qu_un_autre_programme_remplace) {
    dossier.ecrire("f.txt", "A\r\n");
    int feu[2];
    ASSERT_EQ(::pipe(feu), 0);
    const auto pid = ::fork();
    if (pid == 0) {
        char vert = 0;
        const bool parti = ::read(feu[0], &vert, 1) == 1;
        essais::AppelsPatients patients;
        common::DisqueReel patient(dossier.chemin(), patients);
        ::_exit(parti && !patient.ajouter("f.txt", "C\r\n") ? 0 : 1);
    }
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_FALSE(disque.verrouiller("f.txt", verrou));
    EXPECT_EQ(::write(feu[1], "v", 1), 1);
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    verrou.reset();
    int statut = -1;
    ::waitpid(pid, &statut, 0);
    EXPECT_EQ(statut, 0);
    ::close(feu[0]);
    ::close(feu[1]);
    EXPECT_EQ(dossier.lire("f.txt"), "B\r\nC\r\n");
}

TEST_F(DisqueReel, ce_qui_manque_ou_n_est_pas_un_fichier_ne_se_verrouille_pas) {
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_EQ(disque.verrouiller("f.txt", verrou), std::errc::no_such_file_or_directory);
    EXPECT_FALSE(disque.existe("f.txt"));
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_EQ(disque.verrouiller("d", verrou), std::errc::is_a_directory);
    EXPECT_EQ(verrou, nullptr);
}

TEST_F(DisqueReel, un_remplacement_qui_echoue_laisse_l_ancien_et_rien_d_autre) {
    dossier.ecrire("f.txt", "ancien");
    {
        const Plafond plafond(10);
        EXPECT_TRUE(disque.remplacer("f.txt", std::string(100, 'x')));
    }
    EXPECT_EQ(dossier.lire("f.txt"), "ancien");
    int fichiers = 0;
    for ([[maybe_unused]] const auto& fichier :
         std::filesystem::directory_iterator(dossier.chemin()))
        ++fichiers;
    EXPECT_EQ(fichiers, 1);
}

TEST_F(DisqueReel, une_ecriture_sur_un_dossier_ou_dans_un_dossier_absent_echoue) {
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_TRUE(disque.ajouter("d", "x"));
    EXPECT_TRUE(disque.remplacer("d", "x"));
    EXPECT_TRUE(disque.ajouter("absent\\f.txt", "x"));
    EXPECT_TRUE(disque.remplacer("absent\\f.txt", "x"));
    EXPECT_TRUE(disque.estdossier("d"));
}

TEST_F(DisqueReel, un_dossier_ne_s_ouvre_pas_en_lecture) {
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_EQ(disque.ouvrir("d", flux), std::errc::is_a_directory);
    EXPECT_EQ(disque.ouvrir("absent", flux), std::errc::no_such_file_or_directory);
    EXPECT_EQ(flux, nullptr);
}

TEST_F(DisqueReel, creer_un_dossier_qui_existe_et_un_nom_impossible) {
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_TRUE(disque.creerdossier(std::string(300, 'n')));
    dossier.ecrire("f", "");
    EXPECT_TRUE(disque.creerdossier("f"));
}

TEST_F(DisqueReel, renommer_un_dossier_avec_ce_qu_il_tient) {
    EXPECT_FALSE(disque.creerdossier("provisoire"));
    EXPECT_FALSE(disque.remplacer("provisoire\\f.txt", "x"));
    EXPECT_FALSE(disque.renommer("provisoire", "Zoé"));
    EXPECT_EQ(dossier.lire("Zoé/f.txt"), "x");
    EXPECT_FALSE(disque.existe("provisoire"));
    EXPECT_TRUE(disque.renommer("provisoire", "autre"));
}

TEST_F(DisqueReel, supprimer_un_fichier_et_rien) {
    dossier.ecrire("f.txt", "x");
    EXPECT_FALSE(disque.supprimer("f.txt"));
    EXPECT_FALSE(disque.existe("f.txt"));
    EXPECT_EQ(disque.supprimer("f.txt"), std::errc::no_such_file_or_directory);
}

TEST_F(DisqueReel, deux_programmes_qui_ajoutent_ensemble_ne_se_coupent_pas) {
    constexpr int programmes = 2;
    constexpr int ajouts = 50;
    const auto ligne = [](int programme) {
        return std::string(3000, static_cast<char>('a' + programme)) + "\r\n";
    };
    for (int programme = 0; programme < programmes; ++programme) {
        if (::fork() != 0)
            continue;
        bool bon = true;
        essais::AppelsPatients patients;
        common::DisqueReel patient(dossier.chemin(), patients);
        for (int i = 0; i < ajouts; ++i)
            bon = bon && !patient.ajouter("f.txt", ligne(programme));
        ::_exit(bon ? 0 : 1);
    }
    for (int programme = 0; programme < programmes; ++programme) {
        int statut = -1;
        ::wait(&statut);
        EXPECT_EQ(statut, 0);
    }
    const auto octets = dossier.lire("f.txt");
    const auto taille = ligne(0).size();
    ASSERT_EQ(octets.size(), taille * programmes * ajouts);
    for (std::size_t i = 0; i < octets.size(); i += taille)
        ASSERT_EQ(octets.substr(i, taille), ligne(octets[i] - 'a'));
}

/// A FIFO, a socket or a device in the place of a file.
class Faux : public DisqueReel, public testing::WithParamInterface<const char*> {
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
class Retenu : public DisqueReel, public testing::WithParamInterface<int> {
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

/// Another program's lease, which a file server takes: opening is refused until it is given back.
class Bail : public essais::AppelsDessai {
  public:
    explicit Bail(std::int64_t duree) : duree_(duree) {}
    std::error_code ouvrir(const Chemin& chemin, common::Ouverture mode,
                           common::Poignee& poignee) override {
        if (attendu < duree_)
            return std::make_error_code(std::errc::operation_would_block);
        return AppelsDessai::ouvrir(chemin, mode, poignee);
    }

  private:
    std::int64_t duree_;
};

TEST_F(DisqueReel, un_bail_qui_se_rend_est_attendu) {
    dossier.ecrire("f.txt", "A\r\n");
    Bail bail(100);
    common::DisqueReel loue(dossier.chemin(), bail);
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(loue.ouvrir("f.txt", flux));
    EXPECT_EQ(bail.attendu, 100);
    EXPECT_FALSE(loue.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

TEST_F(DisqueReel, un_bail_qui_ne_se_rend_pas_se_dit_au_bout_de_cinq_secondes) {
    dossier.ecrire("f.txt", "A\r\n");
    Bail bail(1'000'000);
    common::DisqueReel loue(dossier.chemin(), bail);
    std::unique_ptr<common::Flux> flux;
    EXPECT_EQ(loue.ouvrir("f.txt", flux), common::Ennui::Retenu);
    EXPECT_EQ(bail.attendu, 5000);
    EXPECT_EQ(loue.ajouter("f.txt", "B\r\n"), common::Ennui::Retenu);
    EXPECT_EQ(bail.attendu, 10000);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
}

TEST_F(DisqueReel, une_ecriture_courte_se_poursuit) {
    const auto octets = std::string(10'000, 'x') + "\r\n";
    appels.bouchee = 7;
    EXPECT_FALSE(disque.remplacer("f.txt", octets));
    EXPECT_EQ(dossier.lire("f.txt"), octets);
    EXPECT_FALSE(disque.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), octets + "B\r\n");
    EXPECT_GT(std::count(appels.journal.begin(), appels.journal.end(), "ecrire"), 1400);
}

TEST_F(DisqueReel, les_octets_puis_le_nom_sont_mis_a_l_abri) {
    appels.journal.clear();
    EXPECT_FALSE(disque.remplacer("f.txt", "A"));
    const auto place = [&](std::string_view nom) {
        return std::find(appels.journal.begin(), appels.journal.end(), nom) -
               appels.journal.begin();
    };
    EXPECT_LT(place("ecrire"), place("synchroniser"));
    EXPECT_LT(place("synchroniser"), place("renommer"));
    EXPECT_EQ(appels.journal.back(), "synchroniserdossier");
}

TEST_F(DisqueReel, un_fichier_remplace_garde_son_mode) {
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

TEST_F(DisqueReel, le_fichier_d_un_autre_garde_son_groupe) {
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
    EXPECT_EQ(essais::enfant([&] {
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

TEST_F(DisqueReel, un_lien_reste_et_ce_qu_il_designe_change) {
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

TEST_F(DisqueReel, des_liens_en_rond_se_disent) {
    std::filesystem::create_symlink("g.txt", dossier.chemin() / "f.txt");
    std::filesystem::create_symlink("f.txt", dossier.chemin() / "g.txt");
    EXPECT_EQ(disque.remplacer("f.txt", "A"), std::errc::too_many_symbolic_link_levels);
}

TEST_F(DisqueReel, le_reste_d_un_programme_disparu_s_ote_a_la_prochaine_ecriture) {
    dossier.ecrire("f.txt.1234.tmp", "A");
    dossier.ecrire("f.txt." + std::to_string(::getpid()) + ".tmp", "A");
    const std::vector<std::string> autres{"f.txt", "f.txt.tmp", "f.txt.x.tmp", "g.txt.12.tmp"};
    for (const auto& nom : autres)
        dossier.ecrire(nom, "A");
    EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    EXPECT_EQ(dossier.noms(), autres);
    EXPECT_EQ(dossier.lire("f.txt"), "B");
}

TEST_F(DisqueReel, le_fichier_d_un_programme_au_travail_reste) {
    dossier.ecrire("f.txt.1234.tmp", "A");
    common::DisqueReel autre(dossier.chemin());
    std::unique_ptr<common::Verrou> verrou;
    ASSERT_FALSE(autre.verrouiller("f.txt.1234.tmp", verrou));
    EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    EXPECT_EQ(dossier.noms(), (std::vector<std::string>{"f.txt", "f.txt.1234.tmp"}));
}

TEST_F(DisqueReel, un_disque_sans_verrous_s_ecrit_et_n_ote_rien) {
    class Sansverrous : public essais::AppelsDessai {
        std::error_code verrouiller(common::Poignee /*poignee*/, bool& /*pris*/) override {
            return std::make_error_code(std::errc::no_lock_available);
        }
    } sans;
    common::DisqueReel nu(dossier.chemin(), sans);
    dossier.ecrire("f.txt", "A\r\n");
    dossier.ecrire("f.txt.1234.tmp", "A");
    EXPECT_FALSE(nu.ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
    EXPECT_EQ(dossier.noms(), (std::vector<std::string>{"f.txt", "f.txt.1234.tmp"}));
}

}  // namespace
