#include <algorithm>
#include <map>
#include <set>

#include <gmock/gmock.h>

#include "appelsdessai.h"
#include "faute.h"
#include "installe.h"
#include "preparation.h"
#include "rafraichissement.h"

namespace test_rafraichissement {
namespace {

using Contenu = essais::Installe::Contenu;

class Rafraichir : public testing::Test {
  protected:
    void demarrer() { static_cast<void>(installation::preparer(appels, installe.environs())); }
    /// What is brought to the play folder, whatever version it has, as by hand.
    installation::Bilan apporter() {
        return installation::rafraichir(common::appelsdusysteme(), installe.fournis(),
                                        installe.jeu(),
                                        installation::inventorier(installe.fournis()));
    }

    essais::Installe installe;
    essais::AppelsDessai appels;
};

TEST_F(Rafraichir, la_premiere_fois_fait_le_dossier_et_ceux_au_dessus) {
    installe.installer({{"listes/7v5.txt", "un"}, {"images/a b.bmp", "un"}, {"APP05.WAV", "un"}});
    demarrer();
    EXPECT_EQ(installe.contenu(),
              (Contenu{{"listes/7v5.txt", "un"}, {"images/a b.bmp", "un"}, {"APP05.WAV", "un"}}));
    EXPECT_FALSE(std::filesystem::exists(installe.jeu() / installation::dossierattente));
}

struct Regle {
    const char* nom;
    const char* avant;   ///< what an earlier version brought; empty: nothing
    const char* joueur;  ///< what the player has put in its place; empty: nothing
    const char* attendu;
};
class Regles : public Rafraichir, public testing::WithParamInterface<Regle> {};
TEST_P(Regles, ce_que_le_joueur_a_change_reste) {
    const auto& regle = GetParam();
    Contenu avant{{"listes/autre.txt", "autre"}};
    if (*regle.avant != '\0')
        avant["listes/7v5.txt"] = regle.avant;
    installe.installer(avant);
    demarrer();
    if (*regle.joueur != '\0')
        installe.jouer("listes/7v5.txt", regle.joueur);
    installe.installer({{"listes/autre.txt", "autre"}, {"listes/7v5.txt", "neuf"}});
    demarrer();
    EXPECT_EQ(installe.contenu(),
              (Contenu{{"listes/autre.txt", "autre"}, {"listes/7v5.txt", regle.attendu}}));
}
INSTANTIATE_TEST_SUITE_P(Rafraichir, Regles,
                         testing::Values(Regle{"apporte_avant", "un", "", "neuf"},
                                         Regle{"change", "un", "joueur", "joueur"},
                                         Regle{"fait_avant", "", "joueur", "joueur"},
                                         Regle{"nouveau", "", "", "neuf"},
                                         Regle{"remis_comme_avant", "un", "un", "neuf"},
                                         Regle{"pareil", "neuf", "", "neuf"}),
                         [](const auto& rangee) { return rangee.param.nom; });

TEST_F(Rafraichir, ne_touche_pas_ce_qui_n_est_que_chez_le_joueur) {
    installe.installer({{"listes/7v5.txt", "un"}, {"listes/vieux.txt", "un"}});
    demarrer();
    installe.jouer("users.dat", "Anne");
    installe.jouer("listes/perso.txt", "AB;BA");
    installe.installer({{"listes/7v5.txt", "deux"}});
    demarrer();
    EXPECT_EQ(installe.contenu(), (Contenu{{"listes/7v5.txt", "deux"},
                                           {"listes/vieux.txt", "un"},
                                           {"users.dat", "Anne"},
                                           {"listes/perso.txt", "AB;BA"}}));
}

TEST_F(Rafraichir, ne_fait_rien_pour_la_version_qui_est_la) {
    installe.installer({{"listes/7v5.txt", "un"}});
    demarrer();
    std::filesystem::remove(installe.jeu() / "listes/7v5.txt");
    appels.journal.clear();
    demarrer();
    EXPECT_EQ(installe.contenu(), Contenu{});
    for (const auto* change : {"ecrire", "renommer", "nommer", "supprimer", "creerdossier",
                               "synchroniser", "verrouiller", "lister"})
        EXPECT_EQ(std::count(appels.journal.begin(), appels.journal.end(), change), 0) << change;
    EXPECT_LE(appels.journal.size(), 15U) << "a start is to cost nothing";
}

TEST_F(Rafraichir, une_liste_otee_revient_a_la_version_suivante) {
    installe.installer({{"listes/7v5.txt", "un"}});
    demarrer();
    std::filesystem::remove(installe.jeu() / "listes/7v5.txt");
    installe.installer({{"listes/7v5.txt", "un"}, {"APP05.WAV", "un"}});
    demarrer();
    EXPECT_EQ(installe.contenu(), (Contenu{{"listes/7v5.txt", "un"}, {"APP05.WAV", "un"}}));
}

TEST_F(Rafraichir, le_dictionnaire_du_joueur_garde_tout_ce_qui_est_fait_de_mots) {
    const Contenu avant{{"listes/dictionnaire.dat", "libre"},
                        {"listes/7v5.txt", "un"},
                        {"infosouris.txt", "un"},
                        {"images/7l_6anagrammes.png", "un"},
                        {"images/a.bmp", "un"}};
    installe.installer(avant);
    demarrer();
    installe.jouer("listes/dictionnaire.dat", "perso");
    auto apres = avant;
    for (auto& [nom, octets] : apres)
        octets = "deux";
    apres["listes/neuve.txt"] = "deux";
    installe.installer(apres);
    demarrer();
    auto attendu = avant;
    attendu["listes/dictionnaire.dat"] = "perso";
    attendu["images/a.bmp"] = "deux";
    attendu["listes/neuve.txt"] = "deux";
    EXPECT_EQ(installe.contenu(), attendu);
    // Back to the lists as the program brings them.
    installe.jouer("listes/dictionnaire.dat", "libre");
    EXPECT_FALSE(apporter().dictionnaireperso);
    EXPECT_EQ(installe.contenu(), apres);
}

TEST_F(Rafraichir, dit_ce_qui_reste) {
    installe.installer({{"listes/7v5.txt", "un"}, {"listes/8v5.txt", "un"}});
    demarrer();
    installe.jouer("listes/8v5.txt", "joueur");
    installe.installer({{"listes/7v5.txt", "deux"}, {"listes/8v5.txt", "deux"}});
    const auto bilan = apporter();
    EXPECT_EQ(bilan.apportes, 1U);
    EXPECT_THAT(bilan.gardes, testing::ElementsAre("listes\\8v5.txt"));
}

TEST_F(Rafraichir, un_fichier_installe_abime_ne_change_rien) {
    installe.installer({{"listes/7v5.txt", "un"}, {"listes/8v5.txt", "un"}});
    demarrer();
    const auto avant = installe.contenu();
    installe.installer({{"listes/7v5.txt", "deux"}, {"listes/8v5.txt", "deux"}});
    common::DisqueReel fournis(installe.fournis());
    ASSERT_FALSE(fournis.remplacer("listes\\8v5.txt", "de"));
    EXPECT_THROW(demarrer(), common::Faute);
    EXPECT_EQ(installe.contenu(), avant);
    ASSERT_FALSE(fournis.remplacer("listes\\8v5.txt", "deux"));
    demarrer();
    EXPECT_EQ(installe.lire("listes/8v5.txt"), "deux");
}

TEST_F(Rafraichir, ce_qui_ne_se_lit_pas_reste) {
    installe.installer({{"listes/7v5.txt", "un"}, {"APP05.WAV", "un"}});
    std::filesystem::create_directories(installe.jeu() / "APP05.WAV");
    demarrer();
    EXPECT_TRUE(std::filesystem::is_directory(installe.jeu() / "APP05.WAV"));
    EXPECT_EQ(installe.contenu(), (Contenu{{"listes/7v5.txt", "un"}}));
}

TEST_F(Rafraichir, un_fichier_a_la_place_d_un_dossier_est_une_faute) {
    installe.installer({{"listes/7v5.txt", "un"}});
    installe.jouer("listes", "un fichier");
    EXPECT_THROW(demarrer(), common::Faute);
    EXPECT_EQ(installe.lire("listes"), "un fichier");
}

TEST_F(Rafraichir, de_nombreux_fichiers_arrivent_tous) {
    Contenu contenu;
    for (int i = 0; i < 250; ++i)
        contenu["listes/" + std::to_string(i) + ".txt"] = std::to_string(i);
    installe.installer(contenu);
    demarrer();
    EXPECT_EQ(installe.contenu(), contenu);
}

class AppelsPleins : public essais::AppelsDessai {
  public:
    std::error_code ecrire(common::Poignee poignee, std::string_view octets,
                           std::size_t& ecrits) override {
        if (--reste < 0)
            return std::make_error_code(std::errc::no_space_on_device);
        return AppelsDessai::ecrire(poignee, octets, ecrits);
    }
    int reste = 1;  ///< writes that go well
};

TEST_F(Rafraichir, un_disque_plein_ne_garde_rien_de_l_essai) {
    installe.installer({{"listes/7v5.txt", "un"}, {"listes/8v5.txt", "un"}});
    AppelsPleins pleins;
    EXPECT_THROW(static_cast<void>(installation::preparer(pleins, installe.environs())),
                 common::Faute);
    EXPECT_LT(pleins.reste, 0);
    EXPECT_FALSE(std::filesystem::exists(installe.jeu() / installation::dossierattente));
    EXPECT_EQ(installe.contenu(), Contenu{});
}

/// Counts what takes its place before its bytes would survive a power cut, and the play folder's
/// version that would come back then.
class AppelsPrudents : public essais::AppelsDessai {
  public:
    std::error_code ouvrir(const Chemin& chemin, common::Ouverture mode,
                           common::Poignee& poignee) override {
        const auto erreur = AppelsDessai::ouvrir(chemin, mode, poignee);
        if (!erreur)
            noms_[poignee] = chemin;
        return erreur;
    }
    std::error_code ecrire(common::Poignee poignee, std::string_view octets,
                           std::size_t& ecrits) override {
        sales_.insert(noms_[poignee]);
        return AppelsDessai::ecrire(poignee, octets, ecrits);
    }
    std::error_code synchroniser(common::Poignee poignee) override {
        sales_.erase(noms_[poignee]);
        return AppelsDessai::synchroniser(poignee);
    }
    std::error_code supprimer(const Chemin& chemin) override {
        if (chemin.filename() == installation::fichierversion)
            sales_.insert(chemin.parent_path());
        return AppelsDessai::supprimer(chemin);
    }
    std::error_code synchroniserdossier(const Chemin& dossier) override {
        sales_.erase(dossier);
        return AppelsDessai::synchroniserdossier(dossier);
    }
    std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
        const bool enattente = ancien.parent_path().filename() == installation::dossierattente;
        places += enattente ? 1 : 0;
        trop_tot += sales_.contains(ancien) ? 1 : 0;
        trop_tot += enattente && sales_.contains(ancien.parent_path().parent_path()) ? 1 : 0;
        return AppelsDessai::renommer(ancien, nouveau);
    }
    int places = 0;
    int trop_tot = 0;

