#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <string>

#include <gmock/gmock.h>

#include "disquesimule.h"
#include "dossier.h"
#include "fauxprogramme.h"
#include "formulaire.h"
#include "pilotemodele.h"
#include "plateformesimulee.h"
#include "proprietes.h"
#include "scenario.h"

namespace test_banc {
namespace {

struct Cas {
    const char* regle;
    const char* scenario;
    const char* reponses;
};

class Banc : public testing::TestWithParam<Cas> {};

std::string nomducas(const testing::TestParamInfo<Cas>& info) {
    return info.param.regle;
}

TEST_P(Banc, repond) {
    EXPECT_EQ(banc::jouerfaux(GetParam().scenario), GetParam().reponses);
}

#define PRET "serie Form1 listes\\x.txt\n"

INSTANTIATE_TEST_SUITE_P(
    Programme, Banc,
    testing::Values(
        Cas{"demarrer_montre_Form2", "demarrer\nattendre Form2.visible oui\n", "ok\nok\n"},
        Cas{"demarrer_deux_fois_est_refuse", "demarrer\ndemarrer\n",
            "ok\nerreur: le programme est déjà lancé (essai:2)\n"},
        Cas{"un_formulaire_que_le_programme_n_a_pas_fait_est_absent",
            "lire Form1.texte\nlire Form1.solution(0).visible\nattendre Form1.focus \"\"\n",
            "erreur: formulaire absent : Form1 (essai:1)\n"
            "erreur: formulaire absent : Form1 (essai:2)\n"
            "erreur: formulaire absent : Form1 (essai:3)\n"},
        Cas{"un_formulaire_que_le_programme_n_a_pas_fait_n_est_pas_visible",
            "lire Form1.visible\ndemarrer\nattendre Dialog2.visible non\n"
            "attendre Dialog2.visible oui\n",
            "= non\nok\nok\nerreur: attendu « oui », lu « non » (essai:4)\n"},
        Cas{"un_formulaire_inconnu_est_absent", "lire Form9.visible\n",
            "erreur: formulaire absent : Form9 (essai:1)\n"},
        Cas{"connexion_lance_tape_le_nom_et_clique",
            "connexion Zoé B.\nlire Form2.user.texte\nlire Form3.visible\nlire Form2.visible\n",
            "ok\n= Zoé B.\n= oui\n= non\n"},
        Cas{"connexion_d_un_nom_vide_efface_la_boite",
            "demarrer\nconnexion \"\"\nlire Form2.user.texte\n", "ok\nok\n= \n"},
        Cas{"panneau_clique_les_boutons_qui_y_menent",
            "connexion A\npanneau 7\npanneau bt\nlire Form3.trace.texte\n",
            "ok\nok\nok\n= Command3 Command7(2) Command1 \n"},
        Cas{"panneau_inconnu", "connexion A\npanneau 9\n",
            "ok\nerreur: panneau inconnu : 9 (essai:2)\n"},
        Cas{"serie_sans_utilisateur_fait_Essai_et_appelle_dans_l_ordre_du_menu",
            PRET "lire Form1.etat.texte\ncontenu Essai\\settings.dat\n| 95\n| 80\n| 8\n| 5\n| 1\n"
                 "| Par défaut\n| 1\ncontenu Essai\\hist.dat\ncontenu Essai\\rev-x.txt\n"
                 "lire Form3.visible\n",
            "ok\n= patienter coloration listes\\x.txt|T||Essai|Essai|0\nok\nok\nok\n= non\n"},
        Cas{"serie_prend_ses_options",
            "serie Form1 listes\\a b.txt toue= typ=rallong app=1 nombase=Un  titre\n"
            "lire Form1.etat.texte\ncontenu Essai\\rev-a b.txt\n",
            "ok\n= patienter coloration listes\\a b.txt||rallong|Un  titre|Essai|1\nok\n"},
        Cas{"serie_garde_le_fichier_de_revision",
            "fichier Essai\\rev-x.txt\n| AB;BA\n" PRET "contenu Essai\\rev-x.txt\n| AB;BA\n",
            "ok\nok\nok\n"},
        Cas{"serie_d_une_partie_touche_la_revision_de_la_liste",
            "serie Form1 listes\\x_d.txt toue=\ncontenu Essai\\rev-x.txt\nabsent "
            "Essai\\rev-x_d.txt\n",
            "ok\nok\nok\n"},
        Cas{"serie_de_revision_touche_le_fichier_donne",
            "serie Form1 Essai\\rev-y.txt toue=R\ncontenu Essai\\rev-y.txt\nabsent "
            "Essai\\rev-rev-y.txt\n",
            "ok\nok\nok\n"},
        Cas{"serie_garde_l_utilisateur_connecte",
            "fichier Zoé\\hist.dat\nconnexion Zoé\nserie Form1 listes\\x.txt\nabsent Essai\n"
            "contenu Zoé\\rev-x.txt\n",
            "ok\nok\nok\nok\nok\n"},
        Cas{"serie_sans_forme_connue_est_fausse", "serie Form3 listes\\x.txt\n",
            "erreur: serie Form1|Multi CHEMIN [toue=T] [typ=rallong] [app=1] [nombase=TITRE] "
            "(essai:1)\n"}),
    nomducas);

INSTANTIATE_TEST_SUITE_P(
    Usager, Banc,
    testing::Values(
        Cas{"clic_puis_bouton_relache", PRET "clic Form1.etat\nlire Form1.etat.texte\n",
            "ok\nok\n= cliqué+relâché\n"},
        Cas{"clic_sur_une_boite_y_mene_le_focus", PRET "clic Form1.solution(1)\nlire Form1.focus\n",
            "ok\nok\n= Form1.solution(1)\n"},
        Cas{"clic_sur_un_controle_cache_grise_ou_inconnu",
            PRET "clic Form1.cache\nclic Form1.grise\nclic Form1.rien\nclic Form1.solution(9)\n",
            "ok\nerreur: contrôle caché : Form1.cache (essai:2)\n"
            "erreur: contrôle grisé : Form1.grise (essai:3)\n"
            "erreur: contrôle inconnu : Form1.rien (essai:4)\n"
            "erreur: contrôle inconnu : Form1.solution(9) (essai:5)\n"},
        Cas{"clic_dans_une_fenetre_cachee", PRET "clic Form3.app\n",
            "ok\nerreur: fenêtre cachée : Form3 (essai:2)\n"},
        Cas{"survol_relache_et_double_clic",
            PRET "survol Form1.etat\nrelache Form1.etat\nlire Form1.etat.texte\n"
                 "doubleclic Form1.etat\nlire Form1.etat.infobulle\n",
            "ok\nok\nok\n= survolé+relâché\nok\n= double\n"},
        Cas{"taper_passe_par_les_regles_de_la_boite",
            PRET "taper abé\nlire Form1.solution(0).texte\n", "ok\nok\n= ABé\n"},
        Cas{"taper_entre_guillemets_garde_les_blancs",
            PRET "taper \" a \"\nattendre Form1.solution(0).texte \" A \"\n", "ok\nok\nok\n"},
        Cas{"touches_d_edition",
            PRET "taper abc\ntouche Gauche\ntouche Retour\nlire Form1.solution(0).texte\n"
                 "touche Suppr\nlire Form1.solution(0).texte\n",
            "ok\nok\nok\nok\n= AC\nok\n= A\n"},
        Cas{"Tab_et_MajTab", PRET "touche Tab\nlire Form1.focus\ntouche MajTab\nlire Form1.focus\n",
            "ok\nok\n= Form1.solution(1)\nok\n= Form1.solution(0)\n"},
        Cas{"Entree_clique_le_bouton_par_defaut",
            PRET "touche Entree\nlire Form1.etat.texte\nlire Form1.defaut\n",
            "ok\nok\n= validé\n= Form1.valider\n"},
        Cas{"touche_inconnue", PRET "touche F1\n", "ok\nerreur: touche inconnue : F1 (essai:2)\n"},
        Cas{"focus_du_clavier_et_selection",
            PRET "taper abc\nfocus Form1.solution(1)\nfocus Form1.solution(0)\nselectionner\n"
                 "lire Form1.solution(0).selection\ntaper x\nlire Form1.solution(0).texte\n",
            "ok\nok\nok\nok\nok\n= 3\nok\n= X\n"},
        Cas{"focus_sur_une_etiquette_est_refuse", PRET "focus Form1.etat\n",
            "ok\nerreur: contrôle sans focus : Form1.etat (essai:2)\n"},
        Cas{"choisir_une_entree_et_une_qui_n_y_est_pas",
            PRET "choisir Form1.liste Vert\nlire Form1.liste.texte\nlire Form1.liste.choix\n"
                 "choisir Form1.liste Bleu\n",
            "ok\nok\n= Vert\n= Jaune | Vert\nerreur: la liste Form1.liste n'a pas l'entrée Bleu "
            "(essai:5)\n"},
        Cas{"menu_ouvert_choisi_et_ferme",
            PRET "menu Form1.un\ndoubleclic Form1.solution(1)\nattendremenu oui\n"
                 "attendre Form1.deux.actif non\nmenu Form1.deux\nmenu Form1.un\nattendremenu non\n"
                 "lire Form1.etat.texte\nlire Form1.deux.actif\n",
            "ok\nerreur: aucun menu n'est ouvert (essai:2)\nok\nok\nok\n"
            "erreur: entrée cachée ou grisée : Form1.deux (essai:6)\nok\nok\n= un\n"
            "erreur: le menu de cette entrée n'est pas ouvert : Form1.deux.actif (essai:10)\n"},
        Cas{"menu_aucun_ferme", PRET "doubleclic Form1.solution(1)\nmenu aucun\nattendremenu non\n",
            "ok\nok\nok\nok\n"},
        Cas{"refus_d_un_ordre_refuse_et_d_un_ordre_execute",
            PRET "refus clic Form1.cache\nrefus menu aucun\nrefus clic Form1.etat\nrefus sauter\n",
            "ok\nok\nok\nerreur: l'ordre a été exécuté : clic Form1.etat (essai:4)\n"
            "erreur: ordre inconnu : sauter (essai:5)\n"},
        Cas{"fermer_par_la_case_de_fermeture", "demarrer\nfermer Form2\nattendrefin 0\n",
            "ok\nfin 0\nok\n"}),
    nomducas);

INSTANTIATE_TEST_SUITE_P(
    Machine, Banc,
    testing::Values(
        Cas{"horloge_et_avancer_passent_minuit_et_l_an",
            PRET "horloge 2023-12-31 23:59:58\nclic Form1.date\nlire Form1.etat.texte\navancer 3\n"
                 "clic Form1.date\nlire Form1.etat.texte\n",
            "ok\nok\nok\n= 31/12/2023 23:59:58\nok\nok\n= 01/01/2024 00:00:01\n"},
        Cas{"horloge_d_un_jour_qui_n_existe_pas", "horloge 2023-02-29 00:00:00\n",
            "erreur: date et heure attendues : AAAA-MM-JJ HH:MM:SS (essai:1)\n"},
        Cas{"hasard_donne_ses_nombres_et_repete_le_dernier",
            PRET "hasard 0.25 0.5\nclic Form1.tirer\nlire Form1.etat.texte\nclic Form1.tirer\n"
                 "clic Form1.tirer\nlire Form1.etat.texte\n",
            "ok\nok\nok\n= 0.250000\nok\nok\n= 0.500000\n"},
        Cas{"hasard_un_est_refuse", "hasard 1\n",
            "erreur: le hasard donne des nombres inférieurs à 1 : 1 (essai:1)\n"},
        Cas{"avancer_tique_dans_l_ordre_des_noms_sans_ceux_qui_viennent_de_partir",
            PRET
            "clic Form1.chrono\nattendre Form1.Timer3.actif non\navancer 1\n"
            "lire Form1.etat.texte\navancer 1\nlire Form1.etat.texte\nlire Form1.Timer3.actif\n",
            "ok\nok\nok\nok\n= 12\nok\n= 12123\n= oui\n"},
        Cas{"repondre_a_une_question",
            PRET "repondre non\nclic Form1.question\nlire Form1.etat.texte\nclic Form1.question\n"
                 "lire Form1.etat.texte\nattendremessages Deux\\nlignes ? | Deux\\nlignes ?\n",
            "ok\nok\nok\n= non\nok\n= oui\nok\n"},
        Cas{"repondre_un_bouton_que_la_boite_n_a_pas",
            PRET "repondre oui\nclic Form1.message\nrepondre ok\nclic Form1.message\n",
            "ok\nok\nerreur: la réponse prévue n'est pas un bouton de la boîte : Bonjour "
            "(essai:3)\nok\nok\n"},
        Cas{"reseau_par_la_fin_de_l_adresse",
            PRET "clic Form1.telecharger\nlire Form1.etat.texte\nabsent recu.txt\n"
                 "fichier page\n| 2.70\nreseau version.txt page\nclic Form1.telecharger\n"
                 "lire Form1.etat.texte\ncontenu recu.txt\n| 2.70\nreseau version.txt echec\n"
                 "clic Form1.telecharger\nlire Form1.etat.texte\n",
            "ok\nok\n= échec\nok\nok\nok\nok\n= reçu\nok\nok\nok\n= échec\n"},
        Cas{"capture_sans_fenetre_reelle", PRET "capture x.png\n",
            "ok\nerreur: pas d'image : aucune fenêtre réelle n'est montrée (essai:2)\n"}),
    nomducas);

INSTANTIATE_TEST_SUITE_P(
    Attentes, Banc,
    testing::Values(
        Cas{"attendre_ce_qui_differe", PRET "attendre Form1.etat.visible non\n",
            "ok\nerreur: attendu « non », lu « oui » (essai:2)\n"},
        Cas{"modele_dans_un_dossier_qui_n_existe_pas", PRET "modele absent/x.txt\n",
            "ok\nerreur: le modèle ne peut pas être écrit : absent/x.txt (essai:2)\n"},
        Cas{"propriete_inconnue", PRET "lire Form1.etat.age\n",
            "ok\nerreur: propriété inconnue : Form1.etat.age (essai:2)\n"},
        Cas{"listes_depuis_le_dernier_ordre",
            PRET "clic Form1.bruit\nattendrebips 1\nattendrebips 0\nattendresons APP05.WAV\n"
                 "attendresons \"\"\nattendreouvertures .../mot\nclic Form1.bruit\n"
                 "attendreouvertures ...exemple...\n",
            "ok\nok\nok\nok\nok\nok\nok\nok\nok\n"},
        Cas{"liste_qui_differe", PRET "clic Form1.bruit\nattendresons ...AUTRE\n",
            "ok\nok\nerreur: attendu « ...AUTRE », lu « APP05.WAV » (essai:3)\n"},
        Cas{"une_faute_termine_le_programme",
            PRET "clic Form1.fautif\nattendrefin 1 première ligne\\nseconde\nattendrefin 1 autre\n"
                 "attendrefin 0\nlire Form1.visible\nabsent x\nrefus clic Form1.etat\n",
            "ok\nfaute Essai : première ligne\\nseconde fin 1\nok\n"
            "erreur: attendu « autre », lu « Essai : première ligne\\nseconde » (essai:4)\n"
            "erreur: attendu « 0 », lu « 1 Essai : première ligne\\nseconde » (essai:5)\n"
            "erreur: le programme est terminé (essai:6)\nok\nok\n"},
        Cas{"une_fin_normale", PRET "attendrefin 0\nclic Form1.finir\nattendrefin 0\n",
            "ok\nerreur: le programme n'est pas terminé (essai:2)\nfin 0\nok\n"},
        Cas{"les_tics_s_arretent_a_la_fin",
            PRET "clic Form1.retardement\navancer 5\nattendrefin 3\n", "ok\nok\nfin 3\nok\n"},
        Cas{"ordre_inconnu", "chose\n", "erreur: ordre inconnu : chose (essai:1)\n"}),
    nomducas);

INSTANTIATE_TEST_SUITE_P(
    Fichiers, Banc,
    testing::Values(
        Cas{"fichier_ecrit_en_occidental",
            "fichier d\\é.txt\n| été\n|\n| œ€\ncontenu d\\é.txt\n"
            "| été\n|\n| œ€\n",
            "ok\nok\n"},
        Cas{"contenu_different",
            "fichier x\n| A\n| B\ncontenu x\n| A\ncontenu x\n| A\n| C\ncontenu x\n| A\n| B\n| C\n",
            "ok\nerreur: ligne de trop : « B » (essai:4)\n"
            "erreur: ligne 2 : attendu « C », lu « B » (essai:6)\n"
            "erreur: il manque la ligne « C » (essai:9)\n"},
        Cas{"lignes_repetees", "fichier x\n|*3 {n}{m};{m}\ncontenu x\n| 1A;A\n| 2B;B\n| 3C;C\n",
            "ok\nok\n"},
        Cas{"ligne_mal_formee", "fichier x\n|A\n", "erreur: ligne mal formée : |A (essai:1)\n"},
        Cas{"octets_tels_quels", "octets x 41810D0A\ncontenu x\n| A\xC2\x81\noctets x 4\n",
            "ok\nok\nerreur: octets en hexadécimal attendus : 4 (essai:4)\n"},
        Cas{"supprimer_fichier_dossier_vide_et_rien",
            "fichier d\\x\nsupprimer d\\x\nsupprimer d\nabsent d\nsupprimer d\n",
            "ok\nok\nok\nok\nerreur: fichier absent : d (essai:5)\n"},
        Cas{"absent_d_un_fichier_qui_existe", "fichier x\nabsent x\n",
            "ok\nerreur: le fichier existe : x (essai:2)\n"},
        Cas{"lectureseule_refuse_au_programme_et_non_aux_ordres",
            PRET "fichier Essai\\suite.txt\n| AB;BA\nlectureseule Essai\\suite.txt\n"
                 "clic Form1.ecrire\ncontenu Essai\\suite.txt\n| AB;BA\nfichier Essai\\suite.txt\n",
            "ok\nok\nok\nfaute Essai : fichier « Essai\\suite.txt » : le disque est plein. fin 1\n"
            "ok\nok\n"},
        Cas{"listes_du_catalogue_et_references",
            "contenu listes\\3lc.txt\n| AB;BA\ncontenu listes\\7l_duos_impurs_d.txt\n"
            "| ABC;BAC;CAB\ncontenu listes\\7l_duos_sanstirage.txt\n| AB;BA\n"
            "contenu listes\\inv.txt\ncontenu infosouris.txt\n",
            "ok\nok\nok\nok\nok\n"},
        Cas{"un_ordre_sans_lignes_n_en_prend_pas", "demarrer\n| A\n",
            "ok\nerreur: ordre inconnu : | (essai:2)\n"}),
    nomducas);

TEST(Destination, un_scenario_de_l_autre_pilote_est_laisse) {
    EXPECT_EQ(banc::jouerfaux("# qt seulement\nsauter\n"), "");
    EXPECT_EQ(banc::jouerfaux("# modele seulement\ndemarrer\n"), "ok\n");
}

TEST(Modele, dit_tout_ce_qui_se_lit) {
    banc::PlateformeSimulee plateforme(".");
    ui::Formulaire form(plateforme, "Form9");
    auto& boite = form.ajouter(ui::Genre::Boite, "reponse", 2);
    boite.texte = "deux\nlignes";
    form.mettredefaut(form.ajouter(ui::Genre::Bouton, "ok"));
    form.donnerfocus(boite);
    form.ajouterminuterie("Timer1").actif = true;
    EXPECT_EQ(
        banc::modele(form),
        "Form9 fond=#FFE0C0 visible=non pointeur=normal largeur=0 hauteur=0 "
        "focus=Form9.reponse(2) defaut=Form9.ok\n"
        "Form9.reponse(2) texte=deux\\nlignes fond=systeme:fenetre couleur=#000000 "
        "visible=oui actif=oui verrou=non coche=0 pointeur=normal taille=10 barre=non gras=non "
        "italique=non gauche=0 haut=0 largeur=0 hauteur=0 selection=0\n"
        "Form9.ok fond=systeme:bouton couleur=#000000 visible=oui actif=oui verrou=non coche=0 "
        "pointeur=normal taille=10 barre=non gras=non italique=non gauche=0 haut=0 largeur=0 "
        "hauteur=0 selection=0\n"
        "Form9.Timer1 actif=oui\n");
}

TEST(Modele, s_ecrit_pour_les_formulaires_charges) {
    const banc::Dossier dossier;
    const auto fichier = dossier.chemin() / u8"modèle un.txt";
    EXPECT_EQ(banc::jouerfaux(PRET "modele " + fichier.string() + "\n"), "ok\nok\n");
    std::ifstream flux(fichier);
    std::string premiere;
    ASSERT_TRUE(std::getline(flux, premiere));
    EXPECT_TRUE(premiere.starts_with("Form1 ")) << premiere;
}

TEST(Graine, la_meme_graine_donne_la_meme_suite_quoi_que_dise_l_horloge) {
    const std::string tirages = "clic Form1.tirer\nlire Form1.etat.texte\n";
    const auto suite = [&](const std::string& graine) {
        return banc::jouerfaux(PRET "graine " + graine + "\n" + tirages + "avancer 7\n" + tirages);
    };
    EXPECT_EQ(suite("3"), suite("3"));
    EXPECT_NE(suite("3"), suite("4"));
}

TEST(DisqueSimule, compte_ce_qui_est_lu_et_ecrit) {
    const banc::Dossier dossier;
    banc::DisqueSimule disque(dossier.chemin());
    disque.refuser("d");
    EXPECT_FALSE(disque.remplacer("f.txt", "A"));
    EXPECT_EQ(disque.ajouter("d\\g.txt", "B"), std::errc::no_space_on_device);
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(disque.ouvrir("f.txt", flux));
    EXPECT_EQ(disque.ecritures(), 2);
    EXPECT_EQ(disque.lectures(), 1);
}

class Reserve : public testing::Test {
  protected:
    void SetUp() override {
        std::ofstream(source, std::ios::binary) << "image";
        disque.reserver({{"listes/a.txt", {"AB;BA\r\n", {}}},
                         {"listes/b.txt", {"", {}}},
                         {"listes-c.txt", {"", {}}},
                         {"images/1.png", {{}, source}}});
    }
    [[nodiscard]] bool ecrit(const char* nom) const {
        return std::filesystem::exists(dossier.chemin() / nom);
    }

