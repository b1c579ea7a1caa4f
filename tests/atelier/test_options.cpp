#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "options.h"

namespace test_options {
namespace {

using namespace atelier;
using testing::HasSubstr;

using Arguments = std::vector<std::string>;

TEST(Options, fabriquer_avec_tout) {
    const Arguments arguments{"--sortie",     "dossier été", "--lexique",    "d.dic",
                              "--affixes",    "a.aff",       "--thesaurus",  "t.dat",
                              "--mots",       "m.txt",       "--nouveautes", "2012=a.txt,b.txt",
                              "--sans-ajouts"};
    const auto lues = lireoptions(arguments);
    EXPECT_EQ(lues.commande, Commande::fabriquer);
    EXPECT_EQ(lues.cible, "dossier été");
    EXPECT_EQ(lues.chemins.lexique, "d.dic");
    EXPECT_EQ(lues.chemins.affixes, "a.aff");
    EXPECT_EQ(lues.chemins.thesaurus, "t.dat");
    EXPECT_EQ(lues.mots, "m.txt");
    EXPECT_FALSE(lues.chemins.ajouts);
    EXPECT_FALSE(lues.comparaisons[0].has_value());
    ASSERT_TRUE(lues.comparaisons[1].has_value());
    EXPECT_EQ(lues.comparaisons[1]->ancienne, "a.txt");
    EXPECT_EQ(lues.comparaisons[1]->nouvelle, "b.txt");
}

struct Commandes {
    const char* nom;
    Arguments arguments;
    Commande commande;
    const char* cible;
};
void PrintTo(const Commandes& c, std::ostream* os) {
    *os << c.nom;
}
class Choix : public testing::TestWithParam<Commandes> {};
TEST_P(Choix, de_la_commande) {
    const auto lues = lireoptions(GetParam().arguments);
    EXPECT_EQ(lues.commande, GetParam().commande);
    EXPECT_EQ(lues.cible, GetParam().cible);
    EXPECT_FALSE(lues.chemins.lexique.empty());
}
INSTANTIATE_TEST_SUITE_P(
    Options, Choix,
    testing::Values(Commandes{"verifier", {"--verifier", "d"}, Commande::verifier, "d"},
                    Commandes{"decrire_tout", {"--decrire"}, Commande::decrire, ""},
                    Commandes{"decrire_une", {"--decrire", "7v5"}, Commande::decrire, "7v5"},
                    Commandes{"decrire_tout_d_un_autre",
                              {"--decrire", "--lexique", "x"},
                              Commande::decrire,
                              ""},
                    Commandes{"aide", {"--help"}, Commande::aide, ""},
                    Commandes{"version", {"--version"}, Commande::version, ""}),
    [](const auto& rangee) { return rangee.param.nom; });

struct Mauvaise {
    const char* nom;
    Arguments arguments;
    const char* ennui;
};
void PrintTo(const Mauvaise& m, std::ostream* os) {
    *os << m.nom;
}
class Mauvaises : public testing::TestWithParam<Mauvaise> {};
TEST_P(Mauvaises, sont_dites) {
    try {
        std::ignore = lireoptions(GetParam().arguments);
        FAIL() << "pas de faute";
    } catch (const MauvaisUsage& usage) {
        EXPECT_THAT(usage.what(), HasSubstr(GetParam().ennui));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Options, Mauvaises,
    testing::Values(
        Mauvaise{"rien", {}, "Il manque"}, Mauvaise{"sans_commande", {"--mots", "m"}, "Il manque"},
        Mauvaise{"sortie_sans_dossier", {"--sortie"}, "--sortie attend une valeur"},
        Mauvaise{"sortie_vide", {"--sortie", ""}, "--sortie attend une valeur"},
        Mauvaise{"option_pour_valeur", {"--sortie", "--mots", "m"}, "--sortie attend une valeur"},
        Mauvaise{"inconnue", {"--sortie", "d", "--foo"}, "Option inconnue : --foo"},
        Mauvaise{"argument_nu", {"dossier"}, "Option inconnue : dossier"},
        Mauvaise{"deux_commandes", {"--help", "--version"}, "Une seule commande"},
        Mauvaise{"annee", {"--sortie", "d", "--nouveautes", "2020=a,b"}, "« 2020 »"},
        Mauvaise{"sans_egal", {"--sortie", "d", "--nouveautes", "2012"}, "ANNEE=ANCIENNE"},
        Mauvaise{"une_edition", {"--sortie", "d", "--nouveautes", "2012=a"}, "ANNEE=ANCIENNE"},
        Mauvaise{"edition_vide", {"--sortie", "d", "--nouveautes", "2012=,b"}, "ANNEE=ANCIENNE"},
        Mauvaise{"edition_vide_2", {"--sortie", "d", "--nouveautes", "2012=a,"}, "ANNEE=ANCIENNE"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Options, l_aide_nomme_chaque_option) {
    for (const auto* option : {"--sortie", "--verifier", "--decrire", "--help", "--version",
                               "--lexique", "--affixes", "--thesaurus", "--mots", "--nouveautes"})
        EXPECT_THAT(aide(), HasSubstr(option));
}

}  // namespace
}  // namespace test_options
