#include "rangees.h"

#include "faute.h"
#include "texte.h"

namespace series {
namespace {

constexpr std::string_view actionliste = "Lecture de la liste";

[[noreturn]] void mauvaise(std::string_view chemin, std::size_t ligne, const std::string& ennui) {
    throw common::Faute(common::rapportligne(actionliste, chemin, ligne, ennui));
}

/// Place of the ";" that ends the rack; a fault if there is none in reach.
std::size_t separateur(std::string_view ligne, std::string_view chemin, std::size_t numero) {
    const auto place = ligne.find(';');
    if (place == std::string_view::npos)
        mauvaise(chemin, numero, "il manque le « ; » derrière le tirage");
    if (place >= Rangees::positionlimite) {
        mauvaise(chemin, numero,
                 "le « ; » vient trop tard ; la limite est la position " +
                     std::to_string(Rangees::positionlimite));
    }
    return place;
}

}  // namespace

void Rangees::lire(common::Disque& disque, std::string_view chemin) {
    rangees_.clear();
    octets_ = std::make_shared<const std::string>(
        common::liretexte(disque, chemin, actionliste, common::limiterangee));
    // The lines are views of the bytes.
    common::Lignes(*octets_).chaque([&](std::string_view ligne, std::size_t numero) {
        const auto place = separateur(ligne, chemin, numero);
        if (numero > limite_) {
            mauvaise(chemin, numero,
                     "trop de lignes ; la limite est de " + std::to_string(limite_));
        }
        rangees_.push_back({ligne.substr(0, place), ligne.substr(place + 1),
                            static_cast<std::uint32_t>(numero), 0});
    });
    // One byte of Windows-1252 is one character.
    longueurdernier_ = rangees_.empty() ? 0 : rangees_.back().tirage.size();
}

void Rangees::garder(std::span<const int> rangs) {
    std::vector<Rangee> gardees;
    gardees.reserve(rangs.size());
    for (const int rang : rangs)
        gardees.push_back(rangee(rang));
    rangees_ = std::move(gardees);
}

std::string Rangees::tirage(int rang) const {
    return common::depuis1252(rangee(rang).tirage);
}

std::string Rangees::suite(int rang) const {
    return common::depuis1252(rangee(rang).suite);
}

void Rangees::eliminer(int rang) {
    rangee(rang).tirage = {};
    rangee(rang).suite = {};
}

void Rangees::compacter() {
    std::erase_if(rangees_, [](const Rangee& rangee) { return rangee.tirage.empty(); });
}

}  // namespace series
