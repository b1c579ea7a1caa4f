#include "glossaire.h"

#include <algorithm>
#include <numeric>

#include "invariables.h"

namespace recherche {
namespace {

using atelier::Capitales;

constexpr std::uint32_t bitsvoyelles = bitlettre('A') | bitlettre('E') | bitlettre('I') |
                                       bitlettre('O') | bitlettre('U') | bitlettre('Y');
constexpr std::size_t alphabet = 26;
/// Tiles of each letter in the French bag.
constexpr std::array<unsigned, alphabet> sac{9, 2, 2, 3, 15, 2, 2, 2, 8, 1, 1, 5, 3,
                                             6, 6, 2, 1, 6,  6, 6, 6, 2, 1, 1, 1, 1};

/// Ways to take `k` of `n` things.
constexpr std::uint64_t combinaisons(unsigned n, unsigned k) {
    if (k > n)
        return 0;
    std::uint64_t ways = 1;
    for (unsigned i = 1; i <= k; ++i)
        ways = ways * (n - k + i) / i;
    return ways;
}

/// Ways to take some tiles of each letter.
using Facons = std::array<std::array<std::uint64_t, atelier::longueurmax + 1>, alphabet>;
constexpr Facons facons = [] {
    Facons table{};
    for (std::size_t lettre = 0; lettre < alphabet; ++lettre) {
        for (unsigned k = 0; k <= atelier::longueurmax; ++k)
            table[lettre][k] = combinaisons(sac[lettre], k);
    }
    return table;
}();

std::uint16_t bitnature(std::string_view nom) {
    return std::find_if(natures.begin(), natures.end(),
                        [&](const Nature& n) { return n.nom == nom; })
        ->bit;
}

std::uint16_t marques(const atelier::Vocabulaire& v, const atelier::Mot& mot) {
    unsigned bits = mot.frequence > 0 ? bitcommun : 0U;
    const auto marquer = [&](bool vrai, std::string_view nom) {
        if (vrai)
            bits |= bitnature(nom);
    };
    using atelier::Lecture;
    marquer(v.une(mot, [](const Lecture& l) { return l.nature == atelier::Nature::nom; }), "nom");
    marquer(mot.infinitif, "infinitif");
    marquer(v.une(mot,
                  [](const Lecture& l) {
                      return l.al(atelier::participepresent | atelier::participepasse);
                  }),
            "participe");
    marquer(mot.conjugue, "conjugue");
    marquer(mot.plurielevident, "pluriel");
    marquer(atelier::invariable(v, mot), "invariable");
    marquer(mot.entree, "entree");
    return static_cast<std::uint16_t>(bits);
}

/// Tells each word which letters make another one in front of it. The words that begin with one
/// letter lie by the alphabet of what follows it, as all words do.
void rallongerdevant(std::vector<Fiche>& fiches) {
    std::size_t place = 0;
    char precedente = 0;
    for (const auto& fiche : fiches) {
        const auto texte = fiche.texte();
        if (texte.front() != precedente) {
            precedente = texte.front();
            place = 0;
        }
        const auto reste = Capitales(texte.substr(1)).nombres();
        while (place < fiches.size() && fiches[place].mot.nombres() < reste)
            ++place;
        if (place < fiches.size() && fiches[place].mot.nombres() == reste)
            fiches[place].devant |= bitlettre(precedente);
    }
}

/// The same behind it: a word that another one begins with lies before it, and so do the words
/// between them that begin with it.
void rallongerderriere(std::vector<Fiche>& fiches) {
    std::array<std::size_t, atelier::longueurmax + 1> derniers{};  // by length, 1 more than places
    for (std::size_t i = 0; i < fiches.size(); ++i) {
        const auto texte = fiches[i].texte();
        if (const auto base = derniers.at(texte.size() - 1);
            base > 0 && texte.starts_with(fiches[base - 1].texte()))
            fiches[base - 1].derriere |= bitlettre(texte.back());
        derniers.at(texte.size()) = i + 1;
    }
}

}  // namespace

std::uint64_t tirages(std::string_view mot) {
    std::array<unsigned, alphabet> comptes{};
    for (const char lettre : mot)
        ++comptes.at(static_cast<std::size_t>(lettre - 'A'));
    std::uint64_t nombre = 1;
    for (const char lettre : mot) {
        auto& compte = comptes.at(static_cast<std::size_t>(lettre - 'A'));
        nombre *= facons.at(static_cast<std::size_t>(lettre - 'A')).at(compte);
        compte = 0;  // C(n, 0) is 1 for the next one
    }
    return nombre;
}

Glossaire::Glossaire(const atelier::Vocabulaire& vocabulaire,
                     const atelier::Difficulte& difficulte) {
    const auto mots = vocabulaire.mots();
    std::vector<std::uint32_t> parordre(mots.size());
    std::iota(parordre.begin(), parordre.end(), 0U);
    std::sort(parordre.begin(), parordre.end(), [&](std::uint32_t a, std::uint32_t b) {
        return mots[a].lettres.nombres() < mots[b].lettres.nombres();
    });
    fiches_.resize(mots.size());
    for (std::uint32_t i = 0; i < parordre.size(); ++i) {
        const auto& mot = mots[parordre[i]];
        auto& fiche = fiches_[i];
        fiche.mot = mot.lettres;
        fiche.tirage = mot.tirage;
        fiche.difficulte = static_cast<std::int16_t>(difficulte.de(mot));
        fiche.marques = marques(vocabulaire, mot);
    }
    rallongerdevant(fiches_);
    rallongerderriere(fiches_);
    grouper(vocabulaire.tirages().size());
    completer();
    ordonner();
}

Glossaire::Glossaire(std::vector<Fiche> fiches, std::size_t tirages) : fiches_(std::move(fiches)) {
    grouper(tirages);
    completer();
    ordonner();
}

/// What follows from the letters of each word and from its rack.
void Glossaire::completer() {
    for (auto& fiche : fiches_) {
        unsigned poids = 0;
        unsigned voyelles = 0;
        for (const char lettre : fiche.texte()) {
            poids += static_cast<unsigned>(atelier::points(lettre)) - 1;
            fiche.lettres |= bitlettre(lettre);
            voyelles += (bitlettre(lettre) & bitsvoyelles) != 0 ? 1 : 0;
        }
        fiche.poids = static_cast<std::uint8_t>(poids);
        fiche.voyelles = static_cast<std::uint8_t>(voyelles);
        fiche.anagrammes = static_cast<std::uint16_t>(surtirage(fiche.tirage).size());
    }
}

void Glossaire::grouper(std::size_t tirages) {
    debuts_.assign(tirages + 1, 0);
    for (const auto& fiche : fiches_)
        ++debuts_[fiche.tirage + 1];
    std::partial_sum(debuts_.begin(), debuts_.end(), debuts_.begin());
    partirage_.resize(fiches_.size());
    auto suivants = debuts_;
    for (std::uint32_t i = 0; i < fiches_.size(); ++i)
        partirage_[suivants[fiches_[i].tirage]++] = i;
}

void Glossaire::ordonner() {
    const auto trier = [&](Ordre ordre, auto mesure) {
        // Measures are counted down from the highest, so that one sort serves all and keeps ties.
        std::vector<std::pair<std::uint64_t, std::uint32_t>> cles(fiches_.size());
        for (std::uint32_t i = 0; i < cles.size(); ++i)
            cles[i] = {~mesure(fiches_[i]), i};
        std::sort(cles.begin(), cles.end());
        auto& places = ordres_.at(static_cast<std::size_t>(ordre));
        places.resize(cles.size());
        std::transform(cles.begin(), cles.end(), places.begin(),
                       [](const auto& cle) { return cle.second; });
    };
    constexpr int base = 1 << 15;  // no measure is negative
    trier(Ordre::difficulte,
          [](const Fiche& f) { return static_cast<std::uint64_t>(f.difficulte + base); });
    trier(Ordre::probabilite, [](const Fiche& f) { return recherche::tirages(f.texte()); });
    trier(Ordre::poids, [](const Fiche& f) { return std::uint64_t{f.poids}; });
    auto& places = ordres_.at(static_cast<std::size_t>(Ordre::alphabet));
    places.resize(fiches_.size());
    std::iota(places.begin(), places.end(), 0U);
}

std::optional<std::uint32_t> Glossaire::chercher(std::string_view mot) const {
    if (mot.size() > atelier::longueurmax)
        return std::nullopt;
    const auto cherche = Capitales(mot).nombres();
    const auto trouve =
        std::lower_bound(fiches_.begin(), fiches_.end(), cherche,
                         [](const Fiche& f, const auto& n) { return f.mot.nombres() < n; });
    if (trouve == fiches_.end() || trouve->mot.nombres() != cherche)
        return std::nullopt;
    return static_cast<std::uint32_t>(trouve - fiches_.begin());
}

}  // namespace recherche
