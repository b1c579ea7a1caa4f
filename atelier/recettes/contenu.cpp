#include "contenu.h"

#include <algorithm>

#include "annexe.h"

namespace atelier {
namespace {

/// What being used by everybody is worth beside the count of a thesaurus.
constexpr std::uint32_t primefrequent = 1000;

std::size_t prefixecommun(std::string_view a, std::string_view b) {
    return static_cast<std::size_t>(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first -
                                    a.begin());
}

}  // namespace

std::uint32_t frequence(const Vocabulaire& /*v*/, const Mot& mot) {
    return mot.frequence;
}

std::uint32_t frequencedeverbe(const Vocabulaire& /*v*/, const Mot& mot) {
    return mot.frequence + (verbefrequent(mot.texte()) ? primefrequent : 0);
}

bool defectif(const Vocabulaire& v, const Mot& mot) {
    return v.une(mot, [&](const Lecture& l) { return l.al(infinitif) && v.lemme(l).defectif(); });
}

Selection couper(const Vocabulaire& v, Selection selection, std::size_t total,
                 std::uint32_t (*mesure)(const Vocabulaire&, const Mot&),
                 bool (*otable)(const Mot&)) {
    if (selection.size() <= total)
        return selection;
    Selection otables;
    for (const auto* mot : selection) {
        if (otable(*mot))
            otables.push_back(mot);
    }
    std::stable_sort(otables.begin(), otables.end(),
                     [&](const Mot* a, const Mot* b) { return mesure(v, *a) > mesure(v, *b); });
    otables.resize(std::min(otables.size(), selection.size() - total));
    std::sort(otables.begin(), otables.end());
    std::erase_if(selection, [&](const Mot* mot) {
        return std::binary_search(otables.begin(), otables.end(), mot);
    });
    return selection;
}

Selection plushauts(Selection selection, std::size_t nombre,
                    const std::function<int(const Mot&)>& mesure) {
    std::vector<std::pair<int, const Mot*>> mesures;
    mesures.reserve(selection.size());
    for (const auto* mot : selection)
        mesures.emplace_back(-mesure(*mot), mot);
    std::sort(mesures.begin(), mesures.end());  // words of a selection lie in alphabetical order
    selection.clear();
    for (std::size_t i = 0; i < std::min(nombre, mesures.size()); ++i)
        selection.push_back(mesures[i].second);
    std::sort(selection.begin(), selection.end());
    return selection;
}

std::string tirageavecindice(const Mot& mot, const Selection& rivaux) {
    std::vector<std::string_view> textes;
    for (const auto* rival : rivaux) {
        if (rival != &mot)
            textes.push_back(rival->texte());
    }
    return tirageavecindice(mot.texte(), textes);
}

std::string tirageavecindice(std::string_view mot, std::span<const std::string_view> rivaux) {
    std::size_t indice = 0;
    for (const auto rival : rivaux)
        indice = std::max(indice, prefixecommun(mot, rival) + 1);
    const auto reste = Capitales(mot.substr(indice)).triees();
    if (indice == 0)
        return std::string(reste.texte());
    return '(' + std::string(mot.substr(0, indice)) + ')' + std::string(reste.texte());
}

bool injurieuse(const Selection& mots) {
    return std::any_of(mots.begin(), mots.end(), [](const Mot* mot) { return mot->injurieux; });
}

Contenu simples(const Vocabulaire& v, const Selection& selection) {
    Contenu contenu;
    contenu.rangees.reserve(selection.size());
    for (const auto* mot : selection) {
        const std::string tirage(v.tirage(*mot).lettres.texte());
        contenu.rangees.push_back({tirage, tirage, std::string(mot->texte())});
        contenu.mots.push_back(place(v, *mot));
    }
    ordonner(contenu);
    return contenu;
}

Contenu indiques(const Vocabulaire& v, const Selection& selection, const Selection& rivaux) {
    Selection tries = rivaux;
    std::sort(tries.begin(), tries.end());
    Contenu contenu;
    contenu.rangees.reserve(selection.size());
    for (const auto* mot : selection) {
        const auto autres = choisir(v, v.tirage(*mot), [&](const Mot& m) {
            return &m != mot && std::binary_search(tries.begin(), tries.end(), &m);
        });
        contenu.rangees.push_back({std::string(v.tirage(*mot).lettres.texte()),
                                   tirageavecindice(*mot, autres), std::string(mot->texte())});
        contenu.mots.push_back(place(v, *mot));
    }
    ordonner(contenu);
    return contenu;
}

void ajoutermultiple(Contenu& contenu, const Vocabulaire& v, const Tirage& tirage,
                     const Selection& solutions) {
    if (injurieuse(solutions))
        return;
    const std::string lettres(tirage.lettres.texte());
    std::string texte;
    for (const auto* mot : solutions) {
        if (!texte.empty())
            texte += ';';
        texte += mot->texte();
        contenu.mots.push_back(place(v, *mot));
    }
    contenu.rangees.push_back({lettres, lettres, std::move(texte)});
}

void ordonner(Contenu& contenu) {
    std::sort(contenu.rangees.begin(), contenu.rangees.end(), [](const Rangee& a, const Rangee& b) {
        if (a.lettres.size() != b.lettres.size())
            return a.lettres.size() < b.lettres.size();
        if (a.lettres != b.lettres)
            return a.lettres < b.lettres;
        return a.solutions < b.solutions;
    });
}

std::uint32_t place(const Vocabulaire& v, const Mot& mot) {
    return static_cast<std::uint32_t>(&mot - v.mots().data());
}

}  // namespace atelier
