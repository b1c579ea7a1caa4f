#include <set>
#include <string>

#include <gmock/gmock.h>

#include "notes.h"
#include "petitlexique.h"

namespace test_notes {
namespace {

using namespace atelier;

const std::string lignes =
    "cheval/X.() po:nom is:mas\n"
    "chat/S.() po:nom is:mas\n"
    "jouer/a0p+() po:v1_it____a\n"
    "funérailles po:nom is:fem is:pl\n"
    "courre/L' po:v3__t_____ is:infi\n"
    "gésir/iV() po:v3_i______\n"
    "regésir/iV() po:v3_i____zz\n"
    "entrenuire/yX() po:v3____r_e_\n"
    "lobe/S.() po:nom is:mas\n"
    "lober/a0p+() po:v1_it____a\n"
    "loge po:nom is:fem is:pl\n"
    "loger/a0p+() po:v1_it____a\n"
    "cuver/a0p+() po:v1_it____a\n"
    "cuvée/S.() po:nom is:fem\n";

std::string thesaurus() {
    return "UTF-8\nchat|1\n(Nom)|matou|gros minet|minet|greffier|mistigri\n"
           "cheval|1\n(Nom)|étalon\n"
           "lober|1\n(Verbe)|tromper\n"
           "loger|1\n(Verbe)|habiter\n"
           "cuver|1\n(Verbe)|digérer\n"
           "cuvée|1\n(Nom)|récolte\n";
}

/// The note of a word that a list asks; empty if it has none.
std::string note(const char* mot, bool atypique = false) {
    const Thesaurus t(thesaurus(), "t.dat");
    const auto v = essais::vocabulaire(lignes, t);
    const auto place = static_cast<std::uint32_t>(v.chercher(mot) - v.mots().data());
    const auto liste = notes(v, t, {place}, atypique ? std::set{place} : std::set<std::uint32_t>{});
    if (liste.empty())
        return {};
    EXPECT_EQ(liste[0].mot, mot);
    return liste[0].texte;
}

TEST(Notes, trois_synonymes_d_un_mot_au_plus) {
    EXPECT_EQ(note("CHAT"), "= matou, minet, greffier");
}

TEST(Notes, un_pluriel_ordinaire_n_a_pas_de_note) {
    EXPECT_EQ(note("CHATS"), "");
}

TEST(Notes, un_pluriel_irregulier_dit_son_singulier) {
    EXPECT_EQ(note("CHEVAUX"), "pl. de cheval");
}

TEST(Notes, un_pluriel_sans_singulier_n_a_pas_de_note) {
    EXPECT_EQ(note("FUNERAILLES"), "");
}

TEST(Notes, une_forme_d_un_verbe_defectif_le_dit) {
    EXPECT_EQ(note("GISAIS"), "verbe défectif GESIR");
}

TEST(Notes, un_verbe_du_premier_groupe_n_est_pas_dit_defectif) {
    EXPECT_EQ(note("JOUONS"), "");  // the small affixes lack most of its forms
    EXPECT_EQ(note("JOUONS", true), "v. JOUER");
}

TEST(Notes, un_verbe_que_le_lexique_decrit_a_demi_n_est_pas_dit_defectif) {
    EXPECT_EQ(note("REGISAIS"), "");
}

TEST(Notes, un_verbe_reciproque_n_est_pas_dit_defectif) {
    EXPECT_EQ(note("ENTRENUISENT"), "");
}

TEST(Notes, un_verbe_connu_par_son_seul_infinitif_n_est_pas_dit_defectif) {
    EXPECT_EQ(note("COURRE"), "");
}

TEST(Notes, un_participe_dit_son_verbe_avant_ses_synonymes) {
    EXPECT_EQ(note("LOBEE"), "p. p. de LOBER ; = tromper");
    EXPECT_EQ(note("LOBANT"), "p. pr. de LOBER ; = tromper");
    EXPECT_EQ(note("LOBER"), "= tromper");
}

TEST(Notes, un_nom_passe_avant_le_verbe_qui_a_la_meme_forme) {
    EXPECT_EQ(note("CUVEE"), "= récolte");
}

TEST(Notes, un_nom_sans_synonyme_ne_prend_pas_ceux_du_verbe) {
    EXPECT_EQ(note("LOBE"), "p. p. de LOBER");
}

TEST(Notes, un_nom_qui_n_est_qu_un_pluriel_laisse_parler_le_verbe) {
    EXPECT_EQ(note("LOGE"), "p. p. de LOGER ; = habiter");
}

TEST(Notes, une_forme_atypique_dit_son_verbe) {
    EXPECT_EQ(note("COURRE", true), "v. COURRE");
}

TEST(Notes, elles_sont_par_alphabet_et_jamais_vides_ni_un_mot) {
    const Thesaurus t(thesaurus(), "t.dat");
    const auto v = essais::vocabulaire(lignes, t);
    std::set<std::uint32_t> toutes;
    for (std::uint32_t i = 0; i < v.mots().size(); ++i)
        toutes.insert(i);
    const auto liste = notes(v, t, toutes, {});
    ASSERT_FALSE(liste.empty());
    for (std::size_t i = 0; i < liste.size(); ++i) {
        EXPECT_FALSE(liste[i].texte.empty());
        EXPECT_FALSE(v.existe(liste[i].texte));
        if (i > 0) {
            EXPECT_LT(liste[i - 1].mot, liste[i].mot);
        }
    }
}

}  // namespace
}  // namespace test_notes
