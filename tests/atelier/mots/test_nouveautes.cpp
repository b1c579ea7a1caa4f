#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "petitlexique.h"
#include "references.h"
#include "regles.h"

namespace test_nouveautes {
namespace {

using namespace atelier;
using testing::ElementsAre;

Dictionnaire dictionnaire(std::initializer_list<const char*> mots) {
    Dictionnaire d;
    for (const auto* mot : mots)
        d.emplace_back(mot);
    std::sort(d.begin(), d.end());
    return d;
}

std::vector<std::string> textes(const Dictionnaire& d) {
    std::vector<std::string> liste;
    for (const auto& mot : d)
        liste.emplace_back(mot.texte());
    return liste;
}

TEST(Nouveautes, sont_ce_que_l_ancienne_edition_n_a_pas_les_plus_courtes_d_abord) {
    EXPECT_THAT(textes(comparer(dictionnaire({"CHAT", "OS"}),
                                dictionnaire({"CHAT", "SLASHER", "OS", "WOK"}), 10)),
                ElementsAre("WOK", "SLASHER"));
}

TEST(Nouveautes, ont_neuf_lettres_au_plus_et_tiennent_dans_leur_liste) {
    const auto nouvelle = dictionnaire({"AA", "BB", "ABCDEFGHI", "ABCDEFGHIJ"});
    EXPECT_THAT(textes(comparer({}, nouvelle, 10)), ElementsAre("AA", "BB", "ABCDEFGHI"));
    EXPECT_THAT(textes(comparer({}, nouvelle, 1)), ElementsAre("AA"));
}

/// Rows of the list of new words with a high-value letter.
std::vector<std::string> cheres(const std::string& lexique, const Nouveautes& nouveautes) {
    const auto v = essais::vocabulaire(lexique);
    std::vector<std::string> lignes;
    for (const auto& rangee : nouveauteschere(v, nouveautes).rangees)
        lignes.push_back(rangee.texte());
    return lignes;
}

TEST(Nouveautes, cheres_de_7_et_8_lettres_de_toutes_les_editions) {
    Nouveautes n;
    n[0] = dictionnaire({"KARAOKE", "SLASHER", "WOK"});
    n[2] = dictionnaire({"BUZZEURS"});
    EXPECT_THAT(cheres(essais::seuls({"karaoke", "slasher", "wok", "buzzeurs"}), n),
                ElementsAre("AAEKKOR;KARAOKE", "BERSUUZZ;BUZZEURS"));
}

TEST(Nouveautes, sans_anagramme_ni_dans_le_lexique_ni_entre_elles) {
    Nouveautes n;
    n[1] = dictionnaire({"KARAOKE", "ZABCDEF", "ZABCDFE", "ZBCDEFG"});
    // KARAOKE has an anagram in the lexicon, two unknown words have one another.
    EXPECT_THAT(cheres(essais::seuls({"karaoke", "oekarak"}), n), ElementsAre("BCDEFGZ;ZBCDEFG"));
}

TEST(Nouveautes, jamais_une_conjugaison) {
    Nouveautes n;
    n[1] = dictionnaire({"ZAPPONS", "ZAPPANT"});
    EXPECT_THAT(cheres("zapper/a0() po:v1_it____a\n", n), ElementsAre("AANPPTZ;ZAPPANT"));
}

TEST(Nouveautes, leurs_listes_de_reference_sont_vides_tant_que_rien_n_est_compare) {
    const auto v = essais::vocabulaire(essais::seuls({"chat"}));
    const Difficulte difficulte(v);
    Nouveautes n;
    n[2] = dictionnaire({"WOK"});
    const auto toutes = references();
    EXPECT_TRUE(toutes[0].faire({v, difficulte, n}).empty());
    EXPECT_TRUE(toutes[1].faire({v, difficulte, n}).empty());
    EXPECT_THAT(textes(toutes[2].faire({v, difficulte, n})), ElementsAre("WOK"));
}

}  // namespace
}  // namespace test_nouveautes
