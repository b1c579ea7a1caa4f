// Every write of the small files, with the program killed right before or right after it; and two
// programs that append at once.

#include <sys/wait.h>
#include <unistd.h>

#include <gtest/gtest.h>

#include "form2.h"
#include "hist.h"
#include "lignes.h"
#include "settings.h"
#include "utilisateurs.h"
#include "voisinage.h"

namespace {

constexpr int tue = 42;  // exit status of a program that was killed

/// A disk that kills its program at the n-th thing it is asked to change, before or after it.
class Disquemortel : public common::DisqueReel {
  public:
    Disquemortel(std::filesystem::path racine, int rang, bool avant)
        : DisqueReel(std::move(racine)), reste_(rang), avant_(avant) {}

    std::error_code ajouter(std::string_view chemin, std::string_view octets) override {
        return mourir([&] { return DisqueReel::ajouter(chemin, octets); });
    }
    std::error_code remplacer(std::string_view chemin, std::string_view octets) override {
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
        if (ici && avant_)
            ::_exit(tue);
        const auto erreur = ecriture();
        if (ici)
            ::_exit(tue);
        return erreur;
    }

    int reste_;
    bool avant_;
};

/// Runs an action in a program of its own, and gives its exit status.
template <class Action>
int enfant(const Action& action) {
    const auto pid = ::fork();
    if (pid == 0) {
        action();
        ::_exit(0);
    }
    int statut = -1;
    ::waitpid(pid, &statut, 0);
    return WIFEXITED(statut) ? WEXITSTATUS(statut) : -1;
}

/// What a run leaves on the disk, login first: the options of a new user, changed, and two results.
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
}

std::vector<std::string> records(common::Disque& disque) {
    std::vector<std::string> lus;
    profiles::parcourirhist(disque, "Zoé", [&](std::string_view r) { lus.emplace_back(r); });
    return lus;
}

/// The writes of `jouer`: users.dat, the folder, two files, its name, settings.dat, two records.
constexpr int nbecritures = 8;

class Coupure : public testing::TestWithParam<std::tuple<int, bool>> {
  protected:
    essai::Machine machine;
};

TEST_P(Coupure, garde_ce_qui_etait_ecrit) {
    const int rang = std::get<0>(GetParam());
    const bool avant = std::get<1>(GetParam());
    machine.ecrire("users.dat", "Paul\r\n");
    EXPECT_EQ(enfant([&] {
                  Disquemortel disque(machine.dossier.chemin(), rang, avant);
                  jouer(disque);
              }),
              tue);

    // The next start: everything is whole, as it was before the write or after it.
    const int faites = avant ? rang - 1 : rang;
    EXPECT_EQ(machine.lire("users.dat"),
              faites >= 1 ? common::vers1252("Paul\r\nZoé\r\n") : "Paul\r\n");
    EXPECT_EQ(profiles::dossierexiste(machine.disque(), "Zoé"), faites >= 5);
    if (faites >= 5) {
        const auto reglages = profiles::liresettings(machine.disque(), "Zoé");
        EXPECT_EQ(reglages.couleur, faites >= 6 ? "Gris" : "Par défaut");
        EXPECT_EQ(records(machine.disque()).size(),
                  static_cast<std::size_t>(std::max(faites - 6, 0)));
    }
    jouer(machine.disque());
    EXPECT_EQ(machine.lire("users.dat"), common::vers1252("Paul\r\nZoé\r\n"));
    EXPECT_EQ(records(machine.disque()).size(),
              static_cast<std::size_t>(std::max(faites - 6, 0)) + 2);
}

std::string nomdecoupure(const testing::TestParamInfo<std::tuple<int, bool>>& cas) {
    return (std::get<1>(cas.param) ? "avant_" : "apres_") + std::to_string(std::get<0>(cas.param));
}
INSTANTIATE_TEST_SUITE_P(Ecritures, Coupure,
                         testing::Combine(testing::Range(1, nbecritures + 1), testing::Bool()),
                         nomdecoupure);

TEST(Coupures, la_table_les_tient_toutes) {
    essai::Machine machine;
    EXPECT_EQ(enfant([&] {
                  Disquemortel disque(machine.dossier.chemin(), nbecritures + 1, true);
                  jouer(disque);
              }),
              0);
}

TEST(Ajouts, de_deux_programmes_a_la_fois_ne_se_dechirent_pas) {
    constexpr int nbrecords = 150;
    essai::Machine machine;
    machine.ecrire("Zoé\\hist.dat", "");
    const auto remplir = [&](const std::string& nom) {
        common::DisqueReel disque(machine.dossier.chemin());
        for (int i = 0; i < nbrecords; ++i)
            profiles::ajouterhist(disque, "Zoé", nom + std::string(40, nom[0]));
    };
    const auto pid = ::fork();
    if (pid == 0) {
        remplir("b");
        ::_exit(0);
    }
    remplir("a");
    int statut = -1;
    ::waitpid(pid, &statut, 0);
    EXPECT_EQ(statut, 0);
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

}  // namespace
