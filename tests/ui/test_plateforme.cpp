#include <stdexcept>

#include <gmock/gmock.h>

#include "faute.h"
#include "formulaire.h"
#include "plateformesimulee.h"

namespace test_plateforme {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class Executer : public testing::Test {
  protected:
    banc::PlateformeSimulee plateforme{"."};
    std::vector<std::string> faits;
    void noter(const char* fait) { faits.emplace_back(fait); }
};

TEST_F(Executer, une_faute_est_rapportee_et_finit_le_programme_avec_le_statut_1) {
    plateforme.executer([] { throw common::Faute("ligne 3 trop longue"); });
    EXPECT_TRUE(plateforme.fini());
    EXPECT_EQ(plateforme.statut(), 1);
    EXPECT_EQ(plateforme.rapport(), "ligne 3 trop longue");
}

TEST_F(Executer, une_exception_imprevue_est_une_faute) {
    plateforme.executer([] { throw std::out_of_range("index"); });
    EXPECT_EQ(plateforme.statut(), 1);
    EXPECT_THAT(plateforme.rapport().value_or(""), HasSubstr("index"));
}

/// A form whose handlers fail.
class Imprevu : public Executer {
  protected:
    ui::Formulaire form{plateforme, "Form3"};
    ui::Controle& bouton{form.ajouter(ui::Genre::Bouton, "Command14", 2)};
    ui::Controle& boite{form.ajouter(ui::Genre::Boite, "Text2")};

    static void rompre() { throw std::out_of_range("rangée 9"); }
    [[nodiscard]] std::string rapport() const { return plateforme.rapport().value_or("aucun"); }
};

TEST_F(Imprevu, est_rapporte_avec_le_formulaire_et_le_controle) {
    bouton.clic = rompre;
    plateforme.executer([&] { form.cliquer(bouton); });
    EXPECT_EQ(rapport(), "Erreur imprévue dans Form3.Command14(2) : rangée 9");
}

TEST_F(Imprevu, est_celui_du_controle_le_plus_interieur) {
    boite.sortie = rompre;
    plateforme.executer([&] { form.focaliser(boite); });
    plateforme.executer([&] { form.cliquer(bouton); });
    EXPECT_EQ(rapport(), "Erreur imprévue dans Form3.Text2 : rangée 9");
}

TEST_F(Imprevu, d_une_minuterie_porte_son_nom) {
    auto& minuterie = form.ajouterminuterie("Timer1");
    minuterie.tic = rompre;
    plateforme.executer([&] { ui::survenir(minuterie, minuterie.tic); });
    EXPECT_EQ(rapport(), "Erreur imprévue dans Form3.Timer1 : rangée 9");
}

TEST_F(Imprevu, du_formulaire_ne_nomme_que_lui) {
    form.fermeture = rompre;
    plateforme.executer([&] { form.fermer(); });
    EXPECT_EQ(rapport(), "Erreur imprévue dans Form3 : rangée 9");
}

TEST_F(Imprevu, hors_de_tout_evenement_ne_nomme_rien) {
    bouton.clic = [&] { noter("clic"); };
    plateforme.executer([&] { form.cliquer(bouton); });
    plateforme.executer(rompre);
    EXPECT_EQ(rapport(), "Erreur imprévue : rangée 9");
}

TEST_F(Executer, terminer_finit_sans_rapport) {
    plateforme.executer([&] {
        ui::Plateforme::terminer(0);
        noter("suite");
    });
    EXPECT_TRUE(plateforme.fini());
    EXPECT_EQ(plateforme.statut(), 0);
    EXPECT_FALSE(plateforme.rapport());
    EXPECT_THAT(faits, IsEmpty());
}

TEST_F(Executer, apres_la_fin_plus_rien_ne_s_execute) {
    plateforme.executer([] { ui::Plateforme::terminer(2); });
    plateforme.executer([&] { noter("suite"); });
    plateforme.executer([] { throw common::Faute("trop tard"); });
    EXPECT_THAT(faits, IsEmpty());
    EXPECT_EQ(plateforme.statut(), 2);
    EXPECT_FALSE(plateforme.rapport());
}

TEST_F(Executer, une_fin_dans_un_evenement_imbrique_arrete_l_exterieur_a_sa_prochaine_attente) {
    plateforme.pompe = [&] {
        plateforme.executer([&] {
            noter("imbriqué");
            ui::Plateforme::terminer(0);
        });
    };
    plateforme.executer([&] {
        plateforme.laissercourir();
        noter("suite");
    });
    EXPECT_THAT(faits, ElementsAre("imbriqué"));
    EXPECT_TRUE(plateforme.fini());
}

TEST_F(Executer, une_faute_imbriquee_garde_son_rapport) {
    plateforme.pompe = [&] { plateforme.executer([] { throw common::Faute("dedans"); }); };
    plateforme.executer([&] { plateforme.laissercourir(); });
    EXPECT_EQ(plateforme.rapport(), "dedans");
    EXPECT_EQ(plateforme.statut(), 1);
}

TEST_F(Executer, apres_attend_la_fin_de_l_evenement_le_plus_exterieur) {
    plateforme.executer([&] {
        plateforme.executer([&] {
            plateforme.apres([&] { noter("après"); });
            noter("dedans");
        });
        noter("dehors");
    });
    EXPECT_THAT(faits, ElementsAre("dedans", "dehors", "après"));
}

TEST_F(Executer, apres_ne_court_qu_une_fois) {
    plateforme.executer([&] { plateforme.apres([&] { noter("après"); }); });
    plateforme.executer([] {});
    EXPECT_THAT(faits, ElementsAre("après"));
}

TEST_F(Executer, apres_court_aussi_quand_l_evenement_finit_le_programme) {
    plateforme.executer([&] {
        plateforme.apres([&] { noter("après"); });
        ui::Plateforme::terminer(0);
    });
    EXPECT_THAT(faits, ElementsAre("après"));
}

TEST_F(Executer, une_faute_dans_apres_est_rapportee) {
    plateforme.executer([&] { plateforme.apres([] { throw common::Faute("au déchargement"); }); });
    EXPECT_EQ(plateforme.rapport(), "au déchargement");
    EXPECT_EQ(plateforme.statut(), 1);
}

TEST_F(Executer, les_boites_de_message_et_leurs_reponses) {
    plateforme.repondre(ui::Reponse::Non);
    plateforme.executer([&] {
        noter(plateforme.question("Effacer ?") ? "oui" : "non");
        noter(plateforme.question("Encore ?") ? "oui" : "non");
        plateforme.message("Fait.");
    });
    EXPECT_THAT(faits, ElementsAre("non", "oui"));
    EXPECT_THAT(plateforme.journal.messages, ElementsAre("Effacer ?", "Encore ?", "Fait."));
}

}  // namespace
}  // namespace test_plateforme
