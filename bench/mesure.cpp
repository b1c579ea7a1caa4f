#include "mesure.h"

#include <algorithm>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace bench {
namespace {

/// Time of the processor, so that what else runs on the machine does not count. What is measured
/// waits for nothing: its files are in memory.
double maintenant() {
    timespec temps{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &temps);
    constexpr double milliardieme = 1e-9;
    return static_cast<double>(temps.tv_sec) + static_cast<double>(temps.tv_nsec) * milliardieme;
}

double secondes(const std::function<void()>& action) {
    const auto debut = maintenant();
    action();
    return maintenant() - debut;
}

double mediane(std::vector<double>& durees) {
    const auto milieu = durees.begin() + static_cast<std::ptrdiff_t>(durees.size() / 2);
    std::nth_element(durees.begin(), milieu, durees.end());
    return *milieu;
}

void verifier(benchmark::State& state, const char* quoi, double valeur, double borne) {
    if (borne > 0 && valeur > borne) {
        const auto ennui = std::string(quoi) + " " + std::to_string(valeur) +
                           ", over the bound of " + std::to_string(borne);
        state.SkipWithError(ennui.c_str());
    }
}

/// The plain reading: the bytes of files, in blocks, and how many line ends they hold.
std::size_t lectureseche(const std::vector<std::string>& fichiers) {
    constexpr std::size_t bloc = 128UL * 1024;
    std::vector<char> tampon(bloc);
    std::size_t sauts = 0;
    for (const auto& fichier : fichiers) {
        const int numero = ::open(fichier.c_str(), O_RDONLY | O_CLOEXEC);
        ssize_t lus = 0;
        while ((lus = ::read(numero, tampon.data(), tampon.size())) > 0)
            sauts +=
                static_cast<std::size_t>(std::count(tampon.begin(), tampon.begin() + lus, '\n'));
        ::close(numero);
    }
    return sauts;
}

/// A run that was skipped, a measure over its bound: told under another name since Benchmark 1.8.
bool ratee(const auto& passage) {
    if constexpr (requires { passage.error_occurred; })
        return passage.error_occurred;
    else
        return passage.skipped != 0;
}

/// Tells whether some measure was over its bound.
class Rapporteur : public benchmark::ConsoleReporter {
  public:
    void ReportRuns(const std::vector<Run>& passages) override {
        ConsoleReporter::ReportRuns(passages);
        rate_ = rate_ || std::any_of(passages.begin(), passages.end(),
                                     [](const Run& passage) { return ratee(passage); });
    }
    [[nodiscard]] bool rate() const { return rate_; }

  private:
    bool rate_ = false;
};

}  // namespace

void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::vector<std::string>& fichiers,
              const Bornes& bornes) {
    comparer(
        state, preparer, sujet, [&] { benchmark::DoNotOptimize(lectureseche(fichiers)); }, bornes);
}

void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::function<void()>& reference,
              const Bornes& bornes) {
    std::vector<double> dureesdusujet;
    std::vector<double> dureesdereference;
    for ([[maybe_unused]] auto passage : state) {
        preparer();
        dureesdereference.push_back(secondes(reference));
        dureesdusujet.push_back(secondes(sujet));
        state.SetIterationTime(dureesdusujet.back());
    }
    constexpr double milliemes = 1000;
    const double sujetms = mediane(dureesdusujet) * milliemes;
    const double referencems = mediane(dureesdereference) * milliemes;
    state.counters["ms"] = sujetms;
    state.counters["reference_ms"] = referencems;
    state.counters["rapport"] = sujetms / referencems;
    verifier(state, "ratio", sujetms / referencems, bornes.rapport);
    verifier(state, "milliseconds", sujetms, bornes.millisecondes);
}

void chronometrer(benchmark::State& state, const std::function<void()>& preparer,
                  const std::function<void()>& sujet, const Bornes& bornes) {
    std::vector<double> durees;
    for ([[maybe_unused]] auto passage : state) {
        preparer();
        durees.push_back(secondes(sujet));
        state.SetIterationTime(durees.back());
    }
    constexpr double milliemes = 1000;
    const double pire = *std::max_element(durees.begin(), durees.end()) * milliemes;
    state.counters["pire_ms"] = pire;
    verifier(state, "milliseconds", mediane(durees) * milliemes, bornes.millisecondes);
}

int lancer(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
        return 2;
    Rapporteur rapporteur;
    benchmark::RunSpecifiedBenchmarks(&rapporteur);
    return rapporteur.rate() ? 1 : 0;
}

}  // namespace bench
