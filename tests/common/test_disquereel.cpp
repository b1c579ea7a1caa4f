#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "disquereel.h"
#include "dossiertemporaire.h"

namespace test_disquereel {
namespace {

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

/// Appends when the light is green; says when it is about to.
int ajouterauvert(const essais::Mots& mots) {
    const auto racine = common::chemin(mots[0]);
    essais::AppelsPatients patients;
    common::DisqueReel patient(racine, patients);
    essais::attendrefichier(racine / "feu");
    return patient.ajouter("f.txt", "C\r\n") ? 1 : 0;
}

TEST_F(DisqueReel, un_ajout_suit_le_fichier_qu_un_autre_programme_remplace) {
    dossier.ecrire("f.txt", "A\r\n");
    essais::Enfant autre(ajouterauvert, {dossier.chemin().string()});
    std::unique_ptr<common::Verrou> verrou;
    EXPECT_FALSE(disque.verrouiller("f.txt", verrou));
    dossier.ecrire("feu", "");
    EXPECT_FALSE(disque.remplacer("f.txt", "B\r\n"));
    verrou.reset();
    EXPECT_EQ(autre.attendre(), 0);
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

constexpr int ajouts = 50;

std::string lignede(int programme) {
    return std::string(3000, static_cast<char>('a' + programme)) + "\r\n";
}

int ajouterlignes(const essais::Mots& mots) {
    essais::AppelsPatients patients;
    common::DisqueReel patient(common::chemin(mots[0]), patients);
    bool bon = true;
    for (int i = 0; i < ajouts; ++i)
        bon = bon && !patient.ajouter("f.txt", lignede(std::stoi(mots[1])));
    return bon ? 0 : 1;
}

TEST_F(DisqueReel, deux_programmes_qui_ajoutent_ensemble_ne_se_coupent_pas) {
    const auto racine = dossier.chemin().string();
    essais::Enfant un(ajouterlignes, {racine, "0"});
    essais::Enfant deux(ajouterlignes, {racine, "1"});
    EXPECT_EQ(un.attendre(), 0);
    EXPECT_EQ(deux.attendre(), 0);
    const auto octets = dossier.lire("f.txt");
    const auto taille = lignede(0).size();
    ASSERT_EQ(octets.size(), taille * 2 * ajouts);
    for (std::size_t i = 0; i < octets.size(); i += taille)
        ASSERT_EQ(octets.substr(i, taille), lignede(octets[i] - 'a'));
}

int tenirtantqu(const essais::Mots& mots) {
    const auto racine = common::chemin(mots[0]);
    common::DisqueReel disque(racine);
    std::unique_ptr<common::Verrou> verrou;
    if (disque.verrouiller("f.txt", verrou) || disque.remplacer("tenu", ""))
        return 1;
    essais::attendrefichier(racine / "mort");
    essais::mourir();
    return 0;
}

TEST_F(DisqueReel, le_verrou_d_un_programme_tue_tombe_avec_lui) {
    dossier.ecrire("f.txt", "A\r\n");
    essais::Enfant autre(tenirtantqu, {dossier.chemin().string()});
    essais::attendrefichier(dossier.chemin() / "tenu");
    EXPECT_EQ(disque.ajouter("f.txt", "B\r\n"), common::Ennui::Retenu);
    EXPECT_EQ(appels.attendu, 5000);
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(disque.ouvrir("f.txt", flux));
    dossier.ecrire("mort", "");
    EXPECT_EQ(autre.attendre(), essais::tue);
    essais::AppelsPatients patients;
    flux.reset();
    EXPECT_FALSE(common::DisqueReel(dossier.chemin(), patients).ajouter("f.txt", "B\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\nB\r\n");
}

/// A disk with room for so many bytes.
class Disqueplein : public essais::AppelsDessai {
  public:
    explicit Disqueplein(std::size_t place) : place_(place) {}
    std::error_code ecrire(common::Poignee poignee, std::string_view octets,
                           std::size_t& ecrits) override {
        if (place_ == 0)
            return std::make_error_code(std::errc::no_space_on_device);
        const auto erreur = AppelsDessai::ecrire(poignee, octets.substr(0, place_), ecrits);
        place_ -= ecrits;
        return erreur;
    }

  private:
    std::size_t place_;
};

TEST_F(DisqueReel, un_disque_plein_laisse_l_ancien_et_rien_d_autre) {
    dossier.ecrire("f.txt", "ancien\r\n");
    for (const std::size_t place : {0U, 1U, 9U}) {
        Disqueplein plein(place);
        common::DisqueReel etroit(dossier.chemin(), plein);
        EXPECT_EQ(etroit.ajouter("f.txt", "suite\r\n"), std::errc::no_space_on_device);
        EXPECT_EQ(etroit.remplacer("f.txt", "tout autre\r\n"), std::errc::no_space_on_device);
        EXPECT_EQ(etroit.deposer("f.txt", std::string(20, 'x')), std::errc::no_space_on_device);
        EXPECT_EQ(etroit.ajouter("g.txt", std::string(20, 'x')), std::errc::no_space_on_device);
        EXPECT_EQ(dossier.lire("f.txt"), "ancien\r\n");
        EXPECT_EQ(dossier.noms(), std::vector<std::string>{"f.txt"});
    }
}

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
    flux.reset();  // not every disk replaces a file that is being read
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

TEST_F(DisqueReel, le_reste_d_un_programme_disparu_s_ote_a_la_prochaine_ecriture) {
    dossier.ecrire("f.txt.1234.tmp", "A");
    dossier.ecrire("f.txt." + std::to_string(appels.programme()) + ".tmp", "A");
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
}  // namespace test_disquereel
