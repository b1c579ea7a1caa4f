// The readers of a series: rows of both forms, revision file, reference lists, notes, racks.

#include <algorithm>

#include "compteur.h"
#include "essai.h"
#include "fichier.h"
#include "form1.h"
#include "lettres.h"
#include "rangees.h"
#include "rangeesmulti.h"
#include "reference.h"
#include "revision.h"
#include "texte.h"

namespace test_series {
namespace {

using fuzz::Essai;

/// The items, or the lines, of a file as texts.
std::vector<std::string> articles(std::string_view octets) {
    std::vector<std::string> lus;
    common::Items lecture(octets);
    std::string_view article;
    while (lecture.lireitem(article))
        lus.push_back(common::depuis1252(article));
    return lus;
}

std::vector<std::string> leslignes(std::string_view octets) {
    std::vector<std::string> lues;
    common::Lignes lecture(octets);
    std::string_view ligne;
    while (lecture.suivante(ligne))
        lues.push_back(common::depuis1252(ligne));
    return lues;
}

/// A few words to look for: some of the file, some of none, some twice.
std::vector<std::string> motsachercher(const std::vector<std::string>& dufichier,
                                       fuzz::Alea& alea) {
    std::vector<std::string> mots{"", "TIERS", "漢字"};
    for (std::size_t i = 0; i < 6 && !dufichier.empty(); ++i)
        mots.push_back(alea.choisir(dufichier));
    mots.push_back(mots.back());
    return mots;
}

bool contient(const std::vector<std::string>& textes, const std::string& texte) {
    return std::find(textes.begin(), textes.end(), texte) != textes.end();
}

void verifierrangees(const series::Rangees& rangees, const std::string& octets) {
    const auto lignes = leslignes(octets);
    menu::Compteur compteur;
    compteur.voir(octets);
    ASSERT_EQ(static_cast<std::size_t>(rangees.nbmots()), lignes.size());
    ASSERT_EQ(compteur.lignes(), lignes.size());
    for (int rang = 0; rang < rangees.nbmots(); ++rang) {
        const auto i = static_cast<std::size_t>(rang);
        EXPECT_EQ(rangees.tirage(rang) + ";" + rangees.suite(rang), lignes[i]);
        EXPECT_EQ(rangees.ligne(rang), i + 1);
    }
}

/// Rows leave and close the gaps.
void eliminer(series::Rangees& rangees, fuzz::Alea& alea) {
    std::vector<std::size_t> restantes;
    for (int rang = 0; rang < rangees.nbmots(); ++rang) {
        if (alea.surcent(50))
            rangees.eliminer(rang);
        else if (!rangees.tirage(rang).empty())
            restantes.push_back(rangees.ligne(rang));
    }
    rangees.compacter();
    ASSERT_EQ(static_cast<std::size_t>(rangees.nbmots()), restantes.size());
    for (int rang = 0; rang < rangees.nbmots(); ++rang)
        EXPECT_EQ(rangees.ligne(rang), restantes[static_cast<std::size_t>(rang)]);
}

void listeform1(Essai& essai) {
    series::Rangees rangees(common::rangeesform1);
    rangees.lire(essai.disque, fuzz::chemin);
    verifierrangees(rangees, essai.octets);
    eliminer(rangees, essai.alea);
}

void listemulti(Essai& essai) {
    series::Rangees rangees(multi::limiterangees);
    rangees.lire(essai.disque, fuzz::chemin);
    verifierrangees(rangees, essai.octets);
    const auto nbsolutions = multi::nbsolutionsdelaliste(rangees, fuzz::chemin);
    EXPECT_GE(nbsolutions, multi::minsolutions);
    EXPECT_LE(nbsolutions, multi::maxsolutions);
    for (int rang = 0; rang < rangees.nbmots(); ++rang) {
        const auto suite = rangees.suite(rang);
        const auto solutions = multi::solutions(suite);
        EXPECT_EQ(solutions.size(), multi::nombredesolutions(suite));
        EXPECT_LE(solutions.size(), nbsolutions);
        auto ligne = multi::lignederangee(rangees.tirage(rang), solutions, solutions.size());
        if (suite.ends_with(';') || suite.empty())
            ligne += ';';
        EXPECT_EQ(ligne, rangees.tirage(rang) + ";" + suite);
    }
    eliminer(rangees, essai.alea);
}

/// Racks with any mark-up and answers of any characters.
void tirages(Essai& essai) {
    for (const auto& ligne : leslignes(essai.octets)) {
        const auto texte = common::debut(ligne, 100);
        series::Lettres lettres;
        if (!lettres.lirelettres(texte)) {
            EXPECT_GT(common::longueur(lettres.tiragenet()), series::Lettres::limite);
            continue;
        }
        EXPECT_EQ(lettres.restantes(), lettres.tiragenet());
        const auto net = lettres.tiragenet();
        lettres.recalculer(common::depuis1252(essai.octets.substr(0, 20)));
        for (const auto& lettre : common::caracteres(lettres.restantes()))
            EXPECT_NE(net.find(lettre), std::string::npos);
    }
}

void notesdesrallonges(Essai& essai) {
    for (const auto& ligne : leslignes(essai.octets)) {
        const auto texte = common::debut(ligne, 100);
        const auto coupe = std::min(texte.find(';'), texte.size());
        const auto tirage = texte.substr(0, coupe);
        const auto solution = texte.substr(std::min(coupe + 1, texte.size()));
        for (const auto* titre : {"Rallonges avant 7-8", "Rallonges arrière 7-8", "Autre"}) {
            const auto nature = series::naturedelaliste("rallong", titre);
            const auto mots = series::motsdesnotes(tirage, solution, nature);
            EXPECT_LE(mots.size(), std::max<std::size_t>(1, common::longueur(solution)));
        }
        EXPECT_EQ(series::motsdesnotes(tirage, solution, series::Nature::Simple).size(), 1U);
    }
}

void revision(Essai& essai) {
    const auto presents = articles(essai.octets);
    const auto mots = motsachercher(presents, essai.alea);
    const auto trouves = series::presentsenrevision(essai.disque, fuzz::chemin, mots);
    ASSERT_EQ(trouves.size(), mots.size());
    for (std::size_t i = 0; i < mots.size(); ++i)
        EXPECT_EQ(trouves[i], !mots[i].empty() && contient(presents, mots[i])) << mots[i];
}

/// The other items stay, in order, each a line.
void retrait(Essai& essai) {
    auto attendus = articles(essai.octets);
    const auto ote = attendus.empty() ? "AB;BA" : essai.alea.choisir(attendus);
    series::retirerderevision(essai.disque, fuzz::chemin, ote);
    std::erase(attendus, "");
    std::erase(attendus, ote);
    std::string contenu;
    for (const auto& ligne : attendus)
        contenu += common::vers1252(ligne) + "\r\n";
    EXPECT_EQ(essai.disque.fichiers.find(fuzz::chemin)->second, contenu);
}

void reference(Essai& essai) {
    constexpr std::size_t limite = 5001;
    auto presents = articles(essai.octets);
    const auto mots = motsachercher(presents, essai.alea);
    const auto trouves = series::chercherliste(essai.disque, fuzz::chemin, limite,
                                               series::Recherche(mots), mots.size());
    EXPECT_LE(presents.size(), limite);
    presents.erase(std::find(presents.begin(), presents.end(), ""), presents.end());
    ASSERT_EQ(trouves.size(), mots.size());
    for (std::size_t i = 0; i < mots.size(); ++i)
        EXPECT_EQ(trouves[i], contient(presents, mots[i])) << mots[i];
}

void notes(Essai& essai) {
    constexpr std::size_t limite = 20001;
    const auto lignes = leslignes(essai.octets);
    const auto mots = motsachercher(lignes, essai.alea);
    for (const std::size_t pas : {1U, 2U}) {
        const auto comparees =
            pas == 1 ? series::Lignesdemots::Toutes : series::Lignesdemots::Paires;
        const auto trouvees = series::cherchernotes(essai.disque, fuzz::chemin, limite, comparees,
                                                    series::Recherche(mots));
        std::vector<series::Note> attendues;
        for (std::size_t i = 0; i + 1 < lignes.size() && !lignes[i].empty(); i += pas) {
            for (std::size_t mot = 0; mot < mots.size(); ++mot)
                if (lignes[i] == mots[mot])
                    attendues.push_back({mot, lignes[i + 1]});
        }
        EXPECT_EQ(trouvees, attendues);
    }
}

const std::vector<const char*> listes{"form1.txt", "multi.txt", "revision.txt"};

const fuzz::Lecteur lecteurs[] = {
    {"liste_de_form1", listes, listeform1, 3000},
    {"liste_de_multi", listes, listemulti, 3000},
    {"tirages", listes, tirages},
    {"notes_des_rallonges", listes, notesdesrallonges},
    {"revision", listes, revision},
    {"retrait_de_la_revision", listes, retrait},
    {"liste_de_reference", {"reference.txt", "octets.bin"}, reference},
    {"notes", {"infosouris.txt", "octets.bin"}, notes, 800},
};

class Series : public fuzz::Lecture {};

TEST_P(Series, lit_n_importe_quoi) {
    essayer(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Series, testing::ValuesIn(lecteurs), fuzz::nommer);

}  // namespace
}  // namespace test_series
