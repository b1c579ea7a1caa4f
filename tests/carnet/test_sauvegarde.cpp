// A player's folder copied and brought back, stopped at every call of the disk.

#include <fstream>
#include <map>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "dossiertemporaire.h"
#include "sauvegarde.h"

namespace test_sauvegarde {
namespace {

namespace fs = std::filesystem;
using carnet::Issue;
using carnet::Sauvegarde;
using essais::Panne;
using testing::ElementsAre;
using testing::HasSubstr;
using Fichiers = std::map<std::string, std::string>;

constexpr carnet::Jour jour = 18000;  // 14/04/2019

bool oui(int /*millemes*/) {
    return true;
}

const std::string unrecord = "13/04/2019 - 14:35 - 95.3% - T - 3lc.txt\r\n";
const std::string deuxrecords = unrecord + "14/04/2019 - 10:00 - 80% - T - 3lc.txt\r\n";

class Donnees : public testing::Test {
  protected:
    Donnees() { refaire(); }

    /// The play folder with its player, and nothing copied yet.
    void refaire() {
        fs::remove_all(jeu());
        fs::remove_all(ailleurs());
        fs::create_directories(jeu() / u8"Zoé");
        fs::create_directories(ailleurs());
        for (const auto& [nom, octets] : ancien)
            ecrire("jeu/Zoé/" + nom, octets);
    }
    void ecrire(const std::string& chemin, const std::string& octets) const {
        std::ofstream(dossier.chemin() / common::chemin(chemin), std::ios::binary) << octets;
    }
    [[nodiscard]] fs::path jeu() const { return dossier.chemin() / "jeu"; }
    [[nodiscard]] fs::path ailleurs() const { return dossier.chemin() / u8"clé d'été"; }
    [[nodiscard]] fs::path copie() const { return ailleurs() / "Orvane 2019-04-14" / u8"Zoé"; }

    /// The files of a folder, without what a killed program left under way.
    static Fichiers fichiers(const fs::path& ou) {
        Fichiers lus;
        if (!fs::is_directory(ou))
            return lus;
        for (const auto& entree : fs::directory_iterator(ou)) {
            if (!entree.is_regular_file() || entree.path().extension() == ".tmp")
                continue;
            std::ifstream flux(entree.path(), std::ios::binary);
            lus[entree.path().filename().string()] = {std::istreambuf_iterator<char>(flux), {}};
        }
        return lus;
    }
    void copieneuve() {
        fs::create_directories(copie());
        for (const auto& [nom, octets] : neuf)
            ecrire((copie() / nom).lexically_relative(dossier.chemin()).string(), octets);
    }
    /// Does something in a program of its own, with each breakdown at each call in turn.
    template <class Agir, class Voir>
    void balayer(const Agir& agir, const Voir& voir) {
        for (const auto panne :
             {Panne::Avant, Panne::Refus, Panne::Dechirure, Panne::Courte, Panne::Coupure}) {
            int rang = 1;
            for (bool atteinte = true; atteinte; ++rang) {
                ASSERT_LT(rang, 2000);
                refaire();
                preparer();
                constexpr int pasatteinte = 7;
                const int etat = essais::encopie([&] {
                    essais::AppelsDessai appels;
                    appels.prevoir(panne, rang);
                    Sauvegarde sauvegarde(jeu(), appels);
                    const int fini = agir(sauvegarde);
                    return appels.atteinte() ? fini : pasatteinte;
                });
                atteinte = etat != pasatteinte;
                voir(etat, "breakdown " + std::to_string(static_cast<int>(panne)) + " at call " +
                               std::to_string(rang));
                if (HasFatalFailure() || HasNonfatalFailure())
                    return;
            }
            EXPECT_GT(rang, 2);
        }
    }
    virtual void preparer() {}

