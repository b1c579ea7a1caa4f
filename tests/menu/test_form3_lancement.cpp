#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "menudessai.h"

namespace test_form3_lancement {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using Journal = std::vector<std::string>;

constexpr const char* message = "La taille de l'échantillon dépasse la taille de la base !";

class Lancement : public essai::Menudessai {
  protected:
    /// What a launch asks of the form, in order.
    static Journal lance(std::string_view ecran, const std::string& chemin) {
        const std::string nom(ecran);
        return {nom + " patienter", nom + " coloration", nom + " montrer",
                nom + " commencer " + chemin};
    }
    /// The shared variables, "toue|typ|nombase".
    [[nodiscard]] std::string variables() const {
        return v.form3.toue + "|" + v.form3.typ + "|" + v.form3.nombase;
    }
    /// The way back from a series.
    void revenir() {
        form->visible = true;
        maj();
        v.relever();
    }
    void taille(std::size_t rangee, int mots) {
        controle(essai::avecrang("Label4", rangee)).texte = std::to_string(mots);
    }
};

class Rangees : public Lancement, public testing::WithParamInterface<essai::Rangee> {
  protected:
    [[nodiscard]] std::string typ() const {
        return GetParam().panneau == "rallong" ? "rallong" : "";
    }
    [[nodiscard]] std::string revision() const {
        return "Léa\\rev-" + std::string(GetParam().fichier);
    }
};

TEST_P(Rangees, tout) {
    const auto& rangee = GetParam();
    ouvrir(rangee.panneau);
    v.form3.typ = "reste";
    cliquer(essai::avecrang("Command14", rangee.rang));
    EXPECT_EQ(variables(), "T|" + typ() + "|" + std::string(rangee.libelle));
    EXPECT_EQ(v.relever(), lance(rangee.ecran, "listes\\" + std::string(rangee.fichier)));
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(machine.lire(revision()), "");
}

TEST_P(Rangees, revision) {
    const auto& rangee = GetParam();
    machine.ecrire(revision(), "AB;BA\r\n");
    ouvrir(rangee.panneau);
    v.form3.typ = "reste";
    cliquer(essai::avecrang("Command22", rangee.rang));
    EXPECT_EQ(variables(), "R|" + typ() + "|" + std::string(rangee.libelle) + " (révisions)");
    EXPECT_EQ(v.relever(), lance(rangee.ecran, revision()));
    EXPECT_EQ(machine.lire(revision()), "AB;BA\r\n");
}

TEST_P(Rangees, echantillon) {
    const auto& rangee = GetParam();
    ouvrir(rangee.panneau);
    taille(rangee.rang, 151);
    v.form3.typ = "reste";
    cliquer(essai::avecrang("Command6", rangee.rang));
    EXPECT_EQ(variables(), "E|" + typ() + "|" + std::string(rangee.libelle));
    EXPECT_EQ(v.relever(), lance(rangee.ecran, "listes\\" + std::string(rangee.fichier)));
    EXPECT_EQ(texte("Label13"), "");
    EXPECT_EQ(machine.lire(revision()), "");
}

TEST_P(Rangees, echantillon_trop_grand) {
    const auto& rangee = GetParam();
    ouvrir(rangee.panneau);
    v.form3.typ = "reste";
    cliquer(essai::avecrang("Command6", rangee.rang));
    EXPECT_EQ(variables(), "E||" + std::string(rangee.libelle));
    EXPECT_THAT(v.relever(), ElementsAre());
    EXPECT_EQ(texte("Label13"), message);
    EXPECT_TRUE(form->visible());
    EXPECT_EQ(machine.lire(revision()), "absent");
}

TEST_P(Rangees, parties) {
    const auto& rangee = GetParam();
    const auto base = std::string(rangee.fichier.substr(0, rangee.fichier.size() - 4));
    std::size_t index = rangee.rang;
    if (rangee.panneau == "bt")
        index = rangee.rang == 3 ? 0 : 1;
    ouvrir(rangee.panneau);
    for (const char lettre : rangee.parties) {
        v.form3.typ = "reste";
        cliquer(essai::avecrang(std::string("com") + lettre, index));
        EXPECT_EQ(variables(), "|reste|" + std::string(rangee.libelle));
        EXPECT_EQ(v.relever(), lance(rangee.ecran, "listes\\" + base + "_" + lettre + ".txt"));
        EXPECT_EQ(machine.lire(revision()), "");
        revenir();
    }
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Rangees,
                         testing::ValuesIn(essai::lesrangees().begin(), essai::lesrangees().end()),
                         essai::nomderangee);

TEST_F(Lancement, b_de_la_seconde_liste_du_premier_panneau) {
    ecrirehist({essai::record("24/08/2019", "95.3", "T - 3lt.txt"),
                essai::record("24/08/2019", "80", "T - 5lc.txt")});
    ouvrir("bt");
    cliquer("comb(1)");
    EXPECT_THAT(v.relever(), testing::Contains("Form1 commencer listes\\5lc_b.txt"));
    EXPECT_EQ(v.form3.nombase, "Lettre Chère 5L");
    EXPECT_EQ(machine.lire("Léa\\rev-5lc.txt"), "");
    EXPECT_EQ(resultat(1), "");
    EXPECT_EQ(resultat(5), "24/08/2019 - 14:35 | 80% - T");
}

TEST_F(Lancement, une_partie_vide_le_resultat_de_sa_rangee) {
    ecrirehist({essai::record("24/08/2019", "80", "T - 7v3.txt")});
    ouvrir("7");
    cliquer("coma(7)");
    EXPECT_EQ(resultat(7), "");
}

TEST_F(Lancement, une_partie_apres_une_rallonge_reste_rallong) {
    ouvrir("rallong");
    cliquer("Command14(0)");
    revenir();
    ouvrir("7");
    cliquer("coma(5)");
    EXPECT_EQ(variables(), "|rallong|7L poids 4");
}

TEST_F(Lancement, tout_apres_une_rallonge_ne_l_est_plus) {
    ouvrir("rallong");
    cliquer("Command14(0)");
    revenir();
    ouvrir("7");
    cliquer("Command14(0)");
    EXPECT_EQ(variables(), "T||7L poids >6");
}

TEST_F(Lancement, une_liste_egale_a_l_echantillon_est_refusee_mais_tout_la_joue) {
    ouvrir("bt");
    taille(0, 150);
    cliquer("Command6(0)");
    EXPECT_EQ(texte("Label13"), message);
    EXPECT_THAT(v.relever(), ElementsAre());
    cliquer("Command14(0)");
    EXPECT_EQ(v.relever(), lance("Form1", "listes\\3lc.txt"));
}

TEST_F(Lancement, l_echantillon_refait_les_tailles_a_chaque_clic) {
    ouvrir("bt");
    v.dialog2.nbechantillon = 1;
    v.dialog2.affecterechantillons(7);
    taille(0, 31);
    cliquer("Command6(0)");
    EXPECT_EQ(v.dialog2.nbechuni, 30);
    EXPECT_EQ(v.dialog2.nbechduo, 20);
    EXPECT_EQ(v.dialog2.nbechtri, 20);
    EXPECT_EQ(v.dialog2.nbechqua, 10);
    EXPECT_EQ(v.dialog2.nbechqui, 10);
    EXPECT_EQ(v.relever(), lance("Form1", "listes\\3lc.txt"));
}

TEST_F(Lancement, soixante_trios_ecrivent_le_message_et_se_lancent) {
    ouvrir("trios");
    taille(0, 60);
    cliquer("Command6(0)");
    EXPECT_EQ(v.relever(), lance("Multi", "listes\\7l_trios_purs.txt"));
    EXPECT_EQ(texte("Label13"), message);
    revenir();
    EXPECT_EQ(texte("Label13"), message);
    survoler("Command6(0)");
    EXPECT_EQ(texte("Label13"), message);
    survoler("Command14(0)");
    EXPECT_EQ(texte("Label13"), "");
}

TEST_F(Lancement, l_echantillon_de_duos_sans_tirage_ouvre_form1) {
    ouvrir("duos7");
    taille(6, 81);
    cliquer("Command6(6)");
    EXPECT_EQ(v.relever(), lance("Form1", "listes\\7l_duos_sanstirage.txt"));
}

TEST_F(Lancement, une_liste_personnelle_multiple_entraine_tout_le_panneau) {
    ouvrir("autres");
    v.form3.persomulti = true;
    cliquer("Command14(0)");
    EXPECT_EQ(v.relever(), lance("Multi", "listes\\invar.txt"));
    cliquer("Command22(1)");
    EXPECT_EQ(v.relever(), lance("Multi", "Léa\\rev-deseq_cons_voy.txt"));
}

TEST_F(Lancement, une_revision_jamais_jouee_se_cree_vide_et_se_lance) {
    ouvrir("bt");
    cliquer("Command22(0)");
    EXPECT_EQ(machine.lire("Léa\\rev-3lc.txt"), "");
    EXPECT_EQ(v.relever(), lance("Form1", "Léa\\rev-3lc.txt"));
}

TEST_F(Lancement, trop_de_series_est_une_faute) {
    ouvrir("bt");
    v.dialog2.nbechantillon = 1093;
    cliquer("Command6(0)");
    EXPECT_THAT(rapport(), HasSubstr("ligne 4 de « settings.dat ») : la valeur 32790"));
}

TEST_F(Lancement, un_disque_plein_finit_en_le_disant) {
    machine.disque().refuser("Léa\\rev-3lc.txt");
    ouvrir("bt");
    cliquer("Command14(0)");
    EXPECT_EQ(rapport(),
              "Préparation du fichier de révisions : fichier « Léa\\rev-3lc.txt » : le disque est "
              "plein.");
    EXPECT_THAT(v.relever(), ElementsAre());
}

TEST_F(Lancement, le_panneau_reste_au_retour) {
    ouvrir("bt");
    cliquer("Command14(0)");
    ecrirehist({essai::record("24/08/2019", "95.3", "T - 3lc.txt")});
    revenir();
    EXPECT_EQ(texte("Label1(0)"), "Lettre Chère 3L");
    EXPECT_EQ(resultat(0), "24/08/2019 - 14:35 | 95.3% - T");
}

TEST_F(Lancement, les_mots_ne_sont_pas_recomptes_au_retour) {
    ouvrir("bt");
    cliquer("Command14(0)");
    machine.ecrire("listes\\3lc.txt", "A;A\r\nB;B\r\n");
    revenir();
    EXPECT_EQ(texte("Label4(0)"), "1");
}

}  // namespace
}  // namespace test_form3_lancement
