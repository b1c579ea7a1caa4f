#include <gtest/gtest.h>

#include "lignes.h"
#include "menudessai.h"
#include "resultats.h"

namespace test_resultats {
namespace {

using menu::Resultats;
using Records = std::vector<std::string>;

/// The rows after the records, from what they showed: "date | result" each, empty ones left out.
Records actualiser(std::string_view cle, const Records& records, Resultats resultats,
                   std::string_view personnel = "perso.txt") {
    const auto* panneau = menu::panneau(cle);
    const auto listes = panneau == nullptr ? std::vector<menu::Liste>()
                                           : menu::listesdupanneau(*panneau, personnel);
    menu::Derniers derniers(listes);
    for (const auto& record : records)
        derniers.voir(common::vers1252(record));
    menu::actualiser(resultats, listes, derniers);
    Records lignes;
    for (std::size_t r = 0; r < resultats.size(); ++r) {
        const auto& [date, texte] = resultats.at(r);
        if (!date.empty() || !texte.empty())
            lignes.push_back(
                std::to_string(r).append(": ").append(date).append(" | ").append(texte));
    }
    return lignes;
}

struct Ligne {
    const char* nom;
    const char* panneau;
    Records records;
    Records attendu;
    menu::Resultats avant = {};
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Actualisation : public testing::TestWithParam<Ligne> {};

TEST_P(Actualisation, donne) {
    const auto& ligne = GetParam();
    EXPECT_EQ(actualiser(ligne.panneau, ligne.records, ligne.avant), ligne.attendu);
}

const Ligne lignes[] = {
    {"jamais_jouee", "7", {}, {}},
    {"liste_entiere",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt"},
     {"1: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"echantillon",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - E - 7v6.txt"},
     {"1: 24/08/2019 - 14:35 | 95.3% - E"}},
    {"cent",
     "7",
     {"24/08/2019 - 14:35 - 100% - T - 7v6.txt"},
     {"1: 24/08/2019 - 14:35 | 100% - T"}},
    {"un_chiffre",
     "7",
     {"24/08/2019 - 14:35 - 9% - T - 7v6.txt"},
     {"1: 24/08/2019 - 14:35 | 9% - T"}},
    {"revision_seule_rien", "7", {"24/08/2019 - 14:35 - 95.3% - R - 7v6.txt"}, {}},
    {"le_dernier_gagne_quel_que_soit_le_mode",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt", "23/08/2019 - 14:35 - 12% - E - 7v6.txt",
      "25/08/2019 - 14:35 - 99% - R - 7v6.txt"},
     {"1: 23/08/2019 - 14:35 | 12% - E"}},
    {"liste_d_un_autre_panneau", "7", {"24/08/2019 - 14:35 - 95.3% - T - 8v6.txt"}, {}},
    {"liste_disparue", "7", {"24/08/2019 - 14:35 - 95.3% - T - zzz.txt"}, {}},
    {"la_casse_compte", "7", {"24/08/2019 - 14:35 - 95.3% - T - 7V6.txt"}, {}},
    {"fin_de_nom_a_la_lettre",
     "bt",
     {"24/08/2019 - 14:35 - 95.3% - T - mon3lc.txt"},
     {"0: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"une_partie_n_est_pas_la_liste",
     "bt",
     {"24/08/2019 - 14:35 - 95.3% - vb6_a.txt"},
     {"3: 24/08/2019 - 14:35 | 95.3% - a"}},
    {"la_liste_n_est_pas_une_partie",
     "bt",
     {"24/08/2019 - 14:35 - 95.3% - T - vb6.txt"},
     {"3: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"sans_pourcent_passe",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt", "25/08/2019 - 14:35 - 80 - T - 7v6.txt"},
     {"1: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"coupe_au_milieu_passe",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt", "25/08/2019 - 14:3", "", "9"},
     {"1: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"parties_a_et_c_montrent_c",
     "bt",
     {"24/08/2019 - 14:35 - 90% - vb6_c.txt", "25/08/2019 - 14:35 - 80% - vb6_a.txt"},
     {"3: 24/08/2019 - 14:35 | 90% - c"}},
    {"partie_b_seule",
     "bt",
     {"24/08/2019 - 14:35 - 90.5% - vb6_b.txt"},
     {"3: 24/08/2019 - 14:35 | 90.5% - b"}},
    {"partie_d_la_plus_loin",
     "ta",
     {"24/08/2019 - 14:35 - 90% - 6lc_d.txt", "25/08/2019 - 14:35 - 80% - 6lc_a.txt"},
     {"0: 24/08/2019 - 14:35 | 90% - d"}},
    {"parties_apres_la_liste_entiere_incompletes",
     "bt",
     {"24/08/2019 - 14:35 - 95.3% - T - vb6.txt", "25/08/2019 - 14:35 - 80% - vb6_a.txt"},
     {"3: 24/08/2019 - 14:35 | 95.3% - T"}},
    {"deux_parties_moyenne",
     "6",
     {"24/08/2019 - 14:35 - 90% - 6v2_a.txt", "25/08/2019 - 10:00 - 91% - 6v2_b.txt"},
     {"6: 25/08/2019 - 10:00 | 90.5% - Ts"}},
    {"trois_parties_moyenne_arrondie",
     "bt",
     {"24/08/2019 - 14:35 - 90% - vb6_a.txt", "24/08/2019 - 14:36 - 90% - vb6_b.txt",
      "24/08/2019 - 14:37 - 91% - vb6_c.txt"},
     {"3: 24/08/2019 - 14:37 | 90.3% - Ts"}},
    {"quatre_parties_moyenne_entiere",
     "ta",
     {"24/08/2019 - 14:35 - 90% - 6lc_a.txt", "24/08/2019 - 14:36 - 90% - 6lc_b.txt",
      "24/08/2019 - 14:37 - 92% - 6lc_c.txt", "24/08/2019 - 14:38 - 88% - 6lc_d.txt"},
     {"0: 24/08/2019 - 14:38 | 90% - Ts"}},
    {"date_de_la_derniere_partie_dans_l_ordre_des_lettres",
     "bt",
     {"24/08/2019 - 14:35 - 90% - vb6_c.txt", "26/08/2019 - 14:36 - 90% - vb6_a.txt",
      "25/08/2019 - 14:37 - 90% - vb6_b.txt"},
     {"3: 24/08/2019 - 14:35 | 90% - Ts"}},
    {"liste_d_un_jour_plus_tard_reste",
     "6",
     {"24/08/2019 - 14:35 - 90% - 6v2_a.txt", "24/08/2019 - 14:36 - 91% - 6v2_b.txt",
      "25/08/2019 - 08:00 - 70% - T - 6v2.txt"},
     {"6: 25/08/2019 - 08:00 | 70% - T"}},
    {"liste_du_meme_jour_reste",
     "6",
     {"24/08/2019 - 08:00 - 70% - T - 6v2.txt", "24/08/2019 - 14:35 - 90% - 6v2_a.txt",
      "24/08/2019 - 14:36 - 91% - 6v2_b.txt"},
     {"6: 24/08/2019 - 08:00 | 70% - T"}},
    {"liste_d_un_jour_plus_tot_cede",
     "6",
     {"23/08/2019 - 23:59 - 70% - T - 6v2.txt", "24/08/2019 - 14:35 - 90% - 6v2_a.txt",
      "24/08/2019 - 14:36 - 91% - 6v2_b.txt"},
     {"6: 24/08/2019 - 14:36 | 90.5% - Ts"}},
    {"liste_entre_les_parties_cede_au_jour_de_la_derniere",
     "6",
     {"20/08/2019 - 14:36 - 91% - 6v2_b.txt", "22/08/2019 - 23:59 - 70% - T - 6v2.txt",
      "24/08/2019 - 14:35 - 90% - 6v2_a.txt"},
     {"6: 22/08/2019 - 23:59 | 70% - T"}},
    {"le_jour_se_compare_par_annee_puis_mois",
     "6",
     {"31/12/2018 - 10:00 - 70% - T - 6v2.txt", "01/01/2019 - 14:35 - 90% - 6v2_a.txt",
      "01/01/2019 - 14:36 - 91% - 6v2_b.txt"},
     {"6: 01/01/2019 - 14:36 | 90.5% - Ts"}},
    {"les_parties_se_lisent_jusqu_a_la_revision",
     "6",
     {"24/08/2019 - 14:35 - 90% - 6v2_a.txt", "24/08/2019 - 14:36 - 91% - R - 6v2_b.txt"},
     {"6: 24/08/2019 - 14:35 | 90% - a"}},
    {"ne_fait_qu_ecraser",
     "7",
     {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt"},
     {"0: 01/01/2019 - 01:01 | 50% - T", "1: 24/08/2019 - 14:35 | 95.3% - T"},
     {{{"01/01/2019 - 01:01", "50% - T"}, {"02/01/2019 - 01:01", "60% - E"}}}},
    {"une_partie_n_ecrase_pas_ce_qui_est_montre",
     "6",
     {"24/08/2019 - 14:35 - 90% - 6v2_a.txt"},
     {"6: 01/01/2019 - 01:01 | 50% - T"},
     {{{}, {}, {}, {}, {}, {}, {"01/01/2019 - 01:01", "50% - T"}}}},
    {"panneau_sans_rangees", "lc78", {"24/08/2019 - 14:35 - 95.3% - T - 7v6.txt"}, {}},
};
INSTANTIATE_TEST_SUITE_P(Table, Actualisation, testing::ValuesIn(lignes), essai::nommer<Ligne>);

// Every row and every part finds its own record, and no other list of its panel takes it.

class Chaquerangee : public testing::TestWithParam<essai::Rangee> {};

TEST_P(Chaquerangee, trouve_son_resultat) {
    const auto& rangee = GetParam();
    const auto tete = std::to_string(rangee.rang) + ": 24/08/2019 - 14:35 | 95.3% - ";
    const auto seul = [&](std::string_view suite) {
        return actualiser(rangee.panneau, {essai::record("24/08/2019", "95.3", suite)}, {});
    };
    EXPECT_EQ(seul("T - " + std::string(rangee.fichier)), Records{tete + "T"});
    const auto base = rangee.fichier.substr(0, rangee.fichier.size() - 4);
    Records toutes;
    for (const char lettre : rangee.parties) {
        const auto fichier = std::string(base) + "_" + lettre + ".txt";
        EXPECT_EQ(seul(fichier), Records{tete + lettre});
        toutes.push_back(essai::record("24/08/2019", "95.3", fichier));
    }
    if (!toutes.empty()) {
        EXPECT_EQ(actualiser(rangee.panneau, toutes, {}), Records{tete + "Ts"});
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Chaquerangee,
                         testing::ValuesIn(essai::lesrangees().begin(), essai::lesrangees().end()),
                         essai::nomderangee);

TEST(Personnelle, se_trouve_par_son_nom) {
    const Records records{"24/08/2019 - 14:35 - 95.3% - T - mes mots é.txt"};
    EXPECT_EQ(actualiser("autres", records, {}, "mes mots é.txt"),
              Records{"7: 24/08/2019 - 14:35 | 95.3% - T"});
    EXPECT_EQ(actualiser("autres", records, {}, "perso.txt"), Records{});
    EXPECT_EQ(actualiser("autres", records, {}, ""), Records{});
}

TEST(Personnelle, prend_un_nom_court_ou_sans_extension) {
    EXPECT_EQ(actualiser("autres", {"24/08/2019 - 14:35 - 95.3% - T - a"}, {}, "a"),
              Records{"7: 24/08/2019 - 14:35 | 95.3% - T"});
    EXPECT_EQ(actualiser("autres", {"24/08/2019 - 14:35 - 95.3% - T - verbes"}, {}, "verbes"),
              Records{"7: 24/08/2019 - 14:35 | 95.3% - T"});
}

TEST(Personnelle, partage_un_record_avec_la_liste_dont_elle_porte_la_fin) {
    EXPECT_EQ(actualiser("autres", {"24/08/2019 - 14:35 - 95.3% - T - invar.txt"}, {}, "ar.txt"),
              (Records{"0: 24/08/2019 - 14:35 | 95.3% - T", "7: 24/08/2019 - 14:35 | 95.3% - T"}));
}

// Colours.

struct Teinte {
    const char* nom;
    const char* texte;
    int seuilch;
    int seuilcb;
    const char* couleur;
};
void PrintTo(const Teinte& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Teintes : public testing::TestWithParam<Teinte> {};

TEST_P(Teintes, donne) {
    const auto& [nom, texte, ch, cb, attendue] = GetParam();
    const auto couleur = menu::teinte(texte, ch, cb);
    EXPECT_EQ(couleur ? couleur->nom() : "aucune", attendue);
}

constexpr const char* vert = "#00C000";
constexpr const char* orange = "#FF8000";
constexpr const char* rouge = "#FF0000";
const Teinte teintes[] = {
    {"vide", "", 95, 80, "aucune"},
    {"au_seuil_vert", "95% - T", 95, 80, vert},
    {"au_dessus", "95.3% - E", 95, 80, vert},
    {"sous_le_seuil_vert", "94.9% - T", 95, 80, orange},
    {"au_seuil_orange", "80% - T", 95, 80, orange},
    {"sous_le_seuil_orange", "79.9% - T", 95, 80, rouge},
    {"zero", "0% - T", 95, 80, rouge},
    {"cent_a_tout_seuil", "100% - T", 100, 100, vert},
    {"moyenne", "90.5% - Ts", 95, 80, orange},
    {"moyenne_verte", "95% - Ts", 95, 80, vert},
    {"partie", "79.6% - a", 95, 80, rouge},
    {"partie_d", "95.3% - d", 95, 80, vert},
    {"seuils_egaux_au_seuil", "80% - T", 80, 80, vert},
    {"seuils_egaux_dessous", "79.9% - T", 80, 80, rouge},
    {"seuils_inverses_le_rouge_l_emporte", "85% - T", 80, 90, rouge},
};
INSTANTIATE_TEST_SUITE_P(Table, Teintes, testing::ValuesIn(teintes), essai::nommer<Teinte>);

}  // namespace
}  // namespace test_resultats
