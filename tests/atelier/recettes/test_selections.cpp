// The lists that choose by how common and how hard a word is.

#include <string>
#include <string_view>

#include <gmock/gmock.h>

#include "petiteliste.h"

namespace test_selections {
namespace {

using namespace atelier;
using essais::liste;
using essais::seuls;
using essais::verbe;
using essais::verbecomplet;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// A thesaurus that gives a word so many synonyms.
Thesaurus frequent(const std::string& mot, std::size_t synonymes) {
    std::string texte = "UTF-8\n" + mot + "|1\n(Nom)";
    for (std::size_t i = 0; i < synonymes; ++i)
        texte += "|synonyme";
    return {texte + '\n', "t.dat"};
}

/// Adverbs of a beginning and letters in alphabetical order, each alone on its rack.
std::string adverbes(std::size_t nombre, const std::string& debut, std::size_t taille) {
    constexpr std::string_view lettres = "abcdefghilmn";
    std::string lignes;
    for (unsigned choix = 0; choix < 1U << lettres.size() && nombre > 0; ++choix) {
        std::string mot = debut;
        for (std::size_t i = 0; i < lettres.size(); ++i) {
            if ((choix >> i & 1U) != 0)
                mot += lettres[i];
        }
        if (mot.size() != taille)
            continue;
        lignes += mot + " po:adv\n";
        --nombre;
    }
    EXPECT_EQ(nombre, 0U) << "not enough letters";
    return lignes;
}

TEST(Courants, un_mot_assez_courant) {
    const auto lignes = seuls({"bateau", "radeau"});
    EXPECT_THAT(liste("courant_6L.txt", essais::vocabulaire(lignes, frequent("bateau", 4))),
                ElementsAre("AABETU;BATEAU"));
    EXPECT_THAT(liste("courant_6L.txt", essais::vocabulaire(lignes, frequent("bateau", 3))),
                IsEmpty());
}

TEST(Courants, seul_non_conjugue_de_son_tirage) {
    const auto t = frequent("nosplan", 9);
    EXPECT_THAT(
        liste("courant_7L.txt", essais::vocabulaire(seuls({"nosplan"}) + verbe("planer"), t)),
        ElementsAre("ALNNOPS;NOSPLAN"));
    EXPECT_THAT(liste("courant_7L.txt", essais::vocabulaire(seuls({"nosplan", "lanspon"}), t)),
                IsEmpty());
}

TEST(Courants, ni_infinitif_ni_pluriel_evident) {
    EXPECT_THAT(
        liste("courant_6L.txt", essais::vocabulaire(verbe("planer"), frequent("planer", 9))),
        IsEmpty());
    EXPECT_THAT(
        liste("courant_6L.txt", essais::vocabulaire(essais::noms({"plane"}), frequent("plane", 9))),
        IsEmpty());
}

TEST(Courants, les_exemples_du_menu_quelle_que_soit_leur_difficulte) {
    EXPECT_THAT(liste("courant_8L.txt", essais::vocabulaire(seuls({"paranoia", "paravent"}))),
                ElementsAre("AAAINOPR;PARANOIA"));
}

TEST(Courants, les_400_plus_difficiles) {
    const auto lignes = adverbes(410, "", 6);
    std::string citations = "UTF-8\n";
    for (std::size_t i = 0; i < lignes.size(); i = lignes.find('\n', i) + 1)
        citations += lignes.substr(i, 6) + "|1\n(Adv)|a|b|c|d\n";
    EXPECT_THAT(liste("courant_6L.txt", essais::vocabulaire(lignes, Thesaurus(citations, "t.dat"))),
                SizeIs(400));
}

TEST(FormationsAtypiques, des_entrees_et_des_conjugaisons_uniques) {
    // The infinitive has another length; the participle is no conjugation; K is a high-value
    // letter.
    EXPECT_THAT(liste("durs_kvd_7L.txt",
                      essais::vocabulaire(verbe("planer") + seuls({"kabcdef", "rentais"}))),
                ElementsAre("AEINRST;RENTAIS", "ALNNOPS;PLANONS"));
    EXPECT_THAT(liste("durs_kvd_7L.txt", essais::vocabulaire(seuls({"rentais", "ratines"}))),
                IsEmpty());
}

TEST(FormationsAtypiques, sans_les_conjugaisons_en_ai) {
    EXPECT_THAT(
        liste("durs_kvd_7L.txt", essais::vocabulaire("plantai po:v1_it____a po:ipsi po:1sg\n"
                                                     "chantas po:v1_it____a po:ipsi po:2sg\n")),
        ElementsAre("AACHNST;CHANTAS"));
}

TEST(FormationsAtypiques, une_forme_par_verbe) {
    EXPECT_THAT(liste("durs_kvd_7L.txt", essais::vocabulaire("planer/a0d0() po:v1_it____a\n")),
                SizeIs(1));
}

TEST(FormationsAtypiques, les_300_entrees_les_plus_difficiles) {
    EXPECT_THAT(liste("durs_kvd_6L.txt", essais::vocabulaire(adverbes(310, "", 6))), SizeIs(300));
}

TEST(CheresDures, une_entree_unique_et_peu_courante) {
    // The infinitive is an entry; the participle and the conjugations are none.
    const auto lignes = seuls({"zapatte", "rentais"}) + verbe("jaunoner");
    EXPECT_THAT(liste("ch78rev.txt", essais::vocabulaire(lignes, frequent("zapatte", 19))),
                ElementsAre("AAEPTTZ;ZAPATTE", "AEJNNORU;JAUNONER"));
    EXPECT_THAT(liste("ch78rev.txt", essais::vocabulaire(lignes, frequent("zapatte", 20))),
                ElementsAre("AEJNNORU;JAUNONER"));
    EXPECT_THAT(liste("ch78rev.txt", essais::vocabulaire(lignes + "zattepa po:adv\n")),
                ElementsAre("AEJNNORU;JAUNONER"));
}

TEST(CheresDures, deux_cent_cinquante_de_chaque_longueur) {
    const auto lignes =
        liste("ch78rev.txt", essais::vocabulaire(adverbes(260, "z", 7) + adverbes(260, "z", 8)));
    ASSERT_THAT(lignes, SizeIs(500));
    EXPECT_EQ(lignes[249].size(), std::string("ABCDEFZ;ZABCDEF").size());
    EXPECT_EQ(lignes[250].size(), std::string("ABCDEFGZ;ZABCDEFG").size());
}

TEST(VerbesPlusUn, par_le_verbe_le_plus_courant) {
    const auto lignes = verbecomplet("parer") + verbecomplet("arper") + verbecomplet("draper");
    EXPECT_THAT(liste("vbavb.txt", essais::vocabulaire(lignes, frequent("parer", 5))),
                ElementsAre("PARER+D;DRAPER"));
}

TEST(Verbes45, sans_ceux_que_le_thesaurus_dit_courants) {
    const auto lignes = verbecomplet("nouer") + verbecomplet("rouer");
    EXPECT_THAT(liste("vb45.txt", essais::vocabulaire(lignes, frequent("nouer", 99))),
                ElementsAre("ENORU;NOUER", "EORRU;ROUER"));
    EXPECT_THAT(liste("vb45.txt", essais::vocabulaire(lignes, frequent("nouer", 100))),
                ElementsAre("EORRU;ROUER"));
}

}  // namespace
}  // namespace test_selections
