#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "contenu.h"
#include "fabrication.h"
#include "petitlexique.h"

namespace test_contenu {
namespace {

using namespace atelier;
using testing::ElementsAre;

std::vector<std::string> textes(const Contenu& contenu) {
    std::vector<std::string> lignes;
    for (const auto& rangee : contenu.rangees)
        lignes.push_back(rangee.texte());
    return lignes;
}

std::vector<std::string> textes(const Selection& selection) {
    std::vector<std::string> mots;
    for (const auto* mot : selection)
        mots.emplace_back(mot->texte());
    return mots;
}

TEST(Rangees, un_mot_seul_a_ses_lettres_en_ordre_pour_tirage) {
    const auto v = essais::vocabulaire(essais::seuls({"chat", "os"}));
    EXPECT_THAT(textes(simples(v, choisir(v, 2, 15, tous))), ElementsAre("OS;OS", "ACHT;CHAT"));
}

struct Indice {
    const char* nom;
    std::vector<const char*> rivaux;
    const char* tirage;
};
void PrintTo(const Indice& i, std::ostream* os) {
    *os << i.nom;
}
class Indices : public testing::TestWithParam<Indice> {};
TEST_P(Indices, est_le_plus_court_debut_qui_distingue) {
    std::string lignes = "zen po:adv\n";
    for (const auto* rival : GetParam().rivaux)
        lignes += std::string(rival) + " po:adv\n";
    const auto v = essais::vocabulaire(lignes);
    EXPECT_EQ(tirageavecindice(*v.chercher("ZEN"), choisir(v, 3, 3, tous)), GetParam().tirage);
}
INSTANTIATE_TEST_SUITE_P(Rangees, Indices,
                         testing::Values(Indice{"sans_rival", {}, "ENZ"},
                                         Indice{"premiere_lettre", {"nez"}, "(Z)EN"},
                                         Indice{"deux_lettres", {"nez", "zne"}, "(ZE)N"}),
                         [](const auto& rangee) { return rangee.param.nom; });

TEST(Rangees, chaque_rival_a_son_indice) {
    const auto v = essais::vocabulaire(essais::seuls({"nez", "zen"}));
    const auto mots = choisir(v, 3, 3, tous);
    EXPECT_THAT(textes(indiques(v, mots, mots)), ElementsAre("(N)EZ;NEZ", "(Z)EN;ZEN"));
    EXPECT_THAT(textes(indiques(v, {mots[0]}, {mots[0]})), ElementsAre("ENZ;NEZ"));
}

TEST(Rangees, l_ordre_est_celui_du_nombre_de_lettres_des_lettres_et_des_solutions) {
    Contenu contenu;
    contenu.rangees = {{"BCD", "BCD", "X"},
                       {"AAAA", "AAAA", "X"},
                       {"ABC", "(B)AC", "BAC"},
                       {"ABC", "(A)BC", "ABC"}};
    ordonner(contenu);
    EXPECT_THAT(textes(contenu), ElementsAre("(A)BC;ABC", "(B)AC;BAC", "BCD;X", "AAAA;X"));
}

class Frequences : public testing::Test {
  protected:
    const Thesaurus thesaurus{
        "UTF-8\naba|1\n(Nom)|cac|cac\nbab|1\n(Nom)|cac\ncac|1\n(Nom)|aba\nlire|1\n(Verbe)|aba\n",
        "t.dat"};
    const Vocabulaire v = essais::vocabulaire(
        essais::seuls({"aba", "bab", "cac", "dad"}) + "lire/L' po:v3_it____a is:infi\n", thesaurus);
};

TEST_F(Frequences, couper_ote_les_plus_courants_jusqu_au_total) {
    const auto mots = choisir(v, 3, 3, tous);  // 4 of ABA, 1 of BAB, 4 of CAC, 0 of DAD
    EXPECT_THAT(textes(couper(v, mots, 4, frequence)), ElementsAre("ABA", "BAB", "CAC", "DAD"));
    EXPECT_THAT(textes(couper(v, mots, 3, frequence)), ElementsAre("BAB", "CAC", "DAD"));
    EXPECT_THAT(textes(couper(v, mots, 2, frequence)), ElementsAre("BAB", "DAD"));
}

TEST_F(Frequences, couper_n_ote_que_ce_qui_est_otable) {
    const auto sauf = [](const Mot& mot) { return mot.texte() != "ABA"; };
    EXPECT_THAT(textes(couper(v, choisir(v, 3, 3, tous), 1, frequence, sauf)), ElementsAre("ABA"));
    EXPECT_THAT(textes(couper(v, choisir(v, 3, 3, tous), 0, frequence, sauf)), ElementsAre("ABA"));
}

TEST_F(Frequences, un_verbe_que_tous_emploient_passe_devant) {
    EXPECT_EQ(frequencedeverbe(v, *v.chercher("LIRE")), 1001U);
    EXPECT_EQ(frequencedeverbe(v, *v.chercher("ABA")), 4U);
}

TEST_F(Frequences, les_plus_hauts_gardent_l_alphabet_entre_egaux) {
    const auto mesure = [](const Mot& mot) { return mot.texte() == "DAD" ? 9 : 1; };
    EXPECT_THAT(textes(plushauts(choisir(v, 3, 3, tous), 2, mesure)), ElementsAre("ABA", "DAD"));
}

TEST(Rangees, un_mot_injurieux_n_est_jamais_choisi_ni_demande) {
    const auto v = essais::vocabulaire("boche/S.() po:nom\nchobe po:adv\n");
    EXPECT_THAT(textes(choisir(v, 5, 5, tous)), ElementsAre("CHOBE"));
    Contenu contenu;
    const auto& tirage = v.tirages(5, 5)[0];
    ajoutermultiple(contenu, v, tirage, choisir(v, tirage, tous));
    EXPECT_TRUE(contenu.rangees.empty());
}

TEST(Rangees, plusieurs_solutions_sont_dans_l_ordre_alphabetique) {
    const auto v = essais::vocabulaire(essais::seuls({"zen", "nez"}));
    Contenu contenu;
    const auto& tirage = v.tirages(3, 3)[0];
    ajoutermultiple(contenu, v, tirage, choisir(v, tirage, tous));
    EXPECT_THAT(textes(contenu), ElementsAre("ENZ;NEZ;ZEN"));
    EXPECT_EQ(contenu.mots.size(), 2U);
}

struct Coupe {
    const char* nom;
    std::size_t rangees;
    std::vector<std::size_t> tailles;
};
void PrintTo(const Coupe& c, std::ostream* os) {
    *os << c.nom;
}
class Parties : public testing::TestWithParam<Coupe> {};
TEST_P(Parties, se_suivent_et_se_valent) {
    std::vector<Rangee> rangees(GetParam().rangees);
    const auto nombre = GetParam().tailles.size();
    const auto* suite = rangees.data();
    for (std::size_t k = 0; k < nombre; ++k) {
        const auto p = partie(rangees, nombre, k);
        EXPECT_EQ(p.size(), GetParam().tailles[k]);
        EXPECT_EQ(p.data(), suite);
        suite += p.size();
    }
}
INSTANTIATE_TEST_SUITE_P(Rangees, Parties,
                         testing::Values(Coupe{"juste", 8, {2, 2, 2, 2}},
                                         Coupe{"reste", 10, {2, 3, 2, 3}}, Coupe{"deux", 3, {1, 2}},
                                         Coupe{"peu", 1, {0, 0, 1}}, Coupe{"rien", 0, {0, 0}}),
                         [](const auto& rangee) { return rangee.param.nom; });

TEST(Fabrication, une_liste_trop_longue_est_coupee_et_le_dit) {
    // Words of five letters with a high-value letter: one over what a list holds.
    std::string lignes;
    std::size_t faits = 0;
    for (char a = 'a'; a <= 'z' && faits < 15001; ++a) {
        for (char b = 'a'; b <= 'z' && faits < 15001; ++b) {
            for (char c = 'a'; c <= 'z' && faits < 15001; ++c, ++faits)
                lignes += std::string{'z', a, b, c, 'z'} + " po:adv\n";
        }
    }
    const auto v = essais::vocabulaire(lignes);
    const Difficulte difficulte(v);
    const Nouveautes nouveautes;
    const auto production = fabriquer({v, difficulte, nouveautes}, {}, [](std::string_view) {});
    EXPECT_THAT(production.avertissements,
                ElementsAre("5lc.txt : 15001 lignes ; seules les 15000 premières sont gardées."));
    const auto liste = std::find_if(production.fichiers.begin(), production.fichiers.end(),
                                    [](const Fichier& f) { return f.chemin == "listes/5lc.txt"; });
    ASSERT_NE(liste, production.fichiers.end());
    EXPECT_EQ(std::count(liste->octets.begin(), liste->octets.end(), '\n'), 15000);
}

}  // namespace
}  // namespace test_contenu
