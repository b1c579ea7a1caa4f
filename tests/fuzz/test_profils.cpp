// The readers of a player's small files, and of what the menu makes of them.

#include <algorithm>

#include "compteur.h"
#include "couleurs.h"
#include "essai.h"
#include "fichier.h"
#include "hist.h"
#include "historique.h"
#include "journal.h"
#include "miseajour.h"
#include "nombre.h"
#include "resultats.h"
#include "settings.h"
#include "tableau.h"
#include "texte.h"
#include "utilisateurs.h"

namespace test_profils {
namespace {

using fuzz::Essai;

constexpr std::string_view util = "Essai";

/// The reader finds its file under the name that it looks for.
void deposer(Essai& essai, const std::string& nom) {
    essai.disque.fichiers[nom] = essai.octets;
}

void settings(Essai& essai) {
    deposer(essai, profiles::cheminsettings(util));
    static_cast<void>(profiles::couleurreglee(essai.octets));
    const auto lus = profiles::liresettings(essai.disque, util);
    static_cast<void>(profiles::couleurdufond(lus.couleur.value_or("")));
    if (lus.couleur && lus.couleur->find_first_of(",\"\r\n\t ") != std::string::npos)
        return;  // such a name does not come back as it went
    common::VariablesDialog2 variables;
    profiles::appliquer(lus, variables, [](const std::string& /*couleur*/) {});
    profiles::ecriresettings(essai.disque, util, variables, lus.couleur.value_or(""));
    const auto relus = profiles::liresettings(essai.disque, util);
    EXPECT_EQ(profiles::lignessettings(relus), profiles::lignessettings(lus));
}

void users(Essai& essai) {
    const auto lus = profiles::utilisateurs(essai.octets);
    const auto nom = lus.noms.empty() ? std::string("Zoé") : essai.alea.choisir(lus.noms);
    profiles::ecrireusers(essai.disque, lus.noms, nom);
    const auto relus =
        profiles::utilisateurs(essai.disque.fichiers.find(profiles::fichierusers)->second);
    auto attendus = lus.noms;
    std::erase(attendus, nom);
    attendus.push_back(nom);
    EXPECT_EQ(relus.noms, attendus);
    EXPECT_EQ(relus.derniereligne, nom);
}

/// The results and the history of every panel, from any journal.
void resultats(Essai& essai) {
    deposer(essai, profiles::cheminhist(util));
    const auto& panneau = essai.alea.choisir(menu::panneaux());
    const auto listes = menu::listesdupanneau(panneau, "perso.txt");
    menu::Derniers derniers(listes);
    std::size_t lignes = 0;
    profiles::parcourirhist(essai.disque, util, [&](std::string_view record) {
        derniers.voir(record);
        for (const auto& liste : listes)
            lignes += menu::lignehistorique(record, liste) ? 1 : 0;
        const auto lu = profiles::balayer(record);
        EXPECT_EQ(lu.has_value(), record.find('%', 20) != std::string_view::npos);
        if (lu) {
            EXPECT_EQ(lu->pourcentage.find('%'), std::string_view::npos);
            EXPECT_LE(lu->mode.size(), 1U);
        }
        return true;
    });
    EXPECT_LE(lignes, essai.octets.size());
    menu::Resultats table;
    menu::actualiser(table, listes, derniers);
    for (const auto& resultat : table) {
        EXPECT_LE(common::longueur(resultat.date), profiles::largeurdate);
        EXPECT_EQ(resultat.texte.empty(), !menu::teinte(resultat.texte, 80, 80).has_value());
    }
}

/// A record that is written is read back, behind whatever stands in the journal.
void enregistrement(Essai& essai) {
    const auto journal = profiles::cheminhist(util);
    deposer(essai, journal);
    const auto base = static_cast<std::int64_t>(essai.alea.entre(1, 15000));
    const auto fautes = static_cast<std::int64_t>(essai.alea.sous(static_cast<std::size_t>(base)));
    const auto pourc = profiles::pourcentage(base, fautes);
    const auto record = profiles::enregistrement({}, pourc, "T", "3lc.txt");
    profiles::ajouterhist(essai.disque, util, record);
    const auto& octets = essai.disque.fichiers.find(journal)->second;
    EXPECT_TRUE(octets.starts_with(essai.octets));
    EXPECT_TRUE(octets.ends_with(record + "\r\n"));
    const auto lu = profiles::balayer(record);
    ASSERT_TRUE(lu);
    EXPECT_EQ(lu->pourcentage, common::textenombre(pourc));
    EXPECT_EQ(lu->mode, "T");
}

/// Every line of a journal of racks is read or counted, and a correction behind it is read back.
void journal(Essai& essai) {
    const auto fichier = profiles::cheminjournal(util);
    deposer(essai, fichier);
    std::string attente;
    const std::vector<profiles::Tiragejuge> juges{{"EH", {"HE", "EH"}, {"EH", "HE"}}};
    profiles::journaliser(essai.disque, util, {{2019, 8, 24, 14, 35, 10}, "duos.txt", "T"}, juges,
                          attente);
    EXPECT_EQ(attente, "");
    const auto& octets = essai.disque.fichiers.find(fichier)->second;
    EXPECT_TRUE(octets.starts_with(essai.octets));
    bool derniere = false;
    profiles::Lecturejournal lecture;
    const auto erreur = profiles::parcourirjournal(
        essai.disque, fichier,
        [&](const profiles::Lignejournal& ligne) {
            EXPECT_FALSE(ligne.tirage.empty());
            EXPECT_FALSE(ligne.solutions.empty());
            EXPECT_EQ(ligne.identifiant,
                      std::string(ligne.tirage) + ";" + std::string(ligne.solutions));
            EXPECT_EQ(std::count(ligne.identifiant.begin(), ligne.identifiant.end(), ';'), 1);
            derniere = ligne.identifiant == "EH;HE,EH" && ligne.trouve && ligne.saisi == "EH,HE";
        },
        lecture);
    if (erreur)
        return;  // the disk broke in the midst of the reading
    EXPECT_TRUE(derniere);
    const auto sauts = static_cast<std::size_t>(std::count(octets.begin(), octets.end(), '\n'));
    EXPECT_EQ(lecture.lues + lecture.sautees, sauts);
}

/// A list counts as many lines as it has, however it is read.
void compteur(Essai& essai) {
    menu::Compteur compteur;
    if (menu::compter(essai.disque, fuzz::chemin, compteur))
        return;
    const auto& octets = essai.octets;
    const auto sauts = static_cast<std::size_t>(std::count(octets.begin(), octets.end(), '\n'));
    const bool entamee = !octets.empty() && octets.back() != '\n';
    EXPECT_EQ(compteur.lignes(), sauts + (entamee ? 1 : 0));
    std::string_view derniere = octets;
    if (derniere.ends_with('\n'))
        derniere.remove_suffix(1);
    derniere.remove_prefix(std::min(derniere.rfind('\n') + 1, derniere.size()));
    const auto pointsvirgules = std::count(derniere.begin(), derniere.end(), ';');
    EXPECT_EQ(compteur.pointsvirgules(), static_cast<std::size_t>(pointsvirgules));
}

void version(Essai& essai) {
    common::Lignes lignes(essai.octets);
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        const auto texte = common::depuis1252(ligne);
        EXPECT_TRUE(dialogs::memeversion(texte, texte));
    }
}

const std::vector<const char*> journaux{"hist.dat", "hist.dat", "hist.dat", "octets.bin"};

const fuzz::Lecteur lecteurs[] = {
    {"settings", {"settings.dat"}, settings, 4000},
    {"users", {"users.dat", "octets.bin"}, users},
    {"resultats", journaux, resultats, 4000},
    {"enregistrement", journaux, enregistrement},
    {"journal", {"journal.txt", "journal.txt", "octets.bin"}, journal},
    {"compteur", {"form1.txt", "multi.txt", "octets.bin"}, compteur, 3000},
    {"version", {"version.txt"}, version},
};

class Profils : public fuzz::Lecture {};

TEST_P(Profils, lit_n_importe_quoi) {
    essayer(GetParam());
}

INSTANTIATE_TEST_SUITE_P(, Profils, testing::ValuesIn(lecteurs), fuzz::nommer);

}  // namespace
}  // namespace test_profils
