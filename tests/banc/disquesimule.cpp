#include "disquesimule.h"

#include <algorithm>
#include <utility>

#include "chemin.h"

namespace banc {
namespace {

std::error_code disqueplein() {
    return std::make_error_code(std::errc::no_space_on_device);
}

}  // namespace

void DisqueSimule::reserver(std::map<std::string, Fourniture> fournitures) {
    const auto racine = DisqueReel::systeme("");
    for (const auto& [nom, fourniture] : fournitures)
        std::filesystem::create_directories((racine / common::chemin(nom)).parent_path());
    reserve_ = std::move(fournitures);
}

/// The root itself brings nothing: it is asked for to look for files by one's own means.
std::filesystem::path DisqueSimule::systeme(std::string_view chemin) const {
    auto voulu = DisqueReel::systeme(chemin);
    if (reserve_.empty() || chemin.empty())
        return voulu;
    const auto racine = DisqueReel::systeme("");
    const auto nom = voulu.lexically_normal().lexically_relative(racine).generic_string();
    for (auto f = reserve_.lower_bound(nom); f != reserve_.end() && f->first.starts_with(nom);) {
        if (f->first.size() > nom.size() && f->first[nom.size()] != '/') {
            ++f;
            continue;
        }
        f->second.poser(racine / common::chemin(f->first));
        f = reserve_.erase(f);
    }
    return voulu;
}

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

std::error_code DisqueSimule::deposer(std::string_view chemin, std::string_view octets) {
    return plein(chemin) ? disqueplein() : DisqueReel::deposer(chemin, octets);
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
