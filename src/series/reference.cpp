#include "reference.h"

#include <algorithm>
#include <utility>

#include "faute.h"
#include "texte.h"

namespace series {
namespace {

[[noreturn]] void trop(std::string_view chemin, std::size_t ligne, std::size_t limite,
                       std::string_view quoi) {
    throw common::Faute(common::rapportligne(
        actioncorrection, chemin, ligne,
        "trop de " + std::string(quoi) + " ; la limite est de " + std::to_string(limite)));
}

}  // namespace

Recherche::Recherche(std::span<const std::string> mots) {
    std::vector<std::pair<std::string, std::size_t>> cherches;
    for (std::size_t i = 0; i < mots.size(); ++i) {
        auto octets = common::essayervers1252(mots[i]);
        if (octets && !octets->empty())
            cherches.emplace_back(*std::move(octets), i);
    }
    std::sort(cherches.begin(), cherches.end());
    for (auto& [octets, rang] : cherches) {
        filtre_.set(empreinte(octets));
        octets_.push_back(std::move(octets));
        rangs_.push_back(rang);
    }
}

std::span<const std::size_t> Recherche::trouver(std::string_view octets) const {
    const auto [premier, dernier] = std::equal_range(octets_.begin(), octets_.end(), octets);
    return std::span(rangs_).subspan(static_cast<std::size_t>(premier - octets_.begin()),
                                     static_cast<std::size_t>(dernier - premier));
}

std::vector<bool> chercherliste(common::Disque& disque, std::string_view chemin, std::size_t limite,
                                const Recherche& recherche, std::size_t nombredemots) {
    std::vector<bool> trouves(nombredemots, false);
    std::size_t nombre = 0;
    bool ouverte = true;
    common::Items(disque, chemin, actioncorrection)
        .chaque([&](std::string_view item, std::size_t ligne) {
            if (++nombre > limite)
                trop(chemin, ligne, limite, "mots");
            ouverte = ouverte && !item.empty();
            if (!ouverte)
                return;
            for (const auto rang : recherche.rangs(item))
                trouves[rang] = true;
        });
    return trouves;
}

std::vector<Note> cherchernotes(common::Disque& disque, std::string_view chemin, std::size_t limite,
                                Lignesdemots lignes, const Recherche& recherche) {
    std::vector<Note> notes;
    std::vector<std::size_t> attente;  // words whose note is the next line
    bool ouverte = true;
    common::Lignes(disque, chemin, actioncorrection)
        .chaque([&](std::string_view ligne, std::size_t numero) {
            if (numero > limite)
                trop(chemin, numero, limite, "lignes");
            if (!attente.empty()) {
                for (const auto mot : attente)
                    notes.push_back({mot, common::depuis1252(ligne)});
                attente.clear();
            }
            const bool comparee = lignes == Lignesdemots::Toutes || numero % 2 == 1;
            if (!ouverte || !comparee)
                return;
            ouverte = !ligne.empty();
            const auto rangs = recherche.rangs(ligne);
            attente.assign(rangs.begin(), rangs.end());
        });
    return notes;
}

}  // namespace series
