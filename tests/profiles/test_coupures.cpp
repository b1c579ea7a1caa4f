// Every write of a player's files, with the program killed right before it, in its midst or right
// after it; and two programs that write at once.

#include <algorithm>
#include <array>
#include <fstream>

#include <gtest/gtest.h>

#include "appelsdessai.h"
#include "chemin.h"
#include "form2.h"
#include "hist.h"
#include "lignes.h"
#include "revision.h"
#include "settings.h"
#include "utilisateurs.h"
#include "voisinage.h"

namespace test_coupures {
namespace {

enum class Moment { Avant, Pendant, Apres };

/// A disk that kills its program at the n-th thing it is asked to change, and changes nothing more.
/// In the midst of putting a file in the place of another, the new one lies beside it; all else is
/// one step of the system.
class Disquemortel : public common::DisqueReel {
  public:
    Disquemortel(std::filesystem::path racine, int rang, Moment moment)
        : DisqueReel(std::move(racine)), reste_(rang), moment_(moment) {}

    std::error_code ajouter(std::string_view chemin, std::string_view octets) override {
        return mourir([&] { return DisqueReel::ajouter(chemin, octets); });
    }
    std::error_code remplacer(std::string_view chemin, std::string_view octets) override {
        if (moment_ == Moment::Pendant && reste_ == 1)
            std::ofstream(systeme(std::string(chemin) + ".1.tmp"), std::ios::binary) << octets;
        return mourir([&] { return DisqueReel::remplacer(chemin, octets); });
    }
    std::error_code creerdossier(std::string_view chemin) override {
        return mourir([&] { return DisqueReel::creerdossier(chemin); });
    }
    std::error_code renommer(std::string_view ancien, std::string_view nouveau) override {
        return mourir([&] { return DisqueReel::renommer(ancien, nouveau); });
    }

  private:
    template <class Ecriture>
    std::error_code mourir(const Ecriture& ecriture) {
        const bool ici = --reste_ == 0;
        if (ici && moment_ != Moment::Apres)
            essais::mourir();
        const auto erreur = essais::mort() ? make_error_code(std::errc::io_error) : ecriture();
        if (ici)
            essais::mourir();
        return essais::mort() ? make_error_code(std::errc::io_error) : erreur;
    }

    int reste_;
    Moment moment_;
};

constexpr std::string_view revision = "Zoé\\rev-3lc.txt";

/// What a run leaves on the disk, login first: the options of a new user, changed, two results, two
/// rows to work again, and one of them taken out.
void jouer(common::Disque& disque) {
    profiles::ecrireusers(disque, std::vector<std::string>{"Paul"}, "Zoé");
    if (!profiles::dossierexiste(disque, "Zoé"))
        profiles::creerutilisateur(disque, "Zoé");
    auto reglages = profiles::liresettings(disque, "Zoé");
    common::VariablesDialog2 variables;
    profiles::appliquer(reglages, variables, [](const std::string& /*couleur*/) {});
    variables.seuilch = 90;
    profiles::ecriresettings(disque, "Zoé", variables, "Gris");
    for (const auto* nom : {"3lc.txt", "3lt.txt"}) {
        profiles::ajouterhist(disque, "Zoé",
                              profiles::enregistrement({2019, 8, 24, 14, 35, 0}, 95.3, "T", nom));
    }
    series::ajouterenrevision(disque, revision, std::vector<std::string>{"ALV;VAL", "AELV;LEVA"});
    series::retirerderevision(disque, revision, "ALV;VAL");
}

std::vector<std::string> records(common::Disque& disque) {
    std::vector<std::string> lus;
    profiles::parcourirhist(disque, "Zoé", [&](std::string_view r) {
        lus.emplace_back(r);
        return true;
    });
    return lus;
}

/// The writes of `jouer`: users.dat, the folder, two files, its name, settings.dat, two records,
/// the rows of the revision file, the one that leaves it.
constexpr int nbecritures = 10;

class Coupure : public testing::TestWithParam<std::tuple<int, Moment>> {
  protected:
    /// The revision file after so many writes.
    static std::string rangees(int faites) {
        if (faites < nbecritures - 1)
            return "absent";
        return faites < nbecritures ? "ALV;VAL\r\nAELV;LEVA\r\n" : "AELV;LEVA\r\n";
    }

