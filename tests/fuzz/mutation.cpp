#include "mutation.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

namespace fuzz {
namespace {

using namespace std::string_view_literals;

constexpr std::array jetons{
    "\""sv,     "\"\""sv,  ","sv,        ";"sv,          ";;"sv,
    "\0"sv,     "\r"sv,    "\n"sv,       "\r\n"sv,       "\r\r\n"sv,
    "\n\n"sv,   "%"sv,     " - "sv,      "\x81"sv,       "\xFF"sv,
    "\x80"sv,   "\t"sv,    " "sv,        "-"sv,          "+"sv,
    "."sv,      "/"sv,     "|"sv,        "["sv,          "]"sv,
    "1e5"sv,    "0x10"sv,  "32768"sv,    "-32769"sv,     "99999999999999999999"sv,
    "_a.txt"sv, "65536"sv, "\x1A"sv,     "4294967295"sv, "18446744073709551615"sv,
    "(Nom)|"sv, "SFX"sv,   "\xC3\xA9"sv, "\xE9"sv,       "\xEF\xBB\xBF"sv,
};

/// A piece of the bytes, at most `longueur` of them.
std::pair<std::size_t, std::size_t> morceau(const std::string& octets, Alea& alea,
                                            std::size_t longueur) {
    const auto debut = alea.sous(octets.size());
    return {debut, alea.sous(std::min(longueur, octets.size() - debut) + 1)};
}

void retourner(std::string& octets, Alea& alea) {
    if (octets.empty())
        return;
    auto& octet = octets[alea.sous(octets.size())];
    octet = static_cast<char>(static_cast<unsigned char>(octet) ^ (1U << alea.sous(8)));
}

void remplacer(std::string& octets, Alea& alea) {
    if (!octets.empty())
        octets[alea.sous(octets.size())] = static_cast<char>(alea.sous(256));
}

void tronquer(std::string& octets, Alea& alea) {
    octets.resize(alea.sous(octets.size() + 1));
}

void oter(std::string& octets, Alea& alea) {
    const auto [debut, taille] = morceau(octets, alea, 40);
    octets.erase(debut, taille);
}

void doubler(std::string& octets, Alea& alea) {
    const auto [debut, taille] = morceau(octets, alea, octets.size());
    octets.insert(alea.sous(octets.size() + 1), octets.substr(debut, taille));
}

void semer(std::string& octets, Alea& alea) {
    octets.insert(alea.sous(octets.size() + 1), alea.choisir(jetons));
}

/// Another number in the place of one.
void renombrer(std::string& octets, Alea& alea) {
    constexpr std::string_view chiffres = "0123456789";
    constexpr std::array nombres{"0"sv,
                                 "-1"sv,
                                 "00"sv,
                                 "1.5"sv,
                                 "32767"sv,
                                 "32768"sv,
                                 "65536"sv,
                                 "30001"sv,
                                 "1e9"sv,
                                 "4294967296"sv,
                                 "999999999999999999"sv,
                                 "18446744073709551615"sv,
                                 "99999999999999999999999"sv};
    const auto depart = alea.surcent(30) ? 0 : alea.sous(octets.size() + 1);
    const auto debut = octets.find_first_of(chiffres, depart);
    if (debut == std::string::npos)
        return;
    const auto fin = std::min(octets.find_first_not_of(chiffres, debut), octets.size());
    octets.replace(debut, fin - debut, alea.choisir(nombres));
}

/// A line, a field or a number far too long.
void gonfler(std::string& octets, Alea& alea) {
    constexpr std::array longueurs{16UL, 33UL, 400UL, 32766UL, 32768UL, 131072UL, 300001UL};
    constexpr std::array lettres{'A', '9', ' ', ';', '"', '%', '\0', '\xE9'};
    const auto longueur = longueurs[alea.surcent(80) ? alea.sous(3) : alea.sous(longueurs.size())];
    octets.insert(alea.sous(octets.size() + 1), longueur, alea.choisir(lettres));
}

void changerfins(std::string& octets, Alea& alea) {
    constexpr std::array fins{"\n"sv, "\r"sv, "\n\r"sv, "\r\r\n"sv, ""sv, "\r\n\r\n"sv};
    const auto fin = alea.choisir(fins);
    std::string autres;
    for (std::size_t i = 0; i < octets.size(); ++i) {
        if (octets.compare(i, 2, "\r\n") == 0 && alea.surcent(70)) {
            autres += fin;
            ++i;
        } else {
            autres += octets[i];
        }
    }
    octets = std::move(autres);
}

constexpr std::array coupspossibles{retourner, remplacer, tronquer,    oter,      doubler, semer,
                                    semer,     semer,     changerfins, renombrer, gonfler};

}  // namespace

std::string muter(std::string octets, std::span<const std::string> autres, Alea& alea) {
    constexpr std::size_t indemnes = 4;  // in a hundred
    constexpr std::size_t meles = 10;    // with a piece of another file
    constexpr std::size_t coupsmax = 4;
    if (alea.surcent(indemnes))
        return octets;
    if (!autres.empty() && alea.surcent(meles)) {
        const auto& autre = autres[alea.sous(autres.size())];
        const auto [debut, taille] = morceau(autre, alea, autre.size());
        octets.insert(alea.sous(octets.size() + 1), autre.substr(debut, taille));
    }
    for (auto coups = alea.entre(1, coupsmax); coups > 0; --coups)
        coupspossibles[alea.sous(coupspossibles.size())](octets, alea);
    return octets;
}

}  // namespace fuzz
