#pragma once

// The text of a scenario: one order a line, in UTF-8. A line that begins with `#` is a comment. An
// order that takes lines is followed by them, each behind "| ".

#include <cstddef>
#include <cstdint>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

namespace banc {

/// An order and the lines that it takes.
struct Ordre {
    std::string nom;                  ///< its first word
    std::string suite;                ///< the rest of its line, after one blank
    std::vector<std::string> lignes;  ///< without "| ", repetitions expanded
    std::size_t numero = 0;           ///< line of the scenario, from 1
    std::string defaut;               ///< what is wrong with its lines; empty if nothing
};

/// The driver that a scenario is meant for, given by its first line.
enum class Destination : std::uint8_t { Tous, Modele, Qt };

/// The order takes the lines that follow it, or expects the refusal of one that does.
[[nodiscard]] bool prendlignes(const Ordre& ordre);

/// Splits a line into its first word and the rest, after one blank.
[[nodiscard]] Ordre decouper(std::string_view ligne);

/// A number in capital letters: 1 is A, 26 is Z, 27 is AA.
[[nodiscard]] std::string enlettres(std::size_t nombre);

/// Reads the orders of a scenario in turn. It reads ahead only after an order that takes lines, so
/// that someone who types orders gets each answer at once.
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
    bool gardee_ = false;  ///< `ligne_` was read ahead and is not yet used
    Destination destination_ = Destination::Tous;
};

}  // namespace banc
