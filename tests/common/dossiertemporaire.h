#pragma once

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "dossierneuf.h"

namespace essais {

/// A temporary folder, whose name holds a blank and an accent; gone at the end.
class DossierTemporaire {
  public:
    DossierTemporaire() = default;
    DossierTemporaire(const DossierTemporaire&) = delete;
    DossierTemporaire& operator=(const DossierTemporaire&) = delete;
    ~DossierTemporaire() {
        std::error_code oubli;
        std::filesystem::remove_all(chemin_, oubli);
    }

    [[nodiscard]] const std::filesystem::path& chemin() const { return chemin_; }
    void ecrire(const std::string& nom, const std::string& octets) const {
        std::ofstream(chemin_ / common::chemin(nom), std::ios::binary) << octets;
    }
    /// The names in the folder, in order.
    [[nodiscard]] std::vector<std::string> noms() const {
        std::vector<std::string> lus;
        for (const auto& entree : std::filesystem::directory_iterator(chemin_))
            lus.push_back(entree.path().filename().string());
        std::sort(lus.begin(), lus.end());
        return lus;
    }
    [[nodiscard]] std::string lire(const std::string& nom) const {
        std::ifstream flux(chemin_ / common::chemin(nom), std::ios::binary);
        return {std::istreambuf_iterator<char>(flux), {}};
    }

  private:
    std::filesystem::path chemin_ = dossierneuf("essais été ");
};

}  // namespace essais
