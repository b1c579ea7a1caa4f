// Each rule on a handful of words that it takes and that it leaves.

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "petitlexique.h"
#include "references.h"
#include "regles.h"
#include "tables.h"

namespace {

using namespace atelier;

/// The rows that a list makes of a lexicon.
std::vector<std::string> liste(const char* panneau, std::size_t rangee, const Vocabulaire& v) {
    const Difficulte difficulte(v);
    const Nouveautes nouveautes;
    std::vector<std::string> lignes;
    for (const auto& recettes : toutesrecettes()) {
        if (recettes.panneau != panneau)
            continue;
        for (const auto& r :
             recettes.recettes.at(rangee).faire({v, difficulte, nouveautes}).rangees)
            lignes.push_back(r.texte());
    }
    return lignes;
}

/// A conjugation of few forms: -ER, -ANT, -E, -ONS, -EZ.
std::string verbe(const char* mot) {
    return std::string(mot) + "/a0() po:v1_it____a\n";
}

struct Cas {
    const char* nom;
    const char* panneau;
    std::size_t rangee;
    std::string lexique;
    std::vector<std::string> lignes;
};
void PrintTo(const Cas& c, std::ostream* os) {
    *os << c.nom;
}
class Recette : public testing::TestWithParam<Cas> {};
TEST_P(Recette, prend_et_laisse) {
    const auto& cas = GetParam();
    EXPECT_EQ(liste(cas.panneau, cas.rangee, essais::vocabulaire(cas.lexique)), cas.lignes);
}
const auto nom = [](const auto& rangee) { return rangee.param.nom; };

using essais::noms;
using essais::seuls;

INSTANTIATE_TEST_SUITE_P(
    Bases, Recette,
    testing::Values(
        Cas{"3lc_tous_les_mots",
            "bt",
            0,
            seuls({"wok", "nez", "zen", "mot"}),
            {"(N)EZ;NEZ", "(Z)EN;ZEN", "KOW;WOK"}},
        Cas{"3lt_prefere_le_non_conjugue",
            "bt",
            1,
            seuls({"tas", "eta"}) + verbe("ater"),
            {"AET;ETA", "AST;TAS"}},
        Cas{"3lt_conjugue_faute_de_mieux", "bt", 1, verbe("ater"), {"AET;ATE"}},
        Cas{"3lt_trois_mots_voulus_au_plus",
            "bt",
            1,
            seuls({"abc", "acb", "bac", "bca", "def", "dfe", "edf"}),
            {"(DE)F;DEF", "(DF)E;DFE", "(E)DF;EDF"}},
        Cas{"4lc_sans_conjugaison_en_ez", "bt", 4, seuls({"noyz"}) + verbe("nier"), {"NOYZ;NOYZ"}},
        Cas{"5lt_le_meilleur_rang",
            "ta",
            5,
            noms({"pile"}) + seuls({"plies", "abcde", "abced", "abdce", "abdec"}),
            {"EILPS;PLIES"}},
        Cas{"vb6_infinitifs", "bt", 3, verbe("bouder") + noms({"bureau"}), {"BDEORU;BOUDER"}},
        Cas{"vb7_deux_groupes",
            "ta",
            1,
            verbe("trouver") + "pouvoir po:v3_it____a is:infi\nfleurir po:v2_it____a is:infi\n",
            {"EFILRRU;FLEURIR", "EORRTUV;TROUVER"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Conjugaisons, Recette,
    testing::Values(
        Cas{"uniques",
            "conja",
            3,
            verbe("chanter") + verbe("planter") + seuls({"plantze"}),
            {"ACEHNTZ;CHANTEZ"}},
        Cas{"un_non_conjugue_parmi_deux",
            "conja",
            5,
            verbe("bacdfer") + verbe("cabdfer") + seuls({"zabcdef"}),
            {"ABCDEFZ;ZABCDEF"}},
        Cas{"un_non_conjugue_parmi_un", "conja", 5, verbe("bacdfer") + seuls({"zabcdef"}), {}},
        Cas{"selection",
            "conja",
            7,
            verbe("bacdfer") + verbe("cabdfer") + seuls({"zabcdef"}),
            {"ABCDEFZ;ZABCDEF"}},
        Cas{"duos_conjugues",
            "conjm",
            0,
            verbe("abcdfer") + verbe("bacdfer"),
            {"ABCDEFZ;ABCDFEZ;BACDFEZ"}},
        Cas{"duos_conjugues_sans_autre",
            "conjm",
            0,
            verbe("abcdfer") + verbe("bacdfer") + seuls({"zabcdef"}),
            {}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Poids, Recette,
    testing::Values(
        Cas{"6_prolongeable", "6", 4, seuls({"marine", "marines"}), {"AEIMNR;MARINE"}},
        Cas{"6_non_prolongeable", "6", 6, seuls({"acinus"}), {}},
        Cas{"6_prolongeable_devant", "6", 6, seuls({"acinus", "bacinus"}), {"ACINSU;ACINUS"}},
        Cas{"7_poids_0", "7", 2, seuls({"rentais"}), {"AEINRST;RENTAIS"}},
        Cas{"7_avec_anagramme", "7", 2, seuls({"rentais", "ratines"}), {}},
        Cas{"7_autre_poids", "7", 1, seuls({"rentais"}), {}},
        Cas{"7_poids_7_et_plus", "7", 0, seuls({"bhfvmaa"}), {"AABFHMV;BHFVMAA"}},
        Cas{"8_pas_de_lettre_chere", "8", 0, seuls({"bhfvmaak"}), {}},
        Cas{"cheres_avec_conjugaisons",
            "78lca",
            0,
            verbe("jauner"),
            {"AAJNNTU;JAUNANT", "AJNNOSU;JAUNONS"}},
        Cas{"cheres_sans_conjugaisons", "78lcb", 2, verbe("zapper"), {"AANPPTZ;ZAPPANT"}},
        Cas{"cheres_entrees",
            "78lcb",
            5,
            verbe("zapatter") + noms({"zapatte"}),
            {"AAEPTTZ;ZAPATTE", "AAEPRTTZ;ZAPATTER"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Multiples, Recette,
    testing::Values(
        Cas{"pur", "duos7", 0, seuls({"rentais", "ratines"}), {"AEINRST;RATINES;RENTAIS"}},
        Cas{"pur_sans_conjugue", "duos7", 0, seuls({"abcdfze", "zabcdfe"}) + verbe("abcdfer"), {}},
        Cas{"impur",
            "duos7",
            1,
            seuls({"abcdfze", "zabcdfe"}) + verbe("abcdfer"),
            {"ABCDEFZ;ABCDFZE;ZABCDFE"}},
        Cas{"impur_pas_pur", "duos7", 1, seuls({"rentais", "ratines"}), {}},
        Cas{"8_pluriels_de_7",
            "duos8",
            0,
            seuls({"rentais", "ratines", "rentaiss", "ratiness"}),
            {}},
        Cas{"8_pas_pluriels",
            "duos8",
            0,
            seuls({"rentais", "rentaiss", "ratiness"}),
            {"AEINRSST;RATINESS;RENTAISS"}},
        Cas{"selection", "duos7", 2, seuls({"abcdeft", "bacdeft"}), {"ABCDEFT;ABCDEFT;BACDEFT"}},
        Cas{"selection_sans_meme_finale",
            "duos7",
            2,
            seuls({"abcdeft", "bacdeft", "abcdef", "bacdef"}),
            {}},
        Cas{"selection_de_poids_567", "duos7", 3, seuls({"rentais", "ratines"}), {}},
        Cas{"selection_de_poids_014",
            "duos7",
            4,
            seuls({"rentais", "ratines"}),
            {"AEINRST;RATINES;RENTAIS"}},
        Cas{"sans_tirage", "duos7", 6, seuls({"rentais", "ratines"}), {"RATINES;RENTAIS"}},
        Cas{"trio",
            "trios",
            0,
            seuls({"rentais", "ratines", "satinre"}),
            {"AEINRST;RATINES;RENTAIS;SATINRE"}},
        Cas{"duo_injurieux",
            "duos7",
            0,
            "négroïde/S.() po:nom\nrentais po:adv\nratines po:adv\n",
            {"AEINRST;RATINES;RENTAIS"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Autres, Recette,
    testing::Values(
        Cas{"rallonges_avant", "rallong", 6, seuls({"ailer", "failer", "bailer"}), {"?AILER;BF"}},
        Cas{"une_rallonge_avant", "rallong", 6, seuls({"ailer", "bailer"}), {"AILER;B"}},
        Cas{"rallonge_arriere",
            "rallong",
            1,
            "célèbre/S.() po:adj\ncélébret/S.() po:nom is:mas\n",
            {"CELEBRE;T"}},
        Cas{"invariables",
            "autres",
            0,
            seuls({"ici", "iic", "helas", "or", "gai", "gais"}),
            {"(IC)I;ICI", "(II)C;IIC"}},
        Cas{"noms_variables", "autres", 0, noms({"gare"}), {}},
        Cas{"desequilibre",
            "autres",
            1,
            seuls({"oiseau", "stress", "bateau"}),
            {"AEIOSU;OISEAU", "ERSSST;STRESS"}},
        Cas{"anaverbes",
            "autres",
            2,
            verbe("ramer") + verbe("armer") + verbe("parer"),
            {"AEMRR;ARMER;RAMER"}},
        Cas{"fausse_transitivite",
            "autres",
            3,
            "canoter/a0p.() po:v1_i_____a\n" + seuls({"acetone"}),
            {"ACEENOT;ACETONE"}},
        Cas{"vraie_transitivite",
            "autres",
            3,
            "canoter/a0p+() po:v1_it____a\n" + seuls({"acetone"}),
            {}},
        Cas{"s_final",
            "autres",
            4,
            seuls({"toujours", "anglais", "gaulois"}) + noms({"marins"}),
            {"JOORSTUU;TOUJOURS"}},
        Cas{"benjamin", "autres", 5, seuls({"abats", "surabats"}), {"ABATS;SUR"}},
        Cas{"benjamin_pas_seul", "autres", 5, seuls({"abats", "surabats", "popabats"}), {}}),
    nom);

std::vector<std::string> reference(std::size_t rang, const std::string& lexique) {
    const auto v = essais::vocabulaire(lexique);
    const Difficulte difficulte(v);
    std::vector<std::string> mots;
    for (const auto& mot : references().at(rang).faire({v, difficulte, {}}))
        mots.emplace_back(mot.texte());
    return mots;
}

TEST(References, participes_invariables_avec_leur_infinitif) {
    EXPECT_THAT(reference(3, "nager/a0p.() po:v1_i_____a\njouer/a0p+() po:v1_it____a\n"),
                testing::ElementsAre("NAGE", "NAGER"));
}

TEST(References, un_verbe_qui_s_accorde_l_emporte_sur_son_homographe) {
    EXPECT_THAT(reference(3, "pécher/a0p.() po:v1_i_____a\npêcher/a0p+() po:v1_it____a\n"),
                testing::IsEmpty());
}

TEST(References, un_participe_qui_est_aussi_un_nom_n_y_est_pas) {
    EXPECT_THAT(reference(3, "nager/a0p.() po:v1_i_____a\n" + noms({"nage"})),
                testing::ElementsAre("NAGER"));
}

TEST(References, verbes_transitifs_de_4_a_10_lettres) {
    EXPECT_THAT(
        reference(4, verbe("bouder") + "nager/a0p.() po:v1_i_____a\n" + verbe("internationaliser")),
        testing::ElementsAre("BOUDER"));
}

TEST(References, invariables_de_deux_lettres_et_plus) {
    EXPECT_THAT(reference(5, seuls({"or", "ici", "hélas"})), testing::ElementsAre("OR", "ICI"));
}

TEST(Tables, six_mots_non_conjugues_et_plus) {
    const auto cinq = seuls({"abcdefg", "bacdefg", "cabdefg", "dabcefg", "eabcdfg"});
    EXPECT_TRUE(tirages6(essais::vocabulaire(cinq), 7).rangees.empty());
    const auto six = tirages6(essais::vocabulaire(cinq + "fabcdeg po:adv\n"), 7);
    ASSERT_EQ(six.rangees.size(), 1U);
    EXPECT_EQ(six.rangees[0].texte(), "ABCDEFG;ABCDEFG;BACDEFG;CABDEFG;DABCEFG;EABCDFG;FABCDEG");
}

}  // namespace
