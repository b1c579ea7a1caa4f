#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossier.h"
#include "faute.h"
#include "rangeesmulti.h"

namespace test_rangeesmulti {
namespace {

const auto regle = [](const auto& cas) { return cas.param.regle; };

using testing::AllOf;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::ThrowsMessage;

using Mots = std::vector<std::string>;

struct Coupe {
    const char* regle;
    std::string suite;
    Mots solutions;
};

class Solutions : public testing::TestWithParam<Coupe> {};

TEST_P(Solutions, se_coupent_aux_points_virgules) {
    EXPECT_THAT(multi::solutions(GetParam().suite), ElementsAreArray(GetParam().solutions));
    EXPECT_EQ(multi::nombredesolutions(GetParam().suite), GetParam().solutions.size());
}

INSTANTIATE_TEST_SUITE_P(
    , Solutions,
    testing::Values(Coupe{"une", "A", {"A"}}, Coupe{"cinq", "A;B;C;D;E", {"A", "B", "C", "D", "E"}},
                    Coupe{"aucune", "", {}},
                    Coupe{"un_point_virgule_final_n_ouvre_rien", "A;B;", {"A", "B"}},
                    Coupe{"deux_points_virgules_font_une_vide", "A;;B", {"A", "", "B"}},
                    Coupe{"deux_a_la_fin_font_une_vide", "A;;", {"A", ""}},
                    Coupe{"un_seul_fait_une_vide", ";", {""}},
                    Coupe{"virgules_et_blancs_restent", " A,B ;C", {" A,B ", "C"}}),
    regle);

struct Forme {
    const char* regle;
    Mots solutions;
    std::size_t nombre;
    const char* ligne;
};

class Ligne : public testing::TestWithParam<Forme> {};

TEST_P(Ligne, prend_tant_de_champs) {
    EXPECT_EQ(multi::lignederangee("T", GetParam().solutions, GetParam().nombre), GetParam().ligne);
}

INSTANTIATE_TEST_SUITE_P(, Ligne,
                         testing::Values(Forme{"autant_que_de_solutions", {"A", "B"}, 2, "T;A;B"},
                                         Forme{"une_rangee_courte_finit_par_des_points_virgules",
                                               {"A", "B"},
                                               4,
                                               "T;A;B;;"},
                                         Forme{"les_premieres_seulement", {"A", "", "C"}, 1, "T;A"},
                                         Forme{"aucune", {}, 0, "T"}),
                         regle);

/// A list file of these bytes, read as `Multi` does.
class Liste : public testing::Test {
  protected:
    void ecrire(std::string_view octets) { ASSERT_FALSE(disque.remplacer("liste.txt", octets)); }
    std::size_t lire() {
        rangees.lire(disque, "liste.txt");
        return multi::nbsolutionsdelaliste(rangees, "liste.txt");
    }

    banc::Dossier dossier;
    common::DisqueReel disque{dossier.chemin()};
    series::Rangees rangees{multi::limiterangees};
};

TEST_F(Liste, compte_les_solutions_de_la_rangee_la_plus_longue) {
    ecrire("T;A;B\r\nU;A;B;C;D\r\nV;A\r\n");
    EXPECT_EQ(lire(), 4U);
    EXPECT_EQ(rangees.nbmots(), 3);
    EXPECT_EQ(rangees.tirage(1), "U");
    EXPECT_EQ(rangees.suite(1), "A;B;C;D");
}

TEST_F(Liste, n_a_jamais_moins_de_deux_solutions) {
    ecrire("T;A\r\n");
    EXPECT_EQ(lire(), 2U);
    ecrire("");
    EXPECT_EQ(lire(), 2U);
}

TEST_F(Liste, admet_cinq_solutions_et_un_point_virgule_final) {
    ecrire("T;A;B;C;D;E;\r\n");
    EXPECT_EQ(lire(), 5U);
}

struct Refusee {
    const char* regle;
    std::string octets;
    const char* ligne;
    const char* limite;
};

class Mauvaise : public Liste, public testing::WithParamInterface<Refusee> {};

TEST_P(Mauvaise, est_une_faute_qui_nomme_le_fichier_la_ligne_et_la_limite) {
    ecrire(GetParam().octets);
    EXPECT_THAT(
        [this] { static_cast<void>(lire()); },
        ThrowsMessage<common::Faute>(AllOf(HasSubstr("liste.txt"), HasSubstr(GetParam().ligne),
                                           HasSubstr(GetParam().limite))));
}

std::string rangees10001() {
    std::string octets;
    for (std::size_t i = 0; i <= multi::limiterangees; ++i)
        octets += "T;A;B\r\n";
    return octets;
}

INSTANTIATE_TEST_SUITE_P(
    Liste, Mauvaise,
    testing::Values(
        Refusee{"sixieme_champ", "T;A;B\r\nU;A;B;C;D;E;F\r\n", "ligne 2 ", "limite est de 5"},
        Refusee{"sixieme_champ_vide", "U;A;B;C;D;E;;\r\n", "ligne 1 ", "limite est de 5"},
        Refusee{"sans_point_virgule", "T;A;B\r\nU\r\n", "ligne 2 ", "il manque le « ; »"},
        Refusee{"ligne_vide", "T;A;B\r\n\r\n", "ligne 2 ", "il manque le « ; »"},
        Refusee{"la_10001e", rangees10001(), "ligne 10001 ", "limite est de 10000"},
        Refusee{"point_virgule_en_place_32768", std::string(32767, 'A') + ";A\r\n", "ligne 1 ",
                "limite est la position 32767"}),
    regle);

}  // namespace
}  // namespace test_rangeesmulti
