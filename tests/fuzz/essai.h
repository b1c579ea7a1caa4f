#pragma once

// A reader, tried on many damaged files: each run ends well or in a fault with its report.

#include <functional>
#include <ostream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "alea.h"
#include "disquememoire.h"

namespace fuzz {

/// Path of the damaged file on the disk of a run.
inline constexpr std::string_view chemin = "Essai\\fichier.txt";

/// One run.
struct Essai {
    const std::string& octets;  ///< the damaged file
    DisqueMemoire& disque;      ///< holds it at `chemin`, and nothing else
    Alea& alea;                 ///< for whatever else the run chooses
};

/// A reader under trial. `lire` reads the file and checks what holds of anything that was read.
struct Lecteur {
    const char* nom;
    std::vector<const char*> corpus;  ///< files that it would read in good health
    void (*lire)(Essai& essai);
    int essais = 1500;
};
void PrintTo(const Lecteur& lecteur, std::ostream* sortie);

class Lecture : public testing::TestWithParam<Lecteur> {
  protected:
    /// Tries the reader; the first run that goes wrong stops it, and its file is told as an order
    /// of the bench.
    static void essayer(const Lecteur& lecteur);
};

/// How many times the usual number of runs: more of them for who looks for defects, told by the
/// environment variable ORVANE_FUZZ_FACTEUR.
[[nodiscard]] int facteur();

/// The bytes of a file of the corpus.
[[nodiscard]] std::string corpus(const std::string& nom);
/// Every file of the corpus.
[[nodiscard]] std::vector<std::string> corpusentier();
/// The order of the bench that writes these bytes.
[[nodiscard]] std::string ordreoctets(std::string_view octets);

/// Name of a test case.
[[nodiscard]] std::string nommer(const testing::TestParamInfo<Lecteur>& info);

}  // namespace fuzz
