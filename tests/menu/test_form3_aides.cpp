#include <gtest/gtest.h>

#include "couleurs.h"
#include "lignes.h"
#include "menudessai.h"

namespace test_form3_aides {
namespace {

constexpr const char* avant = "(ce qui était là)";

class Survols : public essai::Menudessai {
  protected:
    void preparer() {
        controle("Label11").texte = avant;
        controle("Label13").texte = avant;
    }
};

class Survolsdesrangees : public Survols, public testing::WithParamInterface<essai::Rangee> {};

TEST_P(Survolsdesrangees, de_tout_et_du_nom) {
    const auto& rangee = GetParam();
    const auto attendu = [](std::string_view aide) { return aide.empty() ? avant : aide; };
    ouvrir(rangee.panneau);
    preparer();
    survoler(essai::avecrang("Command14", rangee.rang));
    EXPECT_EQ(texte("Label11"), attendu(rangee.aidetout));
    EXPECT_EQ(texte("Label13"), "");
    preparer();
    survoler(essai::avecrang("Label1", rangee.rang));
    EXPECT_EQ(texte("Label11"), attendu(rangee.aidelibelle));
    EXPECT_EQ(texte("Label13"), "");
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Survolsdesrangees,
                         testing::ValuesIn(essai::lesrangees().begin(), essai::lesrangees().end()),
                         essai::nomderangee);

struct Ligne {
    const char* nom;
    const char* controle;
    const char* aide;     ///< what the help box shows afterwards
    const char* message;  ///< and the message line
};
void PrintTo(const Ligne& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Survolsfixes : public Survols, public testing::WithParamInterface<Ligne> {};

TEST_P(Survolsfixes, montre) {
    ouvrir("autres");
    preparer();
    survoler(GetParam().controle);
    EXPECT_EQ(texte("Label11"), GetParam().aide);
    EXPECT_EQ(texte("Label13"), GetParam().message);
}

constexpr const char* parties =
    "Boutons a/b/c/d :\nSubdivisions de la base pour pouvoir la travailler plus facilement.\nLeur "
    "contenu est fixe.";
constexpr const char* score =
    "Dernier score réalisé. Clic = historique.\nT=tout ; E=échantillon ; Ts=tout en plusieurs fois "
    "; R=révisions";
constexpr const char* echantillon = "Echantillon aléatoire (150 mots par défaut, voir les options)";
constexpr const char* revision =
    "Toutes les erreurs que vous faites sont ajoutées dans un fichier de révisions retravaillable "
    "ici.";
constexpr const char* images =
    "Les fichiers texte se trouvent également dans le dossier Orvane_2018/listes";

const Ligne lignes[] = {
    {"coma", "coma(0)", parties, avant},
    {"comb", "comb(3)", parties, avant},
    {"comc", "comc(7)", parties, avant},
    {"comd", "comd(1)", parties, avant},
    {"echantillon", "Command6(0)", echantillon, avant},
    {"echantillon_derniere_rangee", "Command6(7)", echantillon, avant},
    {"revision_vide_le_message", "Command22(0)", revision, ""},
    {"revision_derniere_rangee", "Command22(7)", revision, ""},
    {"resultat", "Label6(0)", score, avant},
    {"resultat_derniere_rangee", "Label6(7)", score, avant},
    {"apprentissage", "app",
     "Mode apprentissage : les erreurs ne sont pas stockées dans le fichier de révisions", avant},
    {"quitter", "Command10", "Reprendre une activité normale !", avant},
    {"image_0", "Command11(0)", images, avant},
    {"image_1", "Command11(1)", images, avant},
    {"options", "Command12",
     "Régler les options : chronomètre, taille des échantillons, couleurs des pourcentages.",
     avant},
    {"a_propos", "Command13", "A propos du logiciel", avant},
    {"mise_a_jour", "Command17", "Vérifie si votre version d'Orvane est la plus récente.", avant},
    {"liste_personnelle", "Text2", "Fichier personnel, à placer dans le répertoire /listes",
     "Fabriquez vos propres listes ! Allez faire un tour sur le site de Oriel Vantac :"},
    {"tout_de_la_liste_personnelle", "Command14(7)", avant, ""},
    {"nom_de_la_liste_personnelle", "Label1(7)", avant, ""},
    {"command1_muet", "Command1", avant, avant},
    {"command2_muet", "Command2", avant, avant},
    {"command3_muet", "Command3", avant, avant},
    {"command4_muet", "Command4", avant, avant},
    {"command5_muet", "Command5", avant, avant},
    {"command7_muet", "Command7(0)", avant, avant},
    {"command8_muet", "Command8", avant, avant},
    {"command9_muet", "Command9", avant, avant},
    {"command15_muet", "Command15(2)", avant, avant},
    {"command16_muet", "Command16", avant, avant},
    {"label4_muet", "Label4(0)", avant, avant},
    {"label5_muet", "Label5(0)", avant, avant},
};
INSTANTIATE_TEST_SUITE_P(Table, Survolsfixes, testing::ValuesIn(lignes), essai::nommer<Ligne>);

TEST_F(Survols, l_ancien_texte_reste_ou_il_n_y_en_a_pas) {
    ouvrir("bt");
    survoler("Command14(0)");
    EXPECT_EQ(texte("Label11"), "Exhaustif");
    ouvrir("formdif");
    controle("Label13").texte = avant;
    survoler("Command14(0)");
    EXPECT_EQ(texte("Label11"), "Exhaustif");
    EXPECT_EQ(texte("Label13"), "");
}

TEST_F(Survols, un_panneau_sans_texte_laisse_l_aide) {
    survoler("Command10");
    ouvrir("bt");
    EXPECT_EQ(texte("Label11"), "Reprendre une activité normale !");
}

TEST_F(Survols, le_message_ne_couvre_l_aide_que_s_il_dit_quelque_chose) {
    const auto& fond = controle("fondmessage");
    const auto& message = controle("Label13");
    EXPECT_TRUE(message.fondu());
    EXPECT_FALSE(fond.visible());
    ouvrir("bt");
    cliquer("Command6(0)");
    EXPECT_FALSE(message.fondu());
    EXPECT_TRUE(fond.visible());
    survoler("Command14(0)");
    EXPECT_TRUE(message.fondu());
    EXPECT_FALSE(fond.visible());
}

TEST_F(Survols, le_message_couvre_l_aide_sur_tous_les_fonds) {
    const auto& fond = controle("fondmessage");
    const auto& message = controle("Label13");
    for (const auto& couleur : profiles::couleursdufond()) {
        form->donnerfond(couleur.couleur);
        EXPECT_NE(message.fond(), form->fond()) << couleur.nom;
        EXPECT_NE(fond.fond(), form->fond()) << couleur.nom;
    }
    EXPECT_FALSE(fond.fondu());
    EXPECT_LE(fond.gauche(), message.gauche());
    EXPECT_LE(fond.haut(), message.haut());
    EXPECT_GE(fond.gauche() + fond.largeur(), message.gauche() + message.largeur());
    EXPECT_GE(fond.haut() + fond.hauteur(), message.haut() + message.hauteur());
}

TEST_F(Survols, avant_le_premier_panneau_n_ont_pas_de_texte) {
    preparer();
    survoler("Label1(0)");
    EXPECT_EQ(texte("Label11"), avant);
}

}  // namespace
}  // namespace test_form3_aides
