// What the colours of a series say, told to those who hear the screen: on the control model of the
// whole program.

#include <string>

#include <gtest/gtest.h>

#include "application.h"
#include "dossier.h"
#include "etats.h"
#include "plateformesimulee.h"

namespace test_paroles {
namespace {

struct Sens {
    const char* nom;
    std::string_view paroles;
    const char* attendu;
};

template <class Etat>
std::string_view dites(Etat etat) {
    return series::apparence(etat).paroles;
}

class Table : public testing::TestWithParam<Sens> {};

TEST_P(Table, dit) {
    EXPECT_EQ(GetParam().paroles, GetParam().attendu);
}

INSTANTIATE_TEST_SUITE_P(
    Paroles, Table,
    testing::Values(
        Sens{"tirage_courant", dites(series::Etattirage::Courant), "Tirage en cours"},
        Sens{"tirage_au_repos", dites(series::Etattirage::Repos), ""},
        Sens{"tirage_qui_montre_la_solution", dites(series::Etattirage::Solution), "Solution"},
        Sens{"tirage_faux", dites(series::Etattirage::Faux), "Faux"},
        Sens{"tirage_incomplet", dites(series::Etattirage::Incomplet), "Incomplet"},
        Sens{"reponse_courante", dites(series::Etatreponse::Courante), "Réponse en cours"},
        Sens{"reponse_au_repos", dites(series::Etatreponse::Repos), ""},
        Sens{"reponse_juste", dites(series::Etatreponse::Juste), "Juste"},
        Sens{"reponse_fausse", dites(series::Etatreponse::Fausse), "Faux"},
        Sens{"reponse_attendue", dites(series::Etatreponse::Attendue), "Mot attendu"},
        Sens{"horloge_arretee", series::apparencedelhorloge(true).paroles, "Arrêté"},
        Sens{"horloge_qui_court", series::apparencedelhorloge(false).paroles, ""}),
    [](const auto& cas) { return cas.param.nom; });

/// Two rows in the order of the list, on one of the two series forms.
class Paroles : public testing::Test {
  protected:
    void lancer(const char* nom, std::string_view liste) {
        banc::garnir(dossier.chemin(), ORVANE_JEU);
        auto& disque = plateforme.disque();
        ASSERT_FALSE(disque.creerdossier("Essai"));
        for (const auto* vide : {"Essai\\hist.dat", "Essai\\rev-x.txt"})
            ASSERT_FALSE(disque.remplacer(vide, ""));
        ASSERT_FALSE(disque.remplacer("Essai\\settings.dat", "95\r\n80\r\n8\r\n5\r\n0\r\n"));
        ASSERT_FALSE(disque.remplacer("listes\\x.txt", liste));
        plateforme.executer([&] {
            auto& voisins = programme.voisins();
            voisins.form3.util = "Essai";
            voisins.form3.toue = "T";
            static_cast<void>(voisins.menu.fond());
            ui::FaceSerie& serie = std::string_view(nom) == "Multi" ? voisins.multi : voisins.form1;
            serie.coloration();
            serie.montrer();
            serie.commencer("listes\\x.txt");
        });
        form = plateforme.bureau.trouver(nom);
        ASSERT_NE(form, nullptr);
    }
    void faire(const std::function<void()>& geste) {
        plateforme.executer(geste);
        ASSERT_EQ(plateforme.rapport(), std::nullopt);
    }
    void corriger() {
        faire([this] { form->cliquer(*form->trouver("corriger")); });
    }
    void ecrire(int rang, const char* mot) {
        faire([this, rang, mot] { form->trouver("solution", rang)->texte = mot; });
    }
    [[nodiscard]] std::string dite(std::string_view nom, int index = -1) const {
        return form->trouver(nom, index)->description();
    }

    banc::Dossier dossier;
    banc::PlateformeSimulee plateforme{dossier.chemin()};
    application::Application programme{plateforme};
    ui::Formulaire* form = nullptr;
};

TEST_F(Paroles, disent_le_tirage_en_cours) {
    lancer("Form1", "AB;BA\r\nAB;BA\r\n");
    EXPECT_EQ(dite("tirage", 0), "Tirage en cours");
    EXPECT_EQ(dite("solution", 0), "Réponse en cours");
    EXPECT_EQ(dite("tirage", 1), "");
    faire([this] { form->focaliser(*form->trouver("solution", 1)); });
    EXPECT_EQ(dite("tirage", 0), "");
    EXPECT_EQ(dite("solution", 0), "");
    EXPECT_EQ(dite("tirage", 1), "Tirage en cours");
    EXPECT_EQ(dite("solution", 1), "Réponse en cours");
    EXPECT_EQ(dite("temps"), "");
}

TEST_F(Paroles, disent_le_verdict_de_chaque_boite_et_se_taisent_a_la_serie_suivante) {
    lancer("Form1", "AB;BA\r\nAB;BA\r\nAB;BA\r\n");
    ecrire(0, "BA");
    ecrire(1, "AB");
    corriger();
    EXPECT_EQ(dite("tirage", 0), "");
    EXPECT_EQ(dite("solution", 0), "Juste");
    for (const int rang : {1, 2}) {
        EXPECT_EQ(dite("tirage", rang), "Solution");
        EXPECT_EQ(dite("solution", rang), "Faux");
    }
    EXPECT_EQ(dite("temps"), "Arrêté");
    faire([this] { form->cliquer(*form->trouver("restart")); });
    EXPECT_EQ(dite("tirage", 0), "Tirage en cours");
    for (const int rang : {1, 2}) {
        EXPECT_EQ(dite("tirage", rang), "");
        EXPECT_EQ(dite("solution", rang), "");
    }
    EXPECT_EQ(dite("temps"), "");
}

TEST_F(Paroles, disent_le_verdict_de_chaque_tirage_de_multi) {
    lancer("Multi", "ABX;A;B\r\nABX;A;B\r\nABX;A;B\r\n");
    EXPECT_EQ(dite("tirage", 0), "Tirage en cours");
    ecrire(0, "B");
    ecrire(10, "A");
    ecrire(1, "A");
    ecrire(2, "A");
    ecrire(12, "X");
    corriger();
    EXPECT_EQ(dite("tirage", 0), "");
    EXPECT_EQ(dite("tirage", 1), "Incomplet");
    EXPECT_EQ(dite("tirage", 2), "Faux");
    for (const int juste : {0, 10, 1, 2})
        EXPECT_EQ(dite("solution", juste), "Juste") << juste;
    for (const int attendu : {11, 12})
        EXPECT_EQ(dite("solution", attendu), "Mot attendu") << attendu;
}

}  // namespace
}  // namespace test_paroles
