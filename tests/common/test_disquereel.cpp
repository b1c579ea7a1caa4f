#include <csignal>
#include <string>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <gmock/gmock.h>

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
    common::DisqueReel disque{dossier.chemin()};
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
        ::_exit(parti && !disque.ajouter("f.txt", "C\r\n") ? 0 : 1);
    }
    auto verrou = disque.verrouiller("f.txt");
    EXPECT_NE(verrou, nullptr);
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

TEST_F(DisqueReel, ce_qui_manque_ne_se_verrouille_pas) {
    EXPECT_EQ(disque.verrouiller("f.txt"), nullptr);
    EXPECT_FALSE(disque.existe("f.txt"));
    EXPECT_FALSE(disque.creerdossier("d"));
    EXPECT_NE(disque.verrouiller("d"), nullptr);
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
    constexpr int ajouts = 200;
    const auto ligne = [](int programme) {
        return std::string(3000, static_cast<char>('a' + programme)) + "\r\n";
    };
    for (int programme = 0; programme < programmes; ++programme) {
        if (::fork() != 0)
            continue;
        bool bon = true;
        for (int i = 0; i < ajouts; ++i)
            bon = bon && !disque.ajouter("f.txt", ligne(programme));
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

}  // namespace
