// The command line of the carnet.

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "arguments.h"

namespace test_arguments {
namespace {

using carnet::Action;
using carnet::lireoptions;
using testing::HasSubstr;
using Arguments = std::vector<std::string>;

TEST(Arguments, les_echeances_d_un_joueur) {
    const Arguments arguments{"--dossier", "jeu",        "--echeances", "Zoé",
                              "--jour",    "2019-08-24", "--plafond",   "60"};
    const auto lues = lireoptions(arguments);
    EXPECT_EQ(lues.action, Action::echeances);
    EXPECT_EQ(lues.dossier, "jeu");
    EXPECT_EQ(lues.util, "Zoé");
    EXPECT_EQ(lues.jour, 18132);
    EXPECT_EQ(lues.plafond, 60);
}

TEST(Arguments, aujourd_hui_et_tous_sans_autre_demande) {
    const auto lues = lireoptions(Arguments{"--echeances", "Zoé"});
    EXPECT_EQ(lues.jour, std::nullopt);
    EXPECT_EQ(lues.plafond, std::nullopt);
}

TEST(Arguments, les_progres_d_un_joueur) {
    const auto lues = lireoptions(Arguments{"--progres", "Zoé"});
    EXPECT_EQ(lues.action, Action::progres);
    EXPECT_EQ(lues.util, "Zoé");
}

struct Cas {
    const char* nom;
    Arguments arguments;
    const char* dit;
};
void PrintTo(const Cas& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Mauvaisusages : public testing::TestWithParam<Cas> {};

TEST_P(Mauvaisusages, de_la_ligne_de_commande) {
    try {
        static_cast<void>(lireoptions(GetParam().arguments));
        FAIL() << "no refusal";
    } catch (const carnet::MauvaisUsage& usage) {
        EXPECT_THAT(usage.what(), HasSubstr(GetParam().dit));
    }
}

const Cas lescas[] = {
    {"echeances_sans_joueur", {"--echeances"}, "--echeances attend une valeur"},
    {"progres_suivi_d_une_option", {"--progres", "--jour"}, "--progres attend une valeur"},
    {"deux_demandes", {"--progres", "Zoé", "--echeances", "Zoé"}, "Une seule demande"},
    {"jour_impossible", {"--echeances", "Zoé", "--jour", "2019-02-29"}, "« 2019-02-29 »"},
    {"plafond_trop_grand", {"--echeances", "Zoé", "--plafond", "901"}, "de 1 à 900"},
    {"plafond_nul", {"--echeances", "Zoé", "--plafond", "0"}, "de 1 à 900"},
    {"jour_sans_echeances", {"--progres", "Zoé", "--jour", "2019-02-28"}, "vont avec --echeances"},
    {"plafond_seul", {"--plafond", "3"}, "vont avec --echeances"},
};
INSTANTIATE_TEST_SUITE_P(Arguments, Mauvaisusages, testing::ValuesIn(lescas),
                         [](const auto& cas) { return cas.param.nom; });

}  // namespace
}  // namespace test_arguments
