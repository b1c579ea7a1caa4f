#include "reference.h"

#include <algorithm>
#include <map>
#include <optional>

#include "faute.h"
#include "texte.h"

namespace series {
namespace {

constexpr std::string_view action = "Correction de la série";

[[noreturn]] void trop(std::string_view chemin, std::size_t ligne, std::size_t limite,
                       std::string_view quoi) {
    throw common::Faute(common::rapportligne(
        action, chemin, ligne,
        "trop de " + std::string(quoi) + " ; la limite est de " + std::to_string(limite)));
}

/// Bytes of a word as the files spell it; nothing if they cannot.
std::optional<std::string> octetsdumot(const std::string& mot) {
    for (const auto& lettre : common::caracteres(mot))
        if (!common::code1252(common::premier(lettre)))
            return std::nullopt;
    return common::vers1252(mot);
}

}  // namespace

Recherche::Recherche(std::span<const std::string> mots) {
    std::map<std::string, std::vector<std::size_t>> parmot;
    for (std::size_t i = 0; i < mots.size(); ++i) {
        const auto octets = octetsdumot(mots[i]);
        if (octets && !octets->empty())
            parmot[*octets].push_back(i);
    }
    for (auto& [octets, rangs] : parmot) {
        const auto n = std::min(octets.size(), longueurs - 1);
        const auto code = static_cast<unsigned char>(octets[0]) ^
                          (static_cast<unsigned char>(octets[octets.size() / 2]) * 5U);
        filtre_[n] |= std::uint64_t{1} << (code & 63U);
        cles_.push_back({octets, std::move(rangs)});
    }
}

std::span<const std::size_t> Recherche::trouver(std::string_view octets) const {
    const auto place =
        std::lower_bound(cles_.begin(), cles_.end(), octets,
                         [](const Cle& cle, std::string_view o) { return cle.octets < o; });
    if (place == cles_.end() || place->octets != octets)
        return {};
    return place->rangs;
}

std::vector<bool> chercherliste(common::Disque& disque, std::string_view chemin, std::size_t limite,
                                const Recherche& recherche, std::size_t nombredemots) {
    std::vector<bool> trouves(nombredemots, false);
    common::Items items(disque, chemin, action);
    std::string_view item;
    std::size_t nombre = 0;
    bool ouverte = true;
    while (items.lireitem(item)) {
        if (++nombre > limite)
            trop(chemin, items.numero(), limite, "mots");
        ouverte = ouverte && !item.empty();
        if (!ouverte)
            continue;
        for (const auto rang : recherche.rangs(item))
            trouves[rang] = true;
    }
    return trouves;
}

std::vector<Note> cherchernotes(common::Disque& disque, std::string_view chemin, std::size_t limite,
                                Lignesdemots lignes, const Recherche& recherche) {
    std::vector<Note> notes;
    std::vector<std::size_t> attente;  // words whose note is the next line
    common::Lignes lecture(disque, chemin, action);
    std::string_view ligne;
    bool ouverte = true;
    while (lecture.suivante(ligne)) {
        if (lecture.numero() > limite)
            trop(chemin, lecture.numero(), limite, "lignes");
        if (!attente.empty()) {
            for (const auto mot : attente)
                notes.push_back({mot, common::depuis1252(ligne)});
            attente.clear();
        }
        const bool comparee = lignes == Lignesdemots::Toutes || lecture.numero() % 2 == 1;
        if (!ouverte || !comparee)
            continue;
        ouverte = !ligne.empty();
        const auto rangs = recherche.rangs(ligne);
        attente.assign(rangs.begin(), rangs.end());
    }
    return notes;
}

}  // namespace series
