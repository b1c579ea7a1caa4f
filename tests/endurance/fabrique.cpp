#include "fabrique.h"

#include <algorithm>
#include <array>
#include <set>
#include <utility>

#include "catalogue.h"
#include "liste.h"

namespace endurance {
namespace {

using fuzz::Alea;

std::string motauhasard(Alea& alea, std::size_t longueur) {
    constexpr std::string_view lettres = "AAABCDEEEEFGHIIJKLLMNNOOPQRRSSTTUUVWXYZ";
    std::string mot;
    while (mot.size() < longueur)
        mot += lettres[alea.sous(lettres.size())];
    return mot;
}

std::string melanger(std::string mot, Alea& alea) {
    for (auto i = mot.size(); i > 1; --i)
        std::swap(mot[i - 1], mot[alea.sous(i)]);
    return mot;
}

std::string baliser(std::string lettres, Alea& alea) {
    const auto place = alea.entre(1, lettres.size() - 1);
    switch (alea.sous(4)) {
        case 0:
            return lettres.insert(place, "+");
        case 1:
            return lettres.substr(0, place) + "(" + lettres.substr(place) + ")";
        case 2:
            return lettres.insert(place, std::to_string(alea.entre(1, 8)));
        default:
            return lettres + "-" + motauhasard(alea, 2);
    }
}

/// Different words on the letters; words of other letters where those give too few.
std::string solutions(const std::string& lettres, std::size_t nombre, Alea& alea) {
    std::set<std::string> mots;
    for (std::size_t essai = 0; mots.size() < nombre; ++essai)
        mots.insert(essai < 20 ? melanger(lettres, alea) : motauhasard(alea, lettres.size() + 1));
    std::string suite;
    for (const auto& mot : mots)
        suite += ";" + mot;
    return suite;
}

std::string rallonge(const std::string& lettres, Alea& alea) {
    constexpr std::array devant{"", "?", ""};
    constexpr std::array derriere{"", "", "?"};
    const auto joker = alea.sous(devant.size());
    return devant.at(joker) + lettres + derriere.at(joker) + ";" +
           motauhasard(alea, alea.entre(1, 3));
}

std::string ligne(Alea& alea, Sorte sorte, bool multi, const std::string& lettres) {
    if (sorte == Sorte::Rallonge)
        return rallonge(lettres, alea);
    const auto rack =
        sorte == Sorte::Balisee && alea.surcent(60) ? baliser(lettres, alea) : lettres;
    const auto nombre = multi ? alea.entre(1, 5) : 1;
    const auto fin = multi && alea.surcent(10) ? ";" : "";
    return rack + solutions(lettres, nombre, alea) + fin;
}

std::size_t taille(Alea& alea, bool multi) {
    if (alea.surcent(5))
        return 0;
    if (alea.surcent(50))
        return alea.entre(1, 12);
    return multi ? alea.entre(9, 25) : alea.entre(13, 75);
}

Sorte sortede(const Listefaite& liste, Alea& alea) {
    if (liste.panneau == "rallong" || liste.fichier == "benj_uni.txt")
        return Sorte::Rallonge;
    constexpr std::array sortes{Sorte::Simple,  Sorte::Simple, Sorte::Simple,
                                Sorte::Balisee, Sorte::Longue, Sorte::Double};
    return alea.choisir(sortes);
}

}  // namespace

std::vector<std::string> lignesdeliste(Alea& alea, Sorte sorte, bool multi, std::size_t nombre) {
    std::vector<std::string> lignes;
    std::set<std::string> prises;
    while (lignes.size() < nombre) {
        if (sorte == Sorte::Double && !lignes.empty() && alea.surcent(25)) {
            lignes.push_back(alea.choisir(lignes));
            continue;
        }
        const bool longue = sorte == Sorte::Longue && alea.surcent(70);
        auto lettres = motauhasard(alea, longue ? alea.entre(9, 15) : alea.entre(2, 8));
        if (sorte != Sorte::Rallonge)
            std::sort(lettres.begin(), lettres.end());
        if (prises.insert(lettres).second)
            lignes.push_back(ligne(alea, sorte, multi, lettres));
    }
    return lignes;
}

std::vector<Listefaite> fairelistes(Alea& alea) {
    constexpr std::size_t chances = 18;  // in a hundred, of each list of the catalogue
    constexpr std::size_t casses = 3;
    std::vector<Listefaite> listes;
    for (const auto& panneau : menu::panneaux()) {
        for (std::size_t r = 0; r < panneau.rangees.size(); ++r) {
            if (!alea.surcent(chances))
                continue;
            const auto& rangee = panneau.rangees[r];
            Listefaite liste{std::string(panneau.cle),
                             r,
                             std::string(rangee.fichier),
                             rangee.parties,
                             rangee.ecran() == menu::Ecran::multi,
                             alea.surcent(casses),
                             {}};
            liste.lignes =
                lignesdeliste(alea, sortede(liste, alea), liste.multi, taille(alea, liste.multi));
            if (liste.cassee)
                liste.lignes.insert(liste.lignes.begin() + static_cast<std::ptrdiff_t>(
                                                               alea.sous(liste.lignes.size() + 1)),
                                    alea.surcent(50) ? "" : "SANSPOINTVIRGULE");
            listes.push_back(std::move(liste));
        }
    }
    return listes;
}

std::vector<std::string> motsconnus(const std::vector<Listefaite>& listes, Alea& alea) {
    std::vector<std::string> mots;
    for (const auto& liste : listes) {
        for (const auto& rangee : lesrangees(liste.lignes)) {
            if (alea.surcent(12))
                mots.push_back(rangee.solutions().empty() ? rangee.tirage
                                                          : rangee.solutions().front());
            if (alea.surcent(3))
                mots.push_back(motauhasard(alea, 5));
        }
    }
    return mots;
}

}  // namespace endurance
