#include <set>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "faute.h"
#include "petitlexique.h"
#include "retouches.h"

namespace test_retouches {
namespace {

using namespace atelier;
using testing::AllOf;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;

std::vector<std::string> mots(const Lexique& lexique) {
    std::set<Capitales> differents;
    for (const auto& forme : lexique.formes)
        differents.insert(forme.mot);
    std::vector<std::string> textes;
    for (const auto& mot : differents)
        textes.emplace_back(mot.texte());
    return textes;
}

const std::string lignes =
    "jouer/a0p+() po:v1_it____a\n"
    "rétro/S.() po:nom is:mas\n"
    "retro po:adv\n"
    "bic/S.() po:nom is:mas\n"
    "nager/a0p.() po:v1_i_____a\n";

struct Ecart {
    const char* nom;
    const char* texte;
    std::vector<std::string> partis;
};
void PrintTo(const Ecart& ecart, std::ostream* os) {
    *os << ecart.nom;
}
class Ecartes : public testing::TestWithParam<Ecart> {};
TEST_P(Ecartes, s_entendent_par_lemme_accentue_et_par_nature) {
    auto attendus = mots(essais::lexique(lignes, {}, {}));
    for (const auto& parti : GetParam().partis)
        std::erase(attendus, parti);
    EXPECT_THAT(mots(essais::lexique(lignes, {}, Retouches(GetParam().texte, {}, {}))),
                ElementsAreArray(attendus));
}
INSTANTIATE_TEST_SUITE_P(
    Retouches, Ecartes,
    testing::Values(
        Ecart{"sans_l_accent", "retro inv\n", {}},
        Ecart{"avec_l_accent", "rétro nom\n", {"RETROS"}},
        Ecart{"les_deux", "retro inv\nrétro nom\n", {"RETRO", "RETROS"}},
        Ecart{"autre_nature", "rétro adj\nbic verbe\n", {}},
        Ecart{"plusieurs_natures", "# rien\n\n  bic  inv nom # stylo\n", {"BIC", "BICS"}}),
    [](const auto& rangee) { return rangee.param.nom; });

struct Forme {
    const char* nom;
    const char* ligne;
    std::vector<std::string> mots;
};
void PrintTo(const Forme& forme, std::ostream* os) {
    *os << forme.nom;
}
class Ajouts : public testing::TestWithParam<Forme> {};
TEST_P(Ajouts, donnent_ces_mots) {
    auto lus = mots(essais::lexique(lignes, {}, Retouches({}, GetParam().ligne, {})));
    for (const auto& ancien : mots(essais::lexique(lignes, {}, {})))
        std::erase(lus, ancien);
    EXPECT_THAT(lus, testing::UnorderedElementsAreArray(GetParam().mots));
}
INSTANTIATE_TEST_SUITE_P(
    Retouches, Ajouts,
    testing::Values(Forme{"nom", "aa nom # lave\n", {"AA", "AAS"}},
                    Forme{"nom_en_x", "cox nom\n", {"COX"}},
                    Forme{"nom_en_s", "jass nom\n", {"JASS"}},
                    Forme{"nom_en_z", "ruz nom\n", {"RUZ"}},
                    Forme{"nom_invariable", "vip nom inv\n", {"VIP"}},
                    Forme{"nom_a_pluriel", "ksar nom ksour\n", {"KSAR", "KSOUR"}},
                    Forme{"adjectif", "pec adj\n", {"PEC", "PECS"}},
                    Forme{"adjectif_invariable", "in adj inv\n", {"IN"}},
                    Forme{"adjectif_a_feminin",
                          "gavot adj gavotte\n",
                          {"GAVOT", "GAVOTS", "GAVOTTE", "GAVOTTES"}},
                    Forme{"invariable", "bé inv\n", {"BE"}}, Forme{"ligature", "œ inv\n", {"OE"}},
                    Forme{"verbe",
                          "mazer verbe jouer\n",
                          {"MAZER", "MAZANT", "MAZE", "MAZEE", "MAZEZ", "MAZONS"}},
                    Forme{"verbe_a_participe_invariable",
                          "mazer verbe nager\n",
                          {"MAZER", "MAZE", "MAZEZ", "MAZANT", "MAZONS"}},
                    Forme{"deja_connu", "bic nom\n", {}},
                    Forme{"plusieurs", "aa nom\nbé inv\n", {"AA", "AAS", "BE"}}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Retouches, un_ajout_a_la_nature_et_le_nombre_que_sa_ligne_dit) {
    const Vocabulaire v(
        essais::lexique(lignes, {}, Retouches({}, "aa nom\nin inv\nhajj nom inv\n", {})),
        std::nullopt);
    EXPECT_TRUE(v.chercher("AA")->entree);
    EXPECT_TRUE(v.chercher("AAS")->plurielevident);
    EXPECT_TRUE(
        v.une(*v.chercher("IN"), [](const Lecture& l) { return l.nature == Nature::autre; }));
    EXPECT_TRUE(v.une(*v.chercher("HAJJ"),
                      [](const Lecture& l) { return l.aunnombre(Nombre::invariable); }));
}

TEST(Retouches, un_verbe_ajoute_a_le_groupe_et_les_participes_de_son_modele) {
    const auto lus = essais::lexique(lignes, {}, Retouches({}, "mazer verbe nager\n", {}));
    EXPECT_EQ(lus.lemmes.back().texte, "mazer");
    EXPECT_TRUE(lus.lemmes.back().participesinvariables());
    EXPECT_EQ(lus.formes.back().lecture.code.groupe, '1');
}

TEST(Retouches, un_verbe_ajoute_dont_le_modele_manque_est_une_faute_qui_dit_sa_ligne) {
    const Retouches ajouts({}, "# verbes\naa nom\nmazer verbe gazer\n", {});
    try {
        static_cast<void>(essais::lexique(lignes, {}, ajouts));
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(),
                    testing::HasSubstr("« ajouts.txt », ligne 3 : « gazer » n'est pas "
                                       "un verbe du lexique"));
    }
}

TEST(Retouches, un_lemme_refuse_ne_garde_que_les_formes_dites) {
    const Retouches refus({}, {}, "[refus]\nbic\njouer jouer jouée\n");
    EXPECT_THAT(
        mots(essais::lexique("bic/S.() po:nom is:mas\njouer/a0p+() po:v1_it____a\n", {}, refus)),
        ElementsAre("JOUEE", "JOUER"));
}

TEST(Retouches, une_injure_reste_un_mot) {
    const auto lus =
        essais::lexique(lignes, {}, Retouches({}, {}, "[injures]\nrétro\n[refus]\nbic\n"));
    EXPECT_THAT(mots(lus), testing::IsSupersetOf({"RETRO", "RETROS"}));
    for (const auto& lemme : lus.lemmes)
        EXPECT_EQ(lemme.injurieux, lemme.texte == "rétro") << lemme.texte;
}

struct Casse {
    const char* nom;
    const char* ecartes;
    const char* ajouts;
    const char* exclus;
    const char* rapport;
    const char* ennui;
};
void PrintTo(const Casse& casse, std::ostream* os) {
    *os << casse.nom;
}
class RetouchesCassees : public testing::TestWithParam<Casse> {};
TEST_P(RetouchesCassees, sont_une_faute_avec_fichier_et_ligne) {
    const auto& casse = GetParam();
    try {
        const Retouches lues(casse.ecartes, casse.ajouts, casse.exclus);
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), AllOf(HasSubstr(casse.rapport), HasSubstr(casse.ennui)));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Retouches, RetouchesCassees,
    testing::Values(
        Casse{"ecart_sans_nature", "ab\n", "", "", "« ecartes.txt », ligne 1", "ce qu'il est"},
        Casse{"ecart_de_nature_inconnue", "#\nab adverbe\n", "", "", "« ecartes.txt », ligne 2",
              "« adverbe »"},
        Casse{"ajout_sans_nature", "", "aa\n", "", "« ajouts.txt », ligne 1", "nom, adj"},
        Casse{"ajout_en_capitales", "", "AA nom\n", "", "« ajouts.txt », ligne 1", "minuscules"},
        Casse{"ajout_trop_long", "", "aa nom aas aax\n", "", "« ajouts.txt », ligne 1", "de trop"},
        Casse{"verbe_sans_modele", "", "mazer verbe\n", "", "« ajouts.txt », ligne 1",
              "minuscules"},
        Casse{"pluriel_casse", "", "aa nom a-s\n", "", "« ajouts.txt », ligne 1", "« a-s »"},
        Casse{"exclu_sans_titre", "", "", "bic\n", "« exclus.txt », ligne 1", "[injures]"},
        Casse{"forme_cassee", "", "", "[refus]\nbic BIC\n", "« exclus.txt », ligne 2", "« BIC »"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Retouches, celles_du_programme_se_lisent) {
    EXPECT_TRUE(retouches().ecarte("œconomicus", Nature::adjectif));
    EXPECT_FALSE(retouches().ecarte("tel", Nature::adjectif));
    EXPECT_TRUE(retouches().injurieux("boche"));
    EXPECT_TRUE(retouches().refuse("forfaire", "FORFONT"));
    EXPECT_FALSE(retouches().refuse("forfaire", "FORFAIT"));
    EXPECT_GT(retouches().ajouts().size(), 200U);
    EXPECT_TRUE(retouchessansajouts().ajouts().empty());
}

TEST(Retouches, un_mot_n_est_ajoute_qu_une_fois_et_n_est_pas_refuse) {
    std::set<std::string> vus;
    for (const auto& ajout : retouches().ajouts()) {
        EXPECT_TRUE(vus.insert(ajout.mot).second) << ajout.mot;
        for (const auto& forme : ajout.formes)
            EXPECT_FALSE(retouches().refuse(ajout.mot, forme.capitales)) << ajout.mot;
    }
}

}  // namespace
}  // namespace test_retouches
