#include <string>

#include <gmock/gmock.h>

#include "faute.h"
#include "texte.h"

namespace test_texte {
namespace {

using common::code1252;
using common::depuis1252;
using common::vers1252;

TEST(Occidental, chacun_des_256_octets_revient_tel_quel) {
    for (int octet = 0; octet <= 0xFF; ++octet) {
        const std::string seul(1, static_cast<char>(octet));
        EXPECT_EQ(vers1252(depuis1252(seul)), seul) << octet;
        EXPECT_EQ(common::longueur(depuis1252(seul)), 1U) << octet;
        EXPECT_EQ(code1252(common::caractere1252(static_cast<unsigned char>(octet))), octet);
    }
}

struct Octet {
    const char* nom;
    unsigned char octet;
    const char* texte;
};
class Caractere : public testing::TestWithParam<Octet> {};
TEST_P(Caractere, dans_les_deux_sens) {
    const std::string octet(1, static_cast<char>(GetParam().octet));
    EXPECT_EQ(depuis1252(octet), GetParam().texte);
    EXPECT_EQ(vers1252(GetParam().texte), octet);
}
INSTANTIATE_TEST_SUITE_P(
    Occidental, Caractere,
    testing::Values(Octet{"lettre", 'A', "A"}, Octet{"accent", 0xE9, "é"}, Octet{"euro", 0x80, "€"},
                    Octet{"oe_lie", 0x9C, "œ"}, Octet{"Y_trema", 0x9F, "Ÿ"},
                    Octet{"insecable", 0xA0, "\u00A0"}, Octet{"dernier", 0xFF, "ÿ"},
                    Octet{"indefini_81", 0x81, "\u0081"}, Octet{"indefini_8D", 0x8D, "\u008D"},
                    Octet{"indefini_8F", 0x8F, "\u008F"}, Octet{"indefini_90", 0x90, "\u0090"},
                    Octet{"indefini_9D", 0x9D, "\u009D"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Occidental, un_caractere_qui_manque_est_nomme) {
    EXPECT_FALSE(code1252(U'ő'));
    EXPECT_FALSE(code1252(0x80));
    EXPECT_EQ(common::essayervers1252("Erdős"), std::nullopt);
    EXPECT_EQ(common::essayervers1252("Noël"), "No\xEBl");
    try {
        static_cast<void>(vers1252("Erdős"));
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_THAT(faute.what(), testing::HasSubstr("« ő »"));
    }
}

TEST(Occidental, un_octet_mal_forme_reste_lui_meme) {
    EXPECT_EQ(common::premier("\xE9"), 0xE9U);
    EXPECT_EQ(vers1252("\xE9t\xE9"), "\xE9t\xE9");
}

TEST(Utf8, caracteres_de_un_a_quatre_octets) {
    for (const char* lettre : {"a", "é", "€", "😀"}) {
        EXPECT_EQ(common::utf8(common::premier(lettre)), lettre);
        EXPECT_EQ(common::longueur(lettre), 1U);
    }
    EXPECT_EQ(common::premier(""), 0U);
    EXPECT_THAT(common::caracteres("aé€"), testing::ElementsAre("a", "é", "€"));
}

struct Coupe {
    const char* nom;
    std::string lu;
    const char* attendu;
};
class Partie : public testing::TestWithParam<Coupe> {};
TEST_P(Partie, compte_les_caracteres) {
    EXPECT_EQ(GetParam().lu, GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Texte, Partie,
    testing::Values(Coupe{"sans_blancs", std::string(common::sansblancs(" \tà  b\t ")), "à  b"},
                    Coupe{"blancs_seuls", std::string(common::sansblancs(" \t")), ""},
                    Coupe{"milieu", common::milieu("éàçù", 2, 2), "àç"},
                    Coupe{"milieu_jusqu_au_bout", common::milieu("éàçù", 3), "çù"},
                    Coupe{"milieu_trop_long", common::milieu("éà", 2, 9), "à"},
                    Coupe{"milieu_hors_du_texte", common::milieu("éà", 9, 2), ""},
                    Coupe{"milieu_de_zero", common::milieu("éà", 1, 0), ""},
                    Coupe{"debut", common::debut("éàç", 2), "éà"},
                    Coupe{"debut_trop_long", common::debut("éà", 9), "éà"},
                    Coupe{"fin", common::fin("éàç", 2), "àç"},
                    Coupe{"fin_trop_longue", common::fin("éà", 9), "éà"},
                    Coupe{"fin_de_zero", common::fin("éà", 0), ""},
                    Coupe{"sansfin", common::sansfin("éàç", 1), "éà"},
                    Coupe{"sansfin_trop_longue", common::sansfin("éà", 9), ""},
                    Coupe{"minuscules", common::minuscules("AZÉÀÇÆŒŠŽŸÞ×ß9é"), "azéàçæœšžÿþ×ß9é"}),
    [](const auto& rangee) { return rangee.param.nom; });

}  // namespace
}  // namespace test_texte
