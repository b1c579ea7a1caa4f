#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <stdexcept>
#include <string>

#include "lecture.h"
#include "pilote.h"
#include "plateformesimulee.h"
#include "programme.h"

namespace banc {

/// An order that could not be carried out, or an expectation that was not met, with the reason.
class Refus : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// An order that is unknown or malformed.
class OrdreFaux : public Refus {
  public:
    using Refus::Refus;
};

/// Creates the driver of a platform.
using FabriquePilote = std::function<std::unique_ptr<Pilote>(PlateformeSimulee&)>;

/// A run of the program, controlled by orders.
class Seance {
  public:
    /// `dossier` is the working folder.
    Seance(const std::filesystem::path& dossier, const Fabrique& fabrique,
           const FabriquePilote& fabriquepilote,
           common::Appels& appels = common::appelsdusysteme());

    /// Carries out an order. Returns the answer, one line: "ok", "= VALUE" or "erreur: TEXT"; if
    /// the order has ended the program, "fin N", preceded by "faute TEXT " after a fault.
    [[nodiscard]] std::string repondre(const Ordre& ordre);

    /// Carries out an order. Returns the value to answer, empty for none. Throws `Refus`.
    std::string executer(const Ordre& ordre);

    // In order of creation, so that the forms are destroyed first.
    PlateformeSimulee plateforme;
    std::unique_ptr<Pilote> pilote;
    std::unique_ptr<Programme> programme;
    bool demarree = false;  ///< the order `demarrer` was carried out

  private:
    void verifier();
};

/// An order by its name, and what carries it out.
struct Commande {
    std::string_view nom;
    /// Returns the value to answer, empty for none. Throws `Refus`.
    std::string (*faire)(Seance& seance, const Ordre& ordre);
    bool apreslafin = false;  ///< accepted even after the program has ended
};

}  // namespace banc
