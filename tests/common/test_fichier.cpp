#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "fichier.h"

namespace {

using testing::ElementsAre;

constexpr std::size_t bloc = 128UL * 1024;  // what is read at once

std::vector<std::string> lignes(const std::string& octets) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", octets);
    common::DisqueReel disque(dossier.chemin());
    common::Lignes lecture(disque, "f.txt", "Essai");
    std::vector<std::string> liste;
    for (std::string_view ligne; lecture.suivante(ligne);)
        liste.emplace_back(ligne);
    return liste;
}

std::vector<std::string> items(const std::string& octets) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", octets);
    common::DisqueReel disque(dossier.chemin());
    common::Items lecture(disque, "f.txt", "Essai");
    std::vector<std::string> liste;
    for (std::string_view item; lecture.lireitem(item);)
        liste.emplace_back(item);
    return liste;
}

/// What `chaque` of `Lignes` or `Items` gives, with the numbers.
template <class L>
std::vector<std::pair<std::string, std::size_t>> chaque(const std::string& octets) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", octets);
    common::DisqueReel disque(dossier.chemin());
    std::vector<std::pair<std::string, std::size_t>> liste;
    L(disque, "f.txt", "Essai").chaque([&](std::string_view texte, std::size_t numero) {
        liste.emplace_back(texte, numero);
    });
    return liste;
}

template <class L>
std::vector<std::string> textesdechaque(const std::string& octets) {
    std::vector<std::string> textes;
    for (const auto& [texte, numero] : chaque<L>(octets))
        textes.push_back(texte);
    return textes;
}

using Liste = std::vector<std::string>;

struct Cas {
    const char* nom;
    std::string octets;
    Liste attendu;
};
std::string nomducas(const testing::TestParamInfo<Cas>& info) {
    return info.param.nom;
}

