#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lignes.h"
#include "menudessai.h"

namespace test_form3_personnel {
namespace {

using essai::record;
using testing::Contains;
using testing::ElementsAre;

constexpr const char* valide = "Le fichier personnel semble valide.";

class Personnel : public essai::Menudessai {
  protected:
    void accepter(const std::string& nom, const std::string& contenu) {
        machine.ecrire("listes\\" + nom, contenu);
        controle("Text2").texte = nom;
        cliquer("Command16");
    }
};

struct Ligne {
    const char* nom;
    const char* contenu;
    const char* taille;
    bool multi;
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Fichiers : public Personnel, public testing::WithParamInterface<Ligne> {};

TEST_P(Fichiers, sont_acceptes) {
    ouvrir("autres");
    v.form3.persomulti = !GetParam().multi;
    accepter("perso.txt", GetParam().contenu);
    EXPECT_EQ(texte("Label11"), valide);
    EXPECT_EQ(texte("Label4(7)"), GetParam().taille);
    EXPECT_EQ(v.form3.persomulti, GetParam().multi);
    EXPECT_EQ(texte("Label1(7)"), "perso.txt");
    EXPECT_FALSE(visible("Label1(7)"));
}

const Ligne lignes[] = {
    {"vide", "", "0", false},
    {"une_solution", "AB;BA\r\n", "1", false},
    {"deux_solutions", "AB;BA;CA\r\n", "1", true},
    {"derniere_rangee_d_une_solution", "AB;BA;CA\r\nCD;DC\r\n", "2", false},
    {"derniere_rangee_de_deux_solutions", "CD;DC\r\nAB;BA;CA\r\n", "2", true},
    {"finit_par_une_ligne_vide", "AB;BA;CA\r\n\r\n", "2", false},
    {"solution_suivie_d_un_point_virgule", "AB;BA;\r\n", "1", true},
    {"rangee_sans_point_virgule", "AB\r\n", "1", false},
    {"sans_fin_de_ligne", "AB;BA\r\nCD;DC;XX", "2", true},
};
INSTANTIATE_TEST_SUITE_P(Table, Fichiers, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST_F(Personnel, absente_ne_change_que_l_aide) {
    ouvrir("autres");
    v.form3.persomulti = true;
    cliquer("Command16");
    EXPECT_EQ(texte("Label11"), "fichier introuvable");
    EXPECT_EQ(texte("Label4(7)"), "");
    EXPECT_EQ(texte("Label1(7)"), "");
    EXPECT_TRUE(visible("Label1(7)"));
    EXPECT_TRUE(v.form3.persomulti);
    EXPECT_FALSE(machine.plateforme.fini());
}

TEST_F(Personnel, un_nom_refuse_laisse_la_precedente) {
    ouvrir("autres");
    accepter("mots.txt", "AB;BA\r\n");
    for (const auto& nom : {std::string(), std::string("rien\\x.txt"), std::string(300, 'a')}) {
        controle("Text2").texte = nom;
        cliquer("Command16");
        EXPECT_NE(texte("Label11"), valide) << nom;
        EXPECT_NE(texte("Label11"), "") << nom;
        EXPECT_EQ(texte("Label1(7)"), "mots.txt");
        EXPECT_EQ(texte("Label4(7)"), "1");
        EXPECT_FALSE(machine.plateforme.fini());
    }
    cliquer("Command14(7)");
    EXPECT_THAT(v.relever(), Contains("Form1 commencer listes\\mots.txt"));
}

TEST_F(Personnel, part_du_nom_par_defaut_et_n_est_pas_comptee) {
    machine.ecrire("listes\\perso.txt", "AB;BA\r\n");
    ouvrir("autres");
    EXPECT_EQ(texte("Text2"), "perso.txt");
    EXPECT_EQ(texte("Label4(7)"), "");
    EXPECT_EQ(texte("Label1(7)"), "");
}

TEST_F(Personnel, acceptee_se_joue_sous_son_nom) {
    ouvrir("autres");
    accepter("mots é.txt", "AB;BA;CA\r\n");
    cliquer("Command14(7)");
    EXPECT_EQ(v.form3.nombase, "mots é.txt");
    EXPECT_THAT(v.relever(), Contains("Multi commencer listes\\mots é.txt"));
    EXPECT_EQ(machine.lire("Léa\\rev-mots é.txt"), "");
    cliquer("Command22(7)");
    EXPECT_EQ(v.form3.nombase, "mots é.txt (révisions)");
    EXPECT_THAT(v.relever(), Contains("Multi commencer Léa\\rev-mots é.txt"));
}

TEST_F(Personnel, tout_avant_ok_lance_le_nom_ecrit_sans_titre) {
    ouvrir("autres");
    cliquer("Command14(7)");
    EXPECT_EQ(v.form3.nombase, "");
    EXPECT_THAT(v.relever(), Contains("Form1 commencer listes\\perso.txt"));
}

TEST_F(Personnel, echantillon_avant_ok_refuse) {
    ouvrir("autres");
    cliquer("Command6(7)");
    EXPECT_THAT(v.relever(), ElementsAre());
    EXPECT_EQ(texte("Label13"), "La taille de l'échantillon dépasse la taille de la base !");
}

TEST_F(Personnel, echantillon_apres_ok_compare_sa_taille) {
    std::string contenu;
    for (int i = 0; i < 151; ++i)
        contenu += "AB;BA\r\n";
    ouvrir("autres");
    accepter("mots.txt", contenu);
    cliquer("Command6(7)");
    EXPECT_THAT(v.relever(), Contains("Form1 commencer listes\\mots.txt"));
}

TEST_F(Personnel, vide_refuse_l_echantillon) {
    ouvrir("autres");
    accepter("mots.txt", "");
    cliquer("Command6(7)");
    EXPECT_THAT(v.relever(), ElementsAre());
    EXPECT_EQ(texte("Label13"), "La taille de l'échantillon dépasse la taille de la base !");
}

TEST_F(Personnel, ok_montre_son_dernier_resultat) {
    ecrirehist({record("24/08/2019", "95.3", "T - mots.txt"),
                record("25/08/2019", "50", "T - perso.txt")});
    ouvrir("autres");
    EXPECT_EQ(resultat(7), "25/08/2019 - 14:35 | 50% - T");
    accepter("mots.txt", "AB;BA\r\n");
    EXPECT_EQ(resultat(7), "24/08/2019 - 14:35 | 95.3% - T");
    accepter("neuf.txt", "AB;BA\r\n");
    EXPECT_EQ(resultat(7), "");
}

TEST_F(Personnel, changer_le_nom_ramene_un_ancien_resultat_a_la_mise_a_jour) {
    ecrirehist({record("24/08/2019", "95.3", "T - mots.txt")});
    ouvrir("autres");
    controle("Text2").texte = "mots.txt";
    EXPECT_EQ(resultat(7), "");
    maj();
    EXPECT_EQ(resultat(7), "24/08/2019 - 14:35 | 95.3% - T");
}

TEST_F(Personnel, l_historique_compare_le_nom_accepte) {
    ecrirehist({record("24/08/2019", "95.3", "T - mots.txt"),
                record("25/08/2019", "50", "T - perso.txt")});
    ouvrir("autres");
    controle("Text2").texte = "mots.txt";
    cliquer("Label6(7)");
    EXPECT_THAT(v.relever(), ElementsAre("historique ", "ligne 25/08/2019 - 14:35 - 50% - T"));
    accepter("mots.txt", "AB;BA\r\n");
    cliquer("Label6(7)");
    EXPECT_THAT(v.relever(),
                ElementsAre("historique mots.txt", "ligne 24/08/2019 - 14:35 - 95.3% - T"));
}

TEST_F(Personnel, rouvrir_demande_ok_a_nouveau) {
    ouvrir("autres");
    accepter("mots.txt", "AB;BA;CA\r\n");
    cliquer("Command15(2)");
    EXPECT_TRUE(visible("Label1(7)"));
    EXPECT_EQ(texte("Label1(7)"), "");
    EXPECT_EQ(texte("Label4(7)"), "");
    EXPECT_EQ(texte("Text2"), "mots.txt");
    EXPECT_TRUE(v.form3.persomulti);
    cliquer("Command14(7)");
    EXPECT_THAT(v.relever(), Contains("Multi commencer listes\\mots.txt"));
}

TEST_F(Personnel, entree_dans_la_boite_vaut_ok) {
    ouvrir("autres");
    machine.ecrire("listes\\perso.txt", "AB;BA\r\n");
    form->focaliser(controle("Text2"));
    machine.plateforme.executer([&] { form->enfoncer({ui::touches::entree}); });
    EXPECT_EQ(texte("Label11"), valide);
}

}  // namespace
}  // namespace test_form3_personnel
