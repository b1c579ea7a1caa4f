#include <algorithm>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "contours.h"
#include "menudessai.h"

namespace test_form3_panneaux {
namespace {

constexpr const char* secondaires =
    "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4) Command7(5) Command7(6) "
    "Command7(7) Command7(8) Command7(9) Command8 Command9 Command15(0) Command15(1) "
    "Command15(2) Command11(0) Command11(1) Text2 Command16";

/// One control lies over more than the edge of another: the part buttons share their edges, less
/// than a pixel wide.
bool cache(const ui::Controle& dessus, const ui::Controle& dessous) {
    constexpr int pixel = 15;  // twips
    const auto commun = [](int a, int longueura, int b, int longueurb) {
        return std::min(a + longueura, b + longueurb) - std::max(a, b);
    };
    return commun(dessus.gauche(), dessus.largeur(), dessous.gauche(), dessous.largeur()) >=
               pixel &&
           commun(dessus.haut(), dessus.hauteur(), dessous.haut(), dessous.hauteur()) >= pixel;
}

class Panneaux : public essai::Menudessai, public testing::WithParamInterface<essai::Panneau> {
  protected:
    [[nodiscard]] int haut(std::string_view nom) const { return controle(nom).haut(); }

    /// Every part button on show, "coma(3) 5175" for its name and top, with " | " between them.
    [[nodiscard]] std::string partiesmontrees() const {
        std::string texte;
        for (std::size_t r = 0; r < 8; ++r) {
            for (const auto* nom : {"coma", "comb", "comc", "comd"}) {
                const auto complet = essai::avecrang(nom, r);
                if (visible(complet))
                    texte += complet + " " + std::to_string(haut(complet)) + " | ";
            }
        }
        return texte;
    }
    [[nodiscard]] std::string insignesmontres() const {
        std::string texte;
        for (const auto& [nom, nombre] : {std::pair{"Image2", 5}, std::pair{"Image3", 8}}) {
            for (int i = 0; i < nombre; ++i) {
                const auto complet = essai::avecrang(nom, static_cast<std::size_t>(i));
                if (visible(complet))
                    texte += complet + " " + std::to_string(haut(complet)) + " | ";
            }
        }
        return texte;
    }
};

TEST_P(Panneaux, montre_ses_rangees) {
    const auto& panneau = GetParam();
    const auto rangees = essai::rangeesde(panneau.cle);
    ouvrir(panneau.cle);
    ASSERT_FALSE(machine.plateforme.fini()) << rapport();
    const std::size_t fin = panneau.cle == "autres" ? 8 : rangees.size();
    for (std::size_t r = 0; r < 8; ++r) {
        const bool fixe = r < rangees.size();
        EXPECT_EQ(texte(essai::avecrang("Label1", r)), fixe ? rangees[r].libelle : "");
        EXPECT_EQ(texte(essai::avecrang("Label4", r)), fixe ? std::to_string(r + 1) : "");
        EXPECT_EQ(resultat(r), "");
        for (const auto* bouton : {"Command14", "Command6", "Command22"})
            EXPECT_EQ(visible(essai::avecrang(bouton, r)), r < fin) << bouton << r;
    }
}

/// Of controls that share a place, those made later lie in front.
TEST_P(Panneaux, rien_ne_couvre_ce_qui_se_clique) {
    ouvrir(GetParam().cle);
    const auto liste = banc::vus(*form);
    std::size_t clics = 0;
    for (std::size_t i = 0; i < liste.size(); ++i) {
        const auto& dessous = *liste[i];
        if (!dessous.clic && !dessous.focalisable)
            continue;
        ++clics;
        EXPECT_TRUE(banc::danslafenetre(dessous)) << dessous.nomcomplet();
        for (std::size_t j = i + 1; j < liste.size(); ++j)
            EXPECT_FALSE(cache(*liste[j], dessous))
                << liste[j]->nomcomplet() << " sur " << dessous.nomcomplet();
    }
    EXPECT_GT(clics, 20U);
}

TEST_P(Panneaux, montre_ses_parties_sous_tout) {
    const auto& panneau = GetParam();
    ouvrir(panneau.cle);
    std::string attendu;
    std::size_t index = 0;
    for (const auto& rangee : essai::rangeesde(panneau.cle)) {
        const auto tout = essai::avecrang("Command14", rangee.rang);
        EXPECT_EQ(controle(tout).hauteur(), rangee.parties.empty() ? 495 : 255);
        EXPECT_EQ(controle(tout).haut(), 2760 + 720 * static_cast<int>(rangee.rang));
        if (rangee.parties.empty())
            continue;
        const auto bouton = panneau.cle == "bt" ? index : rangee.rang;
        for (const char lettre : rangee.parties) {
            attendu += essai::avecrang(std::string("com") + lettre, bouton) + " " +
                       std::to_string(3015 + 720 * rangee.rang) + " | ";
        }
        ++index;
    }
    EXPECT_EQ(partiesmontrees(), attendu);
}

TEST_P(Panneaux, montre_ses_insignes) {
    const auto& panneau = GetParam();
    ouvrir(panneau.cle);
    std::string verbes;
    std::string cheres;
    std::size_t verbe = 0;
    std::size_t chere = 0;
    for (const auto& rangee : essai::rangeesde(panneau.cle)) {
        const auto place = " " + std::to_string(2760 + 720 * rangee.rang) + " | ";
        if (rangee.insigne == "Vb")
            verbes += essai::avecrang("Image2", verbe++) + place;
        if (rangee.insigne == "JKQ")
            cheres += essai::avecrang("Image3", chere++) + place;
    }
    EXPECT_EQ(insignesmontres(), verbes + cheres);
}

TEST_P(Panneaux, montre_ses_boutons_son_total_et_son_aide) {
    const auto& panneau = GetParam();
    const auto avant = texte("Label11");
    ouvrir(panneau.cle);
    auto attendus = std::string(panneau.boutons);
    if (panneau.cle == "quatquin")
        attendus += " Command11(0) Command11(1)";
    if (panneau.cle == "autres")
        attendus += " Text2 Command16";
    EXPECT_EQ(montres(secondaires), attendus);
    const auto n = essai::rangeesde(panneau.cle).size();
    EXPECT_EQ(texte("Label12"), panneau.total ? "Tot=" + std::to_string(n * (n + 1) / 2) : "");
    EXPECT_EQ(texte("Label11"), panneau.aide.empty() ? avant : panneau.aide);
    EXPECT_EQ(texte("Label13"), "");
}

TEST_P(Panneaux, donne_le_focus_au_bouton_clique) {
    const auto& panneau = GetParam();
    ouvrir(panneau.cle);
    ASSERT_NE(form->focus(), nullptr);
    EXPECT_EQ(form->focus()->nomcomplet(), essai::mots(panneau.chemin).back());
}

TEST_P(Panneaux, decale_les_tailles_des_seules_rallonges) {
    ouvrir(GetParam().cle);
    for (std::size_t r = 0; r < 8; ++r) {
        EXPECT_EQ(controle(essai::avecrang("Label4", r)).gauche(),
                  GetParam().cle == "rallong" ? 3200 : 3120);
    }
}

TEST_P(Panneaux, finit_si_une_liste_manque) {
    const auto& panneau = GetParam();
    const auto rangees = essai::rangeesde(panneau.cle);
    garnir(panneau.cle);
    const auto manque = "listes\\" + std::string(rangees.back().fichier);
    std::filesystem::remove(machine.chemin(manque));
    for (const auto& bouton : essai::mots(panneau.chemin))
        cliquer(bouton);
    EXPECT_EQ(rapport(),
              "Comptage des mots d'une liste : fichier « " + manque + " » : fichier introuvable.");
    EXPECT_EQ(machine.plateforme.statut(), 1);
}

INSTANTIATE_TEST_SUITE_P(Catalogue, Panneaux,
                         testing::ValuesIn(essai::lespanneaux().begin(),
                                           essai::lespanneaux().end()),
                         essai::nomdepanneau);

// From one panel to another, and the groups.

class Groupes : public essai::Menudessai {
  protected:
    [[nodiscard]] std::string rangeesmontrees() const {
        std::string texte;
        for (std::size_t r = 0; r < 8; ++r) {
            for (const auto* nom : {"Label1", "Label4", "Label5", "Label6"})
                texte += this->texte(essai::avecrang(nom, r));
            for (const auto* nom :
                 {"Command14", "Command6", "Command22", "coma", "comb", "comc", "comd"})
                texte += visible(essai::avecrang(nom, r)) ? "x" : "";
        }
        return texte;
    }
};

TEST_F(Groupes, un_panneau_apres_celui_d_un_autre_groupe) {
    ouvrir("duos7");
    ouvrir("6");
    EXPECT_EQ(montres(secondaires), "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)");
}

TEST_F(Groupes, les_scrabbles_uniques_vident_les_rangees) {
    ecrirehist({"24/08/2019 - 14:35 - 95.3% - T - 3lc.txt"});
    ouvrir("bt");
    EXPECT_NE(rangeesmontrees(), "");
    cliquer("Command3");
    EXPECT_EQ(rangeesmontrees(), "");
    EXPECT_EQ(montres(secondaires), "Command7(0) Command7(1) Command7(2) Command7(3) Command7(4)");
    EXPECT_EQ(form->focus(), &controle("Command3"));
}

TEST_F(Groupes, les_scrabbles_multiples_et_autres_listes) {
    cliquer("Command4");
    EXPECT_EQ(montres(secondaires), "Command7(5) Command7(6) Command7(7) Command7(8) Command7(9)");
    cliquer("Command5");
    EXPECT_EQ(montres(secondaires), "Command15(0) Command15(1) Command15(2)");
}

TEST_F(Groupes, un_groupe_garde_le_panneau_pour_l_aide) {
    ouvrir("bt");
    cliquer("Command3");
    survoler("Label1(0)");
    EXPECT_EQ(texte("Label11"), "Sans doute les mots les plus utiles du scrabbleur qui débute !");
}

TEST_F(Groupes, la_lettre_chere_ne_laisse_que_ses_trois_boutons) {
    ouvrir("6");
    cliquer("Command7(4)");
    EXPECT_EQ(rangeesmontrees(), "");
    EXPECT_EQ(montres(secondaires), "Command7(4) Command8 Command9");
    EXPECT_EQ(texte("Label12"), "");
    EXPECT_EQ(form->focus(), &controle("Command7(4)"));
    EXPECT_EQ(montres("Label2 Label3 Label7 Label8 Label9"), "");
    const auto aide = texte("Label11");
    survoler("Label1(0)");
    EXPECT_EQ(texte("Label11"), aide);
}

TEST_F(Groupes, le_total_s_efface_au_panneau_sans_total) {
    ouvrir("7");
    EXPECT_EQ(texte("Label12"), "Tot=36");
    ouvrir("bt");
    EXPECT_EQ(texte("Label12"), "");
    ouvrir("7");
    cliquer("Command5");
    EXPECT_EQ(texte("Label12"), "");
}

TEST_F(Groupes, les_parties_et_tout_reprennent_leur_place) {
    ouvrir("bt");
    ouvrir("7");
    ouvrir("ta");
    EXPECT_EQ(controle("coma(0)").haut(), 3015);
    EXPECT_EQ(controle("coma(1)").haut(), 3015 + 720);
    ouvrir("formdif");
    EXPECT_EQ(controle("Command14(0)").hauteur(), 495);
    EXPECT_FALSE(visible("coma(0)"));
}

TEST_F(Groupes, une_liste_vide_compte_zero_mot) {
    machine.ecrire("listes\\3lc.txt", "");
    ouvrir("bt");
    EXPECT_EQ(texte("Label4(0)"), "0");
}

TEST_F(Groupes, une_derniere_ligne_sans_fin_compte) {
    machine.ecrire("listes\\3lc.txt", "AB;BA\r\nCD;DC");
    machine.ecrire("listes\\3lt.txt", "AB;BA\r\nCD;DC\r\n");
    ouvrir("bt");
    EXPECT_EQ(texte("Label4(0)"), "2");
    EXPECT_EQ(texte("Label4(1)"), "2");
}

TEST_F(Groupes, chaque_ouverture_recompte) {
    ouvrir("bt");
    machine.ecrire("listes\\3lc.txt", "A;A\r\nB;B\r\nC;C\r\n");
    cliquer("Command1");
    EXPECT_EQ(texte("Label4(0)"), "3");
}

TEST_F(Groupes, les_images_d_anagrammes) {
    ouvrir("quatquin");
    cliquer("Command11(1)");
    cliquer("Command11(0)");
    EXPECT_THAT(v.relever(), testing::ElementsAre("image 1", "image 0"));
}

TEST_F(Groupes, chaque_insigne_porte_son_image) {
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(form->controle("Image2", i).image(), "images\\vb_30x30.bmp") << i;
    for (int i = 0; i < 8; ++i)
        EXPECT_EQ(form->controle("Image3", i).image(), "images\\jkq_30x30.bmp") << i;
}

TEST_F(Groupes, les_boutons_disent_leur_rangee_a_qui_ne_la_voit_pas) {
    ouvrir("bt");
    EXPECT_EQ(controle("Command14(0)").accessible(), "Tout : Lettre Chère 3L");
    EXPECT_EQ(controle("comb(1)").accessible(), "Partie b : Lettre Chère 5L");
    ouvrir("autres");
    EXPECT_EQ(controle("Command22(7)").accessible(), "Révision");
}

/// The parts of a row stand under "Tout", clear of one another and of the next row.
TEST_F(Groupes, les_parties_tiennent_sous_tout) {
    const std::vector<std::string> noms{"coma(0)", "comb(0)", "comc(0)", "comd(0)"};
    const std::vector<int> gauches{8400, 8615, 8825, 9035};
    for (std::size_t i = 0; i < noms.size(); ++i) {
        EXPECT_EQ(controle(noms[i]).gauche(), gauches[i]);
        EXPECT_EQ(controle(noms[i]).largeur(), 220);
        EXPECT_EQ(controle(noms[i]).hauteur(), 240);
    }
    EXPECT_EQ(controle("Image3(0)").largeur(), 450);
    EXPECT_EQ(controle("Image3(0)").hauteur(), 450);
}

}  // namespace
}  // namespace test_form3_panneaux
