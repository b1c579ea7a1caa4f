#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "inventaire.h"

namespace test_inventaire {
namespace {

const std::string sommeabc = "ba7816bf8f01cfea414140de5dae2223b00361a396177a9cb410ff61f20015ad";
const std::string sommevide = "e3b0c44298fc1c149afbf4c8996fb92427ae41e4649b934ca495991b7852b855";

class Inventaire : public testing::Test {
  protected:
    Inventaire() {
        std::filesystem::create_directories(dossier.chemin() / "listes");
        dossier.ecrire("listes/a b.txt", "abc");
        dossier.ecrire("été.txt", "");
        dossier.ecrire("inventaire.txt", "celui d'avant");
    }
    essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
};

TEST_F(Inventaire, nomme_chaque_fichier_et_sa_somme_sauf_lui_meme) {
    using installation::Fourni;
    EXPECT_THAT(
        installation::inventorier(dossier.chemin()).fichiers,
        testing::ElementsAre(Fourni{sommeabc, "listes\\a b.txt"}, Fourni{sommevide, "été.txt"}));
}

TEST_F(Inventaire, se_relit) {
    auto ecrit = installation::inventorier(dossier.chemin());
    ecrit.version = installation::versionde("2.68", ecrit.fichiers);
    dossier.ecrire("inventaire.txt", installation::ecrire(ecrit));
    const auto lu = installation::lireinventaire(disque);
    EXPECT_EQ(lu.version, ecrit.version);
    EXPECT_EQ(lu.fichiers, ecrit.fichiers);
}

TEST_F(Inventaire, d_un_dossier_absent_est_une_faute) {
    EXPECT_THROW(static_cast<void>(installation::inventorier(dossier.chemin() / "absent")),
                 common::Faute);
}

TEST_F(Inventaire, a_une_version_qui_suit_le_contenu) {
    const auto avant = installation::inventorier(dossier.chemin()).fichiers;
    dossier.ecrire("été.txt", "abc");
    const auto apres = installation::inventorier(dossier.chemin()).fichiers;
    const auto version = installation::versionde("2.68", avant);
    EXPECT_THAT(version, testing::StartsWith("2.68 "));
    EXPECT_EQ(version, installation::versionde("2.68", avant));
    EXPECT_NE(version, installation::versionde("2.69", avant));
    EXPECT_NE(version, installation::versionde("2.68", apres));
}

struct Texte {
    const char* nom;
    std::string texte;
};
class Inventairesfaux : public testing::TestWithParam<Texte> {};
TEST_P(Inventairesfaux, sont_des_fautes) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("inventaire.txt", GetParam().texte);
    common::DisqueReel disque(dossier.chemin());
    EXPECT_THROW(static_cast<void>(installation::lireinventaire(disque)), common::Faute);
}
INSTANTIATE_TEST_SUITE_P(
    Inventaire, Inventairesfaux,
    testing::Values(Texte{"vide", ""}, Texte{"sans_version", "\n" + sommeabc + "  ./a.txt\n"},
                    Texte{"somme_courte", "1\n" + sommeabc.substr(1) + "  ./a.txt\n"},
                    Texte{"sans_nom", "1\n" + sommeabc + "  ./\n"},
                    Texte{"somme_a_capitales", "1\nBA" + sommeabc.substr(2) + "  ./a.txt\n"},
                    Texte{"hors_du_dossier", "1\n" + sommeabc + "  ./listes/../../a.txt\n"},
                    Texte{"de_la_racine", "1\n" + sommeabc + "  .//a.txt\n"},
                    Texte{"sans_point", "1\n" + sommeabc + "  a/b.txt\n"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST(Inventaires, un_dossier_sans_inventaire_est_une_faute) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    EXPECT_THROW(static_cast<void>(installation::lireinventaire(disque)), common::Faute);
}

}  // namespace
}  // namespace test_inventaire
