
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "faute.h"
#include "hist.h"
#include "lignes.h"
#include "voisinage.h"

namespace test_hist {
namespace {

using namespace profiles;
using testing::HasSubstr;

// Percent of a list, and its text.

struct Pourcent {
    const char* nom;
    int rangees;
    int fautes;
    const char* texte;
};
void PrintTo(const Pourcent& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Pourcentages : public testing::TestWithParam<Pourcent> {};

TEST_P(Pourcentages, s_ecrit) {
    const auto& [nom, rangees, fautes, texte] = GetParam();
    EXPECT_EQ(enregistrement({2019, 8, 24, 14, 35, 0}, pourcentage(rangees, fautes), "T", "x.txt"),
              std::string("24/08/2019 - 14:35 - ") + texte + "% - T - x.txt");
}

const Pourcent pourcents[] = {
    {"sans_faute", 30, 0, "100"},           {"tout_faux", 30, 30, "0"},
    {"une_decimale", 1000, 47, "95.3"},     {"quinze_chiffres_donnent_92_9", 1000, 71, "92.9"},
    {"arrondi_au_plus_pres", 3, 1, "66.7"}, {"moitie_loin_de_zero", 16, 15, "6.3"},  // 0.0625
    {"sous_dix", 1000, 907, "9.3"},         {"sous_un", 1000, 999, "0.1"},
    {"entier_sans_point", 100, 5, "95"},
};
INSTANTIATE_TEST_SUITE_P(Table, Pourcentages, testing::ValuesIn(pourcents),
                         essai::nommer<Pourcent>);

// The short name of a list.

struct Nom {
    const char* nom;
    const char* fich;
    const char* toue;
    const char* util;
    const char* attendu;
};
void PrintTo(const Nom& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Noms : public testing::TestWithParam<Nom> {};

TEST_P(Noms, se_raccourcit) {
    const auto& [nom, fich, toue, util, attendu] = GetParam();
    EXPECT_EQ(nomcourt(fich, toue, util), attendu);
}

const Nom noms[] = {
    {"liste_entiere", "listes\\3lc.txt", "T", "Paul", "3lc.txt"},
    {"echantillon", "listes\\3lc.txt", "E", "Paul", "3lc.txt"},
    {"partie", "listes\\vb6_a.txt", "", "Paul", "vb6_a.txt"},
    {"revision", "Paul\\rev-3lc.txt", "R", "Paul", "3lc.txt"},
    {"revision_d_un_nom_accentue", "Zoé Élu\\rev-3lc.txt", "R", "Zoé Élu", "3lc.txt"},
};
INSTANTIATE_TEST_SUITE_P(Table, Noms, testing::ValuesIn(noms), essai::nommer<Nom>);

// Records and their scan.

TEST(Enregistrement, d_une_partie_est_sans_mode) {
    EXPECT_EQ(enregistrement({2019, 8, 24, 14, 35, 59}, 95.3, "", "vb6_a.txt"),
              "24/08/2019 - 14:35 - 95.3% - vb6_a.txt");
}

TEST(Enregistrement, a_ses_largeurs_fixes) {
    const auto record = enregistrement({999, 1, 2, 3, 4, 5}, 100, "R", "3lc.txt");
    EXPECT_EQ(record.substr(0, largeurdate), "02/01/0999 - 03:04");
    EXPECT_EQ(record.substr(21, 3), "100");
}

struct Lecture {
    const char* nom;
    const char* record;
    const char* pourcentage;  ///< null: the record is passed over
    const char* mode;
};
void PrintTo(const Lecture& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Balayages : public testing::TestWithParam<Lecture> {};

TEST_P(Balayages, trouve) {
    const auto& [nom, record, attendu, mode] = GetParam();
    const auto lu = balayer(record);
    ASSERT_EQ(lu.has_value(), attendu != nullptr);
    if (!lu)
        return;
    EXPECT_EQ(lu->pourcentage, attendu);
    EXPECT_EQ(lu->mode, mode);
}

const Lecture lectures[] = {
    {"liste_entiere", "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt", "95.3", "T"},
    {"revision", "24/08/2019 - 14:35 - 95.3% - R - 3lc.txt", "95.3", "R"},
    {"cent_decale_le_mode", "24/08/2019 - 14:35 - 100% - E - 3lc.txt", "100", "E"},
    {"un_chiffre", "24/08/2019 - 14:35 - 9% - T - 3lc.txt", "9", "T"},
    {"partie_premiere_lettre_du_nom", "24/08/2019 - 14:35 - 95.3% - vb6_a.txt", "95.3", "v"},
    {"pourcent_en_position_21", "24/08/2019 - 14:35 -%% - T - 3lc.txt", "", " "},
    {"sans_pourcent", "24/08/2019 - 14:35 - 95.3 - T - 3lc.txt", nullptr, nullptr},
    {"pourcent_trop_tot", "24/08/2019 - 14:35 % - 95.3 - T - 3lc.txt", nullptr, nullptr},
    {"coupe_avant_le_pourcent", "24/08/2019 - 14:35 - 95.", nullptr, nullptr},
    {"coupe_apres_le_pourcent", "24/08/2019 - 14:35 - 95.3%", "95.3", ""},
    {"coupe_avant_le_mode", "24/08/2019 - 14:35 - 95.3% - ", "95.3", ""},
    {"reste_d_un_record_a_virgule", "3% - T - 3lc.txt", nullptr, nullptr},
    {"vide", "", nullptr, nullptr},
};
INSTANTIATE_TEST_SUITE_P(Table, Balayages, testing::ValuesIn(lectures), essai::nommer<Lecture>);

// The file.

class Hist : public testing::Test {
  protected:
    essai::Machine machine;

    std::vector<std::string> lire() {
        std::vector<std::string> vus;
        parcourirhist(machine.disque(), "Léa", [&](std::string_view item) {
            vus.emplace_back(item);
            return true;
        });
        return vus;
    }
};

TEST_F(Hist, garde_les_enregistrements_dans_l_ordre) {
    machine.ecrire("Léa\\hist.dat", "");
    ajouterhist(machine.disque(), "Léa", "un");
    ajouterhist(machine.disque(), "Léa", "deux");
    EXPECT_EQ(machine.lire("Léa\\hist.dat"), "un\r\ndeux\r\n");
    EXPECT_EQ(lire(), (std::vector<std::string>{"un", "deux"}));
}

TEST_F(Hist, un_enregistrement_coupe_ne_gagne_pas_le_suivant) {
    machine.ecrire("Léa\\hist.dat", "24/08/2019 - 14:3");
    ajouterhist(machine.disque(), "Léa", "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt");
    EXPECT_EQ(lire(), (std::vector<std::string>{"24/08/2019 - 14:3",
                                                "24/08/2019 - 14:35 - 95.3% - T - 3lc.txt"}));
}

TEST_F(Hist, une_virgule_coupe_un_enregistrement_en_deux) {
    machine.ecrire("Léa\\hist.dat", "24/08/2019 - 14:35 - 9,3% - T - 3lc.txt\r\n");
    EXPECT_EQ(lire(), (std::vector<std::string>{"24/08/2019 - 14:35 - 9", "3% - T - 3lc.txt"}));
}

TEST_F(Hist, absent_est_une_faute) {
    EXPECT_EQ(essai::faute([&] { lire(); }),
              "Lecture des résultats : fichier « Léa\\hist.dat » : fichier introuvable.");
}

TEST_F(Hist, se_lit_jusqu_a_30001_articles) {
    std::string contenu;
    for (int i = 0; i < 30001; ++i)
        contenu += "x\r\n";
    machine.ecrire("Léa\\hist.dat", contenu);
    EXPECT_EQ(lire().size(), 30001U);
    machine.ecrire("Léa\\hist.dat", contenu + "x\r\n");
    EXPECT_THAT(
        essai::faute([&] { lire(); }),
        testing::AllOf(HasSubstr("Léa\\hist.dat"), HasSubstr("ligne 30002"), HasSubstr("30001")));
}

TEST_F(Hist, un_disque_plein_laisse_le_journal_tel_quel) {
    machine.ecrire("Léa\\hist.dat", "un\r\n");
    machine.disque().refuser("Léa\\hist.dat");
    EXPECT_THAT(essai::faute([&] { ajouterhist(machine.disque(), "Léa", "deux"); }),
                HasSubstr("Enregistrement du résultat « deux » : fichier « Léa\\hist.dat »"));
    EXPECT_EQ(machine.lire("Léa\\hist.dat"), "un\r\n");
}

}  // namespace
}  // namespace test_hist
