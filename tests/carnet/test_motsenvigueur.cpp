#include <gmock/gmock.h>

#include "arguments.h"
#include "chemin.h"
#include "motsenvigueur.h"
#include "petitchantier.h"
#include "processus.h"

namespace test_motsenvigueur {
namespace {

using namespace carnet;
using testing::HasSubstr;

class Envigueurlu : public testing::Test {
  protected:
    std::variant<Motsenvigueur, std::string> lus(const atelier::Chemins& chemins = {"nul", "nul",
                                                                                    "nul"}) {
        return lire(disque, chemins);
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Envigueurlu, les_mots_du_dossier_se_lisent_sans_le_lexique) {
    ASSERT_TRUE(fabriquer(essais::petitschemins(), essais::perso({"NEZ", "WOK"}), dossier.chemin(),
                          essais::continuer));
    const auto mots = std::get<Motsenvigueur>(lus());
    EXPECT_EQ(mots.glossaire->fiches().size(), 2U);
    EXPECT_EQ(mots.envigueur.fichier, "miens.txt");
    EXPECT_EQ(mots.envigueur.mots, 2U);
}

TEST_F(Envigueurlu, un_dossier_sans_mots_prend_ceux_du_lexique_libre) {
    const auto mots = std::get<Motsenvigueur>(lus(essais::petitschemins()));
    EXPECT_EQ(mots.glossaire->fiches().size(), 17U);
    EXPECT_TRUE(mots.envigueur.libre());
}

TEST_F(Envigueurlu, sans_mots_ni_lexique_on_dit_pourquoi) {
    EXPECT_THAT(std::get<std::string>(lus()), HasSubstr("nul"));
}

TEST_F(Envigueurlu, un_dictionnaire_abime_ne_devient_pas_le_lexique_libre) {
    ASSERT_TRUE(fabriquer(essais::petitschemins(), essais::perso({"NEZ", "WOK"}), dossier.chemin(),
                          essais::continuer));
    dossier.ecrire("listes/mots.dat", "ORVMOTS1 rien");
    EXPECT_THAT(std::get<std::string>(lus(essais::petitschemins())), HasSubstr("Refaites"));
}

TEST(Arguments, nomment_le_dossier_et_les_sources) {
    const std::vector<std::string> mots{"--dossier", "jeu été", "--lexique", "d", "--sans-ajouts"};
    const auto options = lireoptions(mots);
    EXPECT_EQ(options.dossier, common::chemin("jeu été"));
    EXPECT_EQ(options.chemins.lexique, "d");
    EXPECT_FALSE(options.chemins.ajouts);
    EXPECT_TRUE(lireoptions(std::vector<std::string>{}).chemins.ajouts);
    EXPECT_EQ(options.action, Action::fenetre);
    EXPECT_EQ(lireoptions(std::vector<std::string>{"--help"}).action, Action::aide);
    for (const auto& faux : {std::vector<std::string>{"--dossier"},
                             {"--dossier", ""},
                             {"--nul"},
                             {"jeu"},
                             {"--dossier", "--help"}})
        EXPECT_THROW((void)lireoptions(faux), MauvaisUsage);
}

int statut(const essais::Mots& arguments) {
    const essais::DossierTemporaire dossier;
    return essais::lancer(ORVANE_CARNET, arguments, dossier.chemin()).etat;
}

TEST(Programmecarnet, finit_par_le_statut_de_ce_qu_on_lui_demande) {
    EXPECT_EQ(statut({"--help"}), 0);
    EXPECT_EQ(statut({"--version"}), 0);
    EXPECT_EQ(statut({"--nul"}), 2);
    EXPECT_EQ(statut({"--dossier", "/nulle/part"}), 1);
}

}  // namespace
}  // namespace test_motsenvigueur
