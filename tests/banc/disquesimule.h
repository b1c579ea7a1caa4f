#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "disquereel.h"
#include "dossier.h"

namespace banc {

/// The disk of a scenario: real files under its working folder. Writing to some of them can be made
/// to fail as on a full disk.
class DisqueSimule : public common::DisqueReel {
  public:
    explicit DisqueSimule(std::filesystem::path racine,
                          common::Appels& appels = common::appelsdusysteme())
        : DisqueReel(std::move(racine), appels) {}

    /// Provides these files; each is written when its path, or that of a folder above it, is first
    /// used, as most scenarios use few.
    void reserver(std::map<std::string, Fourniture> fournitures);

    /// Makes every write to this file, or into this folder, fail from now on.
    void refuser(std::string_view chemin) { refuses_.emplace_back(chemin); }
    /// How many files were opened for reading.
    [[nodiscard]] int lectures() const { return lectures_; }
    /// How many appends and replacements were tried, failed ones included.
    [[nodiscard]] int ecritures() const { return ecritures_; }

    [[nodiscard]] std::error_code ouvrir(std::string_view chemin,
                                         std::unique_ptr<common::Flux>& flux) override;
    [[nodiscard]] std::error_code ajouter(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code deposer(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code remplacer(std::string_view chemin,
                                            std::string_view octets) override;
    [[nodiscard]] std::error_code creerdossier(std::string_view chemin) override;
    [[nodiscard]] std::error_code renommer(std::string_view ancien,
                                           std::string_view nouveau) override;
    [[nodiscard]] std::filesystem::path systeme(std::string_view chemin) const override;

  private:
    [[nodiscard]] bool plein(std::string_view chemin) const;

    mutable std::map<std::string, Fourniture> reserve_;  ///< not written yet
    std::vector<std::string> refuses_;
    int lectures_ = 0;
    int ecritures_ = 0;
};

}  // namespace banc
