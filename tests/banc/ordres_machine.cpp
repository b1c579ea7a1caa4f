// Orders that set the simulated machine.

#include <array>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <limits>

#include "chemin.h"
#include "ordres.h"
#include "textes.h"

namespace banc {
namespace {

template <class Nombre>
Nombre nombre(std::string_view texte, Nombre minimum, Nombre maximum) {
    Nombre valeur{};
    const auto* fin = texte.data() + texte.size();
    const auto lu = std::from_chars(texte.data(), fin, valeur);
    if (lu.ec != std::errc{} || lu.ptr != fin || !(valeur >= minimum && valeur <= maximum))
        throw OrdreFaux("nombre attendu : " + std::string(texte));
    return valeur;
}

/// "2026-01-15 10:00:00"
std::string horloge(Seance& seance, const Ordre& ordre) {
    common::Instant i;
    int lus = 0;
    const auto n = std::sscanf(ordre.suite.c_str(), "%4d-%2d-%2d %2d:%2d:%2d%n", &i.annee, &i.mois,
                               &i.jour, &i.heure, &i.minute, &i.seconde, &lus);
    constexpr int champs = 6;
    const auto jour = std::chrono::year{i.annee} / i.mois / i.jour;
    if (n != champs || static_cast<std::size_t>(lus) != ordre.suite.size() || !jour.ok() ||
        i.heure < 0 || i.heure > 23 || i.minute < 0 || i.minute > 59 || i.seconde < 0 ||
        i.seconde > 59)
        throw OrdreFaux("date et heure attendues : AAAA-MM-JJ HH:MM:SS");
    seance.plateforme.regler(i);
    return {};
}

std::string hasard(Seance& seance, const Ordre& ordre) {
    std::deque<double> nombres;
    for (const auto& mot : mots(ordre.suite)) {
        nombres.push_back(nombre(mot, 0.0, 1.0));
        if (nombres.back() >= 1)
            throw OrdreFaux("le hasard donne des nombres inférieurs à 1 : " + mot);
    }
    if (nombres.empty())
        throw OrdreFaux("hasard : il faut au moins un nombre");
    seance.plateforme.hasard().donner(std::move(nombres));
    return {};
}

std::string graine(Seance& seance, const Ordre& ordre) {
    constexpr auto maximum = std::numeric_limits<std::int32_t>::max();
    seance.plateforme.hasard().graine(nombre<std::int32_t>(ordre.suite, 0, maximum));
    return {};
}

std::string avancer(Seance& seance, const Ordre& ordre) {
    seance.plateforme.avancer(nombre(ordre.suite, 0, std::numeric_limits<int>::max()));
    return {};
}

std::string repondre(Seance& seance, const Ordre& ordre) {
    struct Bouton {
        std::string_view nom;
        ui::Reponse reponse;
    };
    static constexpr std::array boutons{Bouton{"oui", ui::Reponse::Oui},
                                        Bouton{"non", ui::Reponse::Non},
                                        Bouton{"ok", ui::Reponse::Ok}};
    for (const auto& bouton : boutons) {
        if (bouton.nom != ordre.suite)
            continue;
        seance.plateforme.repondre(bouton.reponse);
        return {};
    }
    throw OrdreFaux("repondre : oui, non ou ok");
}

std::string reseau(Seance& seance, const Ordre& ordre) {
    const auto partage = decouper(ordre.suite);
    if (partage.nom.empty() || partage.suite.empty())
        throw OrdreFaux("reseau ADRESSE FICHIER, ou reseau ADRESSE echec");
    if (partage.suite == "echec")
        seance.plateforme.relier(partage.nom, std::nullopt);
    else
        seance.plateforme.relier(partage.nom, partage.suite);
    return {};
}

std::string capture(Seance& seance, const Ordre& ordre) {
    if (!seance.pilote->capturer(common::chemin(ordre.suite)))
        throw Refus("pas d'image : aucune fenêtre réelle n'est montrée");
    return {};
}

constexpr std::array commandesmachine{
    Commande{"horloge", horloge}, Commande{"hasard", hasard},     Commande{"graine", graine},
    Commande{"avancer", avancer}, Commande{"repondre", repondre}, Commande{"reseau", reseau},
    Commande{"capture", capture},
};

}  // namespace

std::span<const Commande> ordresdelamachine() {
    return commandesmachine;
}

}  // namespace banc
