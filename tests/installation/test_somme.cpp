#include <gtest/gtest.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "somme.h"

namespace test_somme {
namespace {

struct Exemple {
    const char* nom;
    std::string octets;
    const char* somme;
};
class Sommes : public testing::TestWithParam<Exemple> {};

// The examples of FIPS 180-2, and lengths around that of a block.
TEST_P(Sommes, est_celle_de_SHA_256) {
    installation::Somme somme;
    somme.ajouter(GetParam().octets);
    EXPECT_EQ(somme.finir(), GetParam().somme);
}

TEST_P(Sommes, ne_depend_pas_des_morceaux) {
    installation::Somme somme;
    for (std::string_view reste = GetParam().octets; !reste.empty();) {
        somme.ajouter(reste.substr(0, 7));
        reste.remove_prefix(std::min<std::size_t>(7, reste.size()));
    }
    EXPECT_EQ(somme.finir(), GetParam().somme);
}

INSTANTIATE_TEST_SUITE_P(
    Somme, Sommes,
    testing::Values(
        Exemple{"rien", "", "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855"},
        Exemple{"trois_octets", "abc",
                "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad"},
        Exemple{"deux_blocs", "abcdbcdecdefdefgefghfghighijhijkijkljklmklmnlmnomnopnopq",
                "248d6a61d20638b8e5c026930c3e6039a33ce45964ff2167f6ecedd419db06c1"},
        Exemple{"un_bloc_plein", std::string(64, 'a'),
                "ffe054fe7ae0cb6dc65c3af9b61d5209f439851db43d0ba5997337df154668eb"},
        Exemple{"octets_hauts", "\xE9\xFF",
                "50d28744cb192e9235fb8e1260c9095a8b02c5b694583cb3f2f529eb768489b5"},
        Exemple{"un_million", std::string(1000000, 'a'),
                "cdc76e5c9914fb9281a1c7e284d73e67f1809a48a497200e046d39ccc7112cd0"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Somme, d_un_fichier) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("é.txt", "abc");
    common::DisqueReel disque(dossier.chemin());
    std::string somme = "avant";
    EXPECT_EQ(installation::sommer(disque, "absent", somme), std::errc::no_such_file_or_directory);
    EXPECT_EQ(somme, "avant");
    EXPECT_FALSE(installation::sommer(disque, "é.txt", somme));
    EXPECT_EQ(somme, "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad");
}

}  // namespace
}  // namespace test_somme
