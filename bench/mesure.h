#pragma once

// Ratios: a subject and what it is compared to are timed alternately in one run, so that both see
// the same state of the machine.

#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench {

/// Bounds of a measurement; 0 means no bound.
struct Bornes {
    double rapport = 0;  ///< as a multiple of the reference
    double millisecondes = 0;
};

/// Prepares nothing.
inline void rien() {}

/// Times alternately `sujet` and a plain reading of `fichiers`, which reads their bytes in blocks
/// and counts the line ends. `preparer` runs before, untimed. Shows the medians and their ratio,
/// and reports an error if one is over its bound.
void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::vector<std::string>& fichiers,
              const Bornes& bornes);

/// The same against any other `reference`, which comes right before `sujet`.
void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::function<void()>& reference,
              const Bornes& bornes);

/// Times `sujet` alone, after `preparer`, untimed; reports an error if the median is over its
/// bound.
void chronometrer(benchmark::State& state, const std::function<void()>& preparer,
                  const std::function<void()>& sujet, const Bornes& bornes);

}  // namespace bench

/// main() that fails if a measurement is over its bound.
#define ORVANE_BENCH_MAIN()               \
    int main(int argc, char** argv) {     \
        return bench::lancer(argc, argv); \
    }

namespace bench {
int lancer(int argc, char** argv);
}  // namespace bench
