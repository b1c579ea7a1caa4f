// The menu: the opening of a panel of long lists, and the results of a long history.

#include <benchmark/benchmark.h>

#include "epreuve.h"
#include "mesure.h"

namespace {

using bench::Epreuve;

constexpr std::size_t plusgrandeliste = 15000;

/// Opens the panel of the 8-letter words, each list as long as a list can be.
void ouverture_de_huit_listes_pleines(benchmark::State& state) {
    Epreuve epreuve;
    std::string rangees;
    for (std::size_t i = 0; i < plusgrandeliste; ++i)
        rangees += bench::mot(i * 7919, 8) + ";" + bench::mot(i * 7919 + 5, 8) + "\r\n";
    std::vector<std::string> fichiers;
    for (const auto* nom : {"8up", "8v6", "8v0", "8v5", "8v1", "8v4", "8v2", "8v3"}) {
        const auto fichier = std::string("listes/") + nom + ".txt";
        epreuve.ecrire(fichier, rangees);
        fichiers.push_back(epreuve.chemin(fichier));
    }
    fichiers.push_back(epreuve.chemin("Essai/hist.dat"));
    epreuve.montrermenu();
    constexpr int huitlettres = 3;
    epreuve.cliquer("Command3");
    bench::comparer(
        state, [] {}, [&] { epreuve.cliquer("Command7", huitlettres); }, fichiers, {2, 0});
}
BENCHMARK(ouverture_de_huit_listes_pleines)->UseManualTime()->Iterations(200);

/// A history in which the lists of the menu come in turn, whole, as samples, in parts and as
/// revisions.
std::string historique(std::size_t records) {
    constexpr std::array fins{"T - 3lc.txt",          "E - 7v5.txt", "vb6_a.txt",   "R - 8v3.txt",
                              "T - 7l_duos_purs.txt", "8v2_c.txt",   "8v2_b.txt",   "E - 8up.txt",
                              "T - vbavb.txt",        "8v3_d.txt",   "T - 8v3.txt", "z7.txt"};
    std::string octets;
    for (std::size_t i = 0; i < records; ++i) {
        octets += "24/08/2019 - 14:35 - " + std::to_string(i % 100) + ".5% - ";
        octets += fins.at(i % fins.size());
        octets += "\r\n";
    }
    return octets;
}

/// Refreshes the panel with the most lists and parts; the range is the records of the history.
void rafraichissement(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.ecrire("Essai/hist.dat", historique(static_cast<std::size_t>(state.range(0))));
    epreuve.montrermenu();
    constexpr int huitlettres = 3;
    epreuve.cliquer("Command3");
    epreuve.cliquer("Command7", huitlettres);
    const std::vector<std::string> fichiers{epreuve.chemin("Essai/hist.dat")};
    bench::comparer(
        state, [] {}, [&] { epreuve.executer([&] { epreuve.voisins().menu.maj(); }); }, fichiers,
        {3, 0});
}
BENCHMARK(rafraichissement)->UseManualTime()->Iterations(300)->Arg(300)->Arg(3000)->Arg(30000);

}  // namespace

ORVANE_BENCH_MAIN()
