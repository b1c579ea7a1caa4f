// Temporary files on disks that lack a call: without modes, without a naming that refuses a taken
// name, without second names.

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "provisoire.h"

namespace test_provisoire {
namespace {

/// A disk some of whose calls answer with an error.
class Disquepauvre : public essais::AppelsDessai {
  public:
    std::error_code sansmodes{};  ///< the answer of `changerdroits`
    bool sansrefus = false;       ///< `nommer` is unknown
    bool sansdoubles = false;     ///< and so are second names
    bool suppressionrefusee = false;
    std::uint32_t droits = 0;  ///< of the files that have a name; 0: what they are

    using AppelsDessai::etat;
    std::error_code etat(const Chemin& chemin, common::Etat& etat) override {
        const auto erreur = AppelsDessai::etat(chemin, etat);
        if (droits != 0)
            etat.droits = droits;
        return erreur;
    }
    std::error_code changerdroits(common::Poignee poignee, std::uint32_t demandes) override {
        const auto erreur = AppelsDessai::changerdroits(poignee, demandes);
        return sansmodes ? sansmodes : erreur;
    }
    std::error_code nommer(const Chemin& ancien, const Chemin& nouveau) override {
        return sansrefus ? std::make_error_code(std::errc::invalid_argument)
                         : AppelsDessai::nommer(ancien, nouveau);
    }
    std::error_code doubler(const Chemin& ancien, const Chemin& nouveau) override {
        return sansdoubles ? std::make_error_code(std::errc::operation_not_permitted)
                           : AppelsDessai::doubler(ancien, nouveau);
    }
    std::error_code supprimer(const Chemin& chemin) override {
        return suppressionrefusee ? std::make_error_code(std::errc::io_error)
                                  : AppelsDessai::supprimer(chemin);
    }
};

class Provisoire : public testing::Test {
  protected:
    [[nodiscard]] std::ptrdiff_t place(std::string_view appel) const {
        return std::find(appels.journal.begin(), appels.journal.end(), appel) -
               appels.journal.begin();
    }
    [[nodiscard]] bool appele(std::string_view appel) const {
        return place(appel) != std::ssize(appels.journal);
    }
    essais::DossierTemporaire dossier;
    Disquepauvre appels;
    common::DisqueReel disque{dossier.chemin(), appels};
    const std::vector<std::string> seul{"f.txt"};
};

TEST_F(Provisoire, un_disque_sans_modes_s_ecrit) {
    dossier.ecrire("f.txt", "A");
    appels.droits = 0604;
    for (const auto sans : {std::errc::not_supported, std::errc::operation_not_supported,
                            std::errc::function_not_supported}) {
        appels.sansmodes = std::make_error_code(sans);
        EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    }
    EXPECT_EQ(dossier.lire("f.txt"), "B");
}

TEST_F(Provisoire, un_mode_refuse_est_un_echec_et_ne_change_rien) {
    dossier.ecrire("f.txt", "A");
    appels.droits = 0604;
    appels.sansmodes = std::make_error_code(std::errc::operation_not_permitted);
    EXPECT_EQ(disque.remplacer("f.txt", "B"), std::errc::operation_not_permitted);
    EXPECT_EQ(dossier.lire("f.txt"), "A");
    EXPECT_EQ(dossier.noms(), seul);
}

TEST_F(Provisoire, un_mode_qui_convient_n_est_pas_demande) {
    EXPECT_FALSE(disque.remplacer("f.txt", "A"));
    appels.sansmodes = std::make_error_code(std::errc::operation_not_permitted);
    EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    EXPECT_EQ(dossier.lire("f.txt"), "B");
}

TEST_F(Provisoire, le_mode_vient_avant_les_octets) {
    dossier.ecrire("f.txt", "A");
    appels.droits = 0600;
    appels.journal.clear();
    EXPECT_FALSE(disque.remplacer("f.txt", "B"));
    ASSERT_TRUE(appele("changerdroits"));
    EXPECT_LT(place("changerdroits"), place("ecrire"));
}

TEST_F(Provisoire, sans_refus_d_un_nom_pris_un_second_nom_le_fait) {
    appels.sansrefus = true;
    EXPECT_FALSE(disque.ajouter("f.txt", "A\r\n"));
    EXPECT_TRUE(appele("doubler"));
    EXPECT_EQ(dossier.noms(), seul);
    auto cible = dossier.chemin() / "f.txt";
    EXPECT_EQ(common::poser(appels, cible, "B", true), std::errc::file_exists);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    EXPECT_EQ(dossier.noms(), seul);
}

TEST_F(Provisoire, sans_seconds_noms_un_nom_pris_est_refuse_aussi) {
    appels.sansrefus = true;
    appels.sansdoubles = true;
    EXPECT_FALSE(disque.ajouter("f.txt", "A\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    auto cible = dossier.chemin() / "f.txt";
    EXPECT_EQ(common::poser(appels, cible, "B", true), std::errc::file_exists);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    EXPECT_EQ(dossier.noms(), seul);
}

TEST_F(Provisoire, un_premier_nom_qui_reste_n_est_pas_un_echec) {
    appels.sansrefus = true;
    appels.suppressionrefusee = true;
    EXPECT_FALSE(disque.ajouter("f.txt", "A\r\n"));
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    EXPECT_EQ(dossier.noms().size(), 2U);
}

/// Killed before each of its changes, an append leaves nothing, or the whole file; and its next
/// one, which holds the file while it sweeps, leaves nothing else.
TEST_F(Provisoire, tue_entre_ses_deux_noms_il_laisse_l_avant_ou_l_apres) {
    appels.sansrefus = true;
    bool deuxnoms = false;
    int rang = 1;
    for (int statut = essais::tue; statut == essais::tue; ++rang) {
        SCOPED_TRACE(rang);
        std::filesystem::remove(dossier.chemin() / "f.txt");
        statut = essais::encopie([&] {
            appels.prevoir(essais::Panne::Avant, rang);
            return disque.ajouter("f.txt", "A\r\n") ? 1 : 0;
        });
        appels.prevoir(essais::Panne::Aucune, 0);  // for this program, if it was no copy
        const bool fait = disque.existe("f.txt");
        EXPECT_EQ(dossier.lire("f.txt"), fait ? "A\r\n" : "");
        deuxnoms = deuxnoms || (fait && dossier.noms().size() == 2U);
        EXPECT_FALSE(disque.ajouter("f.txt", "B\r\n"));
        EXPECT_EQ(dossier.lire("f.txt"), fait ? "A\r\nB\r\n" : "B\r\n");
        EXPECT_EQ(dossier.noms(), seul);
    }
    EXPECT_TRUE(deuxnoms);
}

}  // namespace
}  // namespace test_provisoire
