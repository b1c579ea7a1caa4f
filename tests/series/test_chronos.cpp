#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "chronos.h"
#include "dossier.h"
#include "faute.h"
#include "plateformesimulee.h"

namespace test_chronos {
namespace {

using testing::HasSubstr;
using testing::ThrowsMessage;

const auto regle = [](const auto& cas) { return cas.param.regle; };

struct Texte {
    const char* regle;
    std::int32_t secondes;
    const char* texte;
};

class Serie : public testing::TestWithParam<Texte> {};

TEST_P(Serie, s_ecrit) {
    EXPECT_EQ(series::texteserie(GetParam().secondes), GetParam().texte);
}

INSTANTIATE_TEST_SUITE_P(Chronos, Serie,
                         testing::Values(Texte{"zero", 0, "0:00"},
                                         Texte{"au_dela_du_terme", -1, "0:-01"},
                                         Texte{"neuf_secondes_ont_un_zero", 9, "0:09"},
                                         Texte{"soixante_secondes_font_une_minute", 60, "1:00"},
                                         Texte{"quatre_minutes", 240, "4:00"},
                                         Texte{"dix_minutes", 600, "10:00"},
                                         Texte{"les_minutes_ne_font_pas_d_heures", 3661, "61:01"}),
                         regle);

class Total : public testing::TestWithParam<Texte> {};

TEST_P(Total, s_ecrit) {
    EXPECT_EQ(series::textetotal(GetParam().secondes), GetParam().texte);
}

INSTANTIATE_TEST_SUITE_P(Chronos, Total,
                         testing::Values(Texte{"une_seconde", 1, "0:00:01"},
                                         Texte{"une_minute", 60, "0:01:00"},
                                         Texte{"une_heure", 3600, "1:00:00"},
                                         Texte{"juste_sous_dix_heures", 35999, "9:59:59"},
                                         Texte{"dix_heures", 36000, "10:00:00"}),
                         regle);

struct Duree {
    const char* regle;
    std::int32_t serie;
    const char* chrono;
    const char* utilisee;
};

class Utilisee : public testing::TestWithParam<Duree> {};

TEST_P(Utilisee, se_lit_sur_le_chronometre) {
    EXPECT_EQ(series::dureeutilisee(GetParam().serie, GetParam().chrono), GetParam().utilisee);
}

INSTANTIATE_TEST_SUITE_P(Chronos, Utilisee,
                         testing::Values(Duree{"toute", 240, "0:00", "04:00"},
                                         Duree{"aucune", 240, "4:00", "00:00"},
                                         Duree{"une_part", 240, "1:05", "02:55"},
                                         Duree{"dix_minutes_ne_comptent_que_leur_premier_chiffre",
                                               600, "10:00", "09:00"},
                                         Duree{"12_34_compte_pour_1_34", 900, "12:34", "13:26"},
                                         Duree{"au_dela_de_l_heure", 3700, "0:00", "61:40"},
                                         Duree{"negative_se_lit_zero", 60, "4:00", "00:00"}),
                         regle);

TEST(Utilisee, au_dela_de_16_bits_est_une_faute) {
    EXPECT_EQ(series::dureeutilisee(32767, "0:00"), "546:07");
    EXPECT_THAT([] { static_cast<void>(series::dureeutilisee(32768, "0:00")); },
                ThrowsMessage<common::Faute>(HasSubstr("32767")));
}

/// Clocks on a form, ticked by hand.
class Chronos : public testing::Test {
  protected:
    Chronos() {
        chronos.auterme = [this] { ++termes; };
        chronos.alalimite = [this] { ++limites; };
        chronos.surpause = [this] {
            pauses.push_back(pauses.empty() || !pauses.back());
            chronos.tenir(pauses.back(), ouverte);
        };
    }
    static void seconde(const ui::Minuterie& minuterie) { ui::declencher(minuterie.tic); }

    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    ui::Formulaire form{plateforme, "Essai"};
    series::Chronos chronos{form, 36000};
    int termes = 0;
    int limites = 0;
    std::vector<bool> pauses;
    bool ouverte = true;
};

TEST_F(Chronos, l_affichage_attend_le_premier_tic) {
    chronos.donner(600);
    EXPECT_EQ(chronos.temps.texte(), "4:00");
    seconde(chronos.Timer1);
    EXPECT_EQ(chronos.temps.texte(), "9:59");
    EXPECT_EQ(chronos.utilise(), "00:01");
}

TEST_F(Chronos, le_tic_qui_atteint_zero_ecrit_puis_termine) {
    chronos.donner(1);
    seconde(chronos.Timer1);
    EXPECT_EQ(chronos.temps.texte(), "0:00");
    EXPECT_EQ(termes, 1);
}

TEST_F(Chronos, le_total_n_atteint_pas_sa_limite) {
    for (int i = 1; i < 36000; ++i)
        seconde(chronos.Timer2);
    EXPECT_EQ(chronos.tempstot.texte(), "9:59:59");
    EXPECT_EQ(limites, 0);
    seconde(chronos.Timer2);
    EXPECT_EQ(limites, 1);
    EXPECT_EQ(chronos.tempstot.texte(), "9:59:59");
}

TEST_F(Chronos, le_total_sans_limite_passe_dix_heures) {
    series::Chronos autre{form, std::nullopt};
    for (int i = 0; i < 36001; ++i)
        seconde(autre.Timer2);
    EXPECT_EQ(autre.tempstot.texte(), "10:00:01");
}

TEST_F(Chronos, le_total_remis_a_zero_recompte_sans_s_arreter) {
    chronos.lancer();
    seconde(chronos.Timer2);
    chronos.remettretotal();
    EXPECT_TRUE(chronos.Timer2.actif());
    EXPECT_EQ(chronos.tempstot.texte(), "0:00:01");
    seconde(chronos.Timer2);
    EXPECT_EQ(chronos.tempstot.texte(), "0:00:01");
}

TEST_F(Chronos, une_boite_compte_ses_secondes_depuis_son_entree) {
    chronos.entrerboite();
    seconde(chronos.Timer3);
    seconde(chronos.Timer3);
    EXPECT_EQ(chronos.tempsmot(), 2);
    chronos.quitterboite();
    EXPECT_FALSE(chronos.Timer3.actif());
    EXPECT_EQ(chronos.tempsmot(), 2);
    chronos.entrerboite();
    EXPECT_EQ(chronos.tempsmot(), 0);
}

TEST_F(Chronos, le_temps_d_une_boite_au_dela_de_16_bits_est_une_faute) {
    chronos.entrerboite();
    for (int i = 0; i < 32767; ++i)
        seconde(chronos.Timer3);
    EXPECT_EQ(chronos.tempsmot(), 32767);
    EXPECT_THROW(seconde(chronos.Timer3), common::Faute);
}

TEST_F(Chronos, la_pause_arrete_deux_chronometres_et_laisse_le_troisieme) {
    chronos.lancer();
    chronos.entrerboite();
    form.cliquer(chronos.Command5);
    EXPECT_FALSE(chronos.Timer1.actif());
    EXPECT_FALSE(chronos.Timer2.actif());
    EXPECT_TRUE(chronos.Timer3.actif());
    EXPECT_EQ(chronos.Command5.texte(), "Reprendre");
    form.cliquer(chronos.Command5);
    EXPECT_TRUE(chronos.Timer1.actif());
    EXPECT_TRUE(chronos.Timer2.actif());
    EXPECT_EQ(chronos.Command5.texte(), "Pause");
    EXPECT_EQ(pauses, (std::vector{true, false}));
}

TEST_F(Chronos, la_reprise_d_une_serie_corrigee_ne_relance_que_le_total) {
    chronos.lancer();
    form.cliquer(chronos.Command5);
    ouverte = false;
    form.cliquer(chronos.Command5);
    EXPECT_FALSE(chronos.Timer1.actif());
    EXPECT_TRUE(chronos.Timer2.actif());
}

TEST_F(Chronos, decocher_cache_les_horloges_qui_courent_toujours) {
    chronos.lancer();
    form.cliquer(chronos.Check1);
    for (const auto* cache : {&chronos.temps, &chronos.tempstot, &chronos.Label1, &chronos.Label2})
        EXPECT_FALSE(cache->visible());
    EXPECT_TRUE(chronos.Label3.visible());
    EXPECT_TRUE(chronos.Timer1.actif());
    form.cliquer(chronos.Check1);
    EXPECT_TRUE(chronos.temps.visible());
}

}  // namespace
}  // namespace test_chronos
