#include "recherche.h"

#include <algorithm>
#include <random>

#include "contenu.h"
#include "listes.h"
#include "nombre.h"

namespace recherche {
namespace {

/// `nbsolutions` times rows of the form for several solutions is a number of 16 bits.
constexpr std::size_t seizebits = common::plusgrand16;

bool passe(const Demande& demande, const Fiche& fiche, std::uint32_t place) {
    return std::all_of(demande.criteres.begin(), demande.criteres.end(),
                       [&](const Passe& critere) { return critere(fiche, place); });
}

/// The same on every system, as std::shuffle need not be.
void melanger(std::vector<std::uint32_t>& places, std::uint64_t graine) {
    std::mt19937_64 hasard(graine);
    for (std::size_t reste = places.size(); reste > 1; --reste)
        std::swap(places[reste - 1], places[hasard() % reste]);
}

/// Keeps the words whose rack has as many of them as `par` says, and for a list those of racks with
/// too many for a row, which it counts.
void garder(const Glossaire& glossaire, const Demande& demande,
            std::vector<std::uint32_t>& places) {
    std::vector<std::uint16_t> comptes(glossaire.tirages());
    for (const auto place : places)
        ++comptes[glossaire.fiches()[place].tirage];
    std::erase_if(places, [&](std::uint32_t place) {
        const auto compte = comptes[glossaire.fiches()[place].tirage];
        return !demande.par->contient(compte) &&
               (demande.forme == Forme::mots || compte <= common::solutionsmulti);
    });
}

std::string mots(std::size_t nombre, std::string_view un, std::string_view plusieurs) {
    return std::to_string(nombre) + ' ' + std::string(nombre > 1 ? plusieurs : un);
}

/// Words of a rack that are asked, by the alphabet.
using Groupe = std::vector<std::uint32_t>;

/// The words by rack, the racks in the order of their first word.
std::vector<Groupe> grouper(const Glossaire& glossaire, const std::vector<std::uint32_t>& places) {
    std::vector<std::uint32_t> numeros(glossaire.tirages());  // 0: none yet
    std::vector<Groupe> groupes;
    for (const auto place : places) {
        auto& numero = numeros[glossaire.fiches()[place].tirage];
        if (numero == 0) {
            groupes.emplace_back();
            numero = static_cast<std::uint32_t>(groupes.size());
        }
        groupes[numero - 1].push_back(place);
    }
    for (auto& groupe : groupes)
        std::sort(groupe.begin(), groupe.end());
    return groupes;
}

atelier::Rangee rangee(const Glossaire& glossaire, const Groupe& groupe) {
    const auto& premiere = glossaire.fiches()[groupe.front()];
    const std::string lettres(premiere.mot.triees().texte());
    atelier::Rangee rangee{lettres, lettres, {}};
    for (const auto place : groupe)
        rangee.solutions.append(rangee.solutions.empty() ? "" : ";")
            .append(glossaire.fiches()[place].texte());
    if (groupe.size() == 1) {
        std::vector<std::string_view> rivaux;
        for (const auto place : glossaire.surtirage(premiere.tirage)) {
            if (place != groupe.front())
                rivaux.push_back(glossaire.fiches()[place].texte());
        }
        rangee.tirage = atelier::tirageavecindice(premiere.texte(), rivaux);
    }
    return rangee;
}

/// The words by rack, without the racks that have more than a row holds.
std::vector<Groupe> tenables(const Glossaire& glossaire, const std::vector<std::uint32_t>& places,
                             Liste& liste) {
    auto groupes = grouper(glossaire, places);
    const auto riches =
        std::erase_if(groupes, [](const Groupe& g) { return g.size() > common::solutionsmulti; });
    if (riches > 0)
        liste.laisses.push_back(mots(riches, "tirage laissé de côté : il a plus de ",
                                     "tirages laissés de côté : ils ont plus de ") +
                                std::to_string(common::solutionsmulti) + " mots.");
    for (const auto& groupe : groupes)
        liste.solutions = std::max(liste.solutions, groupe.size());
    return groupes;
}

/// A row for each of the first groups, up to the limit.
void remplir(Liste& liste, const Glossaire& glossaire, std::vector<Groupe> groupes,
             std::size_t limite) {
    if (groupes.size() > limite) {
        liste.laisses.push_back(
            mots(groupes.size() - limite, "tirage laissé de côté", "tirages laissés de côté") +
            " : une liste en tient " + std::to_string(limite) + '.');
        groupes.resize(limite);
    }
    atelier::Contenu contenu;
    for (const auto& groupe : groupes)
        contenu.rangees.push_back(rangee(glossaire, groupe));
    atelier::ordonner(contenu);
    for (const auto& r : contenu.rangees)
        liste.rangees.push_back(r.texte());
}

}  // namespace

std::vector<std::uint32_t> chercher(const Glossaire& glossaire, const Demande& demande,
                                    std::uint64_t graine) {
    const auto fiches = glossaire.fiches();
    const bool hasard = demande.ordre == Ordre::hasard;
    std::vector<std::uint32_t> places;
    if (hasard || demande.ordre == Ordre::alphabet) {
        for (std::uint32_t place = 0; place < fiches.size(); ++place) {
            if (passe(demande, fiches[place], place))
                places.push_back(place);
        }
    } else {
        // The words lie by the alphabet: judged in that order, they pass through memory once.
        std::vector<char> passent(fiches.size());
        for (std::uint32_t place = 0; place < fiches.size(); ++place)
            passent[place] = passe(demande, fiches[place], place) ? 1 : 0;
        for (const auto place : glossaire.places(demande.ordre)) {
            if (passent[place] != 0)
                places.push_back(place);
        }
    }
    if (hasard)
        melanger(places, demande.graine.value_or(graine));
    if (demande.max)
        places.resize(std::min(places.size(), *demande.max));
    if (demande.par)
        garder(glossaire, demande, places);
    return places;
}

std::variant<Liste, Refus> enliste(const Glossaire& glossaire,
                                   const std::vector<std::uint32_t>& places) {
    Liste liste;
    auto groupes = tenables(glossaire, places, liste);
    const bool seuls =
        std::any_of(groupes.begin(), groupes.end(), [](const Groupe& g) { return g.size() == 1; });
    if (seuls && liste.solutions > 1)
        return Refus{"par",
                     "ces mots mêlent des tirages à une solution et à plusieurs, qui ne se jouent "
                     "pas ensemble ; ajoutez par=1 ou par=2-5"};
    const auto limite = liste.solutions > 1
                            ? std::min(common::rangeesmulti, seizebits / liste.solutions)
                            : common::rangeesform1;
    remplir(liste, glossaire, std::move(groupes), limite);
    return liste;
}

Liste surpapier(const Glossaire& glossaire, const std::vector<std::uint32_t>& places) {
    Liste liste;
    auto groupes = tenables(glossaire, places, liste);
    remplir(liste, glossaire, std::move(groupes), common::rangeesform1);
    return liste;
}

}  // namespace recherche