class Lignes : public testing::TestWithParam<Cas> {};
TEST_P(Lignes, du_fichier) {
    EXPECT_EQ(lignes(GetParam().octets), GetParam().attendu);
    EXPECT_EQ(textesdechaque<common::Lignes>(GetParam().octets), GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Fichier, Lignes,
    testing::Values(
        Cas{"vide", "", {}}, Cas{"CR_LF", "A\r\nB\r\n", {"A", "B"}},
        Cas{"LF_seul", "A\nB\n", {"A", "B"}}, Cas{"melange", "A\nB\r\nC\n", {"A", "B", "C"}},
        Cas{"sans_fin_de_ligne", "A\r\nB", {"A", "B"}},
        Cas{"ligne_vide", "A\r\n\r\nB\r\n", {"A", "", "B"}}, Cas{"une_fin_de_ligne", "\r\n", {""}},
        Cas{"ligne_vide_a_la_fin", "A\r\n\r\n", {"A", ""}},
        Cas{"CR_au_milieu", "A\rB\r\n", {"A\rB"}}, Cas{"deux_CR", "A\r\r\n", {"A\r"}},
        Cas{"coupe_entre_CR_et_LF", "A\r\nB\r", {"A", "B"}}, Cas{"un_CR", "\r", {""}},
        Cas{"octet_nul", std::string("A\0B\r\n", 5), {std::string("A\0B", 3)}},
        Cas{"octet_occidental", "\xE9t\xE9\r\n", {"\xE9t\xE9"}},
        Cas{"megaoctet",
            "A\r\n" + std::string(1000000, 'x') + "\r\nB\r\n",
            {"A", std::string(1000000, 'x'), "B"}},
        Cas{"megaoctet_sans_fin", std::string(1000000, 'x'), {std::string(1000000, 'x')}},
        Cas{"fin_de_ligne_au_bout_du_bloc",
            std::string(bloc - 2, 'x') + "\r\nB\r\n",
            {std::string(bloc - 2, 'x'), "B"}},
        Cas{"LF_dans_le_bloc_suivant",
            std::string(bloc - 1, 'x') + "\r\nB\r\n",
            {std::string(bloc - 1, 'x'), "B"}},
        Cas{"CR_LF_dans_le_bloc_suivant",
            std::string(bloc, 'x') + "\r\nB\r\n",
            {std::string(bloc, 'x'), "B"}},
        Cas{"ligne_a_cheval_sur_deux_blocs",
            std::string(bloc - 10, 'x') + "\r\n" + std::string(100, 'y') + "\r\nB",
            {std::string(bloc - 10, 'x'), std::string(100, 'y'), "B"}}),
    nomducas);

class Items : public testing::TestWithParam<Cas> {};
TEST_P(Items, du_fichier) {
    EXPECT_EQ(items(GetParam().octets), GetParam().attendu);
    EXPECT_EQ(textesdechaque<common::Items>(GetParam().octets), GetParam().attendu);
}
INSTANTIATE_TEST_SUITE_P(
    Fichier, Items,
    testing::Values(
        Cas{"vide", "", {}}, Cas{"un_par_ligne", "A\r\nB\r\n", {"A", "B"}},
        Cas{"sans_fin_de_ligne", "A\r\nB", {"A", "B"}}, Cas{"LF_seul", "A\nB\n", {"A", "B"}},
        Cas{"coupe_entre_CR_et_LF", "A\r\nB\r", {"A", "B"}},
        Cas{"virgules", "A,B,C\r\n", {"A", "B", "C"}},
        Cas{"blancs_devant_sautes", "  A,\t B\r\n", {"A", "B"}},
        Cas{"blancs_derriere_gardes", "A ,B  \r\n", {"A ", "B  "}},
        Cas{"ligne_vide", "A\r\n\r\nB\r\n", {"A", "", "B"}},
        Cas{"ligne_de_blancs", "A\r\n  \r\nB\r\n", {"A", "", "B"}},
        Cas{"items_vides", "A,,B\r\n", {"A", "", "B"}}, Cas{"virgule_en_tete", ",A\r\n", {"", "A"}},
        Cas{"virgule_puis_fin_de_ligne", "A,\r\nB\r\n", {"A", "", "B"}},
        Cas{"virgule_puis_derniere_fin_de_ligne", "A,\r\n", {"A", ""}},
        Cas{"virgule_au_bout_du_fichier", "A\r\nB,", {"A", "B"}},
        Cas{"guillemets", "\"A,B\",C\r\n", {"A,B", "C"}},
        Cas{"guillemets_vides", "\"\",A\r\n", {"", "A"}},
        Cas{"guillemets_gardent_les_blancs", "\" A \"\r\nB\r\n", {" A ", "B"}},
        Cas{"blancs_derriere_les_guillemets", "\"A\"  ,B\r\n\"C\" \r\nD\r\n", {"A", "B", "C", "D"}},
        Cas{"guillemets_puis_fin_de_ligne", "\"A\"\r\n\r\nB\r\n", {"A", "", "B"}},
        Cas{"guillemets_puis_texte", "\"A\"B,C\r\n", {"A", "B", "C"}},
        Cas{"guillemets_virgule_fin_de_ligne", "\"A\",\r\nB\r\n", {"A", "", "B"}},
        Cas{"guillemets_virgule_au_bout_du_fichier", "\"A\",", {"A"}},
        Cas{"guillemets_sur_deux_lignes", "\"A\r\nB\",C\r\n", {"A\r\nB", "C"}},
        Cas{"guillemets_jamais_fermes", "\"A\r\nB\r\n", {"A\r\nB"}},
        Cas{"guillemet_au_milieu", "A\"B,C\r\n", {"A\"B", "C"}},
        Cas{"mots_nus_puis_signes_au_bloc_suivant",
            std::string(bloc - 3, 'x') + "\r\nB\r\n C,D\r\n\"E\"\r\nF",
            {std::string(bloc - 3, 'x'), "B", "C", "D", "E", "F"}},
        Cas{"signes_puis_mots_nus_au_bloc_suivant",
            " A,B\r\n" + std::string(bloc, 'x') + "\r\nC\r\nD\r\n",
            {"A", "B", std::string(bloc, 'x'), "C", "D"}},
        Cas{"mot_nu_a_cheval_sur_un_bloc_a_signes",
            std::string(bloc - 6, 'x') + "\r\nABCDEFGH,I\r\nJ\r\n",
            {std::string(bloc - 6, 'x'), "ABCDEFGH", "I", "J"}}),
    nomducas);

TEST(Fichier, le_numero_d_une_ligne_et_d_un_item) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", "A,B\r\n\"C\r\nD\",E\r\nF\r\n");
    common::DisqueReel disque(dossier.chemin());
    common::Items lecture(disque, "f.txt", "Essai");
    std::vector<std::pair<std::string, std::size_t>> lus;
    for (std::string_view item; lecture.lireitem(item);)
        lus.emplace_back(item, lecture.numero());
    EXPECT_THAT(lus, ElementsAre(std::pair("A", 1), std::pair("B", 1), std::pair("C\r\nD", 2),
                                 std::pair("E", 3), std::pair("F", 4)));
}