    banc::Dossier dossier;
    std::filesystem::path source = dossier.chemin() / "source.png";
    banc::DisqueSimule disque{dossier.chemin()};
};

TEST_F(Reserve, un_fichier_est_ecrit_quand_on_le_demande) {
    EXPECT_FALSE(ecrit("listes/a.txt"));
    std::unique_ptr<common::Flux> flux;
    EXPECT_FALSE(disque.ouvrir("listes\\a.txt", flux));
    EXPECT_TRUE(ecrit("listes/a.txt"));
    EXPECT_FALSE(ecrit("listes/b.txt"));
}

TEST_F(Reserve, ce_qui_est_ajoute_suit_ce_qui_y_etait) {
    ASSERT_FALSE(disque.ajouter("listes\\a.txt", "CD;DC\r\n"));
    EXPECT_EQ(std::filesystem::file_size(dossier.chemin() / "listes/a.txt"), 14U);
}

TEST_F(Reserve, un_fichier_supprime_ne_revient_pas) {
    ASSERT_FALSE(disque.supprimer("listes\\b.txt"));
    EXPECT_FALSE(disque.existe("listes\\b.txt"));
}

TEST_F(Reserve, un_dossier_amene_ses_fichiers) {
    ASSERT_FALSE(disque.renommer("listes", "autres"));
    EXPECT_TRUE(ecrit("autres/a.txt"));
    EXPECT_TRUE(ecrit("autres/b.txt"));
    EXPECT_FALSE(ecrit("listes-c.txt"));
}

TEST_F(Reserve, un_fichier_pris_ailleurs_a_ses_octets) {
    EXPECT_TRUE(disque.existe("images\\1.png"));
    EXPECT_EQ(std::filesystem::file_size(dossier.chemin() / "images/1.png"), 5U);
}

TEST(Lecteur, lit_une_ligne_a_la_fois) {
    std::istringstream flux("demarrer\navancer 1\n");
    banc::Lecteur lecteur(flux);
    banc::Ordre ordre;
    ASSERT_TRUE(lecteur.suivant(ordre));
    EXPECT_EQ(flux.tellg(), 9) << "qui attend la réponse n'a pas encore écrit la suite";
    ASSERT_TRUE(lecteur.suivant(ordre));
    EXPECT_EQ(ordre.nom, "avancer");
    EXPECT_FALSE(lecteur.suivant(ordre));
}

TEST(Lecteur, les_lignes_d_un_ordre_refuse_sont_les_siennes) {
    std::istringstream flux("refus contenu x\n| A\n# note\n\n|\ndemarrer\n");
    banc::Lecteur lecteur(flux);
    banc::Ordre ordre;
    ASSERT_TRUE(lecteur.suivant(ordre));
    EXPECT_THAT(ordre.lignes, testing::ElementsAre("A", ""));
    ASSERT_TRUE(lecteur.suivant(ordre));
    EXPECT_EQ(ordre.numero, 6U);
}

TEST(Lettres, nombres_en_lettres_capitales) {
    EXPECT_EQ(banc::enlettres(1), "A");
    EXPECT_EQ(banc::enlettres(26), "Z");
    EXPECT_EQ(banc::enlettres(27), "AA");
    EXPECT_EQ(banc::enlettres(702), "ZZ");
    EXPECT_EQ(banc::enlettres(703), "AAA");
}

TEST(Horloge, une_minuterie_faite_apres_l_accueil_attend_aussi_sa_seconde) {
    banc::PlateformeSimulee plateforme(".");
    ui::Formulaire forme(plateforme, "Form1");
    auto& premiere = forme.ajouterminuterie("Timer1");
    plateforme.accueillir(forme);
    auto& tardive = forme.ajouterminuterie("Timer2");
    int tics = 0;
    tardive.tic = [&tics] { ++tics; };
    premiere.tic = [&tardive] {
        tardive.actif = false;
        tardive.actif = true;
    };
    premiere.actif = true;
    tardive.actif = true;
    plateforme.avancer(1);
    EXPECT_EQ(tics, 0);
}

}  // namespace
}  // namespace test_banc
