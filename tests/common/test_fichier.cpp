#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

#include "disquereel.h"
#include "dossiertemporaire.h"
#include "faute.h"
#include "fichier.h"

namespace test_fichier {
namespace {

using testing::ElementsAre;

constexpr std::size_t bloc = common::limiteligne;  // what is read at once
constexpr std::size_t kilo = 1024;

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

/// A case whose bytes begin so many kilobytes, of one line each, behind the start of the file.
Cas derriere(std::size_t lignes, const char* nom, std::string_view octets, const Liste& attendu) {
    const std::string ligne(kilo - 2, 'x');
    Cas cas{nom, "", Liste(lignes, ligne)};
    for (std::size_t i = 0; i < lignes; ++i)
        cas.octets.append(ligne).append("\r\n");
    cas.octets.append(octets);
    cas.attendu.insert(cas.attendu.end(), attendu.begin(), attendu.end());
    return cas;
}
constexpr std::size_t presque = bloc / kilo - 1;  // a kilobyte is left of the first reading
std::string xs(std::size_t nombre) {
    return std::string(nombre, 'x');
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
        Cas{"la_plus_longue", "A\n" + xs(bloc - 1) + "\nB\n", {"A", xs(bloc - 1), "B"}},
        Cas{"la_plus_longue_avec_CR", "A\n" + xs(bloc - 2) + "\r\nB", {"A", xs(bloc - 2), "B"}},
        Cas{"la_plus_longue_sans_fin", "A\r\n" + xs(bloc - 1), {"A", xs(bloc - 1)}},
        derriere(presque, "fin_de_ligne_au_bout_du_bloc", xs(kilo - 2) + "\r\nB\r\n",
                 {xs(kilo - 2), "B"}),
        derriere(presque, "LF_dans_le_bloc_suivant", xs(kilo - 1) + "\r\nB\r\n",
                 {xs(kilo - 1), "B"}),
        derriere(presque, "CR_LF_dans_le_bloc_suivant", xs(kilo) + "\r\nB\r\n", {xs(kilo), "B"}),
        derriere(presque, "ligne_a_cheval_sur_deux_blocs",
                 xs(kilo - 10) + "\r\n" + std::string(100, 'y') + "\r\nB",
                 {xs(kilo - 10), std::string(100, 'y'), "B"})),
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
        Cas{"guillemets_sur_mille_lignes",
            "\"" + std::string(1000, '\n') + "\",A\r\n",
            {[] {
                 std::string lignes;
                 for (int n = 0; n < 1000; ++n)
                     lignes += "\r\n";
                 return lignes;
             }(),
             "A"}},
        derriere(presque, "mots_nus_puis_signes_au_bloc_suivant",
                 xs(kilo - 3) + "\r\nB\r\n C,D\r\n\"E\"\r\nF",
                 {xs(kilo - 3), "B", "C", "D", "E", "F"}),
        derriere(presque, "signes_puis_mots_nus_au_bloc_suivant",
                 " A,B\r\n" + xs(kilo) + "\r\nC\r\nD\r\n", {"A", "B", xs(kilo), "C", "D"}),
        derriere(presque, "mot_nu_a_cheval_sur_un_bloc_a_signes",
                 xs(kilo - 6) + "\r\nABCDEFGH,I\r\nJ\r\n", {xs(kilo - 6), "ABCDEFGH", "I", "J"})),
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

struct Troplong {
    const char* nom;
    std::string octets;
    std::size_t ligne;
};
std::string nomtroplong(const testing::TestParamInfo<Troplong>& info) {
    return info.param.nom;
}

/// The report of the fault that an action ends with; empty if it ends well.
template <class Action>
std::string faute(const Action& action) {
    try {
        action();
    } catch (const common::Faute& faute) {
        return faute.what();
    }
    return {};
}

class Troplongue : public testing::TestWithParam<Troplong> {
  protected:
    static std::string rapport() {
        return "Essai : fichier « f.txt », ligne " + std::to_string(GetParam().ligne) +
               " : la ligne est trop longue ; la limite est de 65536 octets.";
    }
};

TEST_P(Troplongue, est_une_faute_qui_dit_la_ligne_et_la_limite) {
    const auto& octets = GetParam().octets;
    EXPECT_EQ(faute([&] { chaque<common::Lignes>(octets); }), rapport());
    EXPECT_EQ(faute([&] { chaque<common::Items>(octets); }), rapport());
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", octets);
    common::DisqueReel disque(dossier.chemin());
    EXPECT_EQ(faute([&] { static_cast<void>(common::liretexte(disque, "f.txt", "Essai")); }),
              rapport());
}
INSTANTIATE_TEST_SUITE_P(
    Table, Troplongue,
    testing::Values(Troplong{"un_octet_de_trop", xs(bloc) + "\n", 1},
                    Troplong{"un_octet_de_trop_avec_CR", xs(bloc - 1) + "\r\n", 1},
                    Troplong{"un_octet_de_trop_sans_fin", xs(bloc), 1},
                    Troplong{"derriere_une_autre", "A\r\n" + xs(bloc) + "\r\nB\r\n", 2},
                    Troplong{"derriere_un_bloc",
                             derriere(presque, "", "A\r\n" + xs(3 * bloc), {}).octets, presque + 2},
                    Troplong{"dix_megaoctets", "A\r\nB\r\n" + xs(10'000'000), 3}),
    nomtroplong);

TEST(Fichier, un_item_entre_guillemets_a_la_meme_limite) {
    std::string octets = "A\r\n\"";
    for (std::size_t n = 0; n <= bloc; n += kilo)
        octets += xs(kilo) + "\r\n";
    const auto rapport =
        "Essai : fichier « f.txt », ligne 2 : la ligne est trop longue ; la limite est de 65536 "
        "octets.";
    EXPECT_EQ(faute([&] { chaque<common::Items>(octets); }), rapport);
    EXPECT_EQ(faute([&] {
                  common::Items lecture(octets, "f.txt", "Essai");
                  for (std::string_view item; lecture.lireitem(item);)
                      continue;
              }),
              rapport);
}

TEST(Fichier, une_ligne_trop_longue_ne_s_ecrit_pas) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", "A\r\n");
    common::DisqueReel disque(dossier.chemin());
    const std::vector<std::string> juste{xs(bloc - 2)};
    const std::vector<std::string> longue{"B", xs(bloc - 1)};
    const auto rapport =
        "Essai : fichier « f.txt » : la ligne est trop longue ; la limite est de 65536 octets.";
    EXPECT_EQ(faute([&] { common::ajouterlignes(disque, "f.txt", longue, "Essai"); }), rapport);
    EXPECT_EQ(faute([&] { common::remplacerlignes(disque, "f.txt", longue, "Essai"); }), rapport);
    EXPECT_EQ(dossier.lire("f.txt"), "A\r\n");
    common::ajouterlignes(disque, "f.txt", juste, "Essai");
    EXPECT_EQ(common::liretexte(disque, "f.txt", "Essai"), "A\r\n" + xs(bloc - 2) + "\r\n");
}

TEST(Fichier, ce_qui_precede_une_ligne_trop_longue_se_lit) {
    const essais::DossierTemporaire dossier;
    dossier.ecrire("f.txt", "A\r\nB\r\n" + xs(bloc));
    common::DisqueReel disque(dossier.chemin());
    std::string lu;
    EXPECT_EQ(common::essayerliretexte(disque, "f.txt", lu), common::Ennui::LigneTropLongue);
    EXPECT_EQ(lu, "A\r\nB\r\n");
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
}  // namespace test_fichier
