#include <stdexcept>

#include <gmock/gmock.h>

#include "faute.h"
#include "plateformesimulee.h"

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
