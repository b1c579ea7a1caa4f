#pragma once

// Ratios in one run: something is timed in turn with what it is compared to, so that both meet the
// same machine.

#include <functional>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace bench {

/// Bounds of a measure; 0 is no bound.
struct Bornes {
    double rapport = 0;  ///< times the reference
    double millisecondes = 0;
};

/// Prepares nothing.
inline void rien() {}

/// Times the plain reading of `fichiers` (their bytes, in blocks, and a count of the line ends) and
/// `sujet` in turn, after `preparer`, which is not timed; shows the medians and their ratio, and
/// reports an error where one is over its bound.
void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::vector<std::string>& fichiers,
              const Bornes& bornes);

/// The same against any other `reference`, which comes right before it.
void comparer(benchmark::State& state, const std::function<void()>& preparer,
              const std::function<void()>& sujet, const std::function<void()>& reference,
              const Bornes& bornes);

/// Times `sujet` alone.
void chronometrer(benchmark::State& state, const std::function<void()>& preparer,
                  const std::function<void()>& sujet, const Bornes& bornes);

}  // namespace bench

/// main() that fails if a measure is over its bound.
#define ORVANE_BENCH_MAIN()               \
    int main(int argc, char** argv) {     \
        return bench::lancer(argc, argv); \
    }

namespace bench {
int lancer(int argc, char** argv);
}  // namespace bench
