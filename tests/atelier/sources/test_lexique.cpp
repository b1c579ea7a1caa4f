#include <algorithm>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "faute.h"
#include "petitlexique.h"

namespace test_lexique {
namespace {

using testing::AllOf;
using testing::ElementsAreArray;
using testing::HasSubstr;

/// The different words of a lexicon, by length and alphabet.
std::vector<std::string> mots(const atelier::Lexique& lexique) {
    std::set<atelier::Capitales> differents;
    for (const auto& forme : lexique.formes)
        differents.insert(forme.mot);
    std::vector<std::string> textes;
    textes.reserve(differents.size());
    for (const auto& mot : differents)
        textes.emplace_back(mot.texte());
    return textes;
}

struct Entree {
    const char* nom;
    std::string ligne;
    std::vector<std::string> mots;
};
void PrintTo(const Entree& entree, std::ostream* os) {
    *os << entree.nom;
}
class Expansion : public testing::TestWithParam<Entree> {};
TEST_P(Expansion, donne_ces_mots) {
    // A word of its own keeps the lexicon from being empty.
    const auto lus = mots(essais::lexique(GetParam().ligne + "\nzzz po:adv\n"));
    auto attendus = GetParam().mots;
    attendus.emplace_back("ZZZ");
    std::sort(attendus.begin(), attendus.end(), [](const auto& a, const auto& b) {
        return a.size() != b.size() ? a.size() < b.size() : a < b;
    });
    EXPECT_THAT(lus, ElementsAreArray(attendus));
}
INSTANTIATE_TEST_SUITE_P(
    Lexique, Expansion,
    testing::Values(
        Entree{"pluriel_en_s", "chat/S.() po:nom is:mas", {"CHAT", "CHATS"}},
        Entree{"pluriel_en_aux", "cheval/X.() po:nom is:mas", {"CHEVAL", "CHEVAUX"}},
        Entree{"condition_non_remplie", "nez/S. po:nom is:mas is:inv", {"NEZ"}},
        Entree{"feminin_accentue", "bref/F.() po:adj", {"BREF", "BREVE"}},
        Entree{"sans_forme_propre", "gai/F.() po:adj", {"GAI", "GAIE"}},
        Entree{"avec_forme_propre", "nu/S. po:adj", {"NU", "NUS"}},
        Entree{"conjugaison",
               "jouer/a0p+() po:v1_it____a",
               {"JOUE", "JOUEE", "JOUER", "JOUEZ", "JOUONS", "JOUANT"}},
        Entree{"cedille_et_g", "nager/a0p.() po:v1_i_____a", {"NAGE", "NAGER", "NAGEZ", "NAGEANT"}},
        Entree{"accents_ligatures", "œuf/S.() po:nom is:mas", {"OEUF", "OEUFS"}},
        Entree{"ae_lie", "æschne/S.() po:nom is:fem", {"AESCHNE", "AESCHNES"}},
        Entree{"prefixe_d_elision", "ami/S.L'() po:nom", {"AMI", "AMIS"}},
        Entree{"unite_et_multiples",
               "litre/Um() po:nom is:mas",
               {"LITRE",      "LITRES",      "DECALITRE",  "DECALITRES",  "DECILITRE", "DECILITRES",
                "CENTILITRE", "CENTILITRES", "MILLILITRE", "MILLILITRES", "KILOLITRE", "KILOLITRES",
                "HECTOLITRE", "HECTOLITRES", "MICROLITRE", "MICROLITRES", "NANOLITRE", "NANOLITRES",
                "MEGALITRE",  "MEGALITRES",  "GIGALITRE",  "GIGALITRES"}},
        Entree{"unite_sans_multiple", "ohm/Um() po:nom is:mas", {"OHM", "OHMS"}},
        Entree{"unite_invariable", "lux/Ui() po:nom is:mas is:inv", {"LUX"}},
        Entree{"quinze_lettres", "anticonstitutio/S.() po:nom", {"ANTICONSTITUTIO"}},
        Entree{"une_lettre", "y po:adv", {}}, Entree{"symbole", "km/|| po:nom", {}},
        Entree{"nom_propre", "Paris po:npr", {}}, Entree{"majuscules", "CD po:nom", {}},
        Entree{"trait_d_union", "arc-en-ciel/S. po:nom", {}},
        Entree{"apostrophe", "aujourd'hui po:adv", {}}, Entree{"lettre_grecque", "ω po:nom", {}},
        Entree{"prenom_en_minuscules", "marie po:prn", {}},
        Entree{"prenom_et_nom", "marie po:prn po:nom", {"MARIE"}},
        Entree{"erreur", "etre po:nom po:err", {}}, Entree{"suffixe", "isme po:nom po:sfx", {}},
        Entree{"sans_nature", "truc/S.", {}}, Entree{"abreviation", "env po:adv", {}},
        Entree{"locution_refusee", "priori po:loc.adv", {}},
        Entree{"locution_refusee_mg", "machin po:mg po:loc.prep", {}},
        Entree{"locution_admise", "afin po:mg po:loc.prepv po:loc.cj", {"AFIN"}},
        Entree{"locution_et_adverbe", "machin po:loc.prep po:adv", {"MACHIN"}},
        Entree{"infinitif_seul_inconnu", "aborner/L' po:v1__t___zz po:infi", {}},
        Entree{"infinitif_seul_ancien", "courre/L' po:v3__t_____ is:infi", {"COURRE"}}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Lexique, un_infinitif_seul_reste_quand_le_thesaurus_le_connait) {
    const atelier::Thesaurus thesaurus("UTF-8\nborner|1\n(Verbe)|aborner|limiter\n", "t.dat");
    EXPECT_THAT(mots(essais::lexique("aborner/L' po:v1__t___zz po:infi\n", thesaurus)),
                testing::ElementsAre("ABORNER"));
}

TEST(Lexique, les_formes_qui_ne_vont_que_devant_leur_pronom_ne_sont_pas_lues) {
    for (const auto& forme : essais::lexique("jouer/a0p+() po:v1_it____a\n").formes) {
        if (forme.mot.texte() != "JOUE")
            continue;
        EXPECT_TRUE(forme.lecture.traits.personnes == (atelier::je | atelier::il) ||
                    forme.lecture.al(atelier::participepasse));
    }
}

TEST(Lexique, le_nombre_et_le_genre_de_la_regle_passent_devant_ceux_de_l_entree) {
    const auto lus = essais::lexique("chat/S.() po:nom is:mas is:inv\n");
    ASSERT_EQ(lus.formes.size(), 2U);
    EXPECT_TRUE(lus.formes[1].lecture.aunnombre(atelier::Nombre::pluriel));
    EXPECT_EQ(lus.formes[1].lecture.traits.genre, atelier::Genre::masculin);
}

struct Nature {
    const char* nom;
    const char* champs;
    atelier::Nature nature;
};
class Natures : public testing::TestWithParam<Nature> {};
TEST_P(Natures, suit_les_champs_po) {
    const auto lus = essais::lexique("mot " + std::string(GetParam().champs) + "\n");
    EXPECT_EQ(lus.formes.at(0).lecture.nature, GetParam().nature);
}
INSTANTIATE_TEST_SUITE_P(
    Lexique, Natures,
    testing::Values(Nature{"nom", "po:nom", atelier::Nature::nom},
                    Nature{"nom_et_adjectif", "po:adj po:nom", atelier::Nature::nom},
                    Nature{"adjectif", "po:adj", atelier::Nature::adjectif},
                    Nature{"verbe", "po:v2_it____a po:adv", atelier::Nature::verbe},
                    Nature{"adverbe", "po:adv", atelier::Nature::autre},
                    Nature{"interjection", "po:interj", atelier::Nature::autre},
                    Nature{"nombre", "po:nb", atelier::Nature::autre}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Lexique, un_lemme_injurieux_est_marque_et_reste_un_mot) {
    const auto lus = essais::lexique("boche/S.() po:nom is:epi\n");
    EXPECT_THAT(mots(lus), testing::ElementsAre("BOCHE", "BOCHES"));
    EXPECT_TRUE(lus.lemmes.at(0).injurieux);
}

TEST(Lexique, un_verbe_dont_un_participe_s_accorde_n_est_pas_invariable) {
    EXPECT_FALSE(essais::lexique("jouer/a0p+() po:v1_it____a\n").lemmes[0].participesinvariables());
    EXPECT_TRUE(essais::lexique("nager/a0p.() po:v1_i_____a\n").lemmes[0].participesinvariables());
    EXPECT_FALSE(essais::lexique("nager/a0() po:v1_i_____a\n").lemmes[0].participesinvariables());
}

TEST(Lexique, seize_drapeaux_et_vingt_quatre_champs_se_lisent) {
    std::string entree = "chat/";
    for (int i = 0; i < 16; ++i)
        entree += "S.";
    for (int i = 0; i < 23; ++i)
        entree += " po:nom";
    EXPECT_THAT(mots(essais::lexique(entree + "  \n")), testing::ElementsAre("CHAT", "CHATS"));
}

TEST(Capitales, plus_de_15_lettres_sont_refusees) {
    EXPECT_EQ(atelier::Capitales("ANTICONSTITUTIO").texte(), "ANTICONSTITUTIO");
    EXPECT_THAT([] { std::ignore = atelier::Capitales("ANTICONSTITUTION"); },
                testing::ThrowsMessage<std::length_error>(HasSubstr("ANTICONSTITUTION")));
}

struct Casse {
    const char* nom;
    std::string texte;
    const char* ennui;
};
void PrintTo(const Casse& casse, std::ostream* os) {
    *os << casse.nom;
}
std::string repete(const std::string& texte, int fois) {
    std::string resultat;
    while (fois-- > 0)
        resultat += texte;
    return resultat;
}
class LexiqueCasse : public testing::TestWithParam<Casse> {};
TEST_P(LexiqueCasse, est_une_faute_avec_fichier_et_ligne) {
    try {
        std::ignore = atelier::lirelexique(GetParam().texte, "d.dic",
                                           atelier::Affixes(essais::affixes, "a.aff"), {},
                                           atelier::retouches());
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(),
                    AllOf(HasSubstr("« d.dic », ligne "), HasSubstr(GetParam().ennui)));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Lexique, LexiqueCasse,
    testing::Values(Casse{"vide", "", "vide"}, Casse{"sans_compte", "chat po:nom\n", "le nombre"},
                    Casse{"aucune_entree", "0\n", "aucun mot"},
                    Casse{"aucun_mot_jouable", "1\nParis po:npr\n", "aucun mot"},
                    Casse{"coupe", "200\nchat po:nom\n", "il annonce 200 entrées et en a 1"},
                    Casse{"annonce_enorme", "18446744073709551615\nchat po:nom\n", "est coupé"},
                    Casse{"pas_utf8", "1\n\xE9t\xE9 po:nom\n", "UTF-8"},
                    Casse{"binaire",
                          std::string("\x7f"
                                      "ELF\2\1\1\0\0",
                                      9),
                          "le nombre"},
                    Casse{"drapeau_inconnu", "1\nchat/Q9 po:nom\n", "« Q9 »"},
                    Casse{"dix_sept_drapeaux", "1\nchat/" + repete("S.", 17) + " po:nom\n",
                          "trop de drapeaux ; la limite est de 16"},
                    Casse{"vingt_cinq_champs", "1\nchat" + repete(" po:nom", 24) + "\n",
                          "trop de champs ; la limite est de 24"},
                    Casse{"demi_drapeau", "1\nchat/S.( po:nom\n", "qu'un caractère"}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_lexique
