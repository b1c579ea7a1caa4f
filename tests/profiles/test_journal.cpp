// The journal of judged racks: its lines, their reading, and what becomes of them on a bad disk.

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <memory>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "disquereel.h"
#include "dossiertemporaire.h"
#include "journal.h"

namespace test_journal {
namespace {

using namespace profiles;
using testing::ElementsAre;
using testing::IsEmpty;

const Seriejugee serie{{2019, 8, 24, 14, 35, 10}, "3lc.txt", "T"};

// The line of a rack.

struct Ecrite {
    const char* nom;
    Tiragejuge juge;
    const char* suite;  ///< behind the mode
};
void PrintTo(const Ecrite& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Lignesecrites : public testing::TestWithParam<Ecrite> {};

TEST_P(Lignesecrites, du_journal) {
    EXPECT_EQ(lignejournal(serie, GetParam().juge),
              std::string("24/08/2019 - 14:35:10;3lc.txt;T;") + GetParam().suite + "\r\n");
}

const Ecrite ecrites[] = {
    {"trouve", {"AEX", {"AXE"}, {"AXE"}}, "AEX;AXE;1;AXE"},
    {"manque", {"AEX", {"AXE"}, {"XEA"}}, "AEX;AXE;0;XEA"},
    {"rien_saisi", {"AEX", {"AXE"}, {""}}, "AEX;AXE;0;"},
    {"plusieurs_dans_un_autre_ordre", {"EH", {"HE", "EH"}, {"EH", "HE"}}, "EH;HE,EH;1;EH,HE"},
    {"une_des_deux", {"EH", {"HE", "EH"}, {"", "HE"}}, "EH;HE,EH;0;,HE"},
    {"deux_fois_la_meme_n_est_pas_tout", {"EH", {"HE", "EH"}, {"HE", "HE"}}, "EH;HE,EH;0;HE,HE"},
    {"rien_saisi_dans_aucune_boite", {"EH", {"HE", "EH"}, {"", ""}}, "EH;HE,EH;0;"},
    {"page_de_codes", {"ÉŒ", {"ŒÉ"}, {"ŒÉ"}}, "\xC9\x8C;\x8C\xC9;1;\x8C\xC9"},
    {"saisie_hors_de_la_page_de_codes", {"AEX", {"AXE"}, {"Ω"}}, "AEX;AXE;0;"},
    {"saisie_avec_le_separateur", {"AEX", {"AXE"}, {"A;E"}}, "AEX;AXE;0;"},
    {"saisie_avec_un_saut_de_ligne", {"AEX", {"AXE"}, {"A\nE"}}, "AEX;AXE;0;"},
};
INSTANTIATE_TEST_SUITE_P(Journal, Lignesecrites, testing::ValuesIn(ecrites),
                         [](const auto& cas) { return cas.param.nom; });

TEST(Journal, une_partie_n_a_pas_de_mode) {
    const Seriejugee partie{{2019, 8, 4, 4, 5, 6}, "vb6_a.txt", ""};
    EXPECT_EQ(lignejournal(partie, {"AB", {"BA"}, {"BA"}}),
              "04/08/2019 - 04:05:06;vb6_a.txt;;AB;BA;1;BA\r\n");
}

TEST(Journal, un_tirage_hors_de_la_page_de_codes_n_a_pas_de_ligne) {
    EXPECT_EQ(lignejournal(serie, {"Ω", {"AXE"}, {"AXE"}}), "");
}

// Reading.

TEST(Journal, se_lit_comme_il_s_ecrit) {
    const auto ligne = lirelignejournal("24/08/2019 - 14:35:10;3lc.txt;T;AEX;AXE,EXA;1;AXE,EXA");
    ASSERT_TRUE(ligne);
    EXPECT_EQ(ligne->jour, 18132);
    EXPECT_EQ(ligne->seconde, 52510);
    EXPECT_EQ(ligne->liste, "3lc.txt");
    EXPECT_EQ(ligne->mode, "T");
    EXPECT_EQ(ligne->tirage, "AEX");
    EXPECT_EQ(ligne->solutions, "AXE,EXA");
    EXPECT_EQ(ligne->identifiant, "AEX;AXE,EXA");
    EXPECT_TRUE(ligne->trouve);
    EXPECT_EQ(ligne->saisi, "AXE,EXA");
}

struct Lue {
    const char* nom;
    const char* ligne;
    bool lisible;
};
void PrintTo(const Lue& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Ligneslues : public testing::TestWithParam<Lue> {};

TEST_P(Ligneslues, du_journal) {
    EXPECT_EQ(lirelignejournal(GetParam().ligne).has_value(), GetParam().lisible);
}

const Lue lues[] = {
    {"entiere", "24/08/2019 - 14:35:10;a;T;A;B;0;", true},
    {"sans_liste_ni_mode", "24/08/2019 - 14:35:10;;;A;B;1;B", true},
    {"annee_1900", "01/01/1900 - 00:00:00;a;T;A;B;0;", true},
    {"annee_9999", "31/12/9999 - 23:59:59;a;T;A;B;0;", true},
    {"29_fevrier_bissextile", "29/02/2020 - 14:35:10;a;T;A;B;0;", true},
    {"vide", "", false},
    {"blancs", "   ", false},
    {"six_champs", "24/08/2019 - 14:35:10;a;T;A;B;0", false},
    {"huit_champs", "24/08/2019 - 14:35:10;a;T;A;B;0;;", false},
    {"moitie", "24/08/2019 - 14:35:1", false},
    {"sans_tirage", "24/08/2019 - 14:35:10;a;T;;B;0;", false},
    {"sans_solution", "24/08/2019 - 14:35:10;a;T;A;;0;", false},
    {"solutions_vides", "24/08/2019 - 14:35:10;a;T;A;,,;0;", false},
    {"trouve_2", "24/08/2019 - 14:35:10;a;T;A;B;2;", false},
    {"trouve_vide", "24/08/2019 - 14:35:10;a;T;A;B;;", false},
    {"trouve_01", "24/08/2019 - 14:35:10;a;T;A;B;01;", false},
    {"29_fevrier", "29/02/2019 - 14:35:10;a;T;A;B;0;", false},
    {"jour_0", "00/08/2019 - 14:35:10;a;T;A;B;0;", false},
    {"mois_13", "24/13/2019 - 14:35:10;a;T;A;B;0;", false},
    {"annee_0", "24/08/0000 - 14:35:10;a;T;A;B;0;", false},
    {"heure_24", "24/08/2019 - 24:35:10;a;T;A;B;0;", false},
    {"minute_60", "24/08/2019 - 14:60:10;a;T;A;B;0;", false},
    {"seconde_60", "24/08/2019 - 14:35:60;a;T;A;B;0;", false},
    {"sans_secondes", "24/08/2019 - 14:35;a;T;A;B;0;", false},
    {"jour_a_un_chiffre", "4/08/2019 - 14:35:10;a;T;A;B;0;", false},
    {"signe_dans_la_date", "+4/08/2019 - 14:35:10;a;T;A;B;0;", false},
    {"heure_negative", "24/08/2019 - -1:35:10;a;T;A;B;0;", false},
    {"tirets", "24-08-2019 - 14:35:10;a;T;A;B;0;", false},
    {"blanc_devant", " 24/08/2019 - 14:35:10;a;T;A;B;0;", false},
};
INSTANTIATE_TEST_SUITE_P(Journal, Ligneslues, testing::ValuesIn(lues),
                         [](const auto& cas) { return cas.param.nom; });

// The file.

class Fichierjournal : public testing::Test {
  protected:
    Fichierjournal() { std::filesystem::create_directory(dossier.chemin() / u8"Zoé"); }

    void corriger(const std::string& tirage) {
        const std::vector<Tiragejuge> juges{{tirage, {"X"}, {"X"}}};
        journaliser(disque, "Zoé", serie, juges, attente);
    }
    /// The racks of the lines of the file.
    std::vector<std::string> tirages() {
        std::vector<std::string> lus;
        lecture = {};
        EXPECT_FALSE(parcourirjournal(
            disque, cheminjournal("Zoé"),
            [&](const Lignejournal& ligne) { lus.emplace_back(ligne.tirage); }, lecture));
        return lus;
    }
    [[nodiscard]] static std::string ligne(const std::string& tirage) {
        return "24/08/2019 - 14:35:10;3lc.txt;T;" + tirage + ";X;1;X\r\n";
    }

    essais::DossierTemporaire dossier;
    essais::AppelsDessai appels;
    common::DisqueReel disque{dossier.chemin(), appels};
    std::string attente;
    Lecturejournal lecture;
};

TEST_F(Fichierjournal, une_correction_est_une_ecriture_sans_synchronisation) {
    corriger("A");
    appels.journal.clear();
    const std::vector<Tiragejuge> juges{{"B", {"X"}, {"X"}}, {"C", {"X"}, {"X"}}};
    journaliser(disque, "Zoé", serie, juges, attente);
    EXPECT_EQ(std::count(appels.journal.begin(), appels.journal.end(), "ecrire"), 1);
    EXPECT_EQ(std::count(appels.journal.begin(), appels.journal.end(), "synchroniser"), 0);
    EXPECT_EQ(std::count(appels.journal.begin(), appels.journal.end(), "synchroniserdossier"), 0);
    EXPECT_EQ(dossier.lire("Zoé/journal.txt"), ligne("A") + ligne("B") + ligne("C"));
}

TEST_F(Fichierjournal, une_correction_sans_tirage_n_ecrit_rien) {
    journaliser(disque, "Zoé", serie, {}, attente);
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / u8"Zoé" / "journal.txt"));
}

TEST_F(Fichierjournal, apres_une_moitie_de_ligne_en_commence_une) {
    dossier.ecrire("Zoé/journal.txt", ligne("A") + "24/08/2019 - 14:3");
    EXPECT_THAT(tirages(), ElementsAre("A"));
    EXPECT_EQ(lecture.sautees, 1U);
    corriger("B");
    EXPECT_THAT(tirages(), ElementsAre("A", "B"));
    EXPECT_EQ(lecture.sautees, 1U);
    dossier.ecrire("Zoé/journal.txt", "24/08\r");
    corriger("C");
    EXPECT_EQ(dossier.lire("Zoé/journal.txt"), "24/08\r\n" + ligne("C"));
}

TEST_F(Fichierjournal, le_joueur_peut_l_effacer) {
    corriger("A");
    std::filesystem::remove(dossier.chemin() / u8"Zoé" / "journal.txt");
    EXPECT_THAT(tirages(), IsEmpty());
    corriger("B");
    EXPECT_THAT(tirages(), ElementsAre("B"));
}

TEST_F(Fichierjournal, sans_dossier_les_lignes_attendent) {
    std::filesystem::remove(dossier.chemin() / u8"Zoé");
    corriger("A");
    corriger("B");
    EXPECT_EQ(attente, ligne("A") + ligne("B"));
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé");
    corriger("C");
    EXPECT_EQ(attente, "");
    EXPECT_THAT(tirages(), ElementsAre("A", "B", "C"));
}

TEST_F(Fichierjournal, a_la_place_d_un_dossier_les_lignes_attendent) {
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé" / "journal.txt");
    corriger("A");
    std::filesystem::remove(dossier.chemin() / u8"Zoé" / "journal.txt");
    corriger("B");
    EXPECT_THAT(tirages(), ElementsAre("A", "B"));
}

TEST_F(Fichierjournal, tout_appel_refuse_laisse_le_fichier_et_les_lignes) {
    dossier.ecrire("Zoé/journal.txt", ligne("A"));
    int refus = 0;
    for (int rang = 1;; ++rang) {
        appels.prevoir(essais::Panne::Refus, rang);
        corriger("B");
        if (!appels.atteinte())
            break;
        // A disk without locks takes the lines all the same.
        if (attente.empty()) {
            EXPECT_EQ(dossier.lire("Zoé/journal.txt"), ligne("A") + ligne("B"));
        } else {
            EXPECT_EQ(dossier.lire("Zoé/journal.txt"), ligne("A"));
            EXPECT_EQ(attente, ligne("B"));
            ++refus;
        }
        attente.clear();
        dossier.ecrire("Zoé/journal.txt", ligne("A"));
    }
    EXPECT_GE(refus, 5);
}

TEST_F(Fichierjournal, un_disque_plein_en_pleine_ecriture_rend_ce_qu_il_a_pris) {
    dossier.ecrire("Zoé/journal.txt", ligne("A"));
    appels.bouchee = 5;
    corriger("B");
    EXPECT_EQ(dossier.lire("Zoé/journal.txt"), ligne("A"));
    EXPECT_EQ(attente, ligne("B"));
    appels.bouchee = 0;
    corriger("C");
    EXPECT_EQ(dossier.lire("Zoé/journal.txt"), ligne("A") + ligne("B") + ligne("C"));
}

int mourirencorrigeant(const essais::Mots& mots) {
    essais::AppelsDessai appels;
    common::DisqueReel disque(common::chemin(mots[0]), appels);
    std::string attente;
    appels.prevoir(essais::Panne::Dechirure, 1);
    const std::vector<Tiragejuge> juges{{"B", {"X"}, {"X"}}};
    journaliser(disque, "Zoé", serie, juges, attente);
    return 0;
}

TEST_F(Fichierjournal, tue_en_pleine_ecriture_il_reste_des_lignes_lisibles) {
    corriger("A");
    EXPECT_EQ(essais::enfant(mourirencorrigeant, {dossier.chemin().string()}), essais::tue);
    corriger("C");
    EXPECT_THAT(tirages(), ElementsAre("A", "C"));
    EXPECT_EQ(lecture.sautees, 1U);
}

TEST_F(Fichierjournal, un_verrou_tenu_ne_fait_pas_attendre) {
    corriger("A");
    std::unique_ptr<common::Verrou> verrou;
    ASSERT_FALSE(disque.verrouiller(cheminjournal("Zoé"), verrou));
    corriger("B");
    EXPECT_EQ(appels.attendu, 0);
    EXPECT_EQ(attente, ligne("B"));
    verrou.reset();
    corriger("C");
    EXPECT_THAT(tirages(), ElementsAre("A", "B", "C"));
}

constexpr int corrections = 300;

/// So many corrections of racks whose names begin with the second word.
int jouercorrections(const essais::Mots& mots) {
    essais::AppelsDessai appels;
    common::DisqueReel disque(common::chemin(mots[0]), appels);
    std::string attente;
    for (int i = 0; i < corrections; ++i) {
        const std::vector<Tiragejuge> juges{{mots[1] + std::to_string(i), {"X"}, {"X"}}};
        journaliser(disque, "Zoé", serie, juges, attente);
    }
    while (!attente.empty())
        journaliser(disque, "Zoé", serie, {}, attente);
    return 0;
}

TEST_F(Fichierjournal, deux_programmes_a_la_fois_n_en_perdent_aucune) {
    const auto racine = dossier.chemin().string();
    essais::Enfant autre(jouercorrections, {racine, "B"});
    EXPECT_EQ(jouercorrections({racine, "A"}), 0);
    ASSERT_EQ(autre.attendre(), 0);
    const auto lus = tirages();
    EXPECT_EQ(lus.size(), 2U * corrections);
    EXPECT_EQ(lecture.sautees, 0U);
    for (const char* nom : {"A", "B"}) {
        std::vector<std::string> siens;
        std::copy_if(lus.begin(), lus.end(), std::back_inserter(siens),
                     [&](const std::string& tirage) { return tirage.starts_with(nom); });
        ASSERT_EQ(siens.size(), std::size_t{corrections});
        for (int i = 0; i < corrections; ++i)
            EXPECT_EQ(siens[static_cast<std::size_t>(i)], nom + std::to_string(i));
    }
}

TEST_F(Fichierjournal, ce_qui_attend_a_une_limite) {
    std::filesystem::remove(dossier.chemin() / u8"Zoé");
    const std::string longue(common::limiterangee, 'L');
    for (int i = 0; i < 10; ++i)
        corriger(longue + std::to_string(i));
    EXPECT_LE(attente.size(), limiteattente);
    std::filesystem::create_directory(dossier.chemin() / u8"Zoé");
    corriger("A");
    const auto lus = tirages();
    ASSERT_EQ(lus.size(), 8U);  // the last seven that fit, and A
    EXPECT_EQ(lus.front(), longue + "3");
    EXPECT_EQ(lus.back(), "A");
}

TEST_F(Fichierjournal, une_ligne_demesuree_est_sautee) {
    dossier.ecrire("Zoé/journal.txt", ligne("A") + std::string(3 * limitelignejournal, 'x') +
                                          "\r\n" + ligne("B") +
                                          std::string(2 * limitelignejournal, 'y'));
    EXPECT_THAT(tirages(), ElementsAre("A", "B"));
    EXPECT_EQ(lecture.lues, 2U);
    EXPECT_EQ(lecture.sautees, 2U);
}

TEST_F(Fichierjournal, sauts_de_ligne_seuls_et_derniere_ligne_sans_saut) {
    dossier.ecrire("Zoé/journal.txt", std::string("24/08/2019 - 14:35:10;a;T;A;B;0;\n\n") +
                                          "24/08/2019 - 14:35:10;a;T;C;B;0;");
    EXPECT_THAT(tirages(), ElementsAre("A", "C"));
    EXPECT_EQ(lecture.sautees, 1U);
}

TEST_F(Fichierjournal, une_lecture_qui_se_rompt_est_une_erreur) {
    corriger("A");
    appels.prevoir(essais::Panne::Refus, 3);
    const auto passer = [](const Lignejournal&) {};
    EXPECT_TRUE(parcourirjournal(disque, cheminjournal("Zoé"), passer, lecture));
    EXPECT_TRUE(appels.atteinte());
}

}  // namespace
}  // namespace test_journal
