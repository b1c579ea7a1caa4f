#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "lignes.h"
#include "menudessai.h"

namespace test_form3_demarrage {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class Demarrage : public essai::Menudessai {};

TEST_F(Demarrage, pose_la_version_et_le_titre) {
    EXPECT_EQ(v.form3.versionlocale, "2.68");
    EXPECT_EQ(v.form3.dateversion, "24/08/2019");
    EXPECT_EQ(form->texte(), "Orvane - Menu - Léa");
}

TEST_F(Demarrage, salue) {
    EXPECT_EQ(texte("Label11"),
              "Bienvenue Léa.\nPassez votre souris sur les boutons et les infos utiles "
              "s'afficheront ici.\nBon entraînement !");
}

TEST_F(Demarrage, sans_nom_c_est_ferdo) {
    machine.ecrire("Ferdo\\settings.dat", "95\r\n80\r\n8\r\n5\r\n1\r\nVert\r\n1\r\n");
    v.form3.util.clear();
    charger();
    EXPECT_EQ(v.form3.util, "Ferdo");
    EXPECT_EQ(form->texte(), "Orvane - Menu - Ferdo");
    EXPECT_TRUE(texte("Label11").starts_with("Bienvenue Ferdo."));
}

TEST_F(Demarrage, sans_nom_ni_dossier_ferdo_est_une_faute) {
    v.form3.util.clear();
    charger();
    EXPECT_EQ(rapport(),
              "Lecture des réglages : fichier « Ferdo\\settings.dat » : fichier introuvable.");
    EXPECT_EQ(machine.plateforme.statut(), 1);
}

TEST_F(Demarrage, lit_les_reglages_dans_l_ordre) {
    machine.ecrire("Léa\\settings.dat", "91\r\n71\r\n4\r\n2\r\n1\r\nGris\r\n1\r\n");
    v.dialog2 = {};
    charger();
    EXPECT_EQ(v.dialog2.seuilch, 91);
    EXPECT_EQ(v.dialog2.seuilcb, 71);
    EXPECT_EQ(v.dialog2.tempsparmot, 4);
    EXPECT_EQ(v.dialog2.nbechantillon, 2);
    EXPECT_EQ(v.dialog2.saisieassistee, 1);
    EXPECT_EQ(v.form3.couleurdufond, "Gris");
    EXPECT_THAT(v.relever(), ElementsAre("couleur Gris, son 1, saisie 0"));
}

TEST_F(Demarrage, cinq_lignes_gardent_la_couleur_par_defaut) {
    machine.ecrire("Léa\\settings.dat", "95\r\n80\r\n8\r\n5\r\n0\r\n");
    v.form3 = {};
    v.form3.util = util;
    v.dialog2 = {};
    charger();
    EXPECT_THAT(v.relever(), ElementsAre());
    EXPECT_EQ(v.form3.couleurdufond, "Par défaut");
    EXPECT_EQ(form->fond().nom(), "#FFE0C0");
    EXPECT_EQ(v.dialog2.saisieassistee, 1);
}

struct Refus {
    const char* nom;
    const char* settings;
    const char* rapport;
};
void PrintTo(const Refus& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Refusdemarrage : public Demarrage, public testing::WithParamInterface<Refus> {};

TEST_P(Refusdemarrage, finit_en_le_disant) {
    machine.ecrire("Léa\\settings.dat", GetParam().settings);
    charger();
    EXPECT_THAT(rapport(), HasSubstr(GetParam().rapport));
    EXPECT_EQ(machine.plateforme.statut(), 1);
    EXPECT_EQ(machine.lire("Léa\\settings.dat"), GetParam().settings);
}

const Refus refus[] = {
    {"quatre_lignes", "95\r\n80\r\n8\r\n5\r\n", "s'arrête après 4 réglage(s)"},
    {"plus_de_16_bits", "95\r\n99999\r\n8\r\n5\r\n1\r\n", "ligne 2 : la valeur 99999"},
};
INSTANTIATE_TEST_SUITE_P(Table, Refusdemarrage, testing::ValuesIn(refus), essai::nommer<Refus>);

TEST_F(Demarrage, ne_touche_pas_hist_dat) {
    std::filesystem::remove(machine.chemin("Léa\\hist.dat"));
    charger();
    EXPECT_FALSE(machine.plateforme.fini());
    maj();
    EXPECT_FALSE(machine.plateforme.fini());
}

struct Depart {
    const char* nom;
    const char* texte;
    bool visible;
};
void PrintTo(const Depart& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Menunu : public Demarrage, public testing::WithParamInterface<Depart> {};

TEST_P(Menunu, montre) {
    EXPECT_EQ(texte(GetParam().nom), GetParam().texte);
    EXPECT_EQ(visible(GetParam().nom), GetParam().visible);
}

std::string nomdedepart(const testing::TestParamInfo<Depart>& cas) {
    std::string nom = cas.param.nom;
    std::replace(nom.begin(), nom.end(), '(', '_');
    std::erase(nom, ')');
    return nom;
}

const Depart departs[] = {
    {"Label10", "Entraînement", true},
    {"Command1", "BASES TECHNIQUES", true},
    {"Command2", "TECHNIQUE APPROFONDIE", true},
    {"Command3", "SCRABBLES UNIQUES", true},
    {"Command4", "SCRABBLES MULTIPLES", true},
    {"Command5", "AUTRES LISTES", true},
    {"app", "Apprentissage", true},
    {"Command12", "Options", true},
    {"Command13", "A propos de Orvan", true},
    {"Command17", "Vérifier la mise à jour", true},
    {"Command10", "Quitter", true},
    {"Label12", "", true},
    {"Label13", "", true},
    {"Label1(0)", "", true},
    {"Label1(7)", "", true},
    {"Label4(0)", "", true},
    {"Label5(0)", "", true},
    {"Label6(0)", "", true},
    {"Command7(0)", "Conjugaisons et 1 seul non conjugué", false},
    {"Command7(1)", "6 lettres", false},
    {"Command7(2)", "7 lettres", false},
    {"Command7(3)", "8 lettres", false},
    {"Command7(4)", "Lettre chère   7 et 8 L", false},
    {"Command7(5)", "Duos 7 lettres", false},
    {"Command7(6)", "Duos 8 lettres", false},
    {"Command7(7)", "Trios 7 et 8 L", false},
    {"Command7(8)", "Quatuors et plus  7 et 8 L", false},
    {"Command7(9)", "Conjugaisons", false},
    {"Command8", "poids < 12", false},
    {"Command9", "poids > 11", false},
    {"Command15(0)", "Formations difficiles", false},
    {"Command15(1)", "Rallonges d'une lettre", false},
    {"Command15(2)", "Listes diverses", false},
    {"Command11(0)", "8L, + de 5 anagrammes", false},
    {"Command11(1)", "7L, + de 5 anagrammes", false},
    {"Command14(0)", "Tout", false},
    {"Command6(0)", "Echantillon", false},
    {"Command22(0)", "Révision", false},
    {"coma(0)", "a", false},
    {"comb(0)", "b", false},
    {"comc(0)", "c", false},
    {"comd(7)", "d", false},
    {"Text2", "perso.txt", false},
    {"Command16", "OK", false},
    {"Image2(4)", "", false},
    {"Image3(7)", "", false},
};
INSTANTIATE_TEST_SUITE_P(Controles, Menunu, testing::ValuesIn(departs), nomdedepart);

TEST_F(Demarrage, prepare_les_rangees) {
    for (std::size_t r = 0; r < 8; ++r) {
        const auto& nom = controle(essai::avecrang("Label1", r));
        EXPECT_EQ(nom.police(), "Constantia");
        EXPECT_EQ(nom.taille(), 11);
        EXPECT_TRUE(nom.gras());
        EXPECT_EQ(controle(essai::avecrang("Label4", r)).taille(), 11);
        EXPECT_TRUE(controle(essai::avecrang("Label5", r)).gras());
        EXPECT_TRUE(controle(essai::avecrang("Label6", r)).gras());
    }
}

TEST_F(Demarrage, place_les_boites_d_aide) {
    const auto cadre = [&](const char* nom) {
        const auto& c = controle(nom);
        return std::vector<int>{c.gauche(), c.haut(), c.largeur(), c.hauteur()};
    };
    EXPECT_THAT(cadre("Label11"), ElementsAre(120, 8600, 7215, 1000));
    EXPECT_THAT(cadre("Label13"), ElementsAre(120, 9240, 7215, 495));
    EXPECT_EQ(controle("Label11").police(), "Times New Roman");
    EXPECT_EQ(controle("Label11").taille(), 12);
    EXPECT_EQ(controle("Label13").police(), "Times New Roman");
    EXPECT_EQ(controle("Label13").taille(), 9.75);
}

// The other buttons of the menu.

TEST_F(Demarrage, options_apropos_et_mise_a_jour_s_ouvrent) {
    cliquer("Command12");
    cliquer("Command13");
    cliquer("Command17");
    EXPECT_THAT(v.relever(), ElementsAre("options ouvrir", "apropos", "mise à jour"));
}

TEST_F(Demarrage, quitter_finit_sans_question) {
    cliquer("Command10");
    EXPECT_TRUE(machine.plateforme.fini());
    EXPECT_EQ(machine.plateforme.statut(), 0);
    EXPECT_TRUE(machine.plateforme.journal.messages.empty());
}

TEST_F(Demarrage, la_case_de_fermeture_finit) {
    machine.plateforme.executer([&] { form->fermer(); });
    EXPECT_TRUE(machine.plateforme.fini());
    EXPECT_EQ(machine.plateforme.statut(), 0);
}

TEST_F(Demarrage, apprentissage_ouvre_et_ferme_le_seuil_au_relachement) {
    cliquer("app");
    EXPECT_TRUE(form->app());
    EXPECT_THAT(v.relever(), ElementsAre());
    ui::declencher(controle("app").relache);
    EXPECT_THAT(v.relever(), ElementsAre("Form1 seuil actif"));
    cliquer("app");
    ui::declencher(controle("app").relache);
    EXPECT_FALSE(form->app());
    EXPECT_THAT(v.relever(), ElementsAre("Form1 seuil inactif"));
}

TEST_F(Demarrage, le_fond_va_a_la_case_aussi) {
    form->donnerfond(ui::Couleur(0xE0E0E0));
    EXPECT_EQ(form->fond().nom(), "#E0E0E0");
    EXPECT_EQ(controle("app").fond().nom(), "#E0E0E0");
}

TEST_F(Demarrage, le_pointeur_attend_puis_redevient_normal) {
    form->patienter(true);
    EXPECT_EQ(form->pointeur(), ui::Pointeur::Attente);
    form->patienter(false);
    EXPECT_EQ(form->pointeur(), ui::Pointeur::Normal);
}

TEST_F(Demarrage, verification_dit_si_un_fichier_existe) {
    EXPECT_TRUE(form->Verification("Léa\\hist.dat"));
    EXPECT_FALSE(form->Verification("Léa\\absent.dat"));
}

TEST_F(Demarrage, tab_parcourt_le_menu_nu) {
    std::vector<std::string> parcours;
    for (int i = 0; i < 10; ++i) {
        form->tabuler(false);
        parcours.push_back(form->focus()->nom());
    }
    EXPECT_THAT(parcours, ElementsAre("Command1", "Command2", "Command3", "Command4", "Command5",
                                      "app", "Command12", "Command13", "Command17", "Command10"));
}

}  // namespace
}  // namespace test_form3_demarrage
