// The series as a value: draw, criterion, racks on show, end of the list.

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "serie.h"
#include "serieessai.h"

namespace test_serie {
namespace {

using essai::tiree;
using series::Rapide;
using series::Serie;
using testing::ElementsAreArray;

using Textes = std::vector<std::string>;

const auto regle = [](const auto& cas) { return cas.param.regle; };

constexpr const char* quatre = "AB;BA\r\nCD;DC\r\nEF;FE\r\nGH;HG\r\n";

Textes affiches(const Serie& serie) {
    Textes textes;
    for (const auto& place : serie.places)
        textes.push_back(place.affiche);
    return textes;
}

struct Pioche {
    const char* regle;
    const char* lignes;
    std::deque<double> nombres;
    int nombre;
    Textes affiches;
};

class Tiree : public testing::TestWithParam<Pioche> {};

TEST_P(Tiree, occupe_les_places) {
    auto serie = tiree(GetParam().lignes);
    essai::Suite hasard(GetParam().nombres);
    tirer(serie, hasard);
    EXPECT_EQ(serie.nombre(), GetParam().nombre);
    EXPECT_THAT(affiches(serie), ElementsAreArray(GetParam().affiches));
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Tiree,
    testing::Values(Pioche{"trois_au_plus", quatre, {0}, 3, {"AB", "CD", "EF"}},
                    Pioche{"dans_l_ordre_du_hasard", quatre, {0.5, 0.9, 0}, 3, {"EF", "GH", "AB"}},
                    Pioche{"les_places_en_trop_sont_vides", "AB;BA\r\n", {0}, 1, {"AB", "", ""}},
                    Pioche{"une_liste_vide_ne_donne_rien", "", {0}, 0, {"", "", ""}}),
    regle);

/// What a place was judged on, one judgement after the other, and what is kept of it.
struct Jugement {
    const char* regle;
    std::vector<Textes> saisis;  ///< of each judgement
    Textes gardes;
};

class Jugements : public testing::TestWithParam<Jugement> {};

TEST_P(Jugements, gardent) {
    auto serie = tiree(quatre);
    for (const auto& saisis : GetParam().saisis)
        retenirjugement(serie, 1, {"DC", "CD"}, saisis);
    const auto juges = jugements(serie);
    ASSERT_EQ(juges.size(), 1U);
    EXPECT_EQ(juges[0].tirage, "CD");
    EXPECT_THAT(juges[0].solutions, ElementsAreArray(Textes{"DC", "CD"}));
    EXPECT_THAT(juges[0].saisis, ElementsAreArray(GetParam().gardes));
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Jugements,
    testing::Values(Jugement{"le_seul", {{"DC", ""}}, {"DC", ""}},
                    Jugement{"le_premier_rate", {{"X", ""}, {"DC", "CD"}}, {"X", ""}},
                    Jugement{"un_blanc_rate_aussi", {{"", ""}, {"DC", "CD"}}, {"", ""}},
                    Jugement{"le_rate_apres_un_trouve", {{"CD", "DC"}, {"DC", ""}}, {"DC", ""}}),
    regle);

TEST(Jugements, viennent_dans_l_ordre_des_places_et_partent_avec_la_serie) {
    auto serie = tiree(quatre);
    for (const int place : {2, 0, 1})
        retenirjugement(serie, place, {"X"}, {""});
    Textes tirages;
    for (const auto& juge : jugements(serie))
        tirages.push_back(juge.tirage);
    EXPECT_THAT(tirages, ElementsAreArray({"AB", "CD", "EF"}));
    essai::Suite hasard({0});
    tirer(serie, hasard);
    EXPECT_TRUE(jugements(serie).empty());
}

TEST(Serie, une_place_tiree_dit_sa_rangee) {
    const auto serie = tiree(quatre);
    const auto& place = serie.places[1];
    EXPECT_EQ(place.rang, 1);
    EXPECT_EQ(place.ligne, 2U);
    EXPECT_EQ(place.tirage, "CD");
    EXPECT_EQ(place.suite, "DC");
    EXPECT_EQ(place.texte, "CD;DC");
}

TEST(Serie, un_tirage_oublie_la_serie_d_avant) {
    auto serie = tiree("AB;BA\r\n");
    serie.places[0].entame = true;
    serie.places[0].enrevision = true;
    serie.verdicts[0] = series::Etatreponse::Fausse;
    retenir(serie, 0, false);
    essai::Suite hasard({0});
    tirer(serie, hasard);
    EXPECT_FALSE(serie.places[0].entame);
    EXPECT_FALSE(serie.places[0].enrevision);
    EXPECT_EQ(serie.verdicts[0], series::Etatreponse::Repos);
    EXPECT_EQ(serie.rapides[0], Rapide::Nonjugee);
}

TEST(Serie, une_liste_qui_s_ouvre_n_a_plus_de_rangee_aux_places_mais_les_montre_encore) {
    auto serie = tiree(quatre);
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque{dossier.chemin()};
    dossier.ecrire("autre.txt", "XY;YX\r\n");
    ouvrirliste(serie, disque, "autre.txt", series::Nature::Benjamins);
    EXPECT_EQ(serie.places[0].rang, -1);
    EXPECT_EQ(serie.places[0].affiche, "AB");
    EXPECT_EQ(serie.fich, "autre.txt");
    EXPECT_EQ(serie.nature, series::Nature::Benjamins);
}

TEST(Serie, une_copie_vit_sans_l_original) {
    auto copie = tiree("XY;YX\r\n");
    {
        auto original = tiree(quatre);
        copie = original;
        original.rangees.eliminer(0);
        original.places[1].affiche = "??";
    }
    EXPECT_EQ(copie.rangees.tirage(0), "AB");
    EXPECT_EQ(copie.rangees.suite(3), "HG");
    EXPECT_EQ(copie.places[1].affiche, "CD");
}

TEST(Serie, un_echantillon_garde_les_rangees_tirees) {
    auto serie = tiree(quatre);
    essai::Suite hasard({0.5, 0});
    echantillonner(serie, hasard, 2);
    EXPECT_EQ(serie.rangees.nbmots(), 2);
    EXPECT_EQ(serie.rangees.tirage(0), "EF");
    EXPECT_EQ(serie.rangees.tirage(1), "AB");
}

struct Retenue {
    const char* regle;
    Rapide avant;
    bool bon;
    std::optional<bool> dit;
    Rapide apres;
};

class Retenir : public testing::TestWithParam<Retenue> {};

TEST_P(Retenir, le_jugement_d_une_boite) {
    auto serie = tiree(quatre);
    serie.rapides[1] = GetParam().avant;
    EXPECT_EQ(retenir(serie, 1, GetParam().bon), GetParam().dit);
    EXPECT_EQ(serie.rapides[1], GetParam().apres);
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Retenir,
    testing::Values(Retenue{"bon", Rapide::Nonjugee, true, true, Rapide::Atemps},
                    Retenue{"mauvais", Rapide::Nonjugee, false, false, Rapide::Ratee},
                    Retenue{"mauvais_apres_un_bon", Rapide::Atemps, false, false, Rapide::Ratee},
                    Retenue{"un_mauvais_reste_mauvais_et_on_n_en_dit_rien", Rapide::Ratee, true,
                            std::nullopt, Rapide::Ratee},
                    Retenue{"deux_fois_mauvais_se_dit_deux_fois", Rapide::Ratee, false, false,
                            Rapide::Ratee}),
    regle);

TEST(Serie, les_boites_a_temps_perdent_leur_rangee) {
    auto serie = tiree(quatre);
    serie.rapides = {Rapide::Atemps, Rapide::Ratee, Rapide::Nonjugee};
    eliminerrapides(serie);
    EXPECT_FALSE(finir(serie, 4, 0));
    EXPECT_EQ(serie.rangees.nbmots(), 3);
    EXPECT_EQ(serie.rangees.tirage(0), "CD");
}

struct Rendu {
    const char* regle;
    bool entame;
    int derniereboite;
    const char* affiche;
};

class Rendre : public testing::TestWithParam<Rendu> {};

TEST_P(Rendre, le_tirage_de_la_place_1) {
    auto serie = tiree(quatre);
    serie.places[1].affiche = "C";
    serie.places[1].entame = GetParam().entame;
    rendretirages(serie, GetParam().derniereboite);
    EXPECT_EQ(serie.places[1].affiche, GetParam().affiche);
    EXPECT_FALSE(serie.places[1].entame);
}

INSTANTIATE_TEST_SUITE_P(Serie, Rendre,
                         testing::Values(Rendu{"entame", true, 0, "CD"},
                                         Rendu{"de_la_derniere_boite", false, 1, "CD"},
                                         Rendu{"ni_entame_ni_de_la_derniere_boite", false, 0, "C"}),
                         regle);

struct Fin {
    const char* regle;
    std::vector<int> elimines;
    std::int64_t base;
    std::int64_t fautes;
    bool finie;
    std::optional<double> pourc;
};

class Finir : public testing::TestWithParam<Fin> {};

TEST_P(Finir, la_liste_de_deux_rangees) {
    auto serie = tiree("AB;BA\r\nCD;DC\r\n");
    for (const int rang : GetParam().elimines)
        serie.rangees.eliminer(rang);
    const auto fin = finir(serie, GetParam().base, GetParam().fautes);
    EXPECT_EQ(fin.has_value(), GetParam().finie);
    EXPECT_EQ(fin ? fin->pourc : std::nullopt, GetParam().pourc);
}

INSTANTIATE_TEST_SUITE_P(
    Serie, Finir,
    testing::Values(Fin{"il_reste_une_rangee", {0}, 2, 0, false, std::nullopt},
                    Fin{"sans_faute", {0, 1}, 2, 0, true, 100.0},
                    Fin{"une_decimale_au_plus", {0, 1}, 98, 7, true, 92.9},
                    Fin{"vide_depuis_le_debut_sans_pourcentage", {0, 1}, 0, 0, true, std::nullopt}),
    regle);

}  // namespace
}  // namespace test_serie
