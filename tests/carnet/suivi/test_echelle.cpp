// The ladder of days: its rules as rows, and against a second, plain one on journals of years.

#include <algorithm>
#include <cstdint>
#include <map>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "echelle.h"

namespace test_echelle {
namespace {

using carnet::Echelle;
using carnet::Jour;
using testing::ElementsAre;
using testing::IsEmpty;

struct Vue {
    Jour jour;
    bool trouve;
    std::string identifiant = "AEX;AXE";
    std::string liste = "3lc.txt";
};

Echelle plier(const std::vector<Vue>& vues) {
    Echelle echelle;
    for (const auto& vue : vues) {
        profiles::Lignejournal ligne;
        ligne.jour = vue.jour;
        ligne.trouve = vue.trouve;
        ligne.identifiant = vue.identifiant;
        ligne.liste = vue.liste;
        echelle.prendre(ligne);
    }
    return echelle;
}

constexpr Jour jamais = 4'000'000;  // later than any day of a journal

/// Day, step from 1 and rack, as text.
std::vector<std::string> textes(const Echelle& echelle, Jour jour = jamais) {
    std::vector<std::string> lignes;
    for (const auto& due : echelle.dues(jour))
        lignes.push_back(std::to_string(due.jour) + " " + std::to_string(due.palier + 1) + " " +
                         std::string(due.identifiant));
    return lignes;
}

struct Cas {
    const char* nom;
    std::vector<Vue> vues;
    const char* attendu;  ///< day and step; empty: the rack has not entered
};
void PrintTo(const Cas& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Regles : public testing::TestWithParam<Cas> {};

TEST_P(Regles, de_l_echelle) {
    const auto lignes = textes(plier(GetParam().vues));
    const std::string attendu = GetParam().attendu;
    if (attendu.empty())
        EXPECT_THAT(lignes, IsEmpty());
    else
        EXPECT_THAT(lignes, ElementsAre(attendu + " AEX;AXE"));
}

// FNV-1a of AEX;AXE decides the days from the step of 15 on; the step of 7 has no room to move.
const Cas lescas[] = {
    {"jamais_manque_n_entre_pas", {{100, true}, {200, true}}, ""},
    {"premier_echec_entre_pour_le_lendemain", {{100, false}}, "101 1"},
    {"trouve_avant_l_echec_n_y_change_rien", {{99, true}, {100, false}}, "101 1"},
    {"trouve_le_jour_dit_monte_d_un", {{100, false}, {101, true}}, "104 2"},
    {"trouve_plus_tard_compte_de_ce_jour", {{100, false}, {150, true}}, "153 2"},
    {"trouve_avant_le_jour_ne_change_rien", {{100, false}, {100, true}}, "101 1"},
    {"trouve_deux_fois_le_jour_dit_monte_d_un", {{100, false}, {101, true}, {101, true}}, "104 2"},
    {"troisieme_palier_sept_jours", {{100, false}, {101, true}, {104, true}}, "111 3"},
    {"manque_redescend_au_premier",
     {{100, false}, {101, true}, {104, true}, {111, false}},
     "112 1"},
    {"manque_avant_le_jour_redescend_aussi", {{100, false}, {101, true}, {102, false}}, "103 1"},
    {"horloge_en_arriere_trouve_trop_tot", {{100, false}, {50, true}}, "101 1"},
    {"horloge_en_arriere_manque_ce_jour_la", {{100, false}, {50, false}}, "51 1"},
    {"date_de_1900", {{-25567, false}}, "-25566 1"},
    {"date_de_9999_puis_manque_aujourd_hui", {{2932896, false}, {100, false}}, "101 1"},
    {"dernier_jour_de_9999", {{2932896, false}}, "2932897 1"},
};
INSTANTIATE_TEST_SUITE_P(Echelle, Regles, testing::ValuesIn(lescas),
                         [](const auto& cas) { return cas.param.nom; });

TEST(Echelle, reste_au_dernier_palier) {
    std::vector<Vue> vues{{0, false}};
    for (Jour jour = 1000; jour <= 20000; jour += 1000)
        vues.push_back({jour, true});
    const auto dues = plier(vues).dues(jamais);
    ASSERT_EQ(dues.size(), 1U);
    EXPECT_EQ(dues[0].palier, carnet::paliers.size() - 1);
    EXPECT_EQ(dues[0].jour, 20000 + carnet::intervalle(carnet::paliers.size() - 1, "AEX;AXE"));
}

TEST(Echelle, fnv1a_est_celui_de_64_bits) {
    EXPECT_EQ(carnet::fnv1a(""), 0xcbf29ce484222325U);
    EXPECT_EQ(carnet::fnv1a("a"), 0xaf63dc4c8601ec8cU);
    EXPECT_EQ(carnet::fnv1a("foobar"), 0x85944171f73967e8U);
    EXPECT_NE(carnet::fnv1a("\xC9"), carnet::fnv1a("\x49"));
}

TEST(Echelle, etale_d_un_dixieme_au_plus_et_de_toutes_les_facons) {
    for (std::size_t palier = 0; palier < carnet::paliers.size(); ++palier) {
        const int jours = carnet::paliers.at(palier);
        const int marge = jours < 7 ? 0 : jours / 10;
        std::map<int, int> vus;
        for (int i = 0; i < 20000; ++i)
            ++vus[carnet::intervalle(palier, std::to_string(i) + ";X")];
        EXPECT_EQ(vus.begin()->first, jours - marge);
        EXPECT_EQ(vus.rbegin()->first, jours + marge);
        EXPECT_EQ(vus.size(), static_cast<std::size_t>(2 * marge + 1));
    }
}

TEST(Echelle, ordre_du_jour) {
    // One is due first; two on a higher step than three; three before four by the bytes.
    const auto echelle = plier({{10, false, "D;D"},
                                {10, false, "C;C"},
                                {8, false, "B;B"},
                                {9, true, "B;B"},
                                {8, false, "A;A"},
                                {11, false, "\xC9;E"}});
    EXPECT_THAT(textes(echelle),
                ElementsAre("9 1 A;A", "11 1 C;C", "11 1 D;D", "12 1 \xC9;E", "12 2 B;B"));
    EXPECT_THAT(textes(echelle, 11), ElementsAre("9 1 A;A", "11 1 C;C", "11 1 D;D"));
    EXPECT_THAT(textes(echelle, 8), IsEmpty());
}

TEST(Echelle, un_tirage_est_le_meme_dans_toutes_ses_listes) {
    const auto echelle = plier({{10, false, "A;B", "3lc.txt"}, {11, true, "A;B", "mes mots.txt"}});
    const auto dues = echelle.dues(jamais);
    ASSERT_EQ(dues.size(), 1U);
    EXPECT_EQ(dues[0].liste, "mes mots.txt");
    EXPECT_EQ(dues[0].palier, 1U);
}

TEST(Echelle, d_autres_solutions_font_un_autre_tirage) {
    EXPECT_THAT(textes(plier({{10, false, "A;B"}, {10, false, "A;B,C"}})),
                ElementsAre("11 1 A;B", "11 1 A;B,C"));
}

TEST(Echelle, prevoit_les_jours_qui_suivent) {
    const auto echelle = plier({{10, false, "A;A"},
                                {12, false, "B;B"},
                                {13, false, "C;C"},
                                {13, false, "D;D"},
                                {15, false, "E;E"},
                                {16, false, "F;F"}});
    EXPECT_THAT(echelle.prevoir(13, 3), ElementsAre(2, 2, 0, 1));
    EXPECT_THAT(echelle.prevoir(2932896, 0), ElementsAre(6));
    EXPECT_THAT(echelle.prevoir(-25567, 1), ElementsAre(0, 0));
}

TEST(Echelle, compte_les_tirages_de_chaque_palier) {
    const auto echelle = plier({{10, false, "A;A"},
                                {10, false, "B;B"},
                                {11, true, "B;B"},
                                {10, false, "C;C"},
                                {11, true, "C;C"}});
    EXPECT_THAT(echelle.parpalier(), ElementsAre(1, 2, 0, 0, 0, 0, 0, 0, 0));
}

TEST(Parmots, retrouve_chaque_texte_court_ou_long) {
    carnet::Parmots<int> valeurs;
    const auto texte = [](int i) {
        return std::string(static_cast<std::size_t>(i % 90), 'X') + std::to_string(i);
    };
    for (int i = 0; i < 20000; ++i)
        valeurs.ranger(texte(i)) = i;
    ASSERT_EQ(valeurs.taille(), 20000U);
    for (int i = 0; i < 20000; ++i) {
        const auto* valeur = valeurs.chercher(texte(i));
        ASSERT_NE(valeur, nullptr) << i;
        ASSERT_EQ(*valeur, i);
    }
    EXPECT_EQ(valeurs.chercher("rien"), nullptr);
    int rang = 0;
    valeurs.chaque([&](std::string_view vu, int valeur) {
        ASSERT_EQ(vu, texte(rang));
        ASSERT_EQ(valeur, rang++);
    });
}

// A second ladder, as plain as can be: for one rack at a time, over all of its lines.

struct Etat {
    bool dedans = false;
    int palier = 1;
    Jour du = 0;
};

Jour ecart(int palier, const std::string& identifiant) {
    const int jours[] = {1, 3, 7, 15, 30, 60, 120, 240, 365};
    const int base = jours[palier - 1];
    if (base < 7)
        return base;
    std::uint64_t h = 14695981039346656037U;
    for (const char c : identifiant) {
        h ^= static_cast<std::uint8_t>(c);
        h *= 1099511628211U;
    }
    const int t = base / 10;
    return base + static_cast<Jour>(h % static_cast<std::uint64_t>(2 * t + 1)) - t;
}

Etat suivre(const std::vector<Vue>& vues, const std::string& identifiant) {
    Etat etat;
    for (const auto& vue : vues) {
        if (vue.identifiant != identifiant)
            continue;
        if (!vue.trouve) {
            etat = {true, 1, vue.jour + 1};
        } else if (etat.dedans && vue.jour >= etat.du) {
            etat.palier = etat.palier == 9 ? 9 : etat.palier + 1;
            etat.du = vue.jour + ecart(etat.palier, identifiant);
        }
    }
    return etat;
}

std::vector<std::string> secondes(const std::vector<Vue>& vues, Jour jour) {
    std::map<std::string, bool> noms;
    for (const auto& vue : vues)
        noms[vue.identifiant] = true;
    std::vector<std::tuple<Jour, int, std::string>> dues;
    for (const auto& [nom, vrai] : noms) {
        const auto etat = suivre(vues, nom);
        if (etat.dedans && etat.du <= jour)
            dues.emplace_back(etat.du, etat.palier, nom);
    }
    std::sort(dues.begin(), dues.end());
    std::vector<std::string> lignes;
    for (const auto& [du, palier, nom] : dues)
        lignes.push_back(std::to_string(du) + " " + std::to_string(palier) + " " + nom);
    return lignes;
}

/// A player's years: racks are seen with ever more skill, and now and then the clock goes back.
std::vector<Vue> annees(std::uint32_t graine) {
    std::mt19937 hasard(graine);
    const auto tirer = [&](std::uint32_t n) { return static_cast<int>(hasard() % n); };
    std::vector<Vue> vues;
    const int racks = 1 + tirer(60);
    for (Jour jour = 17000 + tirer(1000); vues.size() < 3000; jour += tirer(4)) {
        if (tirer(200) == 0)
            jour -= tirer(400);
        for (int n = tirer(20); n > 0; --n) {
            const auto rack = tirer(static_cast<std::uint32_t>(racks));
            vues.push_back({jour, tirer(10) != 0, "R" + std::to_string(rack) + ";S"});
        }
    }
    return vues;
}

TEST(Echelle, egale_une_seconde_sur_des_annees_de_hasard) {
    for (std::uint32_t graine = 1; graine <= 60; ++graine) {
        const auto vues = annees(graine);
        const auto echelle = plier(vues);
        for (const Jour jour : {jamais, vues.back().jour, vues[vues.size() / 2].jour})
            ASSERT_EQ(textes(echelle, jour), secondes(vues, jour)) << "seed " << graine;
    }
}

TEST(Echelle, l_ordre_des_lignes_d_un_jour_de_meme_issue_n_y_change_rien) {
    for (std::uint32_t graine = 100; graine < 140; ++graine) {
        auto vues = annees(graine);
        const auto avant = textes(plier(vues));
        std::mt19937 hasard(graine);
        for (auto debut = vues.begin(); debut != vues.end();) {
            const auto fin = std::find_if(debut, vues.end(), [&](const Vue& vue) {
                return vue.jour != debut->jour || vue.trouve != debut->trouve;
            });
            std::shuffle(debut, fin, hasard);
            debut = fin;
        }
        ASSERT_EQ(textes(plier(vues)), avant) << "seed " << graine;
    }
}

TEST(Echelle, un_manque_est_toujours_du_le_lendemain) {
    for (std::uint32_t graine = 200; graine < 210; ++graine) {
        auto vues = annees(graine);
        while (vues.back().trouve)
            vues.pop_back();
        const auto echelle = plier(vues);
        const auto dues = echelle.dues(jamais);
        const auto due = std::find_if(dues.begin(), dues.end(), [&](const auto& d) {
            return d.identifiant == vues.back().identifiant;
        });
        ASSERT_NE(due, dues.end());
        EXPECT_EQ(due->jour, vues.back().jour + 1) << "seed " << graine;
        EXPECT_EQ(due->palier, 0U);
    }
}

}  // namespace
}  // namespace test_echelle
