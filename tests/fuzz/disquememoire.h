#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>

#include "alea.h"
#include "fichier.h"

namespace fuzz {

/// A disk in memory whose reads come in pieces of any size. A failure can be planned.
class DisqueMemoire : public common::Disque {
  public:
    explicit DisqueMemoire(Alea& alea) : alea_(alea) {}

    std::map<std::string, std::string, std::less<>> fichiers;
    /// The next file opened breaks off within its first reads, as on a broken disk.
    bool panne = false;

    [[nodiscard]] std::error_code ouvrir(std::string_view chemin,
                                         std::unique_ptr<common::Flux>& flux) override;
    [[nodiscard]] std::error_code ajouter(std::string_view chemin,
                                          std::string_view octets) override;
    [[nodiscard]] std::error_code remplacer(std::string_view chemin,
                                            std::string_view octets) override;
    [[nodiscard]] std::error_code creerdossier(std::string_view chemin) override;
    [[nodiscard]] std::error_code supprimer(std::string_view chemin) override;
    [[nodiscard]] std::error_code renommer(std::string_view ancien,
                                           std::string_view nouveau) override;
    [[nodiscard]] std::error_code verrouiller(std::string_view chemin,
                                              std::unique_ptr<common::Verrou>& verrou) override;
    [[nodiscard]] bool existe(std::string_view chemin) override;
    [[nodiscard]] bool estdossier(std::string_view /*chemin*/) override { return false; }

  private:
    Alea& alea_;
};

}  // namespace fuzz
