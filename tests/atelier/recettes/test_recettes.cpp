// Each rule on a handful of words that it takes and that it leaves.

#include <algorithm>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "petiteliste.h"
#include "references.h"
#include "tables.h"

namespace test_recettes {
namespace {

using namespace atelier;

struct Cas {
    const char* nom;
    const char* fichier;
    std::string lexique;
    std::vector<std::string> lignes;
};
void PrintTo(const Cas& c, std::ostream* os) {
    *os << c.nom;
}
class Recette : public testing::TestWithParam<Cas> {};
TEST_P(Recette, prend_et_laisse) {
    const auto& cas = GetParam();
    EXPECT_EQ(essais::liste(cas.fichier, essais::vocabulaire(cas.lexique)), cas.lignes);
}
const auto nom = [](const auto& rangee) { return rangee.param.nom; };

using essais::noms;
using essais::seuls;
using essais::verbe;
using essais::verbecomplet;

INSTANTIATE_TEST_SUITE_P(
    Bases, Recette,
    testing::Values(
        Cas{"3lc_tous_les_mots",
            "3lc.txt",
            seuls({"wok", "nez", "zen", "mot"}),
            {"(N)EZ;NEZ", "(Z)EN;ZEN", "KOW;WOK"}},
        Cas{"3lt_prefere_le_non_conjugue",
            "3lt.txt",
            seuls({"tas", "eta"}) + verbe("ater"),
            {"AET;ETA", "AST;TAS"}},
        Cas{"3lt_conjugue_faute_de_mieux", "3lt.txt", verbe("ater"), {"AET;ATE"}},
        Cas{"3lt_trois_mots_voulus_au_plus",
            "3lt.txt",
            seuls({"abc", "acb", "bac", "bca", "def", "dfe", "edf"}),
            {"(DE)F;DEF", "(DF)E;DFE", "(E)DF;EDF"}},
        Cas{"4lc_sans_conjugaison_en_ez",
            "4lc.txt",
            seuls({"noyz"}) + verbe("nier"),
            {"NOYZ;NOYZ"}},
        Cas{"5lt_le_meilleur_rang",
            "5lt.txt",
            noms({"pile"}) + seuls({"plies", "abcde", "abced", "abdce", "abdec"}),
            {"EILPS;PLIES"}},
        Cas{"vb6_infinitifs", "vb6.txt", verbe("bouder") + noms({"bureau"}), {"BDEORU;BOUDER"}},
        Cas{"vb7_deux_groupes",
            "vb7.txt",
            verbe("trouver") + "pouvoir po:v3_it____a is:infi\nfleurir po:v2_it____a is:infi\n",
            {"EFILRRU;FLEURIR", "EORRTUV;TROUVER"}},
        Cas{"vb45_ni_defectif_ni_courant",
            "vb45.txt",
            verbecomplet("nouer") + verbe("rouer") + verbecomplet("aimer"),
            {"ENORU;NOUER"}},
        Cas{"vb45_longueurs",
            "vb45.txt",
            verbecomplet("oter") + verbecomplet("bouder") + verbecomplet("ter"),
            {"EORT;OTER"}},
        Cas{"vb45_indice_d_un_autre_infinitif",
            "vb45.txt",
            verbecomplet("ramer") + verbecomplet("armer"),
            {"(A)EMRR;ARMER", "(R)AEMR;RAMER"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Conjugaisons, Recette,
    testing::Values(
        Cas{"uniques",
            "conj7u.txt",
            verbe("chanter") + verbe("planter") + seuls({"plantze"}),
            {"ACEHNTZ;CHANTEZ"}},
        Cas{"un_non_conjugue_parmi_deux",
            "z7.txt",
            verbe("bacdfer") + verbe("cabdfer") + seuls({"zabcdef"}),
            {"ABCDEFZ;ZABCDEF"}},
        Cas{"un_non_conjugue_parmi_un", "z7.txt", verbe("bacdfer") + seuls({"zabcdef"}), {}},
        Cas{"selection",
            "z78_sel.txt",
            verbe("bacdfer") + verbe("cabdfer") + seuls({"zabcdef"}),
            {"ABCDEFZ;ZABCDEF"}},
        Cas{"defectifs_du_groupe_3",
            "78d.txt",
            "regésir/iV() po:v3_i______\n" + verbe("planter"),
            {"AEGIIRSS;REGISAIS", "AEGINRST;REGISANT"}},
        Cas{"defectifs_sans_autre_lecture",
            "78d.txt",
            "regésir/iV() po:v3_i______\n" + seuls({"regisant"}),
            {"AEGIIRSS;REGISAIS"}},
        Cas{"defectifs_sans_anagramme",
            "78d.txt",
            "regésir/iV() po:v3_i______\n" + seuls({"tanisger", "sairiges"}),
            {}},
        Cas{"atypiques_sans_les_ordinaires",
            "8at.txt",
            "regésir/iV() po:v3_i______\n" + verbe("chanoner"),
            {"AEGIIRSS;REGISAIS"}},
        Cas{"duos_conjugues",
            "conj7_duos.txt",
            verbe("abcdfer") + verbe("bacdfer"),
            {"ABCDEFZ;ABCDFEZ;BACDFEZ"}},
        Cas{"duos_conjugues_sans_autre",
            "conj7_duos.txt",
            verbe("abcdfer") + verbe("bacdfer") + seuls({"zabcdef"}),
            {}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Poids, Recette,
    testing::Values(
        Cas{"6_prolongeable", "6v1.txt", seuls({"marine", "marines"}), {"AEIMNR;MARINE"}},
        Cas{"6_non_prolongeable", "6v2.txt", seuls({"acinus"}), {}},
        Cas{"6_prolongeable_devant", "6v2.txt", seuls({"acinus", "bacinus"}), {"ACINSU;ACINUS"}},
        Cas{"7_poids_0", "7v0.txt", seuls({"rentais"}), {"AEINRST;RENTAIS"}},
        Cas{"7_avec_anagramme", "7v0.txt", seuls({"rentais", "ratines"}), {}},
        Cas{"7_autre_poids", "7v6.txt", seuls({"rentais"}), {}},
        Cas{"7_poids_7_et_plus", "7up.txt", seuls({"bhfvmaa"}), {"AABFHMV;BHFVMAA"}},
        Cas{"8_pas_de_lettre_chere", "8up.txt", seuls({"bhfvmaak"}), {}},
        Cas{"cheres_avec_conjugaisons",
            "78v7.txt",
            verbe("jauner"),
            {"AAJNNTU;JAUNANT", "AJNNOSU;JAUNONS"}},
        Cas{"cheres_sans_conjugaisons", "78v13.txt", verbe("zapper"), {"AANPPTZ;ZAPPANT"}},
        Cas{"cheres_entrees",
            "78tout.txt",
            verbe("zapatter") + noms({"zapatte"}),
            {"AAEPTTZ;ZAPATTE", "AAEPRTTZ;ZAPATTER"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Multiples, Recette,
    testing::Values(
        Cas{"pur", "7l_duos_purs.txt", seuls({"rentais", "ratines"}), {"AEINRST;RATINES;RENTAIS"}},
        Cas{"pur_sans_conjugue",
            "7l_duos_purs.txt",
            seuls({"abcdfze", "zabcdfe"}) + verbe("abcdfer"),
            {}},
        Cas{"impur",
            "7l_duos_impurs.txt",
            seuls({"abcdfze", "zabcdfe"}) + verbe("abcdfer"),
            {"ABCDEFZ;ABCDFZE;ZABCDFE"}},
        Cas{"impur_pas_pur", "7l_duos_impurs.txt", seuls({"rentais", "ratines"}), {}},
        Cas{"8_pluriels_de_7",
            "8l_duos_purs.txt",
            seuls({"rentais", "ratines", "rentaiss", "ratiness"}),
            {}},
        Cas{"8_pas_pluriels",
            "8l_duos_purs.txt",
            seuls({"rentais", "rentaiss", "ratiness"}),
            {"AEINRSST;RATINESS;RENTAISS"}},
        Cas{"selection",
            "7l_duos_purs_sel.txt",
            seuls({"abcdeft", "bacdeft"}),
            {"ABCDEFT;ABCDEFT;BACDEFT"}},
        Cas{"selection_sans_meme_finale",
            "7l_duos_purs_sel.txt",
            seuls({"abcdeft", "bacdeft", "abcdef", "bacdef"}),
            {}},
        Cas{"selection_de_poids_567", "7l_duos_purs567.txt", seuls({"rentais", "ratines"}), {}},
        Cas{"selection_de_poids_014",
            "7l_duos_purs014.txt",
            seuls({"rentais", "ratines"}),
            {"AEINRST;RATINES;RENTAIS"}},
        Cas{"sans_tirage",
            "7l_duos_sanstirage.txt",
            seuls({"rentais", "ratines"}),
            {"RATINES;RENTAIS"}},
        Cas{"trio",
            "7l_trios_purs.txt",
            seuls({"rentais", "ratines", "satinre"}),
            {"AEINRST;RATINES;RENTAIS;SATINRE"}},
        Cas{"duo_injurieux",
            "7l_duos_purs.txt",
            "négroïde/S.() po:nom\nrentais po:adv\nratines po:adv\n",
            {"AEINRST;RATINES;RENTAIS"}}),
    nom);

INSTANTIATE_TEST_SUITE_P(
    Autres, Recette,
    testing::Values(
        Cas{"rallonges_avant",
            "rallonge_av_5a6L.txt",
            seuls({"ailer", "failer", "bailer"}),
            {"?AILER;BF"}},
        Cas{"rallonges_avant_des_conjugaisons_aussi",
            "rallonge_av_5a6L.txt",
            seuls({"anons", "canons"}) + verbe("faner"),
            {"?ANONS;CF"}},
        Cas{"pas_de_rallonge_sans_entree",
            "rallonge_av_5a6L.txt",
            seuls({"anons"}) + verbe("faner"),
            {}},
        Cas{"une_rallonge_avant", "rallonge_av_5a6L.txt", seuls({"ailer", "bailer"}), {"AILER;B"}},
        Cas{"rallonge_arriere",
            "rallonge_ar_7a8L.txt",
            "célèbre/S.() po:adj\ncélébret/S.() po:nom is:mas\n",
            {"CELEBRE;T"}},
        Cas{"rallonge_arriere_sans_les_formes_du_mot",
            "rallonge_ar_7a8L.txt",
            "célèbre/S.() po:adj\ncélébret/S.() po:nom is:mas\n" + verbe("célébrer"),
            {"CELEBRE;T"}},
        Cas{"rallonges_arriere_des_conjugaisons_aussi",
            "rallonge_ar_5a6L.txt",
            seuls({"fanon", "fanont"}) + verbe("faner"),
            {"FANON?;ST"}},
        Cas{"pas_de_rallonge_par_une_forme_du_mot", "rallonge_ar_5a6L.txt", noms({"fanon"}), {}},
        Cas{"invariables",
            "invar.txt",
            seuls({"ici", "iic", "helas", "or", "gai", "gais"}),
            {"(IC)I;ICI", "(II)C;IIC"}},
        Cas{"noms_variables", "invar.txt", noms({"gare"}), {}},
        Cas{"desequilibre",
            "deseq_cons_voy.txt",
            seuls({"oiseau", "stress", "bateau"}),
            {"AEIOSU;OISEAU", "ERSSST;STRESS"}},
        Cas{"anaverbes",
            "anaverbes.txt",
            verbe("ramer") + verbe("armer") + verbe("parer"),
            {"AEMRR;ARMER;RAMER"}},
        Cas{"fausse_transitivite",
            "transifausses.txt",
            "canoter/a0p.() po:v1_i_____a\n" + seuls({"acetone"}),
            {"ACEENOT;ACETONE"}},
        Cas{"vraie_transitivite",
            "transifausses.txt",
            "canoter/a0p+() po:v1_it____a\n" + seuls({"acetone"}),
            {}},
        Cas{"s_final",
            "s_final.txt",
            seuls({"toujours", "anglais", "gaulois"}) + noms({"marins"}),
            {"JOORSTUU;TOUJOURS"}},
        Cas{"benjamin", "benj_uni.txt", seuls({"abats", "surabats"}), {"ABATS;SUR"}},
        Cas{"verbe_plus_un",
            "vbavb.txt",
            verbecomplet("parer") + verbecomplet("draper"),
            {"PARER+D;DRAPER"}},
        Cas{"verbe_plus_un_pas_au_bout",
            "vbavb.txt",
            verbecomplet("ramer") + verbecomplet("tramer"),
            {}},
        Cas{"verbe_plus_un_seul_sur_son_tirage",
            "vbavb.txt",
            verbecomplet("parer") + verbecomplet("draper") + verbecomplet("prader"),
            {}},
        Cas{"verbe_plus_un_sans_defectif",
            "vbavb.txt",
            verbe("parer") + verbecomplet("draper") + verbecomplet("loner") + verbe("enloer"),
            {}},
        Cas{"verbe_plus_un_par_alphabet_entre_egaux",
            "vbavb.txt",
            verbecomplet("parer") + verbecomplet("arper") + verbecomplet("draper"),
            {"ARPER+D;DRAPER"}},
        Cas{"benjamin_pas_seul", "benj_uni.txt", seuls({"abats", "surabats", "popabats"}), {}}),
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
}  // namespace test_recettes
