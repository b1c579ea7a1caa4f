#include <fstream>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "form2.h"
#include "lignes.h"
#include "noms.h"
#include "voisinage.h"

namespace test_form2 {
namespace {

using essai::Journal;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* nouveaux = "95\r\n80\r\n8\r\n5\r\n1\r\nPar défaut\r\n1\r\n";

class Form2 : public testing::Test {
  protected:
    essai::Machine machine;
    essai::Voisinage v;
    std::unique_ptr<profiles::Form2> form;

    void charger() {
        form = std::make_unique<profiles::Form2>(machine.plateforme, v.form3, v.menu, v.form1);
        machine.plateforme.accueillir(*form);
        machine.plateforme.executer([&] { form->charger(); });
        form->visible = true;
    }
    [[nodiscard]] ui::Controle& controle(const char* nom) const { return form->controle(nom); }
    [[nodiscard]] std::string texte(const char* nom) const { return controle(nom).texte(); }
    void cliquer(const char* nom) {
        machine.plateforme.executer([&] { form->cliquer(controle(nom)); });
    }
    void connecter(const std::string& nom) {
        controle("user").texte = nom;
        cliquer("Command1");
    }
    [[nodiscard]] Journal visibles() const {
        Journal noms;
        for (const auto& c : form->controles()) {
            if (c->visible())
                noms.push_back(c->nom());
        }
        return noms;
    }
    [[nodiscard]] std::string rapport() const {
        return machine.plateforme.rapport().value_or("aucun");
    }
};

TEST_F(Form2, premier_lancement) {
    charger();
    EXPECT_EQ(form->texte(), "Bienvenue :o)");
    EXPECT_EQ(form->fond().nom(), "#FFE0C0");
    EXPECT_EQ(texte("user"), "Saisissez votre nom d'utilisateur");
    EXPECT_TRUE(controle("user").choix().empty());
    EXPECT_FALSE(controle("Command1").actif());
    EXPECT_EQ(form->focus(), &controle("Command2"));
}

struct Depart {
    const char* nom;
    const char* texte;
    bool visible;
};
void PrintTo(const Depart& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Departs : public Form2, public testing::WithParamInterface<Depart> {};

TEST_P(Departs, montre) {
    charger();
    EXPECT_EQ(texte(GetParam().nom), GetParam().texte);
    EXPECT_EQ(controle(GetParam().nom).visible(), GetParam().visible);
}

const Depart departs[] = {
    {"Label1", "ORVANE - PROGRAMME D'ENTRAÎNEMENT AU SCRABBLE", true},
    {"Image1", "", true},
    {"Label4", "Utilisateur :", true},
    {"user", "Saisissez votre nom d'utilisateur", true},
    {"Command1", "COMMENCER", true},
    {"Command2", "Nouvel utilisateur ?", true},
    {"Label5", "Saisissez votre nom d'utilisateur :", false},
    {"Text2", "", false},
    {"Label3", "(pas de caractères spéciaux)", false},
    {"Command3", "OK", false},
    {"Text1", "", false},
    {"quitter", "Command4", false},
    {"Label2", "", true},
};
INSTANTIATE_TEST_SUITE_P(Controles, Departs, testing::ValuesIn(departs), essai::nommer<Depart>);

TEST_F(Form2, propose_le_dernier_a_s_etre_connecte) {
    machine.ecrire("users.dat", "Paul\r\nZoe\r\n");
    machine.ecrire("Zoe\\settings.dat", "95\r\n80\r\n8\r\n5\r\n1\r\nGris\r\n1\r\n");
    charger();
    EXPECT_THAT(controle("user").choix(), ElementsAre("Paul", "Zoe"));
    EXPECT_EQ(texte("user"), "Zoe");
    EXPECT_TRUE(controle("Command1").actif());
    EXPECT_EQ(form->focus(), &controle("Command1"));
    EXPECT_EQ(form->fond().nom(), "#E0E0E0");
}

TEST_F(Form2, des_lignes_vides_donnent_la_meme_liste) {
    machine.ecrire("users.dat", "\r\nPaul\r\n\r\nZoe\r\n");
    charger();
    EXPECT_THAT(controle("user").choix(), ElementsAre("Paul", "Zoe"));
    EXPECT_EQ(texte("user"), "Zoe");
}

TEST_F(Form2, une_derniere_ligne_vide_propose_le_texte_vide) {
    machine.ecrire("users.dat", "Paul\r\n\r\n");
    charger();
    EXPECT_THAT(controle("user").choix(), ElementsAre("Paul"));
    EXPECT_EQ(texte("user"), "");
    EXPECT_TRUE(controle("Command1").actif());
}

TEST_F(Form2, un_fichier_de_lignes_vides_vaut_un_premier_lancement) {
    machine.ecrire("users.dat", "\r\n\r\n\r\n");
    charger();
    EXPECT_TRUE(controle("user").choix().empty());
    EXPECT_EQ(texte("user"), "Saisissez votre nom d'utilisateur");
    EXPECT_FALSE(controle("Command1").actif());
    EXPECT_EQ(form->focus(), &controle("Command2"));
}

TEST_F(Form2, un_fichier_vide_vaut_un_premier_lancement) {
    machine.ecrire("users.dat", "");
    charger();
    EXPECT_FALSE(controle("Command1").actif());
    EXPECT_EQ(texte("user"), "Saisissez votre nom d'utilisateur");
}

struct Ennui {
    const char* nom;
    const char* settings;  ///< null: missing
};
void PrintTo(const Ennui& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Ennuis : public Form2, public testing::WithParamInterface<Ennui> {};

TEST_P(Ennuis, laissent_la_couleur_par_defaut) {
    machine.ecrire("users.dat", "Zoe\r\n");
    if (GetParam().settings != nullptr)
        machine.ecrire("Zoe\\settings.dat", GetParam().settings);
    charger();
    EXPECT_EQ(form->fond().nom(), "#FFE0C0");
    EXPECT_EQ(texte("user"), "Zoe");
    EXPECT_FALSE(machine.plateforme.fini());
}

const Ennui ennuis[] = {
    {"settings_absents", nullptr},
    {"settings_de_cinq_lignes", "95\r\n80\r\n8\r\n5\r\n1\r\n"},
    {"settings_vides", ""},
    {"couleur_inconnue", "95\r\n80\r\n8\r\n5\r\n1\r\nMauve\r\n1\r\n"},
};
INSTANTIATE_TEST_SUITE_P(Table, Ennuis, testing::ValuesIn(ennuis), essai::nommer<Ennui>);

TEST_F(Form2, users_illisible_ne_se_dit_pas) {
    std::filesystem::create_directory(machine.chemin("users.dat"));
    charger();
    EXPECT_FALSE(machine.plateforme.fini());
    EXPECT_FALSE(controle("Command1").actif());
    EXPECT_TRUE(machine.plateforme.journal.messages.empty());
}

/// A list of users that the disk does not give.
struct Illisible {
    const char* nom;
    std::string octets;
    const char* ennui;
};
void PrintTo(const Illisible& ligne, std::ostream* sortie) {
    *sortie << ligne.nom;
}
class Illisibles : public testing::TestWithParam<Illisible> {
  protected:
    /// A disk whose readings fail if the case is that.
    class Appels : public essais::AppelsDessai {
      public:
        std::error_code lire(common::Poignee poignee, std::span<char> tampon,
                             std::size_t& lus) override {
            return enpanne ? std::make_error_code(std::errc::io_error)
                           : AppelsDessai::lire(poignee, tampon, lus);
        }
        bool enpanne = false;
    };

    [[nodiscard]] std::string lireusers() {
        std::ifstream flux(dossier.chemin() / "users.dat", std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

    banc::Dossier dossier;
    Appels appels;
    banc::PlateformeSimulee plateforme{dossier.chemin(), appels};
    essai::Voisinage v;
};

TEST_P(Illisibles, se_taisent_au_depart_et_ne_se_reecrivent_pas) {
    const auto& octets = GetParam().octets;
    ASSERT_FALSE(plateforme.disque().remplacer("users.dat", octets));
    appels.enpanne = GetParam().ennui == std::string_view("erreur du disque");
    profiles::Form2 form(plateforme, v.form3, v.menu, v.form1);
    plateforme.executer([&] { form.charger(); });
    EXPECT_FALSE(plateforme.fini());
    EXPECT_TRUE(plateforme.journal.messages.empty());
    form.trouver("user")->texte = "Zoe";
    plateforme.executer([&] { form.cliquer(*form.trouver("Command1")); });
    EXPECT_TRUE(plateforme.fini());
    const auto rapport = plateforme.rapport().value_or("aucun");
    EXPECT_THAT(rapport, testing::HasSubstr("users.dat"));
    EXPECT_THAT(rapport, testing::HasSubstr(GetParam().ennui));
    EXPECT_EQ(lireusers(), octets);
    EXPECT_FALSE(std::filesystem::exists(dossier.chemin() / "Zoe"));
}

const Illisible illisibles[] = {
    {"panne", "Paul\r\nAnne\r\n", "erreur du disque"},
    {"nom_de_dix_megaoctets", "Paul\r\n" + std::string(10'000'000, 'x') + "\r\nAnne\r\n",
     "ligne 2 : la ligne est trop longue ; la limite est de 65536 octets"},
};
INSTANTIATE_TEST_SUITE_P(Table, Illisibles, testing::ValuesIn(illisibles),
                         essai::nommer<Illisible>);

TEST_F(Form2, une_liste_lue_trop_tot_ne_perd_pas_ceux_venus_depuis) {
    machine.ecrire("users.dat", "Paul\r\nAnne\r\n");
    charger();
    machine.ecrire("users.dat", "Paul\r\nAnne\r\nLuc\r\n");
    connecter("Paul");
    EXPECT_EQ(machine.lire("users.dat"), "Anne\r\nLuc\r\nPaul\r\n");
}

TEST_F(Form2, un_nom_trop_long_pour_se_relire_ne_s_ecrit_pas) {
    machine.ecrire("users.dat", "Paul\r\n");
    charger();
    connecter(std::string(common::limiteligne, 'x'));
    EXPECT_THAT(rapport(), testing::HasSubstr("la limite est de 65536 octets"));
    EXPECT_EQ(machine.lire("users.dat"), "Paul\r\n");
}

TEST_F(Form2, taper_sur_le_nom_active_commencer) {
    charger();
    form->focaliser(controle("user"));
    form->enfoncer({'X'}, U'x');
    EXPECT_TRUE(controle("Command1").actif());
    controle("user").texte = "";
    EXPECT_TRUE(controle("Command1").actif());
}

TEST_F(Form2, choisir_un_nom_de_la_liste_active_commencer) {
    charger();
    controle("user").choix = std::vector<std::string>{"Paul"};
    ui::Formulaire::choisir(controle("user"), "Paul");
    EXPECT_TRUE(controle("Command1").actif());
}

TEST_F(Form2, nouvel_utilisateur_ouvre_la_saisie) {
    charger();
    const auto avant = visibles();
    cliquer("Command2");
    for (const auto* nom : {"Text2", "Label3", "Label5", "Command3"})
        EXPECT_TRUE(controle(nom).visible()) << nom;
    EXPECT_EQ(form->focus(), &controle("Text2"));
    EXPECT_EQ(visibles().size(), avant.size() + 4);
}

TEST_F(Form2, ok_ajoute_le_nom_et_ferme_la_saisie) {
    machine.ecrire("users.dat", "Paul\r\n");
    charger();
    const auto avant = visibles();
    cliquer("Command2");
    controle("Text2").texte = "Luc";
    cliquer("Command3");
    EXPECT_THAT(controle("user").choix(), ElementsAre("Paul", "Luc"));
    EXPECT_EQ(texte("user"), "Luc");
    EXPECT_TRUE(controle("Command1").actif());
    EXPECT_EQ(visibles(), avant);
    EXPECT_EQ(texte("Text2"), "Luc");
}

TEST_F(Form2, ok_sur_un_nom_vide_ajoute_une_entree_vide) {
    charger();
    cliquer("Command2");
    cliquer("Command3");
    EXPECT_THAT(controle("user").choix(), ElementsAre(""));
    EXPECT_EQ(texte("user"), "");
    EXPECT_TRUE(controle("Command1").actif());
}

TEST_F(Form2, entree_dans_la_saisie_vaut_ok_puis_commencer) {
    charger();
    cliquer("Command2");
    controle("Text2").texte = "Luc";
    machine.plateforme.executer([&] { form->enfoncer({ui::touches::entree}); });
    EXPECT_EQ(texte("user"), "Luc");
    machine.plateforme.executer([&] { form->enfoncer({ui::touches::entree}); });
    EXPECT_EQ(v.form3.util, "Luc");
}

TEST_F(Form2, la_connexion_suit_son_ordre) {
    charger();
    connecter("Luc");
    EXPECT_EQ(v.form3.util, "Luc");
    EXPECT_THAT(v.relever(), ElementsAre("Form1 patienter", "menu montrer"));
    EXPECT_FALSE(form->visible());
    EXPECT_EQ(machine.lire("users.dat"), "Luc\r\n");
    EXPECT_EQ(machine.lire("Luc\\hist.dat"), "");
    EXPECT_EQ(machine.lire("Luc\\settings.dat"), common::vers1252(nouveaux));
}

TEST_F(Form2, la_connexion_laisse_courir_avant_de_charger_form1) {
    charger();
    Journal journal;
    machine.plateforme.pompe = [&] {
        journal = v.relever();
        journal.emplace_back(machine.lire("Luc\\settings.dat").empty() ? "rien" : "créé");
    };
    connecter("Luc");
    EXPECT_THAT(journal, ElementsAre("créé"));
}

TEST_F(Form2, un_nom_deux_fois_dans_la_liste_n_y_reste_qu_une) {
    machine.ecrire("users.dat", "Zoe\r\nPaul\r\n");
    charger();
    cliquer("Command2");
    controle("Text2").texte = "Zoe";
    cliquer("Command3");
    EXPECT_THAT(controle("user").choix(), ElementsAre("Zoe", "Paul", "Zoe"));
    cliquer("Command1");
    EXPECT_EQ(machine.lire("users.dat"), "Paul\r\nZoe\r\n");
}

TEST_F(Form2, le_dernier_connecte_reecrit_le_fichier_sans_changement) {
    machine.ecrire("users.dat", "Paul\r\nZoe\r\n");
    machine.ecrire("Zoe\\hist.dat", "garde");
    charger();
    cliquer("Command1");
    EXPECT_EQ(machine.lire("users.dat"), "Paul\r\nZoe\r\n");
    EXPECT_EQ(machine.lire("Zoe\\hist.dat"), "garde");
}

TEST_F(Form2, un_dossier_existant_est_pris_tel_quel) {
    std::filesystem::create_directory(machine.chemin("Luc"));
    charger();
    connecter("Luc");
    EXPECT_EQ(machine.lire("Luc\\settings.dat"), "absent");
    EXPECT_EQ(machine.lire("Luc\\hist.dat"), "absent");
}

TEST_F(Form2, le_nom_vide_ne_cree_rien) {
    charger();
    connecter("");
    EXPECT_EQ(machine.lire("users.dat"), "\r\n");
    EXPECT_EQ(v.form3.util, "");
    EXPECT_THAT(v.relever(), ElementsAre("Form1 patienter", "menu montrer"));
    EXPECT_EQ(machine.lire("settings.dat"), "absent");
}

using essai::Nom;

class Nomsadmis : public Form2, public testing::WithParamInterface<Nom> {};

TEST_P(Nomsadmis, sont_gardes_entiers) {
    const auto& nom = GetParam().utilisateur;
    charger();
    connecter(nom);
    EXPECT_EQ(machine.lire("users.dat"), common::vers1252(nom + "\r\n"));
    EXPECT_EQ(machine.lire(nom + "\\settings.dat"), common::vers1252(nouveaux));
    charger();
    EXPECT_EQ(texte("user"), nom);
}

const Nom admis[] = {
    {"avec_une_virgule", "Pont, Zoe"},
    {"avec_un_accent", "Zoé Lœil"},
    {"de_255_caracteres", std::string(255, 'z')},
};
INSTANTIATE_TEST_SUITE_P(Table, Nomsadmis, testing::ValuesIn(admis), essai::nommer<Nom>);
INSTANTIATE_TEST_SUITE_P(Decesysteme, Nomsadmis, testing::ValuesIn(essai::nomsadmis()),
                         essai::nommer<Nom>);

class Nomsrefuses : public Form2, public testing::WithParamInterface<Nom> {};

TEST_P(Nomsrefuses, finissent_le_programme_en_le_disant) {
    const auto& nom = GetParam().utilisateur;
    charger();
    connecter(nom);
    EXPECT_TRUE(machine.plateforme.fini());
    EXPECT_EQ(machine.plateforme.statut(), 1);
    EXPECT_THAT(rapport(), HasSubstr(nom));
    EXPECT_THAT(rapport(), HasSubstr("choisissez un autre nom"));
    EXPECT_EQ(machine.lire("users.dat"), nom + "\r\n");
    EXPECT_THAT(v.relever(), ElementsAre());
}

const Nom refuses[] = {
    {"de_300_caracteres", std::string(300, 'z')},
    {"avec_un_dossier_absent", "Paul\\Zoe"},
};
INSTANTIATE_TEST_SUITE_P(Table, Nomsrefuses, testing::ValuesIn(refuses), essai::nommer<Nom>);
INSTANTIATE_TEST_SUITE_P(Decesysteme, Nomsrefuses, testing::ValuesIn(essai::nomsrefuses()),
                         essai::nommer<Nom>);

TEST_F(Form2, un_disque_plein_finit_la_connexion) {
    machine.ecrire("users.dat", "Paul\r\n");
    machine.disque().refuser("users.dat");
    charger();
    connecter("Luc");
    EXPECT_THAT(rapport(), HasSubstr("Écriture de la liste des utilisateurs"));
    EXPECT_EQ(machine.lire("users.dat"), "Paul\r\n");
    EXPECT_EQ(machine.lire("Luc\\hist.dat"), "absent");
}

TEST_F(Form2, la_case_de_fermeture_finit_le_programme) {
    charger();
    machine.plateforme.executer([&] { form->fermer(); });
    EXPECT_TRUE(machine.plateforme.fini());
    EXPECT_EQ(machine.plateforme.statut(), 0);
}

TEST_F(Form2, l_image_et_quitter_ne_font_rien) {
    charger();
    const auto avant = visibles();
    cliquer("Image1");
    cliquer("quitter");
    EXPECT_EQ(visibles(), avant);
    EXPECT_FALSE(machine.plateforme.fini());
}

TEST_F(Form2, apropos_compte_et_finit_le_programme) {
    charger();
    ASSERT_EQ(form->minuteries().size(), 1U);
    const auto& minuterie = *form->minuteries().front();
    EXPECT_EQ(minuterie.nom(), "Timer1");
    EXPECT_FALSE(minuterie.actif());
    machine.plateforme.executer([&] { form->apropos(); });
    EXPECT_EQ(form->texte(), "A bientôt !");
    EXPECT_TRUE(minuterie.actif());
    for (const auto* nom : {"user", "Label1", "Command1", "quitter"})
        EXPECT_FALSE(controle(nom).visible()) << nom;
    EXPECT_TRUE(controle("Text1").visible());
    EXPECT_TRUE(texte("Text1").starts_with("A propos de l'auteur :"));
    EXPECT_EQ(texte("Label2"), "");
    machine.plateforme.avancer(1);
    EXPECT_EQ(texte("Label2"), "7");
    machine.plateforme.avancer(7);
    EXPECT_EQ(texte("Label2"), "0");
    EXPECT_FALSE(machine.plateforme.fini());
    machine.plateforme.avancer(1);
    EXPECT_EQ(texte("Label2"), "-1");
    EXPECT_TRUE(machine.plateforme.fini());
    EXPECT_EQ(machine.plateforme.statut(), 0);
}

TEST_F(Form2, tab_suit_les_champs_montres) {
    charger();
    cliquer("Command2");
    Journal parcours;
    for (int i = 0; i < 4; ++i) {
        form->tabuler(false);
        parcours.push_back(form->focus()->nom());
    }
    EXPECT_THAT(parcours, ElementsAre("Command3", "user", "Command2", "Text2"));
}

}  // namespace
}  // namespace test_form2
