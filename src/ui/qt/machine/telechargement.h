#pragma once

#include <string_view>

#include <QString>

#include "plateforme.h"

namespace ui::qt {

class Minuteur;

/// Downloads over http and https. The caller waits as in `attendre`.
class Telechargement {
  public:
    struct Limites {
        int silence = 30'000;     ///< milliseconds without a byte before it fails
        int duree = 10 * 60'000;  ///< milliseconds for the whole download
    };

    explicit Telechargement(Minuteur& minuteur) : Telechargement(minuteur, Limites()) {}
    Telechargement(Minuteur& minuteur, Limites limites) : minuteur_(minuteur), limites_(limites) {}

    /// Downloads the content of an address from its server, never from a cache. The file `chemin`
    /// is replaced once the content is complete and meets `exigence`; otherwise it stays as it was,
    /// and the result is false. Certificates are verified; a redirection from https to http is
    /// refused.
    [[nodiscard]] bool enregistrer(std::string_view adresse, const QString& chemin,
                                   const Exigence& exigence);

  private:
    Minuteur& minuteur_;
    Limites limites_;
};

}  // namespace ui::qt
