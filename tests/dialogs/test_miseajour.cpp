#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "adresses.h"
#include "lignes.h"
#include "miseajour.h"
#include "textesmiseajour.h"
#include "voisinage.h"

namespace test_miseajour {
namespace {

using namespace essai;
using testing::HasSubstr;

const std::string version(common::adresses::version);
const std::string lien(common::adresses::lien);
const std::string page(common::adresses::telechargement);
const std::string installeur = "https://ailleurs.example/orvane_setup.exe";

const std::string chercherversion = "telecharger " + version + " > version_en_ligne.txt";
const std::string chercherlien = "telecharger " + lien + " > downloadlink.txt";
const std::string chercherinstalleur = "telecharger " + installeur + " > orvane_setup.exe";
const std::string ouvrirpage = "ouvrir " + page;
Journal suite(const Journal& debut, const Journal& fin) {
    Journal tout = debut;
    tout.insert(tout.end(), fin.begin(), fin.end());
    return tout;
}

class MiseAJour : public testing::Test {
  protected:
    essai::Voisinage v;

    Journal verifier() {
        v.plateforme.executer(
            [&] { dialogs::MiseAJour(v.plateforme, v.form3, v.menu).verifier(); });
        return v.relever();
    }
    void publier(const std::string& contenu) { v.plateforme.reseau[version] = contenu; }
    /// The journal up to the moment when the link is asked for.
    static Journal jusquaulien() {
        return {chercherversion,
                proposer("2.7"),
                debuttelechargement,
                "menu pointeur attente",
                "aide Téléchargement en cours",
                "laisser courir",
                chercherlien};
    }
    void toutpublier() {
        publier("2.7\r\n");
        v.plateforme.reseau[lien] = installeur + "\r\n";
        v.plateforme.reseau[installeur] = "MZ";
    }
};

TEST_F(MiseAJour, sans_serveur_la_page_s_ouvre) {
    EXPECT_EQ(verifier(), (Journal{chercherversion, echecverification, ouvrirpage}));
    EXPECT_FALSE(v.plateforme.fini());
}

TEST_F(MiseAJour, une_version_de_trop_ne_compte_que_sa_premiere_ligne) {
    publier("2.68\r\n2.7\r\n");
    EXPECT_EQ(verifier(), (Journal{chercherversion, ajour}));
}

TEST_F(MiseAJour, le_fichier_de_version_reste_dans_le_dossier) {
    publier("2.68\r\n");
    verifier();
    EXPECT_EQ(v.plateforme.lesfichiers.fichiers["version_en_ligne.txt"], "2.68\r\n");
}

TEST_F(MiseAJour, un_fichier_de_version_illisible_est_une_faute) {
    publier("2.7\r\n");
    v.plateforme.lesfichiers.refuses.insert("version_en_ligne.txt");
    EXPECT_EQ(verifier(), (Journal{chercherversion, "fin 1"}));
    EXPECT_THAT(v.plateforme.rapport, HasSubstr("version_en_ligne.txt"));
}

TEST_F(MiseAJour, les_plus_grands_fichiers_permis_se_lisent) {
    toutpublier();
    v.plateforme.reseau.erase(installeur);  // or else the program ends
    verifier();
    const auto taille = static_cast<std::size_t>(v.plateforme.exigences["downloadlink.txt"].taille);
    auto longue = std::string("2.7");
    longue.resize(taille, '0');
    publier(longue);
    v.plateforme.reseau[lien] = std::string(taille, 'x');
    EXPECT_THAT(verifier(), testing::Contains("telecharger " + v.plateforme.reseau[lien] +
                                              " > orvane_setup.exe"));
    EXPECT_EQ(v.plateforme.rapport, "");
}

TEST_F(MiseAJour, refusee_s_arrete_la) {
    publier("2.7\r\n");
    v.plateforme.reponse = ui::Reponse::Non;
    EXPECT_EQ(verifier(), (Journal{chercherversion, proposer("2.7")}));
}

TEST_F(MiseAJour, lien_absent_laisse_le_pointeur_d_attente) {
    publier("2.7\r\n");
    EXPECT_EQ(verifier(), suite(jusquaulien(), {echeclien, ouvrirpage}));
}

TEST_F(MiseAJour, lien_sans_ligne_finit_sans_un_mot) {
    publier("2.7\r\n");
    v.plateforme.reseau[lien] = "";
    EXPECT_EQ(verifier(), jusquaulien());
    EXPECT_FALSE(v.plateforme.fini());
}

TEST_F(MiseAJour, lien_illisible_finit_sans_un_mot) {
    toutpublier();
    v.plateforme.lesfichiers.refuses.insert("downloadlink.txt");
    EXPECT_EQ(verifier(), jusquaulien());
    EXPECT_FALSE(v.plateforme.fini());
}

TEST_F(MiseAJour, lien_d_une_ligne_vide_est_une_adresse_qui_echoue) {
    publier("2.7\r\n");
    v.plateforme.reseau[lien] = "\r\n";
    EXPECT_EQ(verifier(),
              suite(jusquaulien(), {"telecharger  > orvane_setup.exe", "menu pointeur normal",
                                    echecinstalleur, ouvrirpage}));
}

TEST_F(MiseAJour, installeur_absent_rend_le_pointeur) {
    toutpublier();
    v.plateforme.reseau.erase(installeur);
    EXPECT_EQ(verifier(), suite(jusquaulien(), {chercherinstalleur, "menu pointeur normal",
                                                echecinstalleur, ouvrirpage}));
}

TEST_F(MiseAJour, telechargee_ouvre_l_installeur_et_finit_le_programme) {
    toutpublier();
    EXPECT_EQ(verifier(),
              suite(jusquaulien(), {chercherinstalleur, "menu pointeur normal", aurevoir,
                                    "ouvrir orvane_setup.exe", "laisser courir", "fin 0"}));
    EXPECT_EQ(v.plateforme.statut(), 0);
    EXPECT_FALSE(v.plateforme.lesfichiers.existe("downloadlink.txt"));
    EXPECT_FALSE(v.plateforme.lesfichiers.existe("version_en_ligne.txt"));
    EXPECT_TRUE(v.plateforme.lesfichiers.existe("orvane_setup.exe"));
}

TEST_F(MiseAJour, le_lien_et_l_installeur_ne_viennent_que_d_une_adresse_sure) {
    toutpublier();
    verifier();
    auto& exigences = v.plateforme.exigences;
    EXPECT_FALSE(exigences["version_en_ligne.txt"].sure);
    EXPECT_TRUE(exigences["downloadlink.txt"].sure);
    EXPECT_TRUE(exigences["orvane_setup.exe"].sure);
    EXPECT_LT(exigences["version_en_ligne.txt"].taille, 1 << 20);
    EXPECT_LT(exigences["downloadlink.txt"].taille, 1 << 20);
    EXPECT_GT(exigences["orvane_setup.exe"].taille, 100 << 20);
}

TEST_F(MiseAJour, la_seconde_ligne_de_la_version_est_la_somme_de_l_installeur) {
    toutpublier();
    v.plateforme.reseau.erase(installeur);  // or else the program ends
    verifier();
    ASSERT_TRUE(v.plateforme.exigences.contains("orvane_setup.exe"));
    EXPECT_EQ(v.plateforme.exigences["orvane_setup.exe"].somme, std::nullopt);
    publier("2.7\r\n0A1B\r\nautre ligne\r\n");
    verifier();
    EXPECT_EQ(v.plateforme.exigences["orvane_setup.exe"].somme, "0A1B");
    EXPECT_EQ(v.plateforme.exigences["downloadlink.txt"].somme, std::nullopt);
    publier("2.7\r\n\r\n");
    verifier();
    EXPECT_EQ(v.plateforme.exigences["orvane_setup.exe"].somme, "");
}

TEST_F(MiseAJour, suppression_refusee_laisse_le_programme_ouvert) {
    for (const auto* fichier : {"downloadlink.txt", "version_en_ligne.txt"}) {
        v.plateforme.lesfichiers.indestructibles.clear();
        toutpublier();
        v.plateforme.reseau[lien] = installeur;
        // Only the deletion may fail: the link is read before.
        v.plateforme.lesfichiers.indestructibles.insert(fichier);
        EXPECT_EQ(verifier(), suite(jusquaulien(), {chercherinstalleur, "menu pointeur normal",
                                                    aurevoir, "ouvrir orvane_setup.exe"}))
            << fichier;
        EXPECT_FALSE(v.plateforme.fini());
    }
}

TEST_F(MiseAJour, les_deux_dossiers_sont_deux_notions) {
    v.plateforme.dossier = R"(C:\Jeux\Orvane\)";
    toutpublier();
    const auto journal = verifier();
    EXPECT_EQ(journal.front(),
              "telecharger " + version + R"( > C:\Jeux\Orvane\version_en_ligne.txt)");
    EXPECT_THAT(journal, testing::Contains(chercherinstalleur));
    EXPECT_EQ(journal.back(), R"(ouvrir C:\Jeux\Orvane\orvane_setup.exe)");
    EXPECT_FALSE(v.plateforme.fini()) << "version_en_ligne.txt is not in the working folder";
}

/// A published line against the program's "2.68".
struct Publiee {
    const char* nom;
    const char* contenu;
    const char* proposee;  ///< the version as the question shows it; null: up to date
};

void PrintTo(const Publiee& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}

class Comparaison : public MiseAJour, public testing::WithParamInterface<Publiee> {};

TEST_P(Comparaison, de_nombres) {
    const auto& [nom, contenu, proposee] = GetParam();
    publier(contenu);
    v.plateforme.reponse = ui::Reponse::Non;
    EXPECT_EQ(verifier(),
              (Journal{chercherversion, proposee != nullptr ? proposer(proposee) : ajour}));
}

const Publiee publiees[] = {
    {"meme_texte", "2.68\r\n", nullptr},
    {"meme_nombre", "2.680\r\n", nullptr},
    {"blancs_devant", "  2.68\r\n", nullptr},
    {"suite_de_texte", "2.68 beta\r\n", nullptr},
    {"sans_fin_de_ligne", "2.68", nullptr},
    {"saut_de_ligne_seul", "2.68\n", nullptr},
    {"plus_recente", "2.7\r\n", "2.7"},
    {"plus_ancienne", "2.6\r\n", "2.6"},
    {"virgule", "2,68\r\n", "2,68"},
    {"fichier_vide", "", ""},
    {"ligne_vide", "\r\n2.68\r\n", ""},
    {"page_d_erreur", "<html>\r\n", "<html>"},
    {"accent_de_la_page_de_code",
     "2.7 d\xE9"
     "finitive\r\n",
     "2.7 définitive"},
};

INSTANTIATE_TEST_SUITE_P(MiseAJour, Comparaison, testing::ValuesIn(publiees),
                         essai::nommer<Publiee>);

}  // namespace
}  // namespace test_miseajour
