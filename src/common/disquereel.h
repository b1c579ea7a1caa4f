#pragma once

#include <filesystem>

#include "fichier.h"

namespace common {

/// The disk of the system. A path of the rules is taken relative to `racine`, with the system's
/// own separator; the empty root is the working folder.
class DisqueReel : public Disque {
  public:
    explicit DisqueReel(std::filesystem::path racine = {}) : racine_(std::move(racine)) {}

    [[nodiscard]] std::error_code ouvrir(std::string_view chemin,
                                         std::unique_ptr<Flux>& flux) override;
    [[nodiscard]] std::error_code ajouter(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code remplacer(std::string_view chemin,
                                            std::string_view octets) override;
    [[nodiscard]] std::error_code creerdossier(std::string_view chemin) override;
    [[nodiscard]] std::error_code supprimer(std::string_view chemin) override;
    [[nodiscard]] std::error_code renommer(std::string_view ancien,
                                           std::string_view nouveau) override;
    [[nodiscard]] std::unique_ptr<Verrou> verrouiller(std::string_view chemin) override;
    [[nodiscard]] bool existe(std::string_view chemin) override;
    [[nodiscard]] bool estdossier(std::string_view chemin) override;

    /// The system's path of a path of the rules.
    [[nodiscard]] virtual std::filesystem::path systeme(std::string_view chemin) const;

  private:
    std::filesystem::path racine_;
};

}  // namespace common