    const Fichiers ancien{{"hist.dat", unrecord},
                          {"journal.txt", "13/04/2019 - 14:35:10;3lc.txt;T;AEX;AXE;0;\r\n"},
                          {"rev-3lc.txt", "AEX;AXE\r\n"},
                          {"settings.dat", "95\r\n"}};
    const Fichiers neuf{{"hist.dat", deuxrecords}, {"settings.dat", "90\r\n"}};
    essais::DossierTemporaire dossier;
};

TEST_F(Donnees, se_copient_dans_un_dossier_date) {
    fs::create_directory(jeu() / u8"Zoé" / "photos");
    const auto issue = Sauvegarde(jeu()).copier("Zoé", ailleurs(), jour, oui);
    ASSERT_EQ(issue.etat, Issue::Etat::fait) << issue.ennui;
    EXPECT_EQ(issue.dossier, copie());
    EXPECT_EQ(issue.fichiers, 4U);
    EXPECT_THAT(issue.laisses, ElementsAre("photos"));
    EXPECT_EQ(fichiers(copie()), ancien);
    EXPECT_EQ(fichiers(jeu() / u8"Zoé"), ancien);
}

TEST_F(Donnees, une_seconde_copie_du_jour_ne_touche_pas_la_premiere) {
    ASSERT_EQ(Sauvegarde(jeu()).copier("Zoé", ailleurs(), jour, oui).etat, Issue::Etat::fait);
    ecrire("jeu/Zoé/hist.dat", deuxrecords);
    const auto issue = Sauvegarde(jeu()).copier("Zoé", ailleurs(), jour, oui);
    ASSERT_EQ(issue.etat, Issue::Etat::fait) << issue.ennui;
    EXPECT_EQ(issue.dossier, ailleurs() / "Orvane 2019-04-14 (2)" / u8"Zoé");
    EXPECT_EQ(fichiers(copie()), ancien);
    EXPECT_EQ(fichiers(issue.dossier)["hist.dat"], deuxrecords);
}

TEST_F(Donnees, une_copie_annulee_ne_laisse_rien) {
    const auto issue =
        Sauvegarde(jeu()).copier("Zoé", ailleurs(), jour, [](int faits) { return faits < 500; });
    EXPECT_EQ(issue.etat, Issue::Etat::arrete);
    EXPECT_TRUE(fs::is_empty(ailleurs()));
}

TEST_F(Donnees, un_joueur_sans_dossier_ou_une_destination_dedans_sont_refuses) {
    EXPECT_THAT(Sauvegarde(jeu()).copier("Paul", ailleurs(), jour, oui).ennui,
                HasSubstr("Pas de joueur « Paul »"));
    EXPECT_THAT(Sauvegarde(jeu()).copier("..", ailleurs(), jour, oui).ennui,
                HasSubstr("Pas de joueur"));
    EXPECT_THAT(Sauvegarde(jeu()).copier("Zoé", jeu() / u8"Zoé", jour, oui).ennui,
                HasSubstr("choisissez-en un autre"));
    EXPECT_THAT(Sauvegarde(jeu()).copier("Zoé", ailleurs() / "nulle part", jour, oui).ennui,
                HasSubstr("nulle part"));
    EXPECT_EQ(fichiers(jeu() / u8"Zoé"), ancien);
}

TEST_F(Donnees, copiees_et_arretees_a_tout_moment_sont_toutes_la) {
    balayer(
        [&](Sauvegarde& s) {
            return s.copier("Zoé", ailleurs(), jour, oui).etat == Issue::Etat::fait ? 0 : 1;
        },
        [&](int etat, const std::string& ou) {
            EXPECT_EQ(fichiers(jeu() / u8"Zoé"), ancien) << ou;
            // A copy that bears the player's name is whole.
            const auto seconde = ailleurs() / "Orvane 2019-04-14 (2)" / u8"Zoé";
            for (const auto& faite : {copie(), seconde})
                EXPECT_TRUE(!fs::exists(faite) || fichiers(faite) == ancien) << ou;
            EXPECT_TRUE(etat != 0 || fs::exists(copie()) || fs::exists(seconde)) << ou;
        });
}

TEST_F(Donnees, reviennent_a_leur_place_et_les_anciennes_restent) {
    copieneuve();
    const auto vu = Sauvegarde(jeu()).examiner(copie());
    EXPECT_EQ(vu.ennui, "");
    EXPECT_EQ(vu.util, "Zoé");
    EXPECT_TRUE(vu.existe);
    const auto issue = Sauvegarde(jeu()).remettre(copie(), jour, oui);
    ASSERT_EQ(issue.etat, Issue::Etat::fait) << issue.ennui;
    EXPECT_EQ(fichiers(jeu() / u8"Zoé"), neuf);
    EXPECT_EQ(issue.ancien, jeu() / u8"Zoé avant le 2019-04-14");
    EXPECT_EQ(fichiers(issue.ancien), ancien);
}

TEST_F(Donnees, reviennent_sur_une_machine_ou_le_joueur_n_est_pas) {
    copieneuve();
    fs::remove_all(jeu() / u8"Zoé");
    EXPECT_FALSE(Sauvegarde(jeu()).examiner(copie()).existe);
    const auto issue = Sauvegarde(jeu()).remettre(copie() / "", jour, oui);
    ASSERT_EQ(issue.etat, Issue::Etat::fait) << issue.ennui;
    EXPECT_EQ(fichiers(jeu() / u8"Zoé"), neuf);
    EXPECT_TRUE(issue.ancien.empty());
}

struct Casderetour {
    const char* nom;
    Fichiers ici;
    Fichiers la;
    bool risque;
};
void PrintTo(const Casderetour& cas, std::ostream* sortie) {
    *sortie << cas.nom;
}
class Retours : public Donnees, public testing::WithParamInterface<Casderetour> {};

TEST_P(Retours, demandent_ou_non) {
    fs::remove_all(jeu() / u8"Zoé");
    fs::create_directories(jeu() / u8"Zoé");
    fs::create_directories(copie());
    for (const auto& [nom, octets] : GetParam().ici)
        ecrire("jeu/Zoé/" + nom, octets);
    for (const auto& [nom, octets] : GetParam().la)
        ecrire((copie() / nom).lexically_relative(dossier.chemin()).string(), octets);
    const auto vu = Sauvegarde(jeu()).examiner(copie());
    EXPECT_EQ(vu.ennui, "");
    EXPECT_EQ(vu.risque, GetParam().risque);
    EXPECT_EQ(vu.identique, GetParam().ici == GetParam().la);
}

const Fichiers nus{{"hist.dat", unrecord}, {"settings.dat", "95"}};
const Casderetour lesretours[] = {
    {"les_memes", nus, nus, false},
    {"la_copie_continue_ce_qui_est_ici",
     nus,
     {{"hist.dat", deuxrecords}, {"settings.dat", "90"}, {"rev-a.txt", "A;B"}},
     false},
    {"ici_va_plus_loin", {{"hist.dat", deuxrecords}, {"settings.dat", "95"}}, nus, true},
    {"le_journal_d_ici_va_plus_loin",
     {{"hist.dat", unrecord}, {"journal.txt", "x"}, {"settings.dat", "95"}},
     nus,
     true},
    {"les_memes_resultats_et_une_revision_de_plus_ici",
     {{"hist.dat", unrecord}, {"rev-a.txt", "A;B"}, {"settings.dat", "95"}},
     nus,
     true},
    {"deux_chemins_differents",
     {{"hist.dat", "14/04/2019 - 11:00 - 1% - T - a.txt\r\n"}, {"settings.dat", "95"}},
     nus,
     true},
};
INSTANTIATE_TEST_SUITE_P(Sauvegarde, Retours, testing::ValuesIn(lesretours),
                         [](const auto& cas) { return cas.param.nom; });

TEST_F(Donnees, disent_jusqu_ou_va_chaque_cote) {
    copieneuve();
    const auto vu = Sauvegarde(jeu()).examiner(copie());
    EXPECT_EQ(vu.icijusqua, "13/04/2019");
    EXPECT_EQ(vu.copiejusqua, "14/04/2019");
}

TEST_F(Donnees, ce_qui_n_est_pas_une_copie_est_refuse) {
    fs::create_directories(ailleurs() / "listes");
    EXPECT_THAT(Sauvegarde(jeu()).examiner(ailleurs()).ennui,
                HasSubstr("pas la copie d'un joueur"));
    EXPECT_THAT(Sauvegarde(jeu()).examiner(ailleurs() / "rien").ennui, HasSubstr("rien"));
    ecrire("clé d'été/listes/hist.dat", "");
    ecrire("clé d'été/listes/settings.dat", "");
    EXPECT_THAT(Sauvegarde(jeu()).examiner(ailleurs() / "listes").ennui,
                HasSubstr("ne peut être le nom d'un joueur"));
    EXPECT_THAT(Sauvegarde(jeu()).examiner(jeu() / u8"Zoé").ennui, HasSubstr("du jeu lui-même"));
    EXPECT_EQ(Sauvegarde(jeu()).remettre(ailleurs() / "listes", jour, oui).etat,
              Issue::Etat::refuse);
}

class Retour : public Donnees {
    void preparer() override { copieneuve(); }
};

TEST_F(Retour, arrete_a_tout_moment_ne_perd_ni_l_ancien_ni_le_neuf) {
    balayer(
        [&](Sauvegarde& s) {
            return s.remettre(copie(), jour, oui).etat == Issue::Etat::fait ? 0 : 1;
        },
        [&](int etat, const std::string& ou) {
            EXPECT_EQ(fichiers(copie()), neuf) << ou;
            // The next start ends what can be ended.
            static_cast<void>(Sauvegarde(jeu()).achever());
            const auto enjeu = fichiers(jeu() / u8"Zoé");
            // A name that the disk refuses to tell of is passed over for the next one.
            auto avant = fichiers(jeu() / u8"Zoé avant le 2019-04-14");
            if (avant.empty())
                avant = fichiers(jeu() / u8"Zoé avant le 2019-04-14 (2)");
            EXPECT_TRUE(enjeu == ancien || enjeu == neuf) << ou;
            EXPECT_TRUE(enjeu == ancien || avant == ancien) << ou;
            if (etat == 0) {
                EXPECT_EQ(enjeu, neuf) << ou;
                EXPECT_EQ(avant, ancien) << ou;
            }
        });
}

TEST_F(Donnees, un_retour_qui_attend_sa_place_est_dit) {
    fs::create_directories(jeu() / common::chemin(carnet::dossierenattente("Zoé")));
    fs::create_directories(jeu() / common::chemin(carnet::dossierenattente("Paul")));
    EXPECT_THAT(Sauvegarde(jeu()).achever(), ElementsAre("Zoé"));
    EXPECT_TRUE(fs::is_directory(jeu() / "Paul"));
    EXPECT_EQ(fichiers(jeu() / u8"Zoé"), ancien);
}

}  // namespace
}  // namespace test_sauvegarde
