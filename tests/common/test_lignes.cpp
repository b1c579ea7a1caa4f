#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "lignes.h"

namespace test_lignes {
namespace {

using testing::ElementsAre;

/// A line, its number, and whether it had a line end.
using Ligne = std::tuple<std::string, std::size_t, bool>;

std::vector<Ligne> decouper(common::Decoupage decoupage) {
    std::vector<Ligne> lignes;
    for (std::string_view ligne; decoupage.suivante(ligne);)
        lignes.emplace_back(ligne, decoupage.numero(), decoupage.terminee());
    return lignes;
}

TEST(Decoupage, de_rien_ne_donne_aucune_ligne) {
    EXPECT_TRUE(decouper({}).empty());
    EXPECT_TRUE(decouper(common::Decoupage("")).empty());
}

TEST(Decoupage, dit_si_la_ligne_a_sa_fin) {
    EXPECT_THAT(decouper(common::Decoupage("A\r\n\nB")),
                ElementsAre(Ligne("A", 1, true), Ligne("", 2, true), Ligne("B", 3, false)));
    EXPECT_THAT(decouper(common::Decoupage("A\nB\r")),
                ElementsAre(Ligne("A", 1, true), Ligne("B", 2, true)));
}

TEST(Decoupage, compte_les_lignes_qui_precedent) {
    EXPECT_THAT(decouper(common::Decoupage("A\nB\n", 41)),
                ElementsAre(Ligne("A", 42, true), Ligne("B", 43, true)));
}

TEST(Decoupage, dit_ce_qui_reste) {
    common::Decoupage decoupage("A\r\nB\r\nC");
    std::string_view ligne;
    ASSERT_TRUE(decoupage.suivante(ligne));
    EXPECT_EQ(decoupage.reste(), "B\r\nC");
}

TEST(Lignes, de_memoire_sont_des_vues_des_octets) {
    const std::string octets = "A;B\r\nC;D\r\n";
    common::Lignes(octets).chaque([&](std::string_view ligne, std::size_t numero) {
        EXPECT_EQ(ligne.data(), octets.data() + 5 * (numero - 1));
    });
}

/// Counts the files that are open.
class Compteur : public essais::AppelsDessai {
  public:
    int ouverts = 0;
    std::error_code ouvrir(const Chemin& chemin, common::Ouverture mode,
                           common::Poignee& poignee) override {
        const auto erreur = AppelsDessai::ouvrir(chemin, mode, poignee);
        ouverts += erreur ? 0 : 1;
        return erreur;
    }
    void fermer(common::Poignee poignee) override {
        AppelsDessai::fermer(poignee);
        --ouverts;
    }
};

/// As a file has to be where it cannot be replaced while it is open.
TEST(Lignes, lues_jusqu_au_bout_le_fichier_est_ferme) {
    const essais::DossierTemporaire dossier;
    Compteur appels;
    common::DisqueReel disque(dossier.chemin(), appels);
    for (const auto* octets : {"", "A", "A\r\nB\r\n"}) {
        dossier.ecrire("f.txt", octets);
        common::Items items(disque, "f.txt", "Essai");
        EXPECT_EQ(appels.ouverts, 1);
        for (std::string_view item; items.lireitem(item);)
            EXPECT_FALSE(item.empty());
        EXPECT_EQ(appels.ouverts, 0) << octets;
        std::string_view rien;
        EXPECT_FALSE(items.lireitem(rien));
    }
}

TEST(Items, de_memoire_sont_ceux_d_un_fichier) {
    const std::string octets = "A, B\r\n\"C\r\nD\",E\r\n F\r\nG";
    std::vector<std::pair<std::string, std::size_t>> lus;
    common::Items(octets).chaque(
        [&](std::string_view item, std::size_t numero) { lus.emplace_back(item, numero); });
    EXPECT_THAT(lus, ElementsAre(std::pair("A", 1), std::pair("B", 1), std::pair("C\r\nD", 2),
                                 std::pair("E", 3), std::pair("F", 4), std::pair("G", 5)));
}

}  // namespace
}  // namespace test_lignes
