#pragma once

#include <optional>
#include <string>
#include <string_view>

#include <QNetworkAccessManager>

namespace ui::qt {

class Minuteur;

/// Downloads over http and https, in the middle of an event.
class Telechargement {
  public:
    struct Limites {
        int silence = 20'000;                ///< milliseconds without a byte
        int duree = 15 * 60'000;             ///< milliseconds in all
        std::int64_t taille = 512LL << 20U;  ///< bytes
    };

    explicit Telechargement(Minuteur& minuteur) : Telechargement(minuteur, Limites()) {}
    Telechargement(Minuteur& minuteur, Limites limites) : minuteur_(minuteur), limites_(limites) {}

    /// The whole content of an address, fresh from its server; nothing if that failed. Certificates
    /// are verified; a redirection may not lead from https to http.
    [[nodiscard]] std::optional<std::string> lire(std::string_view adresse);

  private:
    Minuteur& minuteur_;
    Limites limites_;
    QNetworkAccessManager reseau_;
};

}  // namespace ui::qt
