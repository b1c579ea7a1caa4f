#include <gmock/gmock.h>

#include "petitglossaire.h"

namespace test_glossaire {
namespace {

using namespace recherche;

struct Facons {
    const char* mot;
    std::uint64_t nombre;
};
class Probabilite : public testing::TestWithParam<Facons> {};
TEST_P(Probabilite, compte_les_facons_de_tirer_les_lettres_du_sac) {
    EXPECT_EQ(tirages(GetParam().mot), GetParam().nombre);
}
INSTANTIATE_TEST_SUITE_P(Glossaire, Probabilite,
                         testing::Values(Facons{"WU", 6}, Facons{"AA", 36}, Facons{"ETE", 630},
                                         Facons{"KAKI", 0}, Facons{"ANA", 216},
                                         Facons{"AEINRST", 9ULL * 15 * 8 * 6 * 6 * 6 * 6}));

atelier::Vocabulaire vocabulaire() {
    return essais::vocabulaire(essais::noms({"nez", "art", "rat", "quart", "tarare"}) +
                               "jouer/a0p+() po:v1_it____a\n" + essais::seuls({"zen", "zut"}));
}

/// All that is known of a word.
std::string texte(const Glossaire& g, const Fiche& f) {
    return std::string(f.texte()) + ' ' + std::to_string(f.tirage) + ' ' +
           std::to_string(f.devant) + ' ' + std::to_string(f.derriere) + ' ' +
           std::to_string(f.difficulte) + ' ' + std::to_string(f.marques) + ' ' +
           std::to_string(f.anagrammes) + ' ' + std::to_string(f.poids) + ' ' +
           std::to_string(f.voyelles) + ' ' + std::to_string(g.surtirage(f.tirage).front());
}

std::vector<std::string> textes(const Glossaire& g) {
    std::vector<std::string> tous;
    for (const auto& fiche : g.fiches())
        tous.push_back(texte(g, fiche));
    for (const auto ordre :
         {Ordre::alphabet, Ordre::difficulte, Ordre::probabilite, Ordre::poids}) {
        for (const auto place : g.places(ordre))
            tous.push_back(std::to_string(place));
    }
    return tous;
}

TEST(Glossaire, revient_tel_quel_de_ses_octets) {
    const auto fait = essais::glossaire(vocabulaire());
    const auto lu = Glossaire::lire(fait.octets());
    ASSERT_TRUE(lu);
    EXPECT_EQ(textes(*lu), textes(fait));
    EXPECT_EQ(lu->octets(), fait.octets());
}

TEST(Glossaire, des_octets_coupes_ou_changes_ne_sont_rien) {
    const auto octets = essais::glossaire(vocabulaire()).octets();
    for (std::size_t i = 0; i < octets.size(); ++i) {
        EXPECT_FALSE(Glossaire::lire(octets.substr(0, i))) << i;
        auto change = octets;
        change[i] = static_cast<char>(change[i] ^ 0x10);
        EXPECT_FALSE(Glossaire::lire(change)) << i;
    }
    EXPECT_FALSE(Glossaire::lire(octets + '\0'));
}

TEST(Glossaire, la_difficulte_est_celle_des_listes) {
    const auto v = vocabulaire();
    const atelier::Difficulte difficulte(v);
    const Glossaire g(v, difficulte);
    ASSERT_EQ(g.fiches().size(), v.mots().size());
    for (const auto& fiche : g.fiches())
        EXPECT_EQ(fiche.difficulte, difficulte.de(*v.chercher(fiche.texte()))) << fiche.texte();
}

TEST(Glossaire, trouve_chaque_mot_et_nul_autre) {
    const auto g = essais::glossaire(vocabulaire());
    for (std::uint32_t place = 0; place < g.fiches().size(); ++place)
        EXPECT_EQ(g.chercher(g.fiches()[place].texte()), place);
    for (const auto* absent : {"", "AR", "ARTSS", "ZZZ", "ABCDEFGHIJKLMNOPQR"})
        EXPECT_EQ(g.chercher(absent), std::nullopt) << absent;
}

TEST(Glossaire, connait_les_mots_d_un_tirage) {
    const auto g = essais::glossaire(vocabulaire());
    const auto place = g.chercher("RAT");
    ASSERT_TRUE(place);
    const auto sur = g.surtirage(g.fiches()[*place].tirage);
    EXPECT_EQ(essais::mots(g, {sur.begin(), sur.end()}), (std::vector<std::string>{"ART", "RAT"}));
}

}  // namespace
}  // namespace test_glossaire
