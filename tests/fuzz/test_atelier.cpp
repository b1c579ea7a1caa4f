// The readers of the program that makes the lists.

#include <algorithm>
#include <array>

#include "affixes.h"
#include "dictionnaire.h"
#include "dossiertemporaire.h"
#include "essai.h"
#include "lexique.h"
#include "thesaurus.h"
#include "verification.h"

namespace test_atelier {
namespace {

using fuzz::Essai;

constexpr std::string_view nom = "petit";

const atelier::Affixes& affixessains() {
    static const atelier::Affixes affixes(fuzz::corpus("petit.aff"), "petit.aff");
    return affixes;
}

void verifierlexique(const atelier::Lexique& lexique) {
    EXPECT_FALSE(lexique.formes.empty());
    for (const auto& forme : lexique.formes) {
        EXPECT_LT(forme.lecture.lemme, lexique.lemmes.size());
        EXPECT_GE(forme.mot.taille(), atelier::longueurmin);
        const auto texte = forme.mot.texte();
        EXPECT_TRUE(std::all_of(texte.begin(), texte.end(), [](char c) {
            return c >= 'A' && c <= 'Z';
        })) << texte;
    }
}

void affixes(Essai& essai) {
    const atelier::Affixes lus(essai.octets, nom);
    verifierlexique(atelier::lirelexique(fuzz::corpus("petit.dic"), nom, lus, {}, {}));
}

void lexique(Essai& essai) {
    verifierlexique(atelier::lirelexique(essai.octets, nom, affixessains(), {}, {}));
}

void thesaurus(Essai& essai) {
    const atelier::Thesaurus lu(essai.octets, nom);
    for (const auto* mot : {"chat", "crier", "célèbre", ""}) {
        const auto synonymes = lu.synonymes(mot);
        if (!synonymes.empty()) {
            EXPECT_GE(lu.frequence(mot), synonymes.size()) << mot;
        }
    }
}

void dictionnaire(Essai& essai) {
    const auto mots = atelier::liredictionnaire(essai.octets, nom);
    EXPECT_FALSE(mots.empty());
    EXPECT_TRUE(std::is_sorted(mots.begin(), mots.end()));
    EXPECT_EQ(std::adjacent_find(mots.begin(), mots.end()), mots.end());
}

/// Any file can be checked: what is wrong in it is told, line by line.
void verification(Essai& essai) {
    static const essais::DossierTemporaire dossier;
    constexpr std::array fichiers{"perso.txt", "3lc.txt", "7l_trios_purs.txt", "benj_uni.txt",
                                  "rallonge_av_7a8L.txt"};
    const std::string fichier = essai.alea.choisir(fichiers);
    dossier.ecrire(fichier, essai.octets);
    const auto chemin = (dossier.chemin() / fichier).string();
    const auto lignes =
        static_cast<std::size_t>(std::count(essai.octets.begin(), essai.octets.end(), '\n')) + 1;
    for (const auto& constat : atelier::verifierfichier(chemin)) {
        EXPECT_LE(constat.ligne, lignes) << constat.texte();
        EXPECT_FALSE(constat.ennui.empty());
    }
}

const fuzz::Lecteur lecteurs[] = {
    {"affixes", {"petit.aff"}, affixes},
    {"lexique", {"petit.dic"}, lexique},
    {"thesaurus", {"petit.dat"}, thesaurus},
    {"dictionnaire", {"dictionnaire.txt", "form1.txt"}, dictionnaire},
    {"verification", {"form1.txt", "multi.txt", "octets.bin"}, verification, 600},
};

class Atelier : public fuzz::Lecture {};

TEST_P(Atelier, lit_n_importe_quoi) {
    essayer(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Atelier, testing::ValuesIn(lecteurs), fuzz::nommer);

}  // namespace
}  // namespace test_atelier
