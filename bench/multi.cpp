// Multi: a correction at the bounds, and the load of a long list.

#include <benchmark/benchmark.h>

#include "epreuve.h"
#include "mesure.h"

namespace {

using bench::Epreuve;
using bench::Tailles;
namespace touches = ui::touches;

constexpr Tailles extremes{5001, 10001, 10001, 4001, 20001, 2001, 20001};

/// A list of rows of so many solutions.
std::string liste(std::size_t rangees, std::size_t solutions) {
    std::string octets;
    for (std::size_t i = 0; i < rangees; ++i) {
        octets += bench::mot(i, 10);
        for (std::size_t s = 0; s < solutions; ++s)
            octets += ";" + bench::mot(i * 5 + s, 8);
        octets += "\r\n";
    }
    return octets;
}

/// Corrects series of ten racks of five solutions without an answer. The run starts anew before
/// each, as a run can miss only so many solutions.
void correction_aux_limites(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.garnirreferences(extremes);
    epreuve.ecrire("listes/x.txt", liste(10, 5));
    epreuve.lancer(true);
    epreuve.touche(touches::f12);
    const auto fichiers = epreuve.fichierslus();
    bench::comparer(
        state, [&] { epreuve.lancer(true); }, [&] { epreuve.touche(touches::f12); }, fichiers,
        {3, 0});
}
BENCHMARK(correction_aux_limites)->UseManualTime()->Iterations(200);

void chargement_de_10000_rangees(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.ecrire("listes/x.txt", liste(10000, 3));
    epreuve.lancer(true);
    const std::vector<std::string> fichiers{epreuve.chemin("listes/x.txt"),
                                            epreuve.chemin("Essai/rev-x.txt")};
    bench::comparer(state, bench::rien, [&] { epreuve.lancer(true); }, fichiers, {5, 0});
}
BENCHMARK(chargement_de_10000_rangees)->UseManualTime()->Iterations(300);

/// A key that walks repaints up to sixty boxes.
void pas_dans_le_parcours(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.ecrire("listes/x.txt", liste(10, 5));
    epreuve.lancer(true);
    bench::chronometrer(state, bench::rien, [&] { epreuve.touche(touches::droite); }, {0, 1});
}
BENCHMARK(pas_dans_le_parcours)->UseManualTime()->Iterations(2000);

}  // namespace

ORVANE_BENCH_MAIN()
