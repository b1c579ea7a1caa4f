// What making the lists costs: against counting the lines of the sources, and as the lexicon grows.

#include <algorithm>
#include <string>

#include <benchmark/benchmark.h>

#include "disquereel.h"
#include "fabrication.h"
#include "fichier.h"

namespace {

using namespace atelier;

std::string lire(const char* chemin) {
    common::DisqueReel disque;
    return common::lirefichier(disque, chemin, "Mesure");
}

const std::string& lexique() {
    static const std::string texte = lire(ORVANE_LEXIQUE);
    return texte;
}
const std::string& affixes() {
    static const std::string texte = lire(ORVANE_AFFIXES);
    return texte;
}
const std::string& thesaurus() {
    static const std::string texte = lire(ORVANE_THESAURUS);
    return texte;
}

/// The lexicon and copies of it whose words have another letter in front, so that they differ.
std::string lexique(std::size_t fois) {
    const auto debut = lexique().find('\n') + 1;
    std::string lignes = lexique().substr(debut);
    for (std::size_t i = 1; i < fois; ++i) {
        lignes += static_cast<char>('a' + i);
        for (const char c : std::string_view(lexique()).substr(debut)) {
            lignes += c;
            if (c == '\n')
                lignes += static_cast<char>('a' + i);
        }
        lignes.pop_back();
    }
    return std::to_string(std::count(lignes.begin(), lignes.end(), '\n')) + '\n' + lignes;
}

void compterlignes(benchmark::State& etat) {
    for ([[maybe_unused]] const auto tour : etat) {
        std::ptrdiff_t lignes = 0;
        for (const auto* texte : {&lexique(), &affixes(), &thesaurus()})
            lignes += std::count(texte->begin(), texte->end(), '\n');
        benchmark::DoNotOptimize(lignes);
    }
}
BENCHMARK(compterlignes)->Unit(benchmark::kMillisecond);

void lirelesmots(benchmark::State& etat) {
    const auto texte = lexique(static_cast<std::size_t>(etat.range(0)));
    const Affixes regles(affixes(), ORVANE_AFFIXES);
    const Thesaurus synonymes(thesaurus(), ORVANE_THESAURUS);
    std::size_t mots = 0;
    for ([[maybe_unused]] const auto tour : etat) {
        const Vocabulaire v(lirelexique(texte, "lexique", regles, synonymes, retouches()),
                            std::nullopt);
        mots = v.mots().size();
    }
    etat.counters["mots"] = static_cast<double>(mots);
    etat.counters["par_mot"] = benchmark::Counter(
        static_cast<double>(mots),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(lirelesmots)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

void fabriquertout(benchmark::State& etat) {
    const auto texte = lexique(static_cast<std::size_t>(etat.range(0)));
    std::size_t mots = 0;
    for ([[maybe_unused]] const auto tour : etat) {
        const Thesaurus synonymes(thesaurus(), ORVANE_THESAURUS);
        const Affixes regles(affixes(), ORVANE_AFFIXES);
        const Vocabulaire v(lirelexique(texte, "lexique", regles, synonymes, retouches()),
                            std::nullopt);
        const Difficulte difficulte(v);
        const Nouveautes nouveautes;
        benchmark::DoNotOptimize(
            fabriquer({v, difficulte, nouveautes}, synonymes, [](std::string_view) {}));
        mots = v.mots().size();
    }
    etat.counters["mots"] = static_cast<double>(mots);
    etat.counters["par_mot"] = benchmark::Counter(
        static_cast<double>(mots),
        benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}
BENCHMARK(fabriquertout)->Arg(1)->Arg(2)->Arg(4)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
