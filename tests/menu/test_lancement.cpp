#include <gtest/gtest.h>

#include "attendu.h"
#include "lancement.h"
#include "lignes.h"
#include "listes.h"
#include "tableau.h"

namespace test_lancement {
namespace {

constexpr auto form1 = menu::Ecran::form1;
constexpr auto multi = menu::Ecran::multi;

common::VariablesDialog2 tailles(std::int16_t series) {
    common::VariablesDialog2 variables;
    variables.affecterechantillons(series);
    return variables;
}

/// The stages on one line, a word each: "refus", the form, or "-".
std::string montrer(const menu::Etapes& etapes) {
    std::string texte;
    for (const auto& [refus, lancement] : etapes) {
        texte += texte.empty() ? "" : " ";
        if (lancement)
            texte += *lancement == multi ? "Multi" : "Form1";
        else
            texte += refus ? "refus" : "-";
    }
    return texte;
}

struct Ligne {
    const char* nom;
    const char* panneau;
    std::size_t rangee;
    bool persomulti;
    double base;
    const char* attendu;
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Etapes : public testing::TestWithParam<Ligne> {};

TEST_P(Etapes, font) {
    const auto& [nom, panneau, rangee, persomulti, base, attendu] = GetParam();
    EXPECT_EQ(montrer(menu::etapes(*menu::panneau(panneau), rangee, persomulti, base, tailles(5))),
              attendu);
}

// Sizes of five series: 150, 80, 50, 40, 25.
const Ligne lignes[] = {
    {"form1_assez_grande", "bt", 0, false, 151, "Form1 - - - -"},
    {"form1_egale_refusee", "bt", 0, false, 150, "refus - - - -"},
    {"form1_entre_uni_et_duo", "ta", 0, false, 100, "refus - - - -"},
    {"form1_entre_duo_et_trio", "conja", 0, false, 80, "refus refus - - -"},
    {"form1_petite", "6", 0, false, 50, "refus refus refus - -"},
    {"vide", "7", 0, false, 0, "refus refus refus - -"},
    {"panneau_8", "8", 7, false, 151, "Form1 - - - -"},
    {"panneau_78lca", "78lca", 7, false, 151, "Form1 - - - -"},
    {"panneau_78lcb", "78lcb", 7, false, 151, "Form1 - - - -"},
    {"panneau_formdif", "formdif", 7, false, 151, "Form1 - - - -"},
    {"panneau_rallong", "rallong", 7, false, 151, "Form1 - - - -"},
    {"duos_assez_grande", "duos7", 0, false, 151, "- Multi - - -"},
    {"duos_message_et_lancement", "duos8", 0, false, 81, "refus Multi - - -"},
    {"duos_egale_refusee", "duos7", 0, false, 80, "refus refus - - -"},
    {"duos_sans_tirage_sur_form1", "duos7", 6, false, 81, "refus Form1 - - -"},
    {"duos8_sans_tirage_sur_form1", "duos8", 6, false, 151, "- Form1 - - -"},
    {"trios_de_60_deux_messages_et_lancement", "trios", 0, false, 60, "refus refus Multi - -"},
    {"trios_egale_refusee", "trios", 3, false, 50, "refus refus refus - -"},
    {"quatuors_41", "quatquin", 0, false, 41, "refus refus refus Multi -"},
    {"quatuors_40", "quatquin", 3, false, 40, "refus refus refus refus -"},
    {"quintets_26", "quatquin", 4, false, 26, "refus refus refus Multi -"},
    {"quintets_25", "quatquin", 6, false, 25, "refus refus refus refus -"},
    {"conjm_duos_81", "conjm", 0, false, 81, "refus - - - Multi"},
    {"conjm_duos_80", "conjm", 1, false, 80, "refus refus - - refus"},
    {"conjm_trios_51", "conjm", 2, false, 51, "refus refus - - Multi"},
    {"conjm_trios_50", "conjm", 3, false, 50, "refus refus refus - refus"},
    {"conjm_quatuors_41", "conjm", 4, false, 41, "refus refus refus - Multi"},
    {"conjm_quatuors_40", "conjm", 5, false, 40, "refus refus refus - refus"},
    {"conjm_quintets_26", "conjm", 6, false, 26, "refus refus refus - Multi"},
    {"conjm_quintets_25", "conjm", 6, false, 25, "refus refus refus - refus"},
    {"autres_form1", "autres", 0, false, 151, "Form1 - - - -"},
    {"autres_anaverbes", "autres", 2, false, 81, "refus Multi - - -"},
    {"autres_perso", "autres", 7, false, 151, "Form1 - - - -"},
    {"autres_perso_multiple", "autres", 7, true, 81, "refus Multi - - -"},
    {"autres_perso_multiple_entraine_tout_le_panneau", "autres", 0, true, 151, "- Multi - - -"},
    {"perso_multiple_n_entraine_pas_les_autres_panneaux", "bt", 0, true, 151, "Form1 - - - -"},
};
INSTANTIATE_TEST_SUITE_P(Table, Etapes, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST(Etapes, d_une_serie_ont_leurs_propres_tailles) {
    EXPECT_EQ(montrer(menu::etapes(*menu::panneau("bt"), 0, false, 31, tailles(1))),
              "Form1 - - - -");
    EXPECT_EQ(montrer(menu::etapes(*menu::panneau("duos7"), 0, false, 20, tailles(1))),
              "refus refus refus - -");
    EXPECT_EQ(montrer(menu::etapes(*menu::panneau("quatquin"), 6, false, 11, tailles(1))),
              "refus refus refus Multi -");
}

class Ecrans : public testing::TestWithParam<essai::Rangee> {};

TEST_P(Ecrans, est_celui_de_la_rangee) {
    const auto& rangee = GetParam();
    const auto attendu = rangee.ecran == "Multi" ? multi : form1;
    EXPECT_EQ(menu::ecran(*menu::panneau(rangee.panneau), rangee.rang, false), attendu);
    EXPECT_EQ(menu::ecran(*menu::panneau(rangee.panneau), rangee.rang, true),
              rangee.panneau == "autres" ? multi : attendu);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Ecrans,
                         testing::ValuesIn(essai::lesrangees().begin(), essai::lesrangees().end()),
                         essai::nomderangee);

TEST(Ecrans, de_la_liste_personnelle) {
    EXPECT_EQ(menu::ecran(*menu::panneau("autres"), 7, false), form1);
    EXPECT_EQ(menu::ecran(*menu::panneau("autres"), 7, true), multi);
}

// The row behind a part button.

struct Bouton {
    const char* nom;
    const char* panneau;
    std::size_t index;
    std::size_t partie;
    int rangee;  ///< -1: none
};
void PrintTo(const Bouton& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Boutons : public testing::TestWithParam<Bouton> {};

TEST_P(Boutons, menent) {
    const auto& [nom, panneau, index, partie, rangee] = GetParam();
    const auto trouvee = menu::rangeedepartie(*menu::panneau(panneau), index, partie);
    EXPECT_EQ(trouvee ? static_cast<int>(*trouvee) : -1, rangee);
}

const Bouton boutons[] = {
    {"bt_0a_est_la_rangee_3", "bt", 0, 0, 3},
    {"bt_0c_est_la_rangee_3", "bt", 0, 2, 3},
    {"bt_1b_est_la_rangee_5", "bt", 1, 1, 5},
    {"bt_sans_d", "bt", 0, 3, -1},
    {"bt_2a_n_est_rien", "bt", 2, 0, -1},
    {"bt_3a_n_est_rien", "bt", 3, 0, -1},
    {"ta_0d", "ta", 0, 3, 0},
    {"ta_4b", "ta", 4, 1, 4},
    {"ta_4c_n_est_rien", "ta", 4, 2, -1},
    {"panneau_7_rangee_3", "7", 3, 0, 3},
    {"panneau_7_rangee_0_n_est_rien", "7", 0, 0, -1},
    {"autres_sans_parties", "autres", 7, 0, -1},
};
INSTANTIATE_TEST_SUITE_P(Table, Boutons, testing::ValuesIn(boutons), essai::nommer<Bouton>);

TEST(Chemins, de_la_liste_et_de_sa_revision) {
    EXPECT_EQ(common::cheminliste("3lc.txt"), "listes\\3lc.txt");
    EXPECT_EQ(common::cheminrevision("Zoé", "3lc.txt"), "Zoé\\rev-3lc.txt");
}

TEST(Typ, n_est_plein_que_pour_les_rallonges) {
    for (const auto& panneau : essai::lespanneaux())
        EXPECT_EQ(menu::panneau(panneau.cle)->typ, panneau.cle == "rallong" ? "rallong" : "");
}

}  // namespace
}  // namespace test_lancement
