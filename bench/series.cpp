// Form1: a correction, the load of a long list, a key, and the memory of a long session.

#include <malloc.h>

#include <benchmark/benchmark.h>

#include "disquereel.h"
#include "epreuve.h"
#include "journal.h"
#include "mesure.h"

namespace {

using bench::Bornes;
using bench::Epreuve;
using bench::Tailles;
namespace touches = ui::touches;

constexpr Tailles livrees{0, 0, 0, 1666, 5509, 1001, 20000};
constexpr Tailles extremes{5001, 5001, 5001, 2501, 20001, 1001, 500001};

/// A list of rows whose solution is their rack, reversed.
std::string liste(std::size_t rangees) {
    std::string octets;
    for (std::size_t i = 0; i < rangees; ++i) {
        const auto tirage = bench::mot(i, 10);
        octets += tirage + ";" + std::string(tirage.rbegin(), tirage.rend()) + "\r\n";
    }
    return octets;
}

/// Corrects series of 30 racks without an answer, whose rows are in the revision file by then.
void correction(benchmark::State& state, const Tailles& tailles, const Bornes& bornes) {
    Epreuve epreuve;
    epreuve.garnirreferences(tailles);
    epreuve.ecrire("listes/x.txt", liste(30));
    epreuve.lancer(false);
    epreuve.touche(touches::f12);
    const auto fichiers = epreuve.fichierslus();
    bench::comparer(
        state, [&] { epreuve.touche(touches::f8); }, [&] { epreuve.touche(touches::f12); },
        fichiers, bornes);
}

void correction_aux_tailles_livrees(benchmark::State& state) {
    correction(state, livrees, {3, 10});
}
BENCHMARK(correction_aux_tailles_livrees)->UseManualTime()->Iterations(300);

void correction_aux_limites(benchmark::State& state) {
    correction(state, extremes, {3, 0});
}
BENCHMARK(correction_aux_limites)->UseManualTime()->Iterations(40);

/// What the journal adds: the lines of a series against the whole correction, which they may make
/// longer by a fifth.
void journal_d_une_correction(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.garnirreferences(livrees);
    epreuve.ecrire("listes/x.txt", liste(30));
    epreuve.lancer(false);
    std::vector<profiles::Tiragejuge> juges;
    for (std::size_t i = 0; i < 30; ++i) {
        const auto tirage = bench::mot(i, 10);
        juges.push_back({tirage, {{tirage.rbegin(), tirage.rend()}}, {tirage}});
    }
    common::DisqueReel disque(epreuve.chemin(""));
    std::string attente;
    const profiles::Seriejugee serie{{}, "x.txt", "T"};
    constexpr double dedans = 1.0 / 6;  // of the whole, a fifth of the rest
    bench::comparer(
        state, [&] { epreuve.touche(touches::f8); },
        [&] { profiles::journaliser(disque, "Essai", serie, juges, attente); },
        [&] { epreuve.touche(touches::f12); }, {dedans, 0});
    if (!attente.empty())
        state.SkipWithError("the journal was not written");
}
BENCHMARK(journal_d_une_correction)->UseManualTime()->Iterations(300);

void chargement_de_15000_rangees(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.ecrire("listes/x.txt", liste(15000));
    epreuve.lancer(false);
    const std::vector<std::string> fichiers{epreuve.chemin("listes/x.txt"),
                                            epreuve.chemin("Essai/rev-x.txt")};
    bench::comparer(state, bench::rien, [&] { epreuve.lancer(false); }, fichiers, {5, 0});
}
BENCHMARK(chargement_de_15000_rangees)->UseManualTime()->Iterations(300);

/// A letter of the rack goes down and up under assisted entry; the box is emptied in between.
void touche_en_saisie_assistee(benchmark::State& state) {
    Epreuve epreuve;
    epreuve.ecrire("listes/x.txt", "ABCDEFGHIJKLMNO;A\r\n");
    epreuve.lancer(false);
    bench::chronometrer(
        state, [&] { epreuve.touche(touches::retour); }, [&] { epreuve.taper('M'); }, {0, 1});
    if (epreuve.form().controle("tirage", 0).texte() != "ABCDEFGHIJKLNO")
        state.SkipWithError("the key did not reach the rack");
}
BENCHMARK(touche_en_saisie_assistee)->UseManualTime()->Iterations(2000);

/// Bytes in use after 500 series, less those after the first 50.
void memoire_de_500_series(benchmark::State& state) {
    constexpr std::size_t borne = 16UL * 1024;
    Epreuve epreuve;
    epreuve.garnirreferences(livrees);
    epreuve.ecrire("listes/x.txt", liste(2000));
    epreuve.lancer(false);
    const auto series = [&](int nombre) {
        for (int i = 0; i < nombre; ++i) {
            epreuve.taper('A');
            epreuve.touche(touches::bas);
            epreuve.seconde();
            epreuve.touche(touches::f12);
            epreuve.touche(touches::f8);
        }
        return ::mallinfo2().uordblks;
    };
    // By then most rows have been missed, and the form remembers them all.
    series(500);
    const auto avant = series(50);
    for ([[maybe_unused]] auto passage : state) {
        const auto apres = series(500);
        const auto gagnes = apres > avant ? apres - avant : 0;
        state.counters["octets"] = static_cast<double>(gagnes);
        if (gagnes > borne)
            state.SkipWithError("the memory grows from series to series");
    }
}
BENCHMARK(memoire_de_500_series)->Iterations(1)->Unit(benchmark::kMillisecond);

}  // namespace

ORVANE_BENCH_MAIN()
