#include "disquesimule.h"

#include <algorithm>

namespace banc {
namespace {

std::error_code disqueplein() {
    return std::make_error_code(std::errc::no_space_on_device);
}

}  // namespace

bool DisqueSimule::plein(std::string_view chemin) const {
    return std::any_of(refuses_.begin(), refuses_.end(), [&](const std::string& refuse) {
        return chemin == refuse || chemin.starts_with(refuse + "\\");
    });
}

std::error_code DisqueSimule::ouvrir(std::string_view chemin, std::unique_ptr<common::Flux>& flux) {
    ++lectures_;
    return DisqueReel::ouvrir(chemin, flux);
}

std::error_code DisqueSimule::ajouter(std::string_view chemin, std::string_view octets) {
    ++ecritures_;
    const bool ecrit = !octets.empty() || !existe(chemin);
    return ecrit && plein(chemin) ? disqueplein() : DisqueReel::ajouter(chemin, octets);
}

std::error_code DisqueSimule::remplacer(std::string_view chemin, std::string_view octets) {
    ++ecritures_;
    return plein(chemin) ? disqueplein() : DisqueReel::remplacer(chemin, octets);
}

std::error_code DisqueSimule::creerdossier(std::string_view chemin) {
    return plein(chemin) ? disqueplein() : DisqueReel::creerdossier(chemin);
}

/// A folder brings its files with it: one of them that refuses holds the whole back.
std::error_code DisqueSimule::renommer(std::string_view ancien, std::string_view nouveau) {
    const auto prefixe = std::string(nouveau) + "\\";
    const bool dedans = std::any_of(refuses_.begin(), refuses_.end(),
                                    [&](const std::string& r) { return r.starts_with(prefixe); });
    return dedans || plein(nouveau) ? disqueplein() : DisqueReel::renommer(ancien, nouveau);
}

}  // namespace banc
