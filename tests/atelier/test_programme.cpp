// The program as a player or a build runs it.

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "chemin.h"
#include "dossiertemporaire.h"
#include "processus.h"

namespace test_programme {
namespace {

using essais::DossierTemporaire;
using essais::Fin;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;

class Programme : public testing::Test {
  protected:
    [[nodiscard]] Fin lancer(const std::vector<std::string>& arguments) const {
        return essais::lancer(ORVANE_PROGRAMME, arguments, dossier.chemin());
    }

    /// The arguments of a run on the small lexicon.
    [[nodiscard]] std::vector<std::string> petit(const std::string& cible) const {
        const std::string petit = ORVANE_PETIT;
        return {"--sortie",     cible,
                "--lexique",    petit + "/petit.dic",
                "--affixes",    petit + "/petit.aff",
                "--thesaurus",  petit + "/petit.dat",
                "--sans-ajouts"};
    }
    [[nodiscard]] std::string cible() const { return (dossier.chemin() / u8"jeu été").string(); }
    [[nodiscard]] std::string lu(const std::string& nom) const {
        return dossier.lire("jeu été/" + nom);
    }

    DossierTemporaire dossier;
};

TEST_F(Programme, fait_les_listes_en_silence) {
    const auto fin = lancer(petit(cible()));
    EXPECT_EQ(fin.etat, 0);
    EXPECT_THAT(fin.sortie, IsEmpty());
    EXPECT_THAT(fin.erreurs, IsEmpty());
    EXPECT_EQ(lu("listes/3lc.txt"), "(N)EZ;NEZ\r\n(Z)EN;ZEN\r\nKOW;WOK\r\n");
    EXPECT_EQ(lu("listes/rallonge_ar_7a8L.txt"), "CELEBRE;T\r\n");
    EXPECT_EQ(lu("listes/vb7.txt"), "EFILORS;SOLFIER\r\n");
    EXPECT_THAT(lu("listes-LICENCE.txt"), HasSubstr("Mozilla Public License"));
    EXPECT_THAT(lu("infosouris-LICENCE.txt"), HasSubstr("Lesser General Public License"));
}

TEST_F(Programme, fait_deux_fois_les_memes_octets) {
    ASSERT_EQ(lancer(petit(cible())).etat, 0);
    std::filesystem::rename(common::chemin(cible()), dossier.chemin() / "premier");
    ASSERT_EQ(lancer(petit(cible())).etat, 0);
    std::size_t compares = 0;
    for (const auto& entree :
         std::filesystem::recursive_directory_iterator(common::chemin(cible()))) {
        if (!entree.is_regular_file())
            continue;
        const auto relatif =
            entree.path().lexically_relative(common::chemin(cible())).generic_string();
        EXPECT_EQ(lu(relatif), dossier.lire("premier/" + relatif)) << relatif;
        ++compares;
    }
    EXPECT_EQ(compares, 234U + 6U + 2U + 4U + 1U + 2U + 2U);
}

TEST_F(Programme, garde_aux_mots_du_joueur) {
    for (const std::string octets :
         {"nez\nchat\nsnowkite\n", "\xEF\xBB\xBFNEZ\r\nCHAT\r\nSNOWKITE"}) {
        dossier.ecrire("mots.txt", octets);
        auto arguments = petit(cible());
        arguments.insert(arguments.end(), {"--mots", (dossier.chemin() / "mots.txt").string()});
        ASSERT_EQ(lancer(arguments).etat, 0);
        EXPECT_EQ(lu("listes/3lc.txt"), "ENZ;NEZ\r\n");
        EXPECT_EQ(lu("listes/4lt.txt"), "ACHT;CHAT\r\n");
        EXPECT_EQ(lu("listes/78tout.txt"), "EIKNOSTW;SNOWKITE\r\n");
    }
}

TEST_F(Programme, compare_deux_editions) {
    dossier.ecrire("a.txt", "chat\n");
    dossier.ecrire("b.txt", "chat\nwok\nkaraoke\n");
    auto arguments = petit(cible());
    const auto d = dossier.chemin().string();
    arguments.insert(arguments.end(), {"--nouveautes", "2012=" + d + "/a.txt," + d + "/b.txt"});
    ASSERT_EQ(lancer(arguments).etat, 0);
    EXPECT_EQ(lu("listes/ods5.txt"), "");
    EXPECT_EQ(lu("listes/ods6.txt"), "WOK\r\nKARAOKE\r\n");
    EXPECT_EQ(lu("listes/78ods5-6-7.txt"), "AAEKKOR;KARAOKE\r\n");
}

struct Casse {
    const char* nom;
    const char* option;
    std::string octets;
    const char* rapport;
};
void PrintTo(const Casse& c, std::ostream* os) {
    *os << c.nom;
}
class SourceCassee : public Programme, public testing::WithParamInterface<Casse> {};
TEST_P(SourceCassee, est_une_faute_dite_avec_son_fichier) {
    const auto chemin = (dossier.chemin() / u8"cassé").string();
    dossier.ecrire("cassé", GetParam().octets);
    auto arguments = petit(cible());
    arguments.insert(arguments.end(), {GetParam().option, chemin});
    const auto fin = lancer(arguments);
    EXPECT_EQ(fin.etat, 1);
    EXPECT_THAT(fin.erreurs, AllOf(HasSubstr("cassé »"), HasSubstr(GetParam().rapport)));
    EXPECT_FALSE(std::filesystem::exists(common::chemin(cible())));
}
INSTANTIATE_TEST_SUITE_P(
    Programme, SourceCassee,
    testing::Values(Casse{"lexique_vide", "--lexique", "", "vide"},
                    Casse{"lexique_sans_mot", "--lexique", "0\n", "aucun mot"},
                    Casse{"lexique_binaire", "--lexique", std::string(64, '\0'), "ligne 1"},
                    Casse{"affixes_vides", "--affixes", "", "SET UTF-8"},
                    Casse{"affixes_coupes", "--affixes",
                          "SET UTF-8\nFLAG long\nSFX S. Y 2\nSFX S. 0 s .\n", "ligne 4"},
                    Casse{"affixes_binaires", "--affixes", std::string(64, '\xFF'), "ligne 1"},
                    Casse{"thesaurus_coupe", "--thesaurus", "UTF-8\nchat|1\n", "ligne 2"},
                    Casse{"mots_vides", "--mots", "\n", "aucun mot"},
                    Casse{"mots_qui_n_en_sont_pas", "--mots", "a b\n", "ligne 1"}),
    [](const auto& rangee) { return rangee.param.nom; });

TEST_F(Programme, une_source_absente_est_une_faute) {
    for (const std::string option : {"--lexique", "--affixes", "--thesaurus", "--mots"}) {
        auto arguments = petit(cible());
        arguments.insert(arguments.end(), {option, "absent.txt"});
        const auto fin = lancer(arguments);
        EXPECT_EQ(fin.etat, 1) << option;
        EXPECT_THAT(fin.erreurs, HasSubstr("« absent.txt » : fichier introuvable")) << option;
    }
}

TEST_F(Programme, un_mauvais_usage_rend_2) {
    for (const auto& arguments : {std::vector<std::string>{},
                                  {"--foo"},
                                  {"--sortie"},
                                  {"--sortie", "a", "--nouveautes", "x"}}) {
        const auto fin = lancer(arguments);
        EXPECT_EQ(fin.etat, 2);
        EXPECT_THAT(fin.erreurs, HasSubstr("orvane-listes --help"));
    }
}

TEST_F(Programme, dit_son_aide_et_sa_version) {
    EXPECT_THAT(lancer({"--help"}).sortie, HasSubstr("--nouveautes ANNEE=ANCIENNE,NOUVELLE"));
    EXPECT_THAT(lancer({"--version"}).sortie, StartsWith("orvane-listes "));
}

TEST_F(Programme, verifie_un_fichier_et_un_dossier) {
    dossier.ecrire("bon.txt", "ACHT;CHAT\r\n");
    dossier.ecrire("mauvais.txt", "ACHT;CHAT\r\nACHT\r\n");
    EXPECT_EQ(lancer({"--verifier", (dossier.chemin() / "bon.txt").string()}).etat, 0);
    const auto fin = lancer({"--verifier", (dossier.chemin() / "mauvais.txt").string()});
    EXPECT_EQ(fin.etat, 1);
    EXPECT_THAT(fin.sortie, HasSubstr("mauvais.txt, ligne 2 : il manque le « ; »"));
    EXPECT_EQ(lancer({"--verifier", ORVANE_LISTES_ESSAI}).etat, 0);
    EXPECT_EQ(lancer({"--verifier", dossier.chemin().string()}).etat, 1);
}

TEST_F(Programme, decrit_une_liste) {
    auto arguments = petit("");
    arguments[0] = "--decrire";
    arguments[1] = "3lc";
    const auto fin = lancer(arguments);
    EXPECT_EQ(fin.etat, 0);
    EXPECT_EQ(
        fin.sortie,
        "3lc.txt (Lettre Chère 3L) : Tous les mots de 3 lettres qui ont une lettre chère (J K "
        "Q W X Y Z). 3 lignes.\n");
    arguments[1] = "inconnue";
    EXPECT_EQ(lancer(arguments).etat, 2);
}

/// The arguments of a search in the small lexicon.
std::vector<std::string> recherche(const std::string& criteres) {
    const std::string petit = ORVANE_PETIT;
    return {"--chercher",   criteres,
            "--lexique",    petit + "/petit.dic",
            "--affixes",    petit + "/petit.aff",
            "--thesaurus",  petit + "/petit.dat",
            "--sans-ajouts"};
}

TEST_F(Programme, cherche_des_mots_ou_une_liste) {
    const auto mots = lancer(recherche("lettres=NEZ forme=mots"));
    EXPECT_EQ(mots.sortie, "NEZ\nZEN\n");
    EXPECT_EQ(mots.erreurs, "");
    EXPECT_EQ(mots.etat, 0);
    EXPECT_EQ(lancer(recherche("lettres=NEZ fin=N")).sortie, "(Z)EN;ZEN\n");
    EXPECT_THAT(lancer(recherche("")).erreurs, StartsWith("par : "));
}

TEST_F(Programme, dit_pourquoi_une_recherche_ne_donne_rien) {
    const auto vide = lancer(recherche("debut=W fin=Z"));
    EXPECT_EQ(vide.sortie, "");
    EXPECT_EQ(vide.erreurs, "Aucun mot ne répond à ces critères.\n");
    EXPECT_EQ(vide.etat, 0);
    const auto refusee = lancer(recherche("longueur=8-2"));
    EXPECT_EQ(refusee.sortie, "");
    EXPECT_THAT(refusee.erreurs, StartsWith("longueur : "));
    EXPECT_EQ(refusee.etat, 1);
    EXPECT_EQ(lancer({"--chercher"}).etat, 2);
}

TEST_F(Programme, cherche_dans_le_dictionnaire_du_joueur) {
    dossier.ecrire("miens.txt", "nez\nwok\nxyste\n");
    auto arguments = recherche("forme=mots");
    arguments.insert(arguments.end(), {"--mots", (dossier.chemin() / "miens.txt").string()});
    EXPECT_EQ(lancer(arguments).sortie, "NEZ\nWOK\nXYSTE\n");
}

TEST_F(Programme, met_les_mots_et_leur_origine_a_cote_des_listes) {
    EXPECT_EQ(lancer(petit(cible())).etat, 0);
    EXPECT_THAT(lu("listes/dictionnaire.dat"), StartsWith("libre\r\n"));
    EXPECT_THAT(lu("listes/mots.dat"), StartsWith("ORVMOTS1"));
    dossier.ecrire("miens.txt", "nez\nwok\n");
    auto arguments = petit(cible());
    arguments.insert(arguments.end(), {"--mots", (dossier.chemin() / "miens.txt").string()});
    EXPECT_EQ(lancer(arguments).etat, 0);
    EXPECT_EQ(lu("listes/dictionnaire.dat"), "perso\r\n2\r\nmiens.txt\r\n");
}

}  // namespace
}  // namespace test_programme
