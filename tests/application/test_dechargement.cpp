// Forms that are unloaded by their close box come back fresh.

#include <gmock/gmock.h>

#include "application.h"
#include "dossier.h"
#include "plateformesimulee.h"

namespace test_dechargement {
namespace {

class Dechargement : public testing::Test {
  protected:
    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    application::Application programme{plateforme};
    ui::FaceHistorique& historique = programme.voisins().historique;
};

TEST_F(Dechargement, une_fenetre_fermee_puis_rouverte_revient_a_neuf) {
    plateforme.executer([&] { historique.montrer("Mots 3L"); });
    plateforme.executer([&] { plateforme.bureau.trouver("Dialog")->fermer(); });
    EXPECT_EQ(plateforme.bureau.trouver("Dialog"), nullptr);
    plateforme.executer([&] { historique.montrer("Mots 4L"); });
    ASSERT_NE(plateforme.bureau.trouver("Dialog"), nullptr);
    EXPECT_EQ(plateforme.bureau.trouver("Dialog")->texte(), "Historique des scores - Mots 4L");
}

TEST_F(Dechargement, aussi_dans_un_seul_evenement) {
    plateforme.executer([&] {
        historique.montrer("Mots 3L");
        plateforme.bureau.trouver("Dialog")->fermer();
        historique.montrer("Mots 4L");
    });
    ASSERT_NE(plateforme.bureau.trouver("Dialog"), nullptr);
    EXPECT_EQ(plateforme.bureau.trouver("Dialog")->texte(), "Historique des scores - Mots 4L");
    EXPECT_TRUE(plateforme.bureau.trouver("Dialog")->visible());
}

}  // namespace
}  // namespace test_dechargement
