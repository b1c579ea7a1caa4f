#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "faute.h"
#include "lignes.h"
#include "settings.h"
#include "voisinage.h"

namespace test_settings {
namespace {

using namespace profiles;
using testing::HasSubstr;

/// All that was read, on one line.
std::string montrer(const Reglages& r) {
    std::string texte;
    for (const auto nombre : {r.seuilch, r.seuilcb, r.tempsparmot, r.nbechantillon, r.son})
        texte += std::to_string(nombre) + " ";
    return texte + r.couleur.value_or("(rien)") + " " + std::to_string(r.saisieassistee);
}

struct Ligne {
    const char* nom;
    const char* octets;
    const char* attendu;  ///< the options, or what the fault tells
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Lecturesettings : public testing::TestWithParam<Ligne> {};

TEST_P(Lecturesettings, donne) {
    EXPECT_EQ(montrer(reglages(GetParam().octets, "Léa\\settings.dat")), GetParam().attendu);
}

const Ligne lignes[] = {
    {"d_un_nouvel_utilisateur",
     "95\r\n80\r\n8\r\n5\r\n1\r\nPar d\xE9"
     "faut\r\n1\r\n",
     "95 80 8 5 1 Par défaut 1"},
    {"sept_lignes", "90\r\n70\r\n4\r\n2\r\n0\r\nGris\r\n0\r\n", "90 70 4 2 0 Gris 0"},
    {"cinq_lignes_ni_couleur_ni_saisie", "90\r\n70\r\n4\r\n2\r\n0\r\n", "90 70 4 2 0 (rien) 1"},
    {"cinq_lignes_sans_fin", "90\r\n70\r\n4\r\n2\r\n1", "90 70 4 2 1 (rien) 1"},
    {"six_lignes_saisie_assistee", "90\r\n70\r\n4\r\n2\r\n0\r\nVert\r\n", "90 70 4 2 0 Vert 1"},
    {"couleur_vide", "90\r\n70\r\n4\r\n2\r\n0\r\n\r\n0\r\n", "90 70 4 2 0  0"},
    {"couleur_inconnue_gardee", "90\r\n70\r\n4\r\n2\r\n0\r\nMauve\r\n0\r\n", "90 70 4 2 0 Mauve 0"},
    {"une_huitieme_ligne_est_ignoree", "90\r\n70\r\n4\r\n2\r\n0\r\nVert\r\n0\r\n9\r\n",
     "90 70 4 2 0 Vert 0"},
    {"articles_sur_une_ligne", "90,70,4,2,0,Vert,0", "90 70 4 2 0 Vert 0"},
    {"entre_guillemets", "\"90\"\r\n\"70\"\r\n4\r\n2\r\n0\r\n\"Vert\"\r\n0\r\n",
     "90 70 4 2 0 Vert 0"},
    {"texte_pour_un_nombre_vaut_zero", "vert\r\n\r\nhuit\r\n-\r\noui\r\nVert\r\nnon\r\n",
     "0 0 0 0 0 Vert 0"},
    {"nombre_au_debut_du_texte", "90%\r\n70 %\r\n4s\r\n2\r\n1x\r\nVert\r\n1\r\n",
     "90 70 4 2 1 Vert 1"},
    {"moities_vers_le_pair", "94.5\r\n79.5\r\n2.5\r\n3.5\r\n0.5\r\nVert\r\n1.5\r\n",
     "94 80 2 4 0 Vert 2"},
    {"bornes_de_16_bits", "32767\r\n-32768\r\n8\r\n5\r\n1\r\nVert\r\n1\r\n",
     "32767 -32768 8 5 1 Vert 1"},
    {"hors_de_la_portee_des_options", "500\r\n400\r\n99\r\n0\r\n7\r\nVert\r\n1\r\n",
     "500 400 99 0 7 Vert 1"},
};
INSTANTIATE_TEST_SUITE_P(Table, Lecturesettings, testing::ValuesIn(lignes), essai::nommer<Ligne>);

class Refussettings : public testing::TestWithParam<Ligne> {};

TEST_P(Refussettings, dit) {
    EXPECT_EQ(
        essai::faute([] { static_cast<void>(reglages(GetParam().octets, "Léa\\settings.dat")); }),
        GetParam().attendu);
}

const Ligne refus[] = {
    {"quatre_lignes", "95\r\n80\r\n8\r\n5\r\n",
     "Lecture des réglages : fichier « Léa\\settings.dat » : il s'arrête après 4 "
     "réglage(s), il en "
     "faut au moins 5."},
    {"vide", "",
     "Lecture des réglages : fichier « Léa\\settings.dat » : il s'arrête après 0 "
     "réglage(s), il en "
     "faut au moins 5."},
    {"plus_de_16_bits", "95\r\n80\r\n99999\r\n5\r\n1\r\n",
     "Lecture des réglages : fichier « Léa\\settings.dat », ligne 3 : la valeur 99999 sort "
     "des "
     "limites admises (de -32768 à 32767)."},
    {"moins_de_16_bits", "-32769\r\n80\r\n8\r\n5\r\n1\r\n",
     "Lecture des réglages : fichier « Léa\\settings.dat », ligne 1 : la valeur -32769 "
     "sort des "
     "limites admises (de -32768 à 32767)."},
    {"saisie_de_plus_de_16_bits", "95\r\n80\r\n8\r\n5\r\n1\r\nVert\r\n32768\r\n",
     "Lecture des réglages : fichier « Léa\\settings.dat », ligne 7 : la valeur 32768 sort "
     "des "
     "limites admises (de -32768 à 32767)."},
};
INSTANTIATE_TEST_SUITE_P(Table, Refussettings, testing::ValuesIn(refus), essai::nommer<Ligne>);

TEST(Couleurreglee, est_le_sixieme_article) {
    EXPECT_EQ(couleurreglee("1\r\n2\r\n3\r\n4\r\n5\r\nGris\r\n1\r\n"), "Gris");
    EXPECT_EQ(couleurreglee("a\r\n99999\r\n3\r\n4\r\n5\r\nGris"), "Gris");
    EXPECT_EQ(couleurreglee("1\r\n2\r\n3\r\n4\r\n5\r\n"), std::nullopt);
    EXPECT_EQ(couleurreglee(""), std::nullopt);
}

class Settings : public testing::Test {
  protected:
    essai::Machine machine;
};

TEST_F(Settings, s_appliquent_dans_l_ordre_du_fichier) {
    common::VariablesDialog2 variables;
    std::string vu;
    appliquer({90, 70, 4, 2, 1, "Gris", 1}, variables, [&](const std::string& couleur) {
        vu = couleur + " " + std::to_string(variables.seuilch) + " " +
             std::to_string(variables.son) + " " + std::to_string(variables.saisieassistee);
    });
    EXPECT_EQ(vu, "Gris 90 1 0");
    EXPECT_EQ(variables.seuilcb, 70);
    EXPECT_EQ(variables.tempsparmot, 4);
    EXPECT_EQ(variables.nbechantillon, 2);
    EXPECT_EQ(variables.saisieassistee, 1);
}

TEST_F(Settings, sans_couleur_n_en_appliquent_pas) {
    common::VariablesDialog2 variables;
    bool appelee = false;
    appliquer({90, 70, 4, 2, 1, std::nullopt, 1}, variables,
              [&](const std::string& /*couleur*/) { appelee = true; });
    EXPECT_FALSE(appelee);
    EXPECT_EQ(variables.saisieassistee, 1);
}

TEST_F(Settings, s_ecrivent_en_sept_lignes) {
    std::filesystem::create_directory(machine.chemin("Léa"));
    common::VariablesDialog2 variables;
    appliquer({90, 70, 4, 2, 0, std::nullopt, 1}, variables, {});
    ecriresettings(machine.disque(), "Léa", variables, "Par défaut");
    EXPECT_EQ(machine.lire("Léa\\settings.dat"),
              common::vers1252("90\r\n70\r\n4\r\n2\r\n0\r\nPar défaut\r\n1\r\n"));
    EXPECT_EQ(montrer(liresettings(machine.disque(), "Léa")), "90 70 4 2 0 Par défaut 1");
}

TEST_F(Settings, absents_sont_une_faute) {
    EXPECT_EQ(essai::faute([&] { static_cast<void>(liresettings(machine.disque(), "Léa")); }),
              "Lecture des réglages : fichier « Léa\\settings.dat » : fichier introuvable.");
}

TEST_F(Settings, un_disque_plein_les_laisse_tels_quels) {
    machine.ecrire("Léa\\settings.dat", "ancien");
    machine.disque().refuser("Léa\\settings.dat");
    EXPECT_THAT(essai::faute([&] { ecriresettings(machine.disque(), "Léa", {}, "Gris"); }),
                HasSubstr("Écriture des réglages : fichier « Léa\\settings.dat »"));
    EXPECT_EQ(machine.lire("Léa\\settings.dat"), "ancien");
}

}  // namespace
}  // namespace test_settings