  private:
    std::map<common::Poignee, Chemin> noms_;
    std::set<Chemin> sales_;
};

TEST_F(Rafraichir, rien_ne_prend_sa_place_avant_d_etre_sur_le_disque) {
    AppelsPrudents prudents;
    for (const auto* octets : {"un", "deux"}) {
        Contenu contenu;
        for (int i = 0; i < 150; ++i)
            contenu["listes/" + std::to_string(i) + ".txt"] = octets;
        installe.installer(contenu);
        static_cast<void>(installation::preparer(prudents, installe.environs()));
    }
    EXPECT_EQ(prudents.places, 300);
    EXPECT_EQ(prudents.trop_tot, 0);
}

TEST_F(Rafraichir, ce_qui_attendait_d_une_fois_coupee_s_en_va) {
    installe.installer({{"listes/7v5.txt", "un"}});
    installe.jouer(".nouveautes/0", "d'une autre fois");
    installe.jouer(".nouveautes/1", "d'une autre fois");
    demarrer();
    EXPECT_EQ(installe.lire("listes/7v5.txt"), "un");
    EXPECT_FALSE(std::filesystem::exists(installe.jeu() / installation::dossierattente));
}

/// The lists are on another disk: nothing is renamed to there.
class AppelsAilleurs : public essais::AppelsDessai {
  public:
    std::error_code renommer(const Chemin& ancien, const Chemin& nouveau) override {
        return ancien.parent_path() == nouveau.parent_path()
                   ? AppelsDessai::renommer(ancien, nouveau)
                   : std::make_error_code(std::errc::cross_device_link);
    }
};

TEST_F(Rafraichir, des_listes_sur_un_autre_disque_sont_apportees) {
    AppelsAilleurs ailleurs;
    for (const auto* contenu : {"un", "deux"}) {
        installe.installer({{"listes/7v5.txt", contenu}});
        static_cast<void>(installation::preparer(ailleurs, installe.environs()));
        EXPECT_EQ(installe.contenu(), (Contenu{{"listes/7v5.txt", contenu}}));
    }
    EXPECT_FALSE(std::filesystem::exists(installe.jeu() / installation::dossierattente));
}

}  // namespace
}  // namespace test_rafraichissement
