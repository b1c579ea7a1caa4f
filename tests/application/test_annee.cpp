// A year of a player, with the clock moved: what was missed comes due by the ladder, is made into
// the list of the day, and is played in the trainer to "BRAVO!".

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <memory>
#include <sstream>
#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "chemin.h"
#include "disquereel.h"
#include "dossier.h"
#include "lecture.h"
#include "listedujour.h"
#include "pilotemodele.h"
#include "programmereel.h"
#include "seance.h"
#include "suivi.h"

namespace test_annee {
namespace {

using carnet::Jour;
using testing::ElementsAreArray;
using testing::EndsWith;

constexpr Jour premier = 18000;  // 14/04/2019
constexpr Jour duree = 366;

/// Rack and solutions, as the journal has them.
const std::vector<std::string> racks{"EIRST;TIERS", "AABC;CABA", "ENZ;NEZ", "ENOZ;ZONE,ONZE"};

class Annee : public testing::Test {
  protected:
    Annee() {
        banc::garnir(dossier_.chemin(), ORVANE_JEU);
        std::ofstream(dossier_.chemin() / "users.dat") << "Lea\r\n";
        std::filesystem::create_directory(dossier_.chemin() / "Lea");
        std::ofstream(dossier_.chemin() / "Lea" / "hist.dat");
        std::ofstream(dossier_.chemin() / "Lea" / "settings.dat")
            << "95\r\n80\r\n8\r\n5\r\n1\r\nGris\r\n1\r\n";
    }

    /// The line of a correction.
    void noter(Jour jour, const std::string& rack, bool trouve, const std::string& liste) {
        const auto ligne = carnet::datefrancaise(jour) + " - 18:00:00;" + liste + ";T;" + rack +
                           (trouve ? ";1;x\r\n" : ";0;\r\n");
        ASSERT_FALSE(disque_.ajouter("Lea\\journal.txt", ligne));
    }
    /// The list of the day, written; its racks.
    std::vector<std::string> preparer(Jour jour) {
        carnet::Suivi suivi;
        suivi.util = "Lea";
        suivi.jour = jour;
        EXPECT_TRUE(carnet::liresuivi(disque_, suivi, [](std::size_t) { return true; }));
        const auto dues = suivi.echelle.dues(jour);
        const auto paire = carnet::listedujour(dues, carnet::plafondordinaire);
        EXPECT_EQ(carnet::ecrirepaire(disque_, paire, carnet::nomsdujour), "");
        std::vector<std::string> dus;
        for (const auto& due : dues)
            dus.emplace_back(due.identifiant);
        return dus;
    }
    /// Plays a list of the day on the personal row, if there is one.
    void jouer(Jour jour, const std::string& fichier, const std::string& forme) {
        if (!disque_.existe("listes\\" + fichier))
            return;
        banc::Seance seance{
            dossier_.chemin(),
            [](ui::Plateforme& p) { return std::make_unique<banc::ProgrammeReel>(p); },
            [](banc::PlateformeSimulee& p) { return std::make_unique<banc::PiloteModele>(p); }};
        const auto ordonner = [&](const std::string& ordres) {
            std::istringstream flux(ordres);
            banc::Lecteur lecteur(flux);
            std::string dit;
            for (banc::Ordre ordre; lecteur.suivant(ordre);)
                dit = seance.executer(ordre);
            return dit;
        };
        ordonner("horloge " + carnet::textejour(jour) + " 18:00:00\nconnexion Lea\n" +
                 "panneau autres\nclic Form3.Text2\nselectionner\ntaper " + fichier +
                 "\nclic Form3.Command16\n" +
                 "attendre Form3.Label11.texte Le fichier personnel semble valide.\nhasard 0\n" +
                 "clic Form3.Command14(7)\nattendre " + forme + ".visible oui\n");
        for (int i = 0; !seance.plateforme.fini(); ++i) {
            const auto tirage =
                ordonner("lire " + forme + ".tirage(" + std::to_string(i) + ").texte\n")
                    .substr(2);  // behind "= "
            const auto rack = std::find_if(racks.begin(), racks.end(), [&](const auto& un) {
                return !tirage.empty() && un.starts_with(tirage + ";");
            });
            if (rack == racks.end())
                break;
            repondre(*rack, ordonner);
        }
        ordonner("touche F12\nattendre " + forme + ".motsleft.texte 0\nattendresons APP05.WAV\n");
        EXPECT_THAT(disque("Lea/hist.dat"), EndsWith(" - 100% - T - " + fichier + "\r\n"));
    }
    template <class Ordonner>
    static void repondre(const std::string& rack, const Ordonner& ordonner) {
        std::istringstream solutions(rack.substr(rack.find(';') + 1));
        for (std::string mot; std::getline(solutions, mot, ',');) {
            for (auto& lettre : mot)
                lettre = static_cast<char>(lettre - 'A' + 'a');
            ordonner("taper " + mot + "\ntouche Entree\n");
        }
    }
    [[nodiscard]] std::string disque(const std::string& nom) const {
        std::ifstream flux(dossier_.chemin() / common::chemin(nom), std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

    banc::Dossier dossier_;
    common::DisqueReel disque_{dossier_.chemin()};
};

/// The days on which a rack is due that is found each time, but for one on which it is missed.
std::vector<Jour> attendus(const std::string& rack, std::size_t manque) {
    std::vector<Jour> jours;
    std::size_t palier = 0;
    for (Jour jour = premier + 1; jour < premier + duree;) {
        jours.push_back(jour);
        palier = jours.size() == manque ? 0 : palier + 1;
        jour += palier == 0 ? 1 : carnet::intervalle(palier, rack);
    }
    return jours;
}

TEST_F(Annee, chaque_tirage_manque_revient_a_son_jour_et_se_joue) {
    constexpr std::size_t troisieme = 3;  // sight of the second rack on which it is missed
    for (const auto& rack : racks)
        noter(premier, rack, false, "3lc.txt");
    std::map<std::string, std::vector<Jour>> venus;
    for (Jour jour = premier + 1; jour < premier + duree; ++jour) {
        for (const auto& rack : preparer(jour)) {
            venus[rack].push_back(jour);
            const bool manque = rack == racks[1] && venus[rack].size() == troisieme;
            noter(jour, rack, !manque, rack == racks[3] ? "dujour-multi.txt" : "dujour.txt");
        }
        jouer(jour, "dujour.txt", "Form1");
        jouer(jour, "dujour-multi.txt", "Multi");
        if (HasFatalFailure() || HasNonfatalFailure())
            return;
    }
    for (const auto& rack : racks) {
        EXPECT_GT(venus[rack].size(), 6U);
        EXPECT_THAT(venus[rack], ElementsAreArray(attendus(rack, rack == racks[1] ? troisieme : 0)))
            << rack;
    }
}

}  // namespace
}  // namespace test_annee