TEST(Fichier, chaque_donne_le_numero_d_une_ligne_et_d_un_item) {
    EXPECT_THAT(chaque<common::Lignes>("A\r\n\r\nB"),
                ElementsAre(std::pair("A", 1), std::pair("", 2), std::pair("B", 3)));
    EXPECT_THAT(
        chaque<common::Items>("A\r\nB\r\n\r\nC"),
        ElementsAre(std::pair("A", 1), std::pair("B", 2), std::pair("", 3), std::pair("C", 4)));
    EXPECT_THAT(chaque<common::Items>("A,B\r\n\"C\r\nD\",E\r\nF\r\n"),
                ElementsAre(std::pair("A", 1), std::pair("B", 1), std::pair("C\r\nD", 2),
                            std::pair("E", 3), std::pair("F", 4)));
}

TEST(Fichier, un_fichier_absent_est_une_faute_qui_le_nomme) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    try {
        const common::Lignes lecture(disque, "listes\\absent.txt", "Lecture d'une liste");
        FAIL() << "pas de faute";
    } catch (const common::Faute& faute) {
        EXPECT_STREQ(faute.what(),
                     "Lecture d'une liste : fichier « listes\\absent.txt » : fichier introuvable.");
    }
    EXPECT_THROW(common::Lignes(disque, ".", "Essai"), common::Faute);
}

TEST(Fichier, des_lignes_s_ecrivent_en_occidental_avec_CR_LF) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    common::remplacerlignes(disque, "f.txt", std::vector<std::string>{"été", ""}, "Essai");
    EXPECT_EQ(dossier.lire("f.txt"), "\xE9t\xE9\r\n\r\n");
    common::ajouterlignes(disque, "f.txt", std::vector<std::string>{"œ"}, "Essai");
    EXPECT_EQ(dossier.lire("f.txt"), "\xE9t\xE9\r\n\r\n\x9C\r\n");
    common::remplacerlignes(disque, "f.txt", {}, "Essai");
    EXPECT_EQ(dossier.lire("f.txt"), "");
}

TEST(Fichier, un_caractere_impossible_n_ecrit_rien) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", "A\r\n");
    common::DisqueReel disque(dossier.chemin());
    const std::vector<std::string> impossible{"B", "ő"};
    EXPECT_THROW(common::ajouterlignes(disque, "f.txt", impossible, "Essai"), common::Faute);
    EXPECT_THROW(common::remplacerlignes(disque, "f.txt", impossible, "Essai"), common::Faute);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
}

TEST(Fichier, toucher_fait_un_fichier_vide_et_garde_celui_qui_existe) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    common::toucher(disque, "f.txt", "Essai");
    EXPECT_TRUE(disque.existe("f.txt"));
    EXPECT_EQ(dossier.lire("f.txt"), "");
    dossier.ecrire("g.txt", "sans fin");
    common::toucher(disque, "g.txt", "Essai");
    EXPECT_EQ(dossier.lire("g.txt"), "sans fin");
    EXPECT_THROW(common::toucher(disque, "absent\\f.txt", "Essai"), common::Faute);
    ASSERT_FALSE(disque.creerdossier("d.txt"));
    EXPECT_THROW(common::toucher(disque, "d.txt", "Essai"), common::Faute);
}

TEST(Fichier, lirefichier_rend_tous_les_octets) {
    const essais::DossierTemporaire dossier;
    common::DisqueReel disque(dossier.chemin());
    for (const auto taille : {std::size_t{0}, bloc - 1, bloc, bloc + 1, 3 * bloc}) {
        const std::string octets(taille, '\x81');
        dossier.ecrire("f.bin", octets);
        EXPECT_EQ(common::lirefichier(disque, "f.bin", "Essai"), octets) << taille;
    }
    EXPECT_THROW(static_cast<void>(common::lirefichier(disque, "absent", "Essai")), common::Faute);
}

TEST(Fichier, un_compte_rendu_dit_l_action_le_fichier_la_ligne_et_l_ennui) {
    EXPECT_EQ(common::rapportligne("Lecture", "listes\\x.txt", 12, "trop long"),
              "Lecture : fichier « listes\\x.txt », ligne 12 : trop long.");
    EXPECT_EQ(common::raison(std::make_error_code(std::errc::no_space_on_device)),
              "le disque est plein");
    EXPECT_EQ(common::raison(std::error_code(9999, std::generic_category())),
              "erreur du système n° 9999");
}

}  // namespace
