#include "serie.h"

#include <algorithm>
#include <utility>

#include "hist.h"

namespace series {
namespace {

/// What a place shows of a row that has been drawn.
Place occuper(const Serie& serie, int rang) {
    const auto& rangees = serie.rangees;
    Place place;
    place.rang = rang;
    place.ligne = rangees.ligne(rang);
    place.tirage = rangees.tirage(rang);
    place.suite = rangees.suite(rang);
    place.texte = serie.regles.enligne(place.tirage, place.suite, serie.nbsolutions());
    place.affiche = place.tirage;
    return place;
}

}  // namespace

Serie::Serie(const Regles& desregles)
    : regles(desregles),
      rangees(regles.limiterangees),
      boitesutiles(regles.nbboites),
      places(static_cast<std::size_t>(regles.nbplaces)),
      rapides(static_cast<std::size_t>(regles.nbboites), Rapide::Nonjugee),
      verdicts(static_cast<std::size_t>(regles.nbboites), Etatreponse::Repos) {}

int Serie::nombre() const {
    return std::min(rangees.nbmots(), regles.nbplaces);
}

void ouvrirliste(Serie& serie, common::Disque& disque, std::string_view chemin, Nature nature) {
    serie.nature = nature;
    serie.fich = chemin;
    // The rows that the places showed are gone; the window shows their racks still.
    for (auto& place : serie.places)
        place.rang = -1;
    serie.rangees.lire(disque, chemin);
}

void echantillonner(Serie& serie, common::Hasard& hasard, int taille) {
    auto& rangees = serie.rangees;
    rangees.garder(tirersansremise(hasard, rangees.nbmots(), taille, Comblement::Dernier));
}

void tirer(Serie& serie, common::Hasard& hasard) {
    const auto tires =
        tirersansremise(hasard, serie.rangees.nbmots(), serie.nombre(), serie.regles.comblement);
    std::fill(serie.places.begin(), serie.places.end(), Place{});
    std::transform(tires.begin(), tires.end(), serie.places.begin(),
                   [&serie](int rang) { return occuper(serie, rang); });
    std::fill(serie.rapides.begin(), serie.rapides.end(), Rapide::Nonjugee);
    std::fill(serie.verdicts.begin(), serie.verdicts.end(), Etatreponse::Repos);
}

void retenirjugement(Serie& serie, int place, std::vector<std::string> solutions,
                     std::vector<std::string> saisis) {
    auto& jugee = serie.place(place);
    if (!jugee.juge || jugee.juge->trouve())
        jugee.juge = {jugee.tirage, std::move(solutions), std::move(saisis)};
}

std::vector<profiles::Tiragejuge> jugements(const Serie& serie) {
    std::vector<profiles::Tiragejuge> juges;
    for (const auto& place : serie.places)
        if (place.juge)
            juges.push_back(*place.juge);
    return juges;
}

std::optional<bool> retenir(Serie& serie, int boite, bool bon) {
    auto& rapide = serie.rapides[static_cast<std::size_t>(boite)];
    if (bon && rapide == Rapide::Ratee)
        return std::nullopt;
    rapide = bon ? Rapide::Atemps : Rapide::Ratee;
    return bon;
}

void eliminerrapides(Serie& serie) {
    const int nombre = serie.nombre();
    for (int boite = 0; boite < nombre; ++boite)
        if (serie.rapides[static_cast<std::size_t>(boite)] == Rapide::Atemps)
            serie.rangees.eliminer(serie.place(boite).rang);
}

void rendretirages(Serie& serie, int derniereboite) {
    const auto* courante = &serie.place(derniereboite);
    for (auto& place : serie.places) {
        if (place.rang >= 0 && (place.entame || &place == courante))
            place.affiche = place.tirage;
        place.entame = false;
    }
}

std::optional<Findeliste> finir(Serie& serie, std::int64_t base, std::int64_t fautes) {
    serie.rangees.compacter();
    if (serie.rangees.nbmots() != 0)
        return std::nullopt;
    if (base == 0)
        return Findeliste{};
    return Findeliste{profiles::pourcentage(base, fautes)};
}

}  // namespace series
