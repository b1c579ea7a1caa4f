// Timers: the second, its grid and its order, on a clock that the test moves.

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "minuteur.h"
#include "plateformesimulee.h"

namespace test_minuteur {
namespace {

class Minuteries : public testing::Test {
  protected:
    Minuteries() : forme(plateforme, "Form1") {
        for (const char* nom : {"Timer1", "Timer2", "Timer3"}) {
            auto& minuterie = forme.ajouterminuterie(nom);
            minuterie.tic = [this, nom] {
                tics.push_back(nom + std::string("@") + std::to_string(heure));
            };
            minuteries.push_back(&minuterie);
        }
        minuteur.accueillir(forme);
    }
    void aller(std::int64_t instant) {
        heure = instant;
        minuteur.echoir();
    }
    std::vector<std::string> lire() { return std::exchange(tics, {}); }

    using Tics = std::vector<std::string>;
    std::int64_t heure = 0;
    std::vector<std::string> tics;
    banc::PlateformeSimulee plateforme{"."};
    ui::Formulaire forme;
    std::vector<ui::Minuterie*> minuteries;
    ui::qt::Minuteur minuteur{[this](const auto& evenement) { plateforme.executer(evenement); },
                              [this] { return heure; }};
};

TEST_F(Minuteries, rien_ne_bat_avant_la_seconde) {
    minuteries[0]->actif = true;
    aller(900);
    EXPECT_EQ(lire(), Tics{});
    aller(1000);
    EXPECT_EQ(lire(), Tics{"Timer1@1000"});
    aller(1500);
    EXPECT_EQ(lire(), Tics{});
}

TEST_F(Minuteries, les_tics_d_un_meme_moment_viennent_dans_l_ordre_de_la_forme) {
    minuteries[2]->actif = true;
    minuteries[1]->actif = true;
    heure = 3;
    minuteries[0]->actif = true;
    aller(1000);
    EXPECT_EQ(lire(), (Tics{"Timer1@1000", "Timer2@1000", "Timer3@1000"}));
}

TEST_F(Minuteries, un_tic_en_retard_ne_decale_pas_les_suivants) {
    minuteries[0]->actif = true;
    aller(1400);
    EXPECT_EQ(lire(), Tics{"Timer1@1400"});
    aller(1990);
    EXPECT_EQ(lire(), Tics{"Timer1@1990"});
    aller(2900);
    EXPECT_EQ(lire(), Tics{});
    aller(3000);
    EXPECT_EQ(lire(), Tics{"Timer1@3000"});
}

TEST_F(Minuteries, ce_qu_une_longue_operation_a_retenu_ne_bat_qu_une_fois) {
    minuteries[0]->actif = true;
    aller(4600);
    EXPECT_EQ(lire(), Tics{"Timer1@4600"});
    aller(5000);
    EXPECT_EQ(lire(), Tics{"Timer1@5000"});
}

TEST_F(Minuteries, relancer_commence_une_seconde_neuve) {
    minuteries[0]->actif = true;
    heure = 800;
    minuteries[0]->actif = false;
    minuteries[0]->actif = true;
    aller(1700);
    EXPECT_EQ(lire(), Tics{});
    aller(1800);
    EXPECT_EQ(lire(), Tics{"Timer1@1800"});
}

TEST_F(Minuteries, une_minuterie_arretee_par_un_tic_du_meme_moment_se_tait) {
    minuteries[0]->actif = true;
    minuteries[1]->actif = true;
    minuteries[0]->tic = [this] { minuteries[1]->actif = false; };
    aller(1000);
    EXPECT_EQ(lire(), Tics{});
}

TEST_F(Minuteries, une_minuterie_lancee_par_un_tic_attend_sa_seconde) {
    minuteries[0]->actif = true;
    minuteries[0]->tic = [this] { minuteries[1]->actif = true; };
    aller(1000);
    EXPECT_EQ(lire(), Tics{});
    aller(2000);
    EXPECT_EQ(lire(), Tics{"Timer2@2000"});
}

TEST_F(Minuteries, le_silence_retient_les_tics) {
    minuteries[0]->actif = true;
    {
        const ui::qt::Minuteur::Silence silence(minuteur);
        aller(1000);
        aller(2000);
        EXPECT_EQ(lire(), Tics{});
    }
    aller(2100);
    EXPECT_EQ(lire(), Tics{"Timer1@2100"});
}

TEST_F(Minuteries, une_minuterie_faite_plus_tard_bat_a_sa_place) {
    ui::Formulaire autre(plateforme, "Multi");
    const auto suivre = [this](ui::Formulaire& celle, const char* nom) -> ui::Minuterie& {
        auto& minuterie = celle.ajouterminuterie(nom);
        minuterie.tic = [this, nom] { tics.emplace_back(nom); };
        return minuterie;
    };
    suivre(autre, "Autre").actif = true;
    minuteur.accueillir(autre);
    suivre(forme, "Timer4").actif = true;
    aller(900);
    EXPECT_EQ(lire(), Tics{});
    aller(1000);
    EXPECT_EQ(lire(), (Tics{"Timer4", "Autre"}));
    minuteur.oublier(autre);
}

TEST_F(Minuteries, une_forme_qui_s_en_va_emporte_ses_minuteries) {
    minuteries[0]->actif = true;
    minuteur.oublier(forme);
    aller(1000);
    EXPECT_EQ(lire(), Tics{});
    EXPECT_FALSE(minuteries[0]->surchangement);
    EXPECT_FALSE(forme.surminuterie);
}

}  // namespace
}  // namespace test_minuteur