    essai::Machine machine;
};

TEST_P(Coupure, garde_ce_qui_etait_ecrit) {
    const int rang = std::get<0>(GetParam());
    const auto moment = std::get<1>(GetParam());
    machine.ecrire("users.dat", "Paul\r\n");
    EXPECT_EQ(essais::encopie([&] {
                  Disquemortel disque(machine.dossier.chemin(), rang, moment);
                  jouer(disque);
                  return 0;
              }),
              essais::tue);

    // The next start: everything is whole, as it was before the write or after it.
    const int faites = moment == Moment::Apres ? rang : rang - 1;
    EXPECT_EQ(machine.lire(revision), rangees(faites));
    EXPECT_EQ(machine.lire("users.dat"),
              faites >= 1 ? common::vers1252("Paul\r\nZoé\r\n") : "Paul\r\n");
    EXPECT_EQ(profiles::dossierexiste(machine.disque(), "Zoé"), faites >= 5);
    if (faites >= 5) {
        const auto reglages = profiles::liresettings(machine.disque(), "Zoé");
        EXPECT_EQ(reglages.couleur, faites >= 6 ? "Gris" : "Par défaut");
        EXPECT_EQ(records(machine.disque()).size(),
                  static_cast<std::size_t>(std::clamp(faites - 6, 0, 2)));
    }
    jouer(machine.disque());
    EXPECT_EQ(machine.lire("users.dat"), common::vers1252("Paul\r\nZoé\r\n"));
    EXPECT_EQ(records(machine.disque()).size(),
              static_cast<std::size_t>(std::clamp(faites - 6, 0, 2)) + 2);
}

std::string nomdecoupure(const testing::TestParamInfo<std::tuple<int, Moment>>& cas) {
    constexpr std::array noms{"avant_", "pendant_", "apres_"};
    return noms.at(static_cast<std::size_t>(std::get<1>(cas.param))) +
           std::to_string(std::get<0>(cas.param));
}
INSTANTIATE_TEST_SUITE_P(Ecritures, Coupure,
                         testing::Combine(testing::Range(1, nbecritures + 1),
                                          testing::Values(Moment::Avant, Moment::Pendant,
                                                          Moment::Apres)),
                         nomdecoupure);

TEST(Coupures, la_table_les_tient_toutes) {
    essai::Machine machine;
    EXPECT_EQ(essais::encopie([&] {
                  Disquemortel disque(machine.dossier.chemin(), nbecritures + 1, Moment::Avant);
                  jouer(disque);
                  return 0;
              }),
              0);
}

int jouerjusqua(const essais::Mots& mots) {
    Disquemortel disque(common::chemin(mots[0]), std::stoi(mots[1]), Moment::Apres);
    jouer(disque);
    return 0;
}

/// As of the table above, by programs that do end, whatever the system.
TEST(Coupures, pour_de_bon_gardent_ce_qui_etait_ecrit) {
    for (const int rang : {1, nbecritures / 2, nbecritures}) {
        essai::Machine machine;
        machine.ecrire("users.dat", "Paul\r\n");
        EXPECT_EQ(
            essais::enfant(jouerjusqua, {machine.dossier.chemin().string(), std::to_string(rang)}),
            essais::tue);
        EXPECT_EQ(machine.lire("users.dat"), common::vers1252("Paul\r\nZoé\r\n"));
        EXPECT_EQ(profiles::dossierexiste(machine.disque(), "Zoé"), rang > 1);
        EXPECT_EQ(machine.lire(revision), rang < nbecritures ? "absent" : "AELV;LEVA\r\n");
    }
}

/// Runs an action as two programs at once, which know the play folder, their number, and what else
/// they are told.
void adeux(essais::Action action, const std::filesystem::path& jeu,
           const essais::Mots& suite = {}) {
    const auto mots = [&](const char* numero) {
        essais::Mots tous{jeu.string(), numero};
        tous.insert(tous.end(), suite.begin(), suite.end());
        return tous;
    };
    essais::Enfant autre(action, mots("1"));
    EXPECT_EQ(action(mots("0")), 0);
    EXPECT_EQ(autre.attendre(), 0);
}

/// The disk of one of them.
class Disquepatient {
  public:
    explicit Disquepatient(const essais::Mots& mots) : disque_(common::chemin(mots[0]), appels_) {}
    [[nodiscard]] common::Disque& disque() { return disque_; }

