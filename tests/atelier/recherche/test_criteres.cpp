#include <gmock/gmock.h>

#include "petitglossaire.h"

namespace test_criteres {
namespace {

using namespace recherche;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::IsEmpty;

/// AIL AILS BAIL BAILS ETE ETES LIA NEZ ZEN PALIR... one word at least for each thing to tell.
const std::string lignes =
    "ail/S.() po:nom is:mas\n"
    "bail/S.() po:nom is:mas\n"
    "lia po:nom is:mas is:inv\n"
    "nez/S. po:nom is:mas is:inv\n"
    "zen po:adv\n"
    "zut po:interj\n"
    "quai/S.() po:nom is:mas\n"
    "bel po:adj is:mas is:sg\n"
    "jouer/a0p+() po:v1_it____a\n";

const atelier::Vocabulaire& vocabulaire() {
    static const auto v =
        essais::vocabulaire(lignes, atelier::Thesaurus("UTF-8\nail|1\n(Nom)|bail\n", "petit.dat"));
    return v;
}

const Glossaire& glossaire() {
    static const auto g = essais::glossaire(vocabulaire());
    return g;
}

const essais::Listes listes{
    {"la mienne.txt", {"NEZ", "INCONNU"}}, {"ods7.txt", {"ZEN"}}, {"ods5.txt", {}}};

std::variant<Demande, Refus> lire(std::string_view texte) {
    const auto contexte = essais::contexte(glossaire(), listes);
    return liredemande(texte, contexte);
}

std::vector<std::string> trouver(std::string_view texte) {
    const auto lue = lire(texte);
    if (const auto* refus = std::get_if<Refus>(&lue))
        return {"refus : " + refus->texte()};
    return essais::mots(glossaire(), chercher(glossaire(), std::get<Demande>(lue), 1));
}

TEST(Criteres, sans_critere_tous_les_mots_par_ordre_alphabetique) {
    EXPECT_THAT(trouver("  "), ElementsAreArray({"AIL", "AILS", "BAIL", "BAILS", "BEL", "JOUANT",
                                                 "JOUE", "JOUEE", "JOUER", "JOUEZ", "JOUONS", "LIA",
                                                 "NEZ", "QUAI", "QUAIS", "ZEN", "ZUT"}));
}

struct Cas {
    const char* criteres;
    std::vector<std::string> mots;
};
void PrintTo(const Cas& cas, std::ostream* os) {
    *os << cas.criteres;
}
class Critere : public testing::TestWithParam<Cas> {};
TEST_P(Critere, garde) {
    EXPECT_THAT(trouver(GetParam().criteres), ElementsAreArray(GetParam().mots));
}
INSTANTIATE_TEST_SUITE_P(
    Filtres, Critere,
    testing::Values(
        Cas{"longueur=6", {"JOUANT", "JOUONS"}},
        Cas{"longueur=5-6 fin=S", {"BAILS", "JOUONS", "QUAIS"}},
        Cas{"longueur=6-99", {"JOUANT", "JOUONS"}}, Cas{"lettres=ail", {"AIL", "LIA"}},
        Cas{"lettres=ZE?", {"NEZ", "ZEN"}}, Cas{"lettres=?Z?", {"NEZ", "ZEN", "ZUT"}},
        Cas{"lettres=AAIL", {}}, Cas{"parmi=BAILE", {"AIL", "BAIL", "BEL", "LIA"}},
        Cas{"parmi=AL?", {"AIL", "LIA"}}, Cas{"parmi=éèeenz", {"NEZ", "ZEN"}},
        Cas{"motif=?E?", {"BEL", "NEZ", "ZEN"}}, Cas{"motif=*AI*S", {"AILS", "BAILS", "QUAIS"}},
        Cas{"motif=[BZ]E[^N]", {"BEL"}}, Cas{"motif=jou*[ez]", {"JOUE", "JOUEE", "JOUEZ"}},
        Cas{"debut=qu", {"QUAI", "QUAIS"}}, Cas{"fin=EZ", {"JOUEZ", "NEZ"}},
        Cas{"contient=AI,U", {"QUAI", "QUAIS"}}, Cas{"contient=AI sans=B,S", {"AIL", "QUAI"}},
        Cas{"sans=A,O,U", {"BEL", "NEZ", "ZEN"}}, Cas{"poids=9", {"NEZ", "ZEN", "ZUT"}},
        Cas{"poids=0-2", {"AIL", "AILS", "BAIL", "BAILS", "BEL", "LIA"}},
        Cas{"voyelles=4", {"JOUEE"}}, Cas{"voyelles=1 longueur=3", {"BEL", "NEZ", "ZEN", "ZUT"}},
        Cas{"nature=infinitif", {"JOUER"}}, Cas{"nature=participe", {"JOUANT", "JOUE", "JOUEE"}},
        Cas{"nature=conjugue", {"JOUEZ", "JOUONS"}},
        Cas{"nature=pluriel", {"AILS", "BAILS", "QUAIS"}},
        Cas{"nature=invariable", {"LIA", "ZEN", "ZUT"}},
        Cas{"nature=nom longueur=3", {"AIL", "LIA", "NEZ"}},
        Cas{"nature=entree,!nom", {"BEL", "JOUER", "ZEN", "ZUT"}},
        Cas{"nature=!entree,!participe", {"AILS", "BAILS", "JOUEZ", "JOUONS", "QUAIS"}},
        Cas{"nature=infinitif,conjugue", {"JOUER", "JOUEZ", "JOUONS"}},
        Cas{"anagrammes=2", {"AIL", "LIA", "NEZ", "ZEN"}}, Cas{"anagrammes=2-9 debut=N", {"NEZ"}},
        Cas{"commun=oui", {"AIL", "AILS", "BAIL", "BAILS"}},
        Cas{"commun=non longueur=3 sans=E", {"LIA", "ZUT"}}, Cas{"devant=oui", {"AIL", "AILS"}},
        Cas{"devant=BC", {"AIL", "AILS"}}, Cas{"devant=CD", {}},
        Cas{"derriere=S", {"AIL", "BAIL", "QUAI"}}, Cas{"derriere=OUI", {}},
        Cas{"derriere=ezr", {"JOUE"}},
        Cas{"derriere=non devant=non longueur=5", {"BAILS", "JOUEE", "JOUER", "JOUEZ", "QUAIS"}},
        Cas{"dans=\"la mienne\"", {"NEZ"}}, Cas{"dans=\"la mienne.txt\"", {"NEZ"}},
        Cas{"pasdans=\"la mienne\" lettres=NEZ", {"ZEN"}}, Cas{"nouveau=2016", {"ZEN"}},
        Cas{"longueur=3 longueur=2-4 debut=Z", {"ZEN", "ZUT"}}));

INSTANTIATE_TEST_SUITE_P(
    Ordres, Critere,
    testing::Values(Cas{"longueur=3 ordre=poids", {"NEZ", "ZEN", "ZUT", "BEL", "AIL", "LIA"}},
                    Cas{"longueur=3 ordre=alphabet max=2", {"AIL", "BEL"}},
                    // Ways: A9 I8 L5 are 360, B2 E15 L5 are 150, N6 E15 Z1 are 90, Z1 U6 T6 are 36.
                    Cas{"longueur=3 ordre=probabilite", {"AIL", "LIA", "BEL", "NEZ", "ZEN", "ZUT"}},
                    Cas{"longueur=3 ordre=probabilite max=5", {"AIL", "LIA", "BEL", "NEZ", "ZEN"}},
                    Cas{"longueur=3 ordre=alphabet par=2 forme=mots", {"AIL", "LIA", "NEZ", "ZEN"}},
                    Cas{"longueur=3 par=1", {"BEL", "ZUT"}}));

TEST(Criteres, un_hasard_de_meme_graine_donne_le_meme_ordre) {
    const auto une = trouver("ordre=hasard graine=7");
    EXPECT_EQ(une, trouver("ordre=hasard graine=7"));
    EXPECT_NE(une, trouver("ordre=hasard graine=8"));
    EXPECT_NE(une, trouver(""));
    EXPECT_THAT(une, testing::UnorderedElementsAreArray(trouver("")));
}

struct Faux {
    const char* criteres;
    const char* critere;
    const char* ennui;
};
void PrintTo(const Faux& faux, std::ostream* os) {
    *os << faux.criteres;
}
class Mauvais : public testing::TestWithParam<Faux> {};
TEST_P(Mauvais, critere_refuse_et_nomme) {
    const auto lue = lire(GetParam().criteres);
    ASSERT_TRUE(std::holds_alternative<Refus>(lue));
    EXPECT_EQ(std::get<Refus>(lue).critere, GetParam().critere);
    EXPECT_THAT(std::get<Refus>(lue).ennui, HasSubstr(GetParam().ennui));
    EXPECT_THAT(std::get<Refus>(lue).texte(),
                testing::StartsWith(std::string(GetParam().critere) + " : "));
}
INSTANTIATE_TEST_SUITE_P(
    Criteres, Mauvais,
    testing::Values(
        Faux{"couleur=rouge", "couleur", "critère inconnu ; on attend longueur, lettres"},
        Faux{"longueur", "longueur", "il manque une valeur"},
        Faux{"poids=1 fin=", "fin", "il manque une valeur"}, Faux{"=7", "", "critère inconnu"},
        Faux{"longueur=sept", "longueur", "et non « sept »"},
        Faux{"longueur=-7", "longueur", "on attend un nombre"},
        Faux{"longueur=7-", "longueur", "on attend un nombre"},
        Faux{"longueur=2-8-9", "longueur", "on attend un nombre"},
        Faux{"longueur=8-2", "longueur", "le premier nombre dépasse le second"},
        Faux{"longueur=16", "longueur", "de 2 à 15"}, Faux{"longueur=0-1", "longueur", "de 2 à 15"},
        Faux{"poids=99999999999999999999", "poids", "trop grand"},
        Faux{"voyelles=1.5", "voyelles", "on attend un nombre"},
        Faux{"lettres=A", "lettres", "de 2 à 15 lettres, et non 1"},
        Faux{"lettres=ABCDEFGHIJKLMNOP", "lettres", "de 2 à 15 lettres, et non 16"},
        Faux{"lettres=A1B", "lettres", "« 1 » n'est pas une lettre"},
        Faux{"parmi=?", "parmi", "de 2 à 100"},
        Faux{"parmi=A*", "parmi", "« * » n'est pas une lettre"},
        Faux{"motif=A-B", "motif", "« - » n'est pas une lettre"},
        Faux{"motif=[AB", "motif", "il manque « ] »"}, Faux{"motif=A]", "motif", "« ] » n'est ni"},
        Faux{"motif=[]", "motif", "pas de lettre entre les crochets"},
        Faux{"motif=[^]", "motif", "pas de lettre entre les crochets"},
        Faux{"motif=[A?]", "motif", "entre crochets"},
        Faux{"motif=[^ABCDEFGHIJKLMNOPQRSTUVWXYZ]", "motif", "nulle lettre n'est permise"},
        Faux{"debut=l'", "debut", "« ' » n'est pas une lettre"},
        Faux{"fin=ABCDEFGHIJKLMNOP", "fin", "plus long que tout mot"},
        Faux{"contient=QU,,K", "contient", "une virgule de trop"},
        Faux{"sans=,", "sans", "une virgule de trop"},
        Faux{"nature=verbe", "nature", "on attend nom, infinitif, participe"},
        Faux{"nature=!", "nature", "n'en est pas une"},
        Faux{"anagrammes=0", "anagrammes", "n'est jamais vrai"},
        Faux{"commun=peut-être", "commun", "on attend oui ou non"},
        Faux{"devant=3", "devant", "n'est pas une lettre"},
        Faux{"dans=absente", "dans", "la liste manque"},
        Faux{"pasdans=absente", "pasdans", "la liste manque"},
        Faux{"nouveau=2020", "nouveau", "2008, 2012 ou 2016"},
        Faux{"nouveau=2012", "nouveau", "la liste manque"},
        Faux{"ordre=taille", "ordre", "alphabet, difficulte"},
        Faux{"max=0", "max", "1 ou davantage"}, Faux{"max=-3", "max", "on attend un nombre"},
        Faux{"forme=tableau", "forme", "liste, mots"}, Faux{"par=6", "par", "de 1 à 5"},
        Faux{"graine=1", "graine", "ordre=hasard"},
        Faux{"ordre=hasard graine=x", "graine", "on attend un nombre"},
        Faux{"max=1 max=2", "max", "donné deux fois"},
        Faux{"dans=\"la mienne", "dans", "guillemet"}));

TEST(Criteres, une_liste_vide_est_dite) {
    const auto lue = lire("nouveau=2008");
    ASSERT_TRUE(std::holds_alternative<Demande>(lue));
    EXPECT_THAT(std::get<Demande>(lue).remarques,
                testing::ElementsAre(HasSubstr("« ods5.txt » est vide")));
    EXPECT_THAT(trouver("nouveau=2008"), IsEmpty());
}

}  // namespace
}  // namespace test_criteres
