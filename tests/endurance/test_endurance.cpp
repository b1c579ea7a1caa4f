// Random sessions of the whole program, each under a seed of its own.

#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "joueur.h"
#include "partie.h"

namespace test_endurance {
namespace {

using endurance::Joueur;
using endurance::Partie;

const std::filesystem::path jeu = ORVANE_JEU;
constexpr std::size_t ordresparpartie = 2500;
constexpr std::size_t derniersordres = 40;

/// What a session is known by when it goes wrong: its seed, its last orders, and a scenario of all
/// its orders that can be played again on the bench.
std::string recit(const Partie& partie, std::uint64_t graine) {
    const auto fichier =
        std::filesystem::path(ORVANE_TRACES) / ("endurance-" + std::to_string(graine) + ".txt");
    std::filesystem::create_directories(fichier.parent_path());
    std::ofstream(fichier) << partie.scenario(partie.ordres());
    std::string texte =
        "graine " + std::to_string(graine) + ", ordre n° " + std::to_string(partie.ordres()) +
        ", scénario entier : " + fichier.string() + "\n" + partie.scenario(derniersordres);
    for (const auto& ennui : partie.constats().ennuis())
        texte += "=> " + ennui + "\n";
    return texte;
}

class Endurances : public testing::TestWithParam<std::uint64_t> {};

TEST_P(Endurances, tout_reste_d_accord) {
    constexpr std::uint64_t ecart = 1000;  // between the seeds of two tests
    std::size_t ordres = 0;
    int series = 0;
    int listes = 0;
    for (std::uint64_t numero = 0; ordres < ordresparpartie; ++numero) {
        const auto graine = GetParam() * ecart + numero;
        Partie partie(jeu);
        Joueur joueur(partie, graine);
        joueur.preparer();
        joueur.jouer(ordresparpartie);
        ASSERT_TRUE(partie.constats().aucun()) << recit(partie, graine);
        ordres += partie.ordres();
        series += partie.series();
        listes += partie.listes();
    }
    // A session that does nothing would find nothing.
    EXPECT_GT(series, 5);
    EXPECT_GT(listes, 2);
}

/// The orders of a session make a scenario that takes the bench to the same screens.
TEST(Endurance, une_seance_se_rejoue) {
    constexpr std::uint64_t graine = 8;
    constexpr std::size_t assez = 600;
    Partie partie(jeu);
    Joueur joueur(partie, graine);
    joueur.preparer();
    joueur.jouer(assez);
    ASSERT_TRUE(partie.constats().aucun()) << recit(partie, graine);
    ASSERT_FALSE(partie.finie());

    fuzz::Machine machine(jeu);
    std::istringstream scenario(partie.scenario(partie.ordres()));
    banc::Lecteur lecteur(scenario);
    banc::Ordre ordre;
    std::size_t ordres = 0;
    for (; lecteur.suivant(ordre); ++ordres)
        ASSERT_EQ(machine.seance.repondre(ordre), "ok") << ordre.nom << " " << ordre.suite;
    EXPECT_EQ(ordres, partie.ordres());
    for (const bool multi : {false, true}) {
        const auto* form = machine.seance.plateforme.bureau.trouver(multi ? "Multi" : "Form1");
        ASSERT_NE(form, nullptr);
        EXPECT_EQ(endurance::Lecteurecran(*form).lire(), partie.ecran(multi));
    }
}

INSTANTIATE_TEST_SUITE_P(, Endurances, testing::Range<std::uint64_t>(1, 60),
                         [](const auto& cas) { return std::to_string(cas.param); });

}  // namespace
}  // namespace test_endurance
