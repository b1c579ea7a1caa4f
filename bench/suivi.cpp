// The carnet: a journal of a million lines, and one of 100 MB, read and folded into what is due.

#include <fstream>
#include <random>
#include <sys/resource.h>

#include <benchmark/benchmark.h>

#include "disquereel.h"
#include "dossier.h"
#include "echelle.h"
#include "epreuve.h"
#include "mesure.h"

namespace {

constexpr std::size_t nombrederacks = 60'000;
constexpr carnet::Jour jamais = 1'000'000;

/// Years of play, a series of 30 racks after the other, one in four missed.
void ecrirejournal(const std::string& chemin, std::size_t nombredelignes) {
    std::ofstream fichier(chemin, std::ios::binary);
    std::minstd_rand hasard(1);
    common::Instant quand{2010, 1, 1, 10, 0, 0};
    for (std::size_t i = 0; i < nombredelignes; ++i) {
        if (i % 300 == 0 && ++quand.jour > 28) {
            quand.jour = 1;
            if (++quand.mois > 12) {
                quand.mois = 1;
                ++quand.annee;
            }
        }
        const auto tirage = bench::mot(hasard() % nombrederacks, 8);
        const std::string solution(tirage.rbegin(), tirage.rend());
        const bool trouve = hasard() % 4 != 0;
        fichier << quand.date() << " - " << quand.heuredujour() << ";8p" << i / 30 % 40 << ".txt;T;"
                << tirage << ';' << solution << (trouve ? ";1;" : ";0;") << (trouve ? solution : "")
                << "\r\n";
    }
}

/// Lines, and most milliseconds that they may take.
void pli_d_un_journal(benchmark::State& state) {
    const auto nombredelignes = static_cast<std::size_t>(state.range(0));
    const banc::Dossier dossier;
    std::filesystem::create_directory(dossier.chemin() / "Zoé");
    ecrirejournal((dossier.chemin() / "Zoé" / "journal.txt").string(), nombredelignes);
    common::DisqueReel disque(dossier.chemin());
    std::size_t dues = 0;
    profiles::Lecturejournal lecture;
    bench::chronometrer(
        state, bench::rien,
        [&] {
            carnet::Echelle echelle;
            lecture = {};
            const auto erreur = profiles::parcourirjournal(
                disque, profiles::cheminjournal("Zoé"),
                [&](const profiles::Lignejournal& ligne) { echelle.prendre(ligne); }, lecture);
            dues = erreur ? 0 : echelle.dues(jamais).size();
        },
        {0, static_cast<double>(state.range(1))});
    rusage usage{};
    ::getrusage(RUSAGE_SELF, &usage);
    constexpr double kilo = 1024;
    constexpr double limite = 200;
    const double mega = static_cast<double>(usage.ru_maxrss) / kilo;
    state.counters["Mo"] = mega;
    state.counters["tirages"] = static_cast<double>(dues);
    if (mega > limite)
        state.SkipWithError("the program takes more than 200 MB");
    if (lecture.lues != nombredelignes || dues == 0)
        state.SkipWithError("lines were lost");
}
BENCHMARK(pli_d_un_journal)
    ->Args({1'000'000, 500})
    ->Args({1'700'000, 850})  // 100 MB
    ->UseManualTime()
    ->Iterations(5);

}  // namespace

ORVANE_BENCH_MAIN()
