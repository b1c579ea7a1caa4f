#pragma once

#include <filesystem>

#include "appels.h"
#include "disque.h"

namespace common {

/// The disk of the system. Paths of the rules are relative to `racine`, and get the system's own
/// separator; an empty root is the working folder. Only regular files are read or written. A change
/// through a link changes what the link leads to. Every change but `deposer` writes a whole new
/// file, `<name>.<number>.tmp`, which then replaces the old one.
class DisqueReel : public Disque {
  public:
    /// `appels` must outlive the disk and the files and locks that it hands out.
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

    /// A path of the rules as a path of the system.
    [[nodiscard]] virtual std::filesystem::path systeme(std::string_view chemin) const;

  private:
    std::filesystem::path racine_;
    Appels* appels_;
};

}  // namespace common
