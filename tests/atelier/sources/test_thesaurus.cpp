#include <gmock/gmock.h>

#include "faute.h"
#include "thesaurus.h"

namespace test_thesaurus {
namespace {

using atelier::Thesaurus;
using testing::ElementsAre;
using testing::HasSubstr;

const std::string texte =
    "UTF-8\n"
    "abaca|1\n"
    "(Nom)|chanvre|chènevière|faire la noce|plier(se)\n"
    "chanvre|2\n"
    "(Nom)|abaca|filasse\n"
    "(Verbe)|filasse|jute\n";

TEST(Thesaurus, la_frequence_compte_les_synonymes_donnes_et_recus) {
    const Thesaurus lu(texte, "t.dat");
    EXPECT_EQ(lu.frequence("abaca"), 5U);    // cited once, given four
    EXPECT_EQ(lu.frequence("chanvre"), 5U);  // cited once, given four
    EXPECT_EQ(lu.frequence("filasse"), 2U);
    EXPECT_EQ(lu.frequence("inconnu"), 0U);
    EXPECT_EQ(Thesaurus().frequence("abaca"), 0U);
}

TEST(Thesaurus, les_synonymes_d_un_mot_sont_de_tous_ses_sens_et_chacun_une_fois) {
    const Thesaurus lu(texte, "t.dat");
    EXPECT_THAT(lu.synonymes("chanvre"), ElementsAre("abaca", "filasse", "jute"));
    EXPECT_THAT(lu.synonymes("abaca"), ElementsAre("chanvre", "chènevière"));
    EXPECT_THAT(lu.synonymes("filasse"), ElementsAre());
}

struct Casse {
    const char* nom;
    const char* texte;
    const char* ennui;
};
class ThesaurusCasse : public testing::TestWithParam<Casse> {};
TEST_P(ThesaurusCasse, est_une_faute_avec_la_ligne) {
    try {
        const Thesaurus lu(GetParam().texte, "t.dat");
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), HasSubstr(GetParam().ennui));
    }
}
INSTANTIATE_TEST_SUITE_P(
    Thesaurus, ThesaurusCasse,
    testing::Values(Casse{"vide", "", "ligne 0 : on attend « UTF-8 »"},
                    Casse{"autre_encodage", "ISO8859-1\n", "ligne 1 : on attend « UTF-8 »"},
                    Casse{"sans_nombre", "UTF-8\nabaca\n", "ligne 2 : on attend un mot"},
                    Casse{"nombre_illisible", "UTF-8\nabaca|x\n", "ligne 2 : on attend un mot"},
                    Casse{"coupe", "UTF-8\nabaca|2\n(Nom)|jute\n",
                          "ligne 3 : le fichier est coupé"}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_thesaurus
