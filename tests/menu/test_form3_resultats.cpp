#include <cmath>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "menudessai.h"

namespace test_form3_resultats {
namespace {

using essai::record;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class Resultatsdumenu : public essai::Menudessai {
  protected:
    [[nodiscard]] std::string couleur(std::size_t rangee) const {
        return controle(essai::avecrang("Label6", rangee)).couleur().nom();
    }
};

TEST_F(Resultatsdumenu, viennent_a_l_ouverture) {
    ecrirehist({record("24/08/2019", "95.3", "T - 3lc.txt"),
                record("25/08/2019", "80", "E - 3lt.txt"),
                record("26/08/2019", "79", "vb6_b.txt")});
    ouvrir("bt");
    EXPECT_EQ(resultat(0), "24/08/2019 - 14:35 | 95.3% - T");
    EXPECT_EQ(couleur(0), "#00C000");
    EXPECT_EQ(resultat(1), "25/08/2019 - 14:35 | 80% - E");
    EXPECT_EQ(couleur(1), "#FF8000");
    EXPECT_EQ(resultat(3), "26/08/2019 - 14:35 | 79% - b");
    EXPECT_EQ(couleur(3), "#FF0000");
    EXPECT_EQ(resultat(2), "");
    EXPECT_EQ(texte("Label4(2)"), "3");
}

TEST_F(Resultatsdumenu, n_ont_de_fond_que_s_il_y_en_a) {
    ecrirehist({record("24/08/2019", "95.3", "T - 3lc.txt")});
    ouvrir("bt");
    EXPECT_FALSE(controle("Label6(0)").fondu());
    EXPECT_TRUE(controle("Label6(1)").fondu());
    cliquer("Command3");
    EXPECT_TRUE(controle("Label6(0)").fondu());
}

/// Contrast of two colours as the accessibility rules count it.
double contraste(ui::Couleur une, ui::Couleur autre) {
    const auto clarte = [](ui::Couleur c) {
        const auto canal = [&](unsigned decalage) {
            const double v = ((c.rvb() >> decalage) & 0xFFU) / 255.0;
            return v <= 0.04045 ? v / 12.92 : std::pow((v + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * canal(16) + 0.7152 * canal(8) + 0.0722 * canal(0) + 0.05;
    };
    const auto [sombre, clair] = std::minmax({clarte(une), clarte(autre)});
    return clair / sombre;
}

TEST_F(Resultatsdumenu, se_lisent_dans_les_trois_couleurs) {
    for (const auto rvb : {0x00C000U, 0xFF8000U, 0xFF0000U})
        EXPECT_GE(contraste(ui::Couleur(rvb), controle("Label6(0)").fond()), 4.5) << rvb;
}

TEST_F(Resultatsdumenu, suivent_les_seuils_a_la_mise_a_jour) {
    ecrirehist({record("24/08/2019", "85", "T - 3lc.txt")});
    ouvrir("bt");
    EXPECT_EQ(couleur(0), "#FF8000");
    v.dialog2.seuilch = 85;
    maj();
    EXPECT_EQ(couleur(0), "#00C000");
    v.dialog2.seuilch = 90;
    v.dialog2.seuilcb = 90;
    maj();
    EXPECT_EQ(couleur(0), "#FF0000");
}

TEST_F(Resultatsdumenu, disent_leur_couleur) {
    const auto dite = [this](std::size_t rangee) {
        return controle(essai::avecrang("Label6", rangee)).description();
    };
    ecrirehist({record("24/08/2019", "95.3", "T - 3lc.txt"),
                record("25/08/2019", "80", "E - 3lt.txt"),
                record("26/08/2019", "79", "vb6_b.txt")});
    ouvrir("bt");
    EXPECT_EQ(dite(0), "Vert");
    EXPECT_EQ(dite(1), "Orange");
    EXPECT_EQ(dite(2), "");
    EXPECT_EQ(dite(3), "Rouge");
    v.dialog2.seuilcb = 96;
    v.dialog2.seuilch = 96;
    maj();
    EXPECT_EQ(dite(0), "Rouge");
    ouvrir("ta");
    EXPECT_EQ(dite(0), "");
    ouvrir("bt");
    EXPECT_EQ(dite(0), "Rouge");
}

TEST_F(Resultatsdumenu, la_mise_a_jour_ne_fait_qu_ecraser) {
    ecrirehist({record("24/08/2019", "85", "T - 3lc.txt")});
    ouvrir("bt");
    ecrirehist({});
    maj();
    EXPECT_EQ(resultat(0), "24/08/2019 - 14:35 | 85% - T");
    cliquer("Command1");
    EXPECT_EQ(resultat(0), "");
}

TEST_F(Resultatsdumenu, la_mise_a_jour_ne_fait_rien_sans_panneau_montre) {
    ecrirehist({record("24/08/2019", "85", "T - 3lc.txt")});
    ouvrir("bt");
    cliquer("Command3");
    maj();
    EXPECT_EQ(resultat(0), "");
    std::filesystem::remove(machine.chemin("Léa\\hist.dat"));
    maj();
    cliquer("Command7(4)");
    maj();
    EXPECT_FALSE(machine.plateforme.fini());
}

TEST_F(Resultatsdumenu, sans_hist_dat_l_ouverture_finit_le_programme) {
    std::filesystem::remove(machine.chemin("Léa\\hist.dat"));
    ouvrir("bt");
    EXPECT_EQ(rapport(),
              "Lecture des résultats : fichier « Léa\\hist.dat » : fichier introuvable.");
    EXPECT_EQ(machine.plateforme.statut(), 1);
}

TEST_F(Resultatsdumenu, se_lisent_jusqu_a_30001_articles) {
    std::vector<std::string> records(30000, record("24/08/2019", "85", "T - autre.txt"));
    records.push_back(record("25/08/2019", "86", "T - 3lc.txt"));
    ecrirehist(records);
    ouvrir("bt");
    EXPECT_EQ(resultat(0), "25/08/2019 - 14:35 | 86% - T");
    records.push_back("de trop");
    ecrirehist(records);
    maj();
    EXPECT_THAT(rapport(), AllOf(HasSubstr("ligne 30002"), HasSubstr("30001")));
    EXPECT_EQ(machine.plateforme.statut(), 1);
}

TEST_F(Resultatsdumenu, un_article_abime_ne_bloque_rien) {
    ecrirehist({"24/08/2019 - 14:", "24/08/2019 - 14:35 - 9,3% - T - 3lc.txt", "",
                "24/08/2019 - 14:35 - 95 - T - 3lc.txt",
                record("24/08/2019", "85", "T - 3lt.txt")});
    ouvrir("bt");
    EXPECT_EQ(resultat(0), "");
    EXPECT_EQ(resultat(1), "24/08/2019 - 14:35 | 85% - T");
}

// The history of a row.

TEST_F(Resultatsdumenu, un_clic_montre_l_historique_de_la_rangee) {
    ecrirehist({record("24/08/2019", "95.3", "T - vb6.txt"),
                record("25/08/2019", "80", "vb6_a.txt"), record("26/08/2019", "70", "R - vb6.txt"),
                record("26/08/2019", "70", "T - 3lc.txt")});
    ouvrir("bt");
    cliquer("Label6(3)");
    EXPECT_THAT(v.relever(),
                ElementsAre("historique Verbes 6L", "ligne 24/08/2019 - 14:35 - 95.3% - T",
                            "ligne 25/08/2019 - 14:35 - 80% - vb6_a",
                            "ligne 26/08/2019 - 14:35 - 70% - R"));
}

TEST_F(Resultatsdumenu, un_clic_sur_un_resultat_vide_aussi) {
    ecrirehist({record("26/08/2019", "70", "R - 3lc.txt")});
    ouvrir("bt");
    EXPECT_EQ(resultat(0), "");
    cliquer("Label6(0)");
    EXPECT_THAT(v.relever(),
                ElementsAre("historique Lettre Chère 3L", "ligne 26/08/2019 - 14:35 - 70% - R"));
    cliquer("Label6(1)");
    EXPECT_THAT(v.relever(), ElementsAre("historique Mots 3L"));
}

TEST_F(Resultatsdumenu, une_rangee_sans_liste_n_a_pas_de_lignes) {
    ecrirehist({record("26/08/2019", "70", "T - 3lc.txt")});
    ouvrir("bt");
    cliquer("Label6(7)");
    EXPECT_THAT(v.relever(), ElementsAre("historique "));
}

TEST_F(Resultatsdumenu, un_groupe_ouvert_garde_les_listes_du_dernier_panneau) {
    ecrirehist({record("26/08/2019", "70", "T - 3lc.txt")});
    ouvrir("bt");
    cliquer("Command3");
    cliquer("Label6(0)");
    EXPECT_THAT(v.relever(), ElementsAre("historique ", "ligne 26/08/2019 - 14:35 - 70% - T"));
}

TEST_F(Resultatsdumenu, l_historique_sans_hist_dat_finit_le_programme) {
    ouvrir("bt");
    std::filesystem::remove(machine.chemin("Léa\\hist.dat"));
    cliquer("Label6(0)");
    EXPECT_THAT(rapport(), HasSubstr("Léa\\hist.dat"));
    EXPECT_THAT(v.relever(), ElementsAre("historique Lettre Chère 3L"));
}

}  // namespace
}  // namespace test_form3_resultats
