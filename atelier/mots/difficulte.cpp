#include "difficulte.h"

#include <algorithm>
#include <bit>

namespace atelier {
namespace {

constexpr std::size_t tailleminimale = 5;
constexpr std::size_t taillemaximale = 10;
constexpr std::size_t alphabet = 26;

std::size_t rang(char lettre) {
    return static_cast<std::size_t>(lettre - 'A');
}

std::size_t rang2(char a, char b) {
    return rang(a) * alphabet + rang(b);
}

std::size_t rang3(char a, char b, char c) {
    return rang2(a, b) * alphabet + rang(c);
}

/// Number of bits of the fourth power of a count.
std::uint8_t bits(std::uint64_t compte) {
    __extension__ using Large = unsigned __int128;
    const auto large = static_cast<Large>(compte);
    const auto carre = large * large;
    const auto puissance = carre * carre;
    const auto haut = static_cast<std::uint64_t>(puissance >> 64U);
    const auto largeur = haut != 0 ? 64 + std::bit_width(haut)
                                   : std::bit_width(static_cast<std::uint64_t>(puissance));
    return static_cast<std::uint8_t>(largeur);
}

std::vector<std::uint8_t> mesures(const std::vector<std::uint64_t>& comptes) {
    std::vector<std::uint8_t> resultat(comptes.size());
    std::transform(comptes.begin(), comptes.end(), resultat.begin(), bits);
    return resultat;
}

/// The highest measure of three letters that begin with two, for each two.
std::vector<std::uint8_t> maximums(const std::vector<std::uint8_t>& mesures) {
    std::vector<std::uint8_t> resultat(mesures.size() / alphabet);
    for (std::size_t i = 0; i < mesures.size(); ++i)
        resultat[i / alphabet] = std::max(resultat[i / alphabet], mesures[i]);
    return resultat;
}

}  // namespace

Difficulte::Difficulte(const Vocabulaire& vocabulaire) {
    std::vector<std::uint64_t> debuts(alphabet * alphabet * alphabet);
    std::vector<std::uint64_t> fins(debuts.size());
    std::vector<std::uint64_t> voisins(alphabet * alphabet);
    for (const auto& mot : vocabulaire.mots(tailleminimale, taillemaximale)) {
        if (mot.conjugue)
            continue;
        const auto t = mot.texte();
        const auto n = t.size();
        ++debuts[rang3(t[0], t[1], t[2])];
        ++fins[rang3(t[n - 3], t[n - 2], t[n - 1])];
        for (std::size_t i = 1; i < n; ++i)
            ++voisins[rang2(t[i - 1], t[i])];
    }
    debuts_ = mesures(debuts);
    fins_ = mesures(fins);
    voisins_ = mesures(voisins);
    debutsmax_ = maximums(debuts_);
    finsmax_ = maximums(fins_);
}

int Difficulte::de(const Mot& mot) const {
    const auto t = mot.texte();
    const auto n = t.size();
    if (n < 3)
        return 0;  // too short to have a beginning and an ending
    std::array<int, alphabet> comptes{};
    std::array<char, longueurmax> differentes{};
    std::size_t nombre = 0;
    for (const char lettre : t) {
        if (comptes.at(rang(lettre))++ == 0)
            differentes.at(nombre++) = lettre;
    }
    const std::string_view lettres(differentes.data(), nombre);
    int meilleurdebut = 0;
    int meilleurefin = 0;
    int paires = 0;
    for (const char a : lettres) {
        for (const char b : lettres) {
            // As many pairs of places as these letters make, in this order.
            const int paire = comptes[rang(a)] * (comptes[rang(b)] - (a == b ? 1 : 0));
            if (paire == 0)
                continue;
            const auto deux = rang2(a, b);
            paires += paire * voisins_[deux];
            if (debutsmax_[deux] <= meilleurdebut && finsmax_[deux] <= meilleurefin)
                continue;
            for (const char c : lettres) {
                if (comptes[rang(c)] <= (c == a ? 1 : 0) + (c == b ? 1 : 0))
                    continue;
                const auto trois = rang3(a, b, c);
                meilleurdebut = std::max<int>(meilleurdebut, debuts_[trois]);
                meilleurefin = std::max<int>(meilleurefin, fins_[trois]);
            }
        }
    }
    int propres = 0;
    for (std::size_t i = 1; i < n; ++i)
        propres += voisins_[rang2(t[i - 1], t[i])];
    return 2 * (meilleurefin - fins_[rang3(t[n - 3], t[n - 2], t[n - 1])]) +
           2 * (meilleurdebut - debuts_[rang3(t[0], t[1], t[2])]) + paires / static_cast<int>(n) -
           propres;
}

}  // namespace atelier
