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

/// An order that is not carried out, or an expectation that is not met; says why.
class Refus : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

/// An order that makes no sense: unknown, or badly written.
class OrdreFaux : public Refus {
  public:
    using Refus::Refus;
};

/// Makes the driver of a platform.
using FabriquePilote = std::function<std::unique_ptr<Pilote>(PlateformeSimulee&)>;

/// A run of the program under orders.
class Seance {
  public:
    /// `dossier` is the working folder.
    Seance(const std::filesystem::path& dossier, const Fabrique& fabrique,
           const FabriquePilote& fabriquepilote,
           common::Appels& appels = common::appelsdusysteme());

    /// Carries out an order. The answer, one line: "ok", "= VALUE", "erreur: TEXT", or when the
    /// order has ended the program "fin N", with "faute TEXT " before it if a fault did.
    [[nodiscard]] std::string repondre(const Ordre& ordre);

    /// Carries out an order: the value to answer, empty for none. Throws `Refus`.
    std::string executer(const Ordre& ordre);

    // In the order of their making: the forms go first.
    PlateformeSimulee plateforme;
    std::unique_ptr<Pilote> pilote;
    std::unique_ptr<Programme> programme;
    bool demarree = false;  ///< the order `demarrer` was given

  private:
    void verifier();
};

/// What carries out the orders of a name.
struct Commande {
    std::string_view nom;
    /// Answers the value to show, empty for none. Throws `Refus`.
    std::string (*faire)(Seance& seance, const Ordre& ordre);
    bool apreslafin = false;  ///< accepted once the program has ended
};

}  // namespace banc
