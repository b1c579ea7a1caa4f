#pragma once

// A scenario: one order a line, UTF-8; `#` begins a comment line. The lines that an order takes
// follow it, each behind "| ".

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace banc {

/// One order, with the lines that follow it.
struct Ordre {
    std::string nom;                  ///< its first word
    std::string suite;                ///< the rest of the line behind one blank
    std::vector<std::string> lignes;  ///< without "| ", repeated lines written out
    std::size_t numero = 0;           ///< line of the scenario, from 1
    std::string defaut;               ///< what is wrong with its lines, empty if nothing is
};

/// The driver that a scenario is meant for, told by its first line.
enum class Destination : std::uint8_t { Tous, Modele, Qt };

/// The order, or the one that it says is refused, takes the lines that follow it.
[[nodiscard]] bool prendlignes(const Ordre& ordre);

/// Splits a line into its first word and the rest behind one blank.
[[nodiscard]] Ordre decouper(std::string_view ligne);

/// A number written in capital letters: 1 is A, 26 Z, 27 AA.
[[nodiscard]] std::string enlettres(std::size_t nombre);

/// Reads the orders of a scenario, one pass. It reads ahead only behind an order that takes lines,
/// so that who gives orders one by one gets each answer at once.
class Lecteur {
  public:
    explicit Lecteur(std::istream& flux);
    [[nodiscard]] Destination destination() const { return destination_; }
    /// The next order with its lines; false at the end of the scenario.
    [[nodiscard]] bool suivant(Ordre& ordre);

  private:
    [[nodiscard]] bool avancer();
    static void ajouter(Ordre& ordre, std::string_view ligne);

    std::istream& flux_;
    std::string ligne_;
    std::size_t numero_ = 0;
    bool gardee_ = false;  ///< the line has been read and not yet used
    Destination destination_ = Destination::Tous;
};

}  // namespace banc
