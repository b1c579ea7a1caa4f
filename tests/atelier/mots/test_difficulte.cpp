#include <gmock/gmock.h>

#include "difficulte.h"
#include "petitlexique.h"

namespace test_difficulte {
namespace {

using namespace atelier;

TEST(Difficulte, le_seul_mot_ne_peut_suggerer_que_lui) {
    const auto v = essais::vocabulaire(essais::seuls({"abcde"}));
    // Four neighbours counted once measure 1 each: 4 / 5 rounds down to 0, less its own 4.
    EXPECT_EQ(Difficulte(v).de(*v.chercher("ABCDE")), -4);
}

TEST(Difficulte, un_debut_et_une_fin_plus_courants_que_les_siens_comptent_double) {
    // CDE ends three words, ABC begins three; of the rack ABCDE, EDCBA takes neither.
    const auto v = essais::vocabulaire(
        essais::seuls({"edcba", "ffcde", "ggcde", "hhcde", "abcff", "abcgg", "abchh"}));
    const Difficulte difficulte(v);
    // The fourth power of 3 is 81, of 7 bits. Own beginning and ending measure 1. Neighbours: ED DC
    // CB BA once (1 each), CD DE AB BC three times (7 each): 32 / 5 is 6, less its own 4.
    EXPECT_EQ(difficulte.de(*v.chercher("EDCBA")), 2 * (7 - 1) + 2 * (7 - 1) + 6 - 4);
}

TEST(Difficulte, les_conjugaisons_et_les_mots_courts_ou_longs_n_apprennent_rien) {
    const auto seul = essais::vocabulaire(essais::seuls({"abcde"}));
    const auto entoure = essais::vocabulaire(essais::seuls({"abcde", "abcd", "abcdefghijk"}) +
                                             "sabcder/a0() po:v1_i_____a\n");
    // The infinitive SABCDER and the participle SABCDANT count; SABCDE and SABCDONS do not.
    const auto compte = Difficulte(entoure).de(*entoure.chercher("ABCDE"));
    const auto attendu = essais::vocabulaire(essais::seuls({"abcde", "sabcder", "sabcdant"}));
    EXPECT_EQ(compte, Difficulte(attendu).de(*attendu.chercher("ABCDE")));
    EXPECT_NE(compte, Difficulte(seul).de(*seul.chercher("ABCDE")));
}

}  // namespace
}  // namespace test_difficulte
