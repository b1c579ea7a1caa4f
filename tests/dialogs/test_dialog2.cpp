#include <array>
#include <cmath>
#include <functional>
#include <memory>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "couleurs.h"
#include "dialog2.h"
#include "faute.h"
#include "texte.h"
#include "voisinage.h"

namespace test_dialog2 {
namespace {

using essai::Journal;

class Dialog2 : public testing::Test {
  protected:
    essai::Voisinage v;
    int decharges = 0;
    std::unique_ptr<dialogs::Dialog2> form;

    Dialog2() { charger(); }

    /// A fresh form, loaded from the variables.
    void charger() {
        form = std::make_unique<dialogs::Dialog2>(
            v.plateforme, dialogs::Dialog2::Voisins{v.form3, v.dialog2, v.menu, v.multi},
            [this] { ++decharges; });
        form->charger();
    }
    [[nodiscard]] ui::Controle& controle(const char* nom, int index = -1) const {
        return form->controle(nom, index);
    }
    [[nodiscard]] const std::string& texte(const char* nom, int index = -1) const {
        return controle(nom, index).texte();
    }
    void cliquer(const char* nom, int index = -1) { form->cliquer(controle(nom, index)); }
    void ecrire(const char* vert, const char* rouge, const char* temps, const char* base) {
        controle("Text1", 0).texte = vert;
        controle("Text1", 1).texte = rouge;
        controle("Text2").texte = temps;
        controle("Text3").texte = base;
    }
    [[nodiscard]] std::string settings() {
        return common::depuis1252(v.plateforme.lesfichiers.fichiers["Léa\\settings.dat"]);
    }
    [[nodiscard]] std::vector<std::string> tailles() const {
        std::vector<std::string> textes;
        textes.reserve(dialogs::options::nbtailles);
        for (int i = 0; i < static_cast<int>(dialogs::options::nbtailles); ++i)
            textes.push_back(texte("nbechan", i));
        return textes;
    }
};

TEST_F(Dialog2, se_charge_depuis_les_variables) {
    EXPECT_EQ(form->texte(), "Options");
    EXPECT_FALSE(form->visible());
    EXPECT_TRUE(form->devant());
    EXPECT_EQ(texte("Text1", 0), "95");
    EXPECT_EQ(texte("Text1", 1), "80");
    EXPECT_EQ(texte("Text2"), "8");
    EXPECT_EQ(texte("tps30mots"), "04:00");
    EXPECT_EQ(texte("Text3"), "5");
    EXPECT_EQ(texte("Combo1"), "Par défaut");
    EXPECT_EQ(texte("Label4"), "") << "the messages of the load end empty";
    EXPECT_TRUE(controle("Check1").coche());
    EXPECT_TRUE(controle("Check2").coche());
    EXPECT_EQ(tailles(), (std::vector<std::string>{"150", "160 (80 duos)", "150 (50 trios)",
                                                   "160 (40 quatuors)", "125 (25 quintets)"}));
    EXPECT_EQ(v.dialog2.nbechuni, 150);
}

TEST_F(Dialog2, charge_une_case_de_toute_valeur_non_nulle_cochee) {
    v.dialog2.son = -1;
    v.dialog2.saisieassistee = 0;
    charger();
    EXPECT_TRUE(form->check1());
    EXPECT_FALSE(controle("Check2").coche());
}

TEST_F(Dialog2, charge_des_reglages_hors_bornes_avec_leur_message) {
    v.dialog2.seuilch = 80;
    v.dialog2.seuilcb = 90;
    v.dialog2.nbechantillon = 40;
    charger();
    EXPECT_EQ(texte("Label4"), "Pas plus de 900 mots par échantillon !");
    EXPECT_EQ(texte("nbechan", 0), "1200") << "the load shows the sizes whatever the bounds";
}

TEST_F(Dialog2, un_temps_au_dela_de_16_bits_est_une_faute_au_chargement) {
    v.dialog2.tempsparmot = 1093;
    EXPECT_THROW(charger(), common::Faute);
    v.dialog2.tempsparmot = 1092;
    charger();
    EXPECT_EQ(texte("tps30mots"), "546:00");
}

TEST_F(Dialog2, un_echantillon_au_dela_de_16_bits_est_une_faute_au_chargement) {
    v.dialog2.nbechantillon = 1100;
    EXPECT_THROW(charger(), common::Faute);
}

/// A fixed text of the form.
struct Fixe {
    const char* nom;
    int index;
    const char* texte;
};

TEST_F(Dialog2, porte_ses_textes_fixes) {
    const Fixe fixes[] = {
        {"Label1", 0, "Seuils de pourcentages"},
        {"Label1", 1, "Chronomètre"},
        {"Label1", 2, "Taille des échantillons"},
        {"Label1", 3, "Couleur du fond"},
        {"Label1", 4, "Son"},
        {"Label1", 5, "Saisie assistée"},
        {"Label2", 0, "Vert à partir de"},
        {"Label2", 1, "Rouge en dessous de"},
        {"Label2", 2, "Temps moyen par mot ="},
        {"Label2", 3, "Temps pour 30 mots = "},
        {"Label2", 4, "Echantillon de base (séries de 30 tirages) ="},
        {"Label2", 5, "Nombre de mots solution unique ="},
        {"Label2", 6, "Nombre de mots duos ="},
        {"Label2", 7, "Nombre de mots trios ="},
        {"Label2", 8, "Nombre de mots quatuors ="},
        {"Label2", 9, "Nombre de mots quintets ="},
        {"Label3", 0, "%"},
        {"Label3", 1, "%"},
        {"Label3", 2, "secondes (de 2 à 15)"},
        {"Label3", 3, "série(s) (de 1 à 30)"},
        {"Check1", -1, "Son"},
        {"Check2", -1, "Saisie dynamique"},
        {"OKButton", -1, "OK"},
        {"Command1", -1, "Annuler"},
    };
    for (const auto& fixe : fixes)
        EXPECT_EQ(texte(fixe.nom, fixe.index), fixe.texte);
    for (int i = 0; i < 3; ++i)
        EXPECT_TRUE(controle("Label1", i).gras());
    EXPECT_EQ(controle("Check2").infobulle(),
              "Saisie assistée : empêche de saisir une lettre absente du tirage et actualise les "
              "lettres restantes en temps réel");
    EXPECT_EQ(controle("Combo1").choix(),
              (std::vector<std::string>{"Par défaut", "Jaune", "Orange", "Vert", "Bleu", "Gris"}));
}

TEST_F(Dialog2, s_ouvre_devant_avec_la_couleur_du_menu) {
    v.form3.couleurdufond = "Vert";
    v.dialog2.saisieassistee = 0;
    v.relever();
    form->ouvrir();
    EXPECT_TRUE(form->visible());
    EXPECT_TRUE(form->devant());
    EXPECT_FALSE(controle("Check2").coche());
    EXPECT_EQ(texte("Combo1"), "Vert");
    EXPECT_EQ(form->fond().nom(), "#80FF80");
    EXPECT_EQ(v.relever(), (Journal{"menu fond #80FF80", "Multi fond #80FF80"}));
}

TEST_F(Dialog2, une_deuxieme_ouverture_reprend_la_saisie_assistee_et_la_couleur) {
    form->ouvrir();
    cliquer("Check1");
    cliquer("Check2");
    ui::Formulaire::choisir(controle("Combo1"), "Gris");
    controle("Text1", 0).texte = "90";
    form->ouvrir();
    EXPECT_FALSE(controle("Check1").coche());
    EXPECT_TRUE(controle("Check2").coche());
    EXPECT_EQ(texte("Combo1"), "Par défaut");
    EXPECT_EQ(texte("Text1", 0), "90");
}

TEST_F(Dialog2, message_et_temps_suivent_la_frappe) {
    controle("Text2").texte = "16";
    EXPECT_EQ(texte("Label4"), "Pas plus de 15 secondes par mot !");
    EXPECT_EQ(texte("tps30mots"), "04:00");
    controle("Text2").texte = "15.5";
    EXPECT_EQ(texte("Label4"), "");
    EXPECT_EQ(texte("tps30mots"), "07:45");
}

TEST_F(Dialog2, temps_vide_ne_change_rien) {
    controle("Text3").texte = "31";
    controle("Text2").texte = "";
    EXPECT_EQ(texte("tps30mots"), "04:00");
    EXPECT_EQ(texte("Label4"), "Pas plus de 900 mots par échantillon !");
}

TEST_F(Dialog2, les_tailles_suivent_l_echantillon_de_base) {
    controle("Text3").texte = "1";
    EXPECT_EQ(tailles(), (std::vector<std::string>{"30", "40 (20 duos)", "60 (20 trios)",
                                                   "40 (10 quatuors)", "50 (10 quintets)"}));
    controle("Text3").texte = "30.5";
    EXPECT_EQ(texte("Label4"), "");
    EXPECT_EQ(texte("nbechan", 0), "900") << "30.5 goes to the even 30";
    controle("Text3").texte = "3200000";
    EXPECT_EQ(texte("nbechan", 0), "900");
    EXPECT_EQ(texte("Label4"), "Pas plus de 900 mots par échantillon !");
}

TEST_F(Dialog2, ok_range_les_valeurs_arrondies_au_pair) {
    ecrire("90.5", "79.5", "2.5", "3.5");
    cliquer("Check1");
    v.relever();
    cliquer("OKButton");
    EXPECT_EQ(v.dialog2.seuilch, 90);
    EXPECT_EQ(v.dialog2.seuilcb, 80);
    EXPECT_EQ(v.dialog2.tempsparmot, 2);
    EXPECT_EQ(v.dialog2.nbechantillon, 4);
    EXPECT_EQ(v.dialog2.son, 0);
    EXPECT_EQ(v.dialog2.saisieassistee, 1);
    EXPECT_EQ(settings(), "90\r\n80\r\n2\r\n4\r\n0\r\nPar défaut\r\n1\r\n");
    EXPECT_EQ(v.relever(), Journal{"menu maj"});
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(decharges, 1);
}

TEST_F(Dialog2, ok_range_la_couleur_telle_qu_elle_est_ecrite) {
    v.form3.couleurdufond = "Mauve";
    form->ouvrir();
    EXPECT_EQ(form->fond().nom(), "#FFE0C0");
    cliquer("OKButton");
    EXPECT_EQ(v.form3.couleurdufond, "Mauve");
    EXPECT_EQ(settings(), "95\r\n80\r\n8\r\n5\r\n1\r\nMauve\r\n1\r\n");
}

TEST_F(Dialog2, ok_refuse_en_silence_et_reste_ouvert) {
    form->ouvrir();
    ecrire("95", "80", "15.5", "5");
    v.relever();
    cliquer("OKButton");
    EXPECT_TRUE(form->visible());
    EXPECT_EQ(texte("Label4"), "");
    EXPECT_EQ(v.dialog2.tempsparmot, 8);
    EXPECT_TRUE(v.plateforme.lesfichiers.fichiers.empty());
    EXPECT_EQ(v.relever(), Journal{});
    EXPECT_EQ(decharges, 0);
}

TEST_F(Dialog2, ok_refuse_l_ordre_avec_le_deuxieme_message) {
    form->ouvrir();
    ecrire("70", "80", "8", "5");
    controle("Label4").texte = "";
    cliquer("OKButton");
    EXPECT_EQ(texte("Label4"), "Le 2ème % doit être inférieur à celui d'au dessus !");
    EXPECT_TRUE(form->visible());
}

TEST_F(Dialog2, un_disque_plein_finit_le_programme) {
    v.plateforme.lesfichiers.refuses.insert("Léa\\settings.dat");
    v.plateforme.executer([this] { cliquer("OKButton"); });
    EXPECT_EQ(v.plateforme.statut(), 1);
    EXPECT_THAT(v.plateforme.rapport, testing::HasSubstr("Léa\\settings.dat"));
    EXPECT_THAT(v.plateforme.rapport, testing::HasSubstr("disque est plein"));
}

TEST_F(Dialog2, annuler_echap_et_la_case_de_fermeture_ne_rangent_rien) {
    const std::array<std::function<void()>, 3> facons{
        [this] { cliquer("Command1"); }, [this] { form->enfoncer({ui::touches::echap}); },
        [this] { form->fermer(); }};
    for (const auto& partir : facons) {
        charger();
        form->ouvrir();
        ecrire("90", "70", "3", "2");
        ui::Formulaire::choisir(controle("Combo1"), "Gris");
        v.relever();
        decharges = 0;
        partir();
        EXPECT_FALSE(form->visible());
        EXPECT_EQ(decharges, 1);
        EXPECT_EQ(v.dialog2.seuilch, 95);
        EXPECT_EQ(v.dialog2.tempsparmot, 8);
        EXPECT_EQ(v.dialog2.nbechantillon, 5);
        EXPECT_EQ(v.form3.couleurdufond, "Par défaut");
        EXPECT_EQ(v.menu.fond(), ui::Couleur(0xE0E0E0U)) << "the preview stays";
        EXPECT_EQ(v.relever(), Journal{});
        EXPECT_TRUE(v.plateforme.lesfichiers.fichiers.empty());
    }
    EXPECT_EQ(v.dialog2.nbechuni, 60) << "the sizes of the sample that was given up";
}

TEST_F(Dialog2, chaque_couleur_se_voit_aussitot_partout) {
    const std::pair<const char*, const char*> couleurs[] = {
        {"Jaune", "#FFFF80"}, {"Orange", "#FFC080"},     {"Vert", "#80FF80"},  {"Bleu", "#C0C0FF"},
        {"Gris", "#E0E0E0"},  {"Par défaut", "#FFE0C0"}, {"Mauve", "#FFE0C0"}, {"", "#FFE0C0"},
    };
    for (const auto& [nom, rvb] : couleurs) {
        v.relever();
        ui::Formulaire::choisir(controle("Combo1"), nom);
        const std::string couleur = rvb;
        EXPECT_EQ(form->fond().nom(), couleur);
        EXPECT_EQ(v.relever(), (Journal{"menu fond " + couleur, "Multi fond " + couleur}));
        for (const auto& c : form->controles()) {
            const bool colore = c->genre() == ui::Genre::Case ||
                                (c->genre() == ui::Genre::Etiquette && !c->fondu());
            if (colore) {
                EXPECT_EQ(c->fond().nom(), couleur) << c->nomcomplet();
            }
        }
    }
}

TEST_F(Dialog2, chaque_boite_a_un_nom_a_lire_et_chaque_valeur_se_lit) {
    for (const auto& c : form->controles()) {
        const bool boite = c->genre() == ui::Genre::Boite || c->genre() == ui::Genre::Liste;
        EXPECT_EQ(c->accessible().empty(), !boite) << c->nomcomplet();
    }
}

TEST_F(Dialog2, trois_titres_sont_transparents) {
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(controle("Label1", i).fondu(), i >= 3) << i;
}

TEST_F(Dialog2, la_tabulation_suit_la_lecture) {
    form->ouvrir();
    std::vector<std::string> ordre;
    for (int i = 0; i < 10; ++i) {
        ordre.push_back(form->focus()->nomcomplet());
        form->enfoncer({ui::touches::tab});
    }
    EXPECT_EQ(ordre,
              (std::vector<std::string>{"Text1(0)", "Text1(1)", "Text2", "Text3", "Combo1",
                                        "Check1", "Check2", "OKButton", "Command1", "Text1(0)"}));
}

TEST_F(Dialog2, entree_dans_une_boite_vaut_ok) {
    form->ouvrir();
    form->focaliser(controle("Text2"));
    form->enfoncer({ui::touches::entree});
    EXPECT_EQ(decharges, 1);
}

TEST_F(Dialog2, la_frappe_passe_par_les_memes_controles) {
    form->ouvrir();
    form->cliquer(controle("Text1", 0));
    form->enfoncer({ui::touches::retour});
    form->enfoncer({ui::touches::retour});
    EXPECT_EQ(texte("Label4"), "Le 1er % doit être supérieur à celui d'en dessous !");
    form->enfoncer({'9'}, U'9');
    form->enfoncer({'9'}, U'9');
    EXPECT_EQ(texte("Text1", 0), "99");
    EXPECT_EQ(texte("Label4"), "");
}

/// Relative luminance of a colour, for the contrast of texts (WCAG 2).
double luminance(std::uint32_t rvb) {
    const auto part = [rvb](unsigned decalage) {
        const double c = ((rvb >> decalage) & 0xFFU) / 255.0;
        return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(16) + 0.7152 * part(8) + 0.0722 * part(0);
}

TEST_F(Dialog2, le_message_se_lit_sur_les_six_fonds) {
    constexpr double contrastelisible = 4.5;
    const double texte = luminance(controle("Label4").couleur().rvb());
    for (const auto& fond : profiles::couleursdufond()) {
        const double contraste = (luminance(fond.couleur.rvb()) + 0.05) / (texte + 0.05);
        EXPECT_GE(contraste, contrastelisible) << fond.nom;
    }
}

TEST_F(Dialog2, chaque_controle_tient_dans_la_fenetre_sans_en_couvrir_un_autre) {
    const auto& controles = form->controles();
    for (std::size_t i = 0; i < controles.size(); ++i) {
        const auto& a = controles[i];
        EXPECT_GT(a->largeur(), 0) << a->nomcomplet();
        EXPECT_GE(a->gauche(), 0) << a->nomcomplet();
        EXPECT_LE(a->gauche() + a->largeur(), form->largeur()) << a->nomcomplet();
        EXPECT_LE(a->haut() + a->hauteur(), form->hauteur()) << a->nomcomplet();
        for (std::size_t j = i + 1; j < controles.size(); ++j) {
            const auto& b = controles[j];
            const bool disjoints = a->gauche() + a->largeur() <= b->gauche() ||
                                   b->gauche() + b->largeur() <= a->gauche() ||
                                   a->haut() + a->hauteur() <= b->haut() ||
                                   b->haut() + b->hauteur() <= a->haut();
            EXPECT_TRUE(disjoints) << a->nomcomplet() << " et " << b->nomcomplet();
        }
    }
}

}  // namespace
}  // namespace test_dialog2
