#pragma once

#include <filesystem>

#include "appels.h"
#include "fichier.h"

namespace common {

/// Milliseconds that a change waits for another program that has locked the file.
inline constexpr std::int64_t attentelimite = 5000;

/// The disk of the system. A path of the rules is taken relative to `racine`, with the system's
/// own separator; the empty root is the working folder. Only regular files are read or written; a
/// link stays and what it leads to is changed. Every change but `deposer` is a whole new file,
/// `<name>.<number>.tmp`, that takes the place of the old one.
class DisqueReel : public Disque {
  public:
    /// `appels` must live as long as the disk and what it gives out.
    explicit DisqueReel(std::filesystem::path racine = {}, Appels& appels = appelsdusysteme())
        : racine_(std::move(racine)), appels_(&appels) {}

    [[nodiscard]] std::error_code ouvrir(std::string_view chemin,
                                         std::unique_ptr<Flux>& flux) override;
    [[nodiscard]] std::error_code ajouter(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code deposer(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code remplacer(std::string_view chemin,
                                            std::string_view octets) override;
    [[nodiscard]] std::error_code creerdossier(std::string_view chemin) override;
    [[nodiscard]] std::error_code supprimer(std::string_view chemin) override;
    [[nodiscard]] std::error_code renommer(std::string_view ancien,
                                           std::string_view nouveau) override;
    [[nodiscard]] std::error_code verrouiller(std::string_view chemin,
                                              std::unique_ptr<Verrou>& verrou) override;
    [[nodiscard]] bool existe(std::string_view chemin) override;
    [[nodiscard]] bool estdossier(std::string_view chemin) override;

    /// The system's path of a path of the rules.
    [[nodiscard]] virtual std::filesystem::path systeme(std::string_view chemin) const;

  private:
    std::filesystem::path racine_;
    Appels* appels_;
};

}  // namespace common
