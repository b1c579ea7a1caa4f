#include <string>

#include <gmock/gmock.h>

#include "petitlexique.h"

namespace test_vocabulaire {
namespace {

using namespace atelier;
using testing::ElementsAre;

const std::string lignes =
    "chat/S.() po:nom is:mas\n"
    "cheval/X.() po:nom is:mas\n"
    "nez/S. po:nom is:mas is:inv\n"
    "zen po:nom is:mas is:inv\n"
    "jouer/a0p+() po:v1_it____a\n"
    "nager/a0p.() po:v1_i_____a\n"
    "bigre po:interj\n"
    "manger/a0() po:v1__t____a\n"
    "manger/S.() po:nom is:mas\n"
    "kiwi/S.() po:nom is:mas\n"
    "onagre/S.() po:nom is:mas\n"
    "boche/S.() po:nom is:epi\n";

const Mot& mot(const Vocabulaire& v, const char* texte) {
    const auto* trouve = v.chercher(texte);
    if (trouve == nullptr)
        throw std::logic_error(texte);
    return *trouve;
}

struct Attributs {
    const char* mot;
    Rang rang;
    bool entree;
    bool conjugue;
    bool plurielevident;
    int poids;
    bool chere;
};
void PrintTo(const Attributs& a, std::ostream* os) {
    *os << a.mot;
}
class Attribut : public testing::TestWithParam<Attributs> {};
TEST_P(Attribut, du_mot) {
    const auto v = essais::vocabulaire(lignes);
    const auto& lu = mot(v, GetParam().mot);
    EXPECT_EQ(lu.rang, GetParam().rang);
    EXPECT_EQ(lu.entree, GetParam().entree);
    EXPECT_EQ(lu.conjugue, GetParam().conjugue);
    EXPECT_EQ(lu.plurielevident, GetParam().plurielevident);
    EXPECT_EQ(lu.poids, GetParam().poids);
    EXPECT_EQ(lu.chere, GetParam().chere);
}
INSTANTIATE_TEST_SUITE_P(
    Vocabulaire, Attribut,
    testing::Values(Attributs{"CHAT", Rang::nonconjugue, true, false, false, 5, false},
                    Attributs{"CHATS", Rang::plurielevident, false, false, true, 5, false},
                    Attributs{"CHEVAUX", Rang::nonconjugue, true, false, false, 17, true},
                    Attributs{"NEZ", Rang::nonconjugue, true, false, false, 9, true},
                    Attributs{"BIGRE", Rang::nonconjugue, true, false, false, 3, false},
                    Attributs{"JOUER", Rang::infinitif, true, false, false, 7, true},
                    Attributs{"JOUE", Rang::participe, false, false, false, 7, true},
                    Attributs{"JOUEE", Rang::participe, false, false, false, 7, true},
                    Attributs{"JOUONS", Rang::conjugue, false, true, false, 7, true},
                    Attributs{"NAGEANT", Rang::participe, false, false, false, 1, false},
                    Attributs{"MANGER", Rang::nonconjugue, true, false, false, 2, false},
                    Attributs{"MANGE", Rang::conjugue, false, true, false, 2, false},
                    Attributs{"KIWIS", Rang::plurielevident, false, false, true, 18, true}),
    [](const auto& rangee) { return rangee.param.mot; });

TEST(Vocabulaire, les_anagrammes_forment_un_tirage) {
    const auto v = essais::vocabulaire(lignes);
    const auto& tirage = v.tirage(mot(v, "NEZ"));
    EXPECT_EQ(tirage.lettres.texte(), "ENZ");
    EXPECT_EQ(tirage.mots, 2U);
    EXPECT_EQ(tirage.nonconjugues, 2U);
    EXPECT_EQ(v.mot(v.places(tirage)[0]).texte(), "NEZ");
    EXPECT_EQ(v.mot(v.places(tirage)[1]).texte(), "ZEN");
    EXPECT_FALSE(mot(v, "NEZ").unique);
    EXPECT_TRUE(mot(v, "CHAT").unique);
}

TEST(Vocabulaire, les_mots_sont_par_longueur_puis_par_alphabet) {
    const auto v = essais::vocabulaire(essais::seuls({"bb", "aaa", "ba", "b", "aab"}));
    std::vector<std::string> textes;
    for (const auto& m : v.mots())
        textes.emplace_back(m.texte());
    EXPECT_THAT(textes, ElementsAre("BA", "BB", "AAA", "AAB"));
    EXPECT_EQ(v.mots(2, 2).size(), 2U);
    EXPECT_EQ(v.mots(4, 9).size(), 0U);
    EXPECT_EQ(v.tirages(3, 3).size(), 2U);
}

TEST(Vocabulaire, un_mot_est_aussi_frequent_que_son_lemme_le_plus_frequent) {
    const Thesaurus thesaurus("UTF-8\nchat|1\n(Nom)|minet|matou\nminet|1\n(Nom)|chat\n", "t.dat");
    const auto v = essais::vocabulaire(lignes, thesaurus);
    EXPECT_EQ(mot(v, "CHATS").frequence, 3U);
    EXPECT_EQ(mot(v, "KIWI").frequence, 0U);
}

TEST(Vocabulaire, un_mot_injurieux_compte_parmi_les_anagrammes) {
    const auto v = essais::vocabulaire(lignes);
    EXPECT_TRUE(mot(v, "BOCHE").injurieux);
    EXPECT_FALSE(mot(v, "CHAT").injurieux);
}

TEST(Vocabulaire, le_dictionnaire_du_joueur_restreint_les_mots_et_les_anagrammes) {
    const Dictionnaire dictionnaire{Capitales("NEZ"), Capitales("CHAT"), Capitales("JOUEE")};
    auto trie = dictionnaire;
    std::sort(trie.begin(), trie.end());
    const auto v = essais::vocabulaire(lignes, {}, trie);
    EXPECT_EQ(v.mots().size(), 3U);
    EXPECT_TRUE(mot(v, "NEZ").unique);
    EXPECT_EQ(mot(v, "JOUEE").rang, Rang::participe);
}

TEST(Vocabulaire, un_mot_inconnu_du_lexique_est_un_nom_ou_un_pluriel) {
    Dictionnaire trie;
    for (const auto* m : {"SNOWKITE", "SNOWKITES", "TRUCMUX", "TRUCMU", "CHAT", "AS"})
        trie.emplace_back(m);
    std::sort(trie.begin(), trie.end());
    const auto v = essais::vocabulaire(lignes, {}, trie);
    EXPECT_EQ(mot(v, "SNOWKITE").rang, Rang::nonconjugue);
    EXPECT_EQ(mot(v, "SNOWKITES").rang, Rang::plurielevident);
    EXPECT_EQ(mot(v, "TRUCMUX").rang, Rang::plurielevident);
    EXPECT_EQ(mot(v, "AS").rang, Rang::nonconjugue);
}

TEST(Vocabulaire, un_mot_que_nul_tableau_ne_tient_n_est_pas_trouve) {
    const auto v = essais::vocabulaire(lignes);
    EXPECT_EQ(v.chercher("CHATSCHATSCHATSCHATS"), nullptr);
    EXPECT_EQ(v.chercher("CHA"), nullptr);
    EXPECT_EQ(v.chercher(""), nullptr);
}

struct Lettre {
    char lettre;
    int points;
};
TEST(Vocabulaire, les_points_sont_ceux_des_jetons_francais) {
    for (const auto& [lettre, valeur] :
         {Lettre{'A', 1}, Lettre{'B', 3}, Lettre{'D', 2}, Lettre{'F', 4}, Lettre{'G', 2},
          Lettre{'J', 8}, Lettre{'K', 10}, Lettre{'M', 2}, Lettre{'Q', 8}, Lettre{'V', 4},
          Lettre{'W', 10}, Lettre{'X', 10}, Lettre{'Y', 10}, Lettre{'Z', 10}})
        EXPECT_EQ(points(lettre), valeur) << lettre;
}

}  // namespace
}  // namespace test_vocabulaire