  private:
    essais::AppelsPatients appels_;
    common::DisqueReel disque_;
};

bool premier(const essais::Mots& mots) {
    return mots[1] == "0";
}

constexpr int nbrecords = 150;

int ajouterrecords(const essais::Mots& mots) {
    Disquepatient patient(mots);
    for (int i = 0; i < nbrecords; ++i)
        profiles::ajouterhist(patient.disque(), "Zoé", std::string(41, premier(mots) ? 'a' : 'b'));
    return 0;
}

TEST(Ajouts, de_deux_programmes_a_la_fois_ne_se_dechirent_pas) {
    essai::Machine machine;
    machine.ecrire("Zoé\\hist.dat", "");
    adeux(ajouterrecords, machine.dossier.chemin());
    int a = 0;
    int b = 0;
    for (const auto& record : records(machine.disque())) {
        if (record == std::string(41, 'a'))
            ++a;
        else if (record == std::string(41, 'b'))
            ++b;
        else
            ADD_FAILURE() << record;
    }
    EXPECT_EQ(a, nbrecords);
    EXPECT_EQ(b, nbrecords);
}

constexpr int nbutilisateurs = 60;

/// Every third one is a user that both make.
std::string utilisateur(bool premier, int i) {
    return (i % 3 == 0 ? "commun " : premier ? "a " : "b ") + std::to_string(i);
}

int creerutilisateurs(const essais::Mots& mots) {
    Disquepatient patient(mots);
    for (int i = 0; i < nbutilisateurs; ++i) {
        const auto nom = utilisateur(premier(mots), i);
        if (!profiles::dossierexiste(patient.disque(), nom))
            profiles::creerutilisateur(patient.disque(), nom);
    }
    return 0;
}

TEST(Creations, de_deux_programmes_a_la_fois_ne_se_melent_pas) {
    essai::Machine machine;
    machine.ecrire("users.dat", "");
    adeux(creerutilisateurs, machine.dossier.chemin());
    for (const bool un : {true, false}) {
        for (int i = 0; i < nbutilisateurs; ++i) {
            const auto nom = utilisateur(un, i);
            EXPECT_EQ(machine.lire(nom + "\\hist.dat"), "") << nom;
            EXPECT_EQ(profiles::liresettings(machine.disque(), nom).seuilch, 95);
        }
    }
    EXPECT_FALSE(machine.disque().existe("nouvel-utilisateur.tmp"));
}

/// Makes a player, from the list that the login form showed.
int connecter(const essais::Mots& mots) {
    Disquepatient patient(mots);
    const std::vector<std::string> liste(mots.begin() + 2, mots.end());
    profiles::ecrireusers(patient.disque(), liste, premier(mots) ? "Zoe" : "Luc");
    return 0;
}

/// Two copies of the program, both on their login form, which then make a player each.
TEST(Connexions, de_deux_programmes_a_la_fois_ne_perdent_personne) {
    constexpr int courses = 10;
    for (const auto* users : {"absent", "", "Paul\r\nAnne\r\n"}) {
        for (int course = 0; course < courses; ++course) {
            essai::Machine machine;
            if (std::string_view(users) != "absent")
                machine.ecrire("users.dat", users);
            essai::Voisinage v;
            profiles::Form2 form(machine.plateforme, v.form3, v.menu, v.form1);
            form.charger();
            const auto liste = form.trouver("user")->choix();
            adeux(connecter, machine.dossier.chemin(), {liste.begin(), liste.end()});
            auto lus = profiles::utilisateurs(machine.lire("users.dat")).noms;
            std::sort(lus.begin(), lus.end());
            auto attendus = liste;
            attendus.insert(attendus.end(), {"Luc", "Zoe"});
            std::sort(attendus.begin(), attendus.end());
            EXPECT_EQ(lus, attendus) << users;
        }
    }
}

constexpr int nbrangees = 200;

int ajouterouretirer(const essais::Mots& mots) {
    Disquepatient patient(mots);
    for (int i = 0; i < nbrangees; ++i) {
        if (premier(mots))
            series::ajouterenrevision(patient.disque(), revision,
                                      std::vector{"A;" + std::to_string(i)});
        else
            series::retirerderevision(patient.disque(), revision, "ABSENTE;");
    }
    return 0;
}

TEST(Revisions, une_rangee_ajoutee_pendant_qu_un_autre_programme_en_ote_reste) {
    essai::Machine machine;
    machine.ecrire(revision, "");
    adeux(ajouterouretirer, machine.dossier.chemin());
    std::vector<std::string> attendues;
    attendues.reserve(nbrangees);
    for (int i = 0; i < nbrangees; ++i)
        attendues.push_back("A;" + std::to_string(i));
    std::vector<std::string> lues;
    common::Items(machine.disque(), revision, "Essai").chaque([&](auto item, std::size_t) {
        lues.emplace_back(item);
    });
    EXPECT_EQ(lues, attendues);
}

}  // namespace
}  // namespace test_coupures
