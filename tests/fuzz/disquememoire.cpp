#include "disquememoire.h"

#include <algorithm>
#include <utility>

namespace fuzz {
namespace {

std::error_code absent() {
    return std::make_error_code(std::errc::no_such_file_or_directory);
}

class FluxMemoire : public common::Flux {
  public:
    FluxMemoire(std::string_view octets, Alea& alea, bool panne)
        : octets_(octets), alea_(alea), panne_(panne) {}

    [[nodiscard]] std::error_code lire(std::span<char> tampon, std::size_t& lus) override {
        constexpr std::size_t pieces = 3;  // before the failure, at most
        if (panne_ && alea_.sous(pieces) == 0)
            return std::make_error_code(std::errc::io_error);
        const auto reste = std::min(tampon.size(), octets_.size() - place_);
        // Small pieces split lines and line ends; large ones keep long files quick.
        constexpr std::size_t petit = 7;
        const auto piece = octets_.size() < 4096 ? alea_.entre(1, petit) : alea_.entre(1, 65536);
        lus = std::min(reste, piece);
        octets_.copy(tampon.data(), lus, place_);
        place_ += lus;
        return {};
    }

  private:
    std::string octets_;
    Alea& alea_;
    std::size_t place_ = 0;
    bool panne_;
};

}  // namespace

std::error_code DisqueMemoire::ouvrir(std::string_view chemin,
                                      std::unique_ptr<common::Flux>& flux) {
    const auto place = fichiers.find(chemin);
    if (place == fichiers.end())
        return absent();
    flux = std::make_unique<FluxMemoire>(place->second, alea_, std::exchange(panne, false));
    return {};
}

std::error_code DisqueMemoire::ajouter(std::string_view chemin, std::string_view octets) {
    auto& fichier = fichiers[std::string(chemin)];
    if (!fichier.empty() && fichier.back() != '\n' && !octets.empty())
        fichier += "\r\n";
    fichier += octets;
    return {};
}

std::error_code DisqueMemoire::remplacer(std::string_view chemin, std::string_view octets) {
    fichiers[std::string(chemin)] = octets;
    return {};
}

std::error_code DisqueMemoire::creerdossier(std::string_view /*chemin*/) {
    return {};
}

std::error_code DisqueMemoire::supprimer(std::string_view chemin) {
    const auto place = fichiers.find(chemin);
    if (place == fichiers.end())
        return absent();
    fichiers.erase(place);
    return {};
}

std::error_code DisqueMemoire::renommer(std::string_view ancien, std::string_view nouveau) {
    auto fichier = fichiers.extract(std::string(ancien));
    if (fichier.empty())
        return absent();
    fichier.key() = nouveau;
    fichiers.insert(std::move(fichier));
    return {};
}

std::error_code DisqueMemoire::verrouiller(std::string_view chemin,
                                           std::unique_ptr<common::Verrou>& verrou) {
    return existe(chemin) ? Disque::verrouiller(chemin, verrou) : absent();
}

bool DisqueMemoire::existe(std::string_view chemin) {
    return fichiers.contains(chemin);
}

}  // namespace fuzz
