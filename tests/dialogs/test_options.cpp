#include <gtest/gtest.h>

#include "faute.h"
#include "lignes.h"
#include "options.h"

namespace test_options {
namespace {

using namespace dialogs::options;

constexpr const char* garde = "(inchangé)";
constexpr const char* ordrevert = "Le 1er % doit être supérieur à celui d'en dessous !";
constexpr const char* ordrerouge = "Le 2ème % doit être inférieur à celui d'au dessus !";

/// A box that has changed, all boxes as they stand, and what the message area takes.
struct Ligne {
    const char* nom;
    Champ champ;
    Saisie saisie;
    const char* message;
};

void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Changement : public testing::TestWithParam<Ligne> {};

TEST_P(Changement, dit) {
    const auto& [nom, champ, saisie, attendu] = GetParam();
    EXPECT_EQ(message(champ, saisie).value_or(garde), attendu);
}

const Ligne lignes[] = {
    {"vert_valide_efface", Champ::Vert, {"95", "80", "8", "5"}, ""},
    {"vert_de_100_admis", Champ::Vert, {"100", "80", "8", "5"}, ""},
    {"vert_au_dessus_de_100", Champ::Vert, {"100.5", "80", "8", "5"}, "Pas plus de 100% !"},
    {"vert_de_10_admis", Champ::Vert, {"10", "5", "8", "5"}, ""},
    {"vert_sous_10", Champ::Vert, {"9", "5", "8", "5"}, "Pas moins de 10% !"},
    {"vert_sous_10_et_sous_le_rouge", Champ::Vert, {"9", "80", "8", "5"}, ordrevert},
    {"vert_de_lettres_vaut_0", Champ::Vert, {"abc", "0", "8", "5"}, "Pas moins de 10% !"},
    {"vert_negatif", Champ::Vert, {"-5", "-5", "8", "5"}, "Pas moins de 10% !"},
    {"vert_vide_et_rouge_nul", Champ::Vert, {"", "0", "8", "5"}, ""},
    {"vert_vide_et_rouge", Champ::Vert, {"", "80", "8", "5"}, ordrevert},
    {"vert_egal_au_rouge", Champ::Vert, {"80", "80", "8", "5"}, ""},
    {"vert_a_peine_sous_le_rouge", Champ::Vert, {"80", "80.1", "8", "5"}, ordrevert},
    {"rouge_valide_efface", Champ::Rouge, {"95", "80", "8", "5"}, ""},
    {"rouge_de_100_admis", Champ::Rouge, {"100", "100", "8", "5"}, ""},
    {"rouge_au_dessus_de_100_et_du_vert", Champ::Rouge, {"95", "101", "8", "5"}, ordrerouge},
    {"rouge_au_dessus_de_100_sous_le_vert",
     Champ::Rouge,
     {"200", "101", "8", "5"},
     "Pas plus de 100% !"},
    {"rouge_de_5_admis", Champ::Rouge, {"95", "5", "8", "5"}, ""},
    {"rouge_sous_5", Champ::Rouge, {"95", "4.9", "8", "5"}, "Pas moins de 5% !"},
    {"rouge_vide", Champ::Rouge, {"95", "", "8", "5"}, ""},
    {"rouge_au_dessus_du_vert", Champ::Rouge, {"80", "81", "8", "5"}, ordrerouge},
    {"rouge_egal_au_vert", Champ::Rouge, {"80", "80", "8", "5"}, ""},
    {"temps_valide_efface", Champ::Temps, {"95", "80", "8", "5"}, ""},
    {"temps_de_2_admis", Champ::Temps, {"95", "80", "2", "5"}, ""},
    {"temps_de_15_admis", Champ::Temps, {"95", "80", "15", "5"}, ""},
    {"temps_de_15_et_demi_passe", Champ::Temps, {"95", "80", "15.5", "5"}, ""},
    {"temps_de_1_et_demi_passe", Champ::Temps, {"95", "80", "1.5", "5"}, ""},
    {"temps_de_16", Champ::Temps, {"95", "80", "16", "5"}, "Pas plus de 15 secondes par mot !"},
    {"temps_de_1", Champ::Temps, {"95", "80", "1", "5"}, "Pas moins de 2 secondes par mot !"},
    {"temps_immense",
     Champ::Temps,
     {"95", "80", "99999999999999999999", "5"},
     "Pas plus de 15 secondes par mot !"},
    {"temps_vide_laisse_le_message", Champ::Temps, {"95", "80", "", "5"}, garde},
    {"temps_a_virgule_s_arrete_a_la_virgule",
     Champ::Temps,
     {"95", "80", "1,9", "5"},
     "Pas moins de 2 secondes par mot !"},
    {"base_valide_efface", Champ::Base, {"95", "80", "8", "5"}, ""},
    {"base_de_1_admise", Champ::Base, {"95", "80", "8", "1"}, ""},
    {"base_de_30_admise", Champ::Base, {"95", "80", "8", "30"}, ""},
    {"base_de_30_et_demi_passe", Champ::Base, {"95", "80", "8", "30.5"}, ""},
    {"base_d_un_demi_passe", Champ::Base, {"95", "80", "8", "0.5"}, ""},
    {"base_de_31", Champ::Base, {"95", "80", "8", "31"}, "Pas plus de 900 mots par échantillon !"},
    {"base_de_0", Champ::Base, {"95", "80", "8", "0"}, "Pas moins de 30 mots par échantillon !"},
    {"base_negative",
     Champ::Base,
     {"95", "80", "8", "-2"},
     "Pas moins de 30 mots par échantillon !"},
    {"base_vide_laisse_le_message", Champ::Base, {"95", "80", "8", ""}, garde},
};

INSTANTIATE_TEST_SUITE_P(Options, Changement, testing::ValuesIn(lignes), essai::nommer<Ligne>);

/// Whether a value of a box shows at once in what is computed from it.
struct Repercussion {
    const char* nom;
    Champ champ;
    const char* valeur;
    bool attendu;
};

void PrintTo(const Repercussion& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Calcul : public testing::TestWithParam<Repercussion> {};

TEST_P(Calcul, repercute) {
    const auto& [nom, champ, valeur, attendu] = GetParam();
    const Saisie saisie{valeur, valeur, valeur, valeur};
    EXPECT_EQ(repercute(champ, saisie), attendu);
}

const Repercussion repercussions[] = {
    {"temps_1", Champ::Temps, "1", false},        {"temps_1_01", Champ::Temps, "1.01", true},
    {"temps_15_99", Champ::Temps, "15.99", true}, {"temps_16", Champ::Temps, "16", false},
    {"temps_vide", Champ::Temps, "", false},      {"base_0", Champ::Base, "0", false},
    {"base_0_01", Champ::Base, "0.01", true},     {"base_30_99", Champ::Base, "30.99", true},
    {"base_31", Champ::Base, "31", false},        {"base_vide", Champ::Base, "", false},
    {"vert_jamais", Champ::Vert, "10.5", false},  {"rouge_jamais", Champ::Rouge, "10.5", false},
};

INSTANTIATE_TEST_SUITE_P(Options, Calcul, testing::ValuesIn(repercussions),
                         essai::nommer<Repercussion>);

/// What OK makes of the boxes.
struct Validation {
    const char* nom;
    Saisie saisie;
    bool accepte;
    const char* message;
};

void PrintTo(const Validation& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Verification : public testing::TestWithParam<Validation> {};

TEST_P(Verification, verdict) {
    const auto& [nom, saisie, accepte, attendu] = GetParam();
    const auto verdict = valider(saisie);
    EXPECT_EQ(verdict.accepte, accepte);
    EXPECT_EQ(verdict.message.value_or(garde), attendu);
}

const Validation validations[] = {
    {"defauts", {"95", "80", "8", "5"}, true, garde},
    {"bornes_basses", {"10", "5", "2", "1"}, true, garde},
    {"bornes_hautes", {"100", "100", "15", "30"}, true, garde},
    {"seuils_egaux", {"80", "80", "8", "5"}, true, garde},
    {"decimales", {"95.5", "80.5", "2.5", "1.5"}, true, garde},
    {"rouge_au_dessus_du_vert", {"80", "95", "8", "5"}, false, ordrerouge},
    {"vert_vide", {"", "80", "8", "5"}, false, ordrerouge},
    {"vert_vide_et_rouge_nul", {"", "0", "8", "5"}, false, garde},
    {"vert_au_dessus_de_100", {"100.5", "80", "8", "5"}, false, garde},
    {"vert_sous_10", {"9.9", "5", "8", "5"}, false, garde},
    {"rouge_au_dessus_de_100", {"101", "100.5", "8", "5"}, false, garde},
    {"rouge_sous_5", {"95", "4.9", "8", "5"}, false, garde},
    {"rouge_vide", {"95", "", "8", "5"}, false, garde},
    {"temps_sous_2", {"95", "80", "1.5", "5"}, false, garde},
    {"temps_au_dessus_de_15", {"95", "80", "15.5", "5"}, false, garde},
    {"temps_vide", {"95", "80", "", "5"}, false, garde},
    {"base_sous_1", {"95", "80", "8", "0.9"}, false, garde},
    {"base_au_dessus_de_30", {"95", "80", "8", "30.5"}, false, garde},
    {"base_vide", {"95", "80", "8", ""}, false, garde},
    {"tout_faux_garde_le_message_de_l_ordre", {"1", "200", "0", "0"}, false, ordrerouge},
};

INSTANTIATE_TEST_SUITE_P(Options, Verification, testing::ValuesIn(validations),
                         essai::nommer<Validation>);

/// What the sizes show for a number of series.
struct Taille {
    const char* nom;
    std::int16_t series;
    std::array<std::string, nbtailles> textes;
};

void PrintTo(const Taille& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Echantillon : public testing::TestWithParam<Taille> {};

TEST_P(Echantillon, tailles) {
    common::VariablesDialog2 variables;
    EXPECT_EQ(tailles(variables, GetParam().series), GetParam().textes);
}

const Taille lestailles[] = {
    {"moins_un",
     -1,
     {"-30", "40 (20 duos)", "60 (20 trios)", "40 (10 quatuors)", "50 (10 quintets)"}},
    {"zero", 0, {"0", "40 (20 duos)", "60 (20 trios)", "40 (10 quatuors)", "50 (10 quintets)"}},
    {"une_serie",
     1,
     {"30", "40 (20 duos)", "60 (20 trios)", "40 (10 quatuors)", "50 (10 quintets)"}},
    {"deux_series",
     2,
     {"60", "64 (32 duos)", "60 (20 trios)", "64 (16 quatuors)", "50 (10 quintets)"}},
    {"cinq_series",
     5,
     {"150", "160 (80 duos)", "150 (50 trios)", "160 (40 quatuors)", "125 (25 quintets)"}},
    {"trente_series",
     30,
     {"900", "960 (480 duos)", "900 (300 trios)", "960 (240 quatuors)", "750 (150 quintets)"}},
    {"mille_vingt_trois_series",
     1023,
     {"30690", "32736 (16368 duos)", "30690 (10230 trios)", "32736 (8184 quatuors)",
      "25575 (5115 quintets)"}},
};

INSTANTIATE_TEST_SUITE_P(Options, Echantillon, testing::ValuesIn(lestailles),
                         essai::nommer<Taille>);

TEST(Echantillon, les_tailles_restent_dans_les_variables) {
    common::VariablesDialog2 variables;
    static_cast<void>(tailles(variables, 5));
    EXPECT_EQ(variables.nbechuni, 150);
    EXPECT_EQ(variables.nbechduo, 80);
    EXPECT_EQ(variables.nbechtri, 50);
    EXPECT_EQ(variables.nbechqua, 40);
    EXPECT_EQ(variables.nbechqui, 25);
}

TEST(Echantillon, une_taille_au_dela_de_16_bits_est_une_faute) {
    common::VariablesDialog2 variables;
    EXPECT_THROW(static_cast<void>(tailles(variables, 1024)), common::Faute);
    EXPECT_THROW(static_cast<void>(tailles(variables, 1093)), common::Faute);
}

TEST(Temps, d_une_serie) {
    EXPECT_EQ(tempsdeserie(8), "04:00");
    EXPECT_EQ(tempsdeserie(1.5), "00:45");
    EXPECT_EQ(tempsdeserie(15.5), "07:45");
    EXPECT_EQ(tempsdeserie(2.01), "01:00") << "60.3 seconds";
    EXPECT_EQ(tempsdeserie(2.25), "01:08") << "67.5 goes to the even 68";
    EXPECT_EQ(tempsdeserie(2.75), "01:22") << "82.5 goes to the even 82";
    EXPECT_EQ(tempsdeserie(-3), "00:00");
    EXPECT_EQ(tempsdeserie(1092), "546:00");
}

TEST(Temps, au_dela_de_16_bits_est_une_faute) {
    try {
        static_cast<void>(tempsdeserie(1093));
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_STREQ(faute.what(),
                     "Temps d'une série de 30 mots, à 1092 secondes par mot au plus (options, "
                     "ligne 3 de « settings.dat ») : la valeur 32790 sort des limites admises (de "
                     "-32768 à 32767).");
    }
}

}  // namespace
}  // namespace test_options
