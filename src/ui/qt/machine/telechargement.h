#pragma once

#include <string_view>

#include <QString>

#include "plateforme.h"

namespace ui::qt {

class Minuteur;

/// Downloads over http and https, in the middle of an event.
class Telechargement {
  public:
    struct Limites {
        int silence = 30'000;     ///< milliseconds without a byte
        int duree = 10 * 60'000;  ///< milliseconds in all
    };

    explicit Telechargement(Minuteur& minuteur) : Telechargement(minuteur, Limites()) {}
    Telechargement(Minuteur& minuteur, Limites limites) : minuteur_(minuteur), limites_(limites) {}

    /// Writes the content of an address, fresh from its server, to a file as it comes; the file
    /// takes its name when it is whole and as wanted, and is what it was otherwise (false).
    /// Certificates are verified; a redirection may not lead from https to http.
    [[nodiscard]] bool enregistrer(std::string_view adresse, const QString& chemin,
                                   const Exigence& exigence);

  private:
    Minuteur& minuteur_;
    Limites limites_;
};

}  // namespace ui::qt
