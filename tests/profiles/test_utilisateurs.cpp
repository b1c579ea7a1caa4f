#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "faute.h"
#include "lignes.h"
#include "utilisateurs.h"
#include "voisinage.h"

namespace test_utilisateurs {
namespace {

using namespace profiles;
using Noms = std::vector<std::string>;

/// `settings.dat` of a new user, as bytes.
constexpr const char* nouveaux =
    "95\r\n80\r\n8\r\n5\r\n1\r\nPar d\xE9"
    "faut\r\n1\r\n";

struct Ligne {
    const char* nom;
    const char* octets;
    Noms noms;
    const char* derniere;
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Lectureusers : public testing::TestWithParam<Ligne> {};

TEST_P(Lectureusers, donne) {
    const auto lus = utilisateurs(GetParam().octets);
    EXPECT_EQ(lus.noms, GetParam().noms);
    EXPECT_EQ(lus.derniereligne, GetParam().derniere);
}

const Ligne lignes[] = {
    {"vide", "", {}, ""},
    {"deux_noms",
     "Paul\r\nL\xE9"
     "a\r\n",
     {"Paul", "Léa"},
     "Léa"},
    {"sans_fin_de_ligne", "Paul\r\nZo\xE9", {"Paul", "Zoé"}, "Zoé"},
    {"lignes_vides_sautees", "\r\nPaul\r\n\r\nZoe\r\n", {"Paul", "Zoe"}, "Zoe"},
    {"derniere_ligne_vide", "Paul\r\n\r\n", {"Paul"}, ""},
    {"rien_que_des_lignes_vides", "\r\n\r\n", {}, ""},
    {"virgules_et_guillemets_gardes",
     "Du Pont, \"Jo\"\r\n",
     {"Du Pont, \"Jo\""},
     "Du Pont, \"Jo\""},
    {"blancs_gardes", "  Paul \r\n", {"  Paul "}, "  Paul "},
    {"doubles_gardes", "Paul\r\nZoe\r\nPaul\r\n", {"Paul", "Zoe", "Paul"}, "Paul"},
    {"saut_de_ligne_seul", "Paul\nZoe\n", {"Paul", "Zoe"}, "Zoe"},
};
INSTANTIATE_TEST_SUITE_P(Table, Lectureusers, testing::ValuesIn(lignes), essai::nommer<Ligne>);

struct Reecriture {
    const char* nom;
    Noms liste;
    const char* choisi;
    Noms attendu;
};
void PrintTo(const Reecriture& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Reecritures : public testing::TestWithParam<Reecriture> {};

TEST_P(Reecritures, donnent) {
    EXPECT_EQ(lignesusers(GetParam().liste, GetParam().choisi), GetParam().attendu);
}

const Reecriture reecritures[] = {
    {"un_nom_neuf_vient_a_la_fin", {"Paul", "Zoe"}, "Luc", {"Paul", "Zoe", "Luc"}},
    {"un_nom_connu_passe_a_la_fin", {"Paul", "Zoe"}, "Paul", {"Zoe", "Paul"}},
    {"le_dernier_reste_le_dernier", {"Paul", "Zoe"}, "Zoe", {"Paul", "Zoe"}},
    {"le_choisi_ne_reste_qu_une_fois", {"Zoe", "Paul", "Zoe"}, "Zoe", {"Paul", "Zoe"}},
    {"les_autres_doubles_restent", {"Paul", "Paul", "Zoe"}, "Zoe", {"Paul", "Paul", "Zoe"}},
    {"la_casse_compte", {"paul"}, "Paul", {"paul", "Paul"}},
    {"un_nom_vide_fait_une_ligne_vide", {"Paul"}, "", {"Paul", ""}},
    {"une_entree_vide_reste", {"", "Paul"}, "Zoe", {"", "Paul", "Zoe"}},
    {"premier_nom", {}, "Paul", {"Paul"}},
};
INSTANTIATE_TEST_SUITE_P(Table, Reecritures, testing::ValuesIn(reecritures),
                         essai::nommer<Reecriture>);

class Creation : public testing::Test {
  protected:
    essai::Machine machine;

    std::vector<std::string> contenu() {
        std::vector<std::string> noms;
        for (const auto& entree : std::filesystem::directory_iterator(machine.dossier.chemin()))
            noms.push_back(entree.path().filename().string());
        return noms;
    }
};

TEST_F(Creation, fait_le_dossier_et_ses_deux_fichiers) {
    creerutilisateur(machine.disque(), "Zoé, dite « Zaza »");
    EXPECT_EQ(machine.lire("Zoé, dite « Zaza »\\hist.dat"), "");
    EXPECT_EQ(machine.lire("Zoé, dite « Zaza »\\settings.dat"), nouveaux);
    EXPECT_EQ(contenu(), Noms{"Zoé, dite « Zaza »"});
}

TEST_F(Creation, reprend_le_travail_d_une_creation_interrompue) {
    machine.ecrire("nouvel-utilisateur.tmp\\settings.dat", "95");
    creerutilisateur(machine.disque(), "Paul");
    EXPECT_EQ(machine.lire("Paul\\settings.dat"), nouveaux);
    EXPECT_EQ(contenu(), Noms{"Paul"});
}

TEST_F(Creation, le_nom_vide_est_le_dossier_courant) {
    EXPECT_TRUE(dossierexiste(machine.disque(), ""));
    EXPECT_FALSE(dossierexiste(machine.disque(), "Paul"));
    machine.ecrire("Paul", "un fichier");
    EXPECT_FALSE(dossierexiste(machine.disque(), "Paul"));
}

struct Refus {
    const char* nom;
    std::string utilisateur;
    const char* raison;
};
void PrintTo(const Refus& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Refuses : public Creation, public testing::WithParamInterface<Refus> {};

TEST_P(Refuses, ne_laissent_rien) {
    const auto& nom = GetParam().utilisateur;
    EXPECT_EQ(essai::faute([&] { creerutilisateur(machine.disque(), nom); }),
              "Création de l'utilisateur « " + nom +
                  " » : le système refuse un dossier de ce nom (" + GetParam().raison +
                  "). Relancez le programme et choisissez un autre nom.");
    EXPECT_EQ(contenu(), Noms{});
}

const Refus refus[] = {
    {"nom_de_300_caracteres", std::string(300, 'a'), "nom trop long pour le système"},
    {"nom_avec_un_dossier_absent", "Paul\\Zoe", "fichier introuvable"},
    {"nom_avec_une_barre", "Paul/Zoe", "fichier introuvable"},
};
INSTANTIATE_TEST_SUITE_P(Table, Refuses, testing::ValuesIn(refus), essai::nommer<Refus>);

TEST_F(Creation, un_fichier_du_meme_nom_la_refuse) {
    machine.ecrire("Paul", "un fichier");
    EXPECT_THAT(essai::faute([&] { creerutilisateur(machine.disque(), "Paul"); }),
                testing::HasSubstr("un fichier de ce nom existe déjà"));
    EXPECT_EQ(machine.lire("Paul"), "un fichier");
    EXPECT_EQ(contenu(), Noms{"Paul"});
}

TEST_F(Creation, un_disque_plein_la_refuse) {
    machine.disque().refuser("Paul");
    EXPECT_THAT(essai::faute([&] { creerutilisateur(machine.disque(), "Paul"); }),
                testing::HasSubstr("le disque est plein"));
    EXPECT_EQ(contenu(), Noms{});
}

}  // namespace
}  // namespace test_utilisateurs
