#include <gmock/gmock.h>

#include "envigueur.h"

namespace test_envigueur {
namespace {

using namespace recherche;

TEST(Envigueur, revient_tel_quel_de_ses_octets) {
    Envigueur libre;
    libre.mots = 404251;
    EXPECT_EQ(octets(libre), "libre\r\n404251\r\n\r\n");
    EXPECT_EQ(lireenvigueur(octets(libre)), libre);
    Envigueur perso{"édition 8.txt", 12, {"", "a.txt, b.txt", "c.txt, d.txt"}};
    EXPECT_EQ(octets(perso),
              "perso\r\n12\r\n\xE9"
              "dition 8.txt\r\n2012=a.txt, b.txt\r\n2016=c.txt, d.txt\r\n");
    EXPECT_EQ(lireenvigueur(octets(perso)), perso);
}

TEST(Envigueur, ce_que_la_page_de_code_n_a_pas_devient_un_point_d_interrogation) {
    EXPECT_EQ(nomretenu("слова\r\n.txt"),
              "?????"
              "??.txt");
}

class Abime : public testing::TestWithParam<const char*> {};
TEST_P(Abime, ne_dit_rien) {
    EXPECT_EQ(lireenvigueur(GetParam()), std::nullopt);
}
INSTANTIATE_TEST_SUITE_P(Envigueur, Abime,
                         testing::Values("", "libre", "autre\r\n1\r\n\r\n", "libre\r\nx\r\n\r\n",
                                         "libre\r\n1\r\nnom\r\n", "perso\r\n1\r\n\r\n"));

}  // namespace
}  // namespace test_envigueur
