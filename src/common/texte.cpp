#include "texte.h"

#include <algorithm>
#include <array>
#include <utility>

#include "faute.h"

namespace common {
namespace {

/// Characters of bytes 0x80 to 0x9F of Windows-1252; the undefined five are the C1 controls.
constexpr std::array<char32_t, 32> hautbas = {
    0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

bool suite(char octet) {
    return (static_cast<unsigned char>(octet) & 0xC0U) == 0x80U;
}

/// Length in bytes of the character that starts at `i`.
std::size_t taille(std::string_view texte, std::size_t i) {
    std::size_t n = 1;
    while (i + n < texte.size() && suite(texte[i + n]))
        ++n;
    return n;
}

/// Byte offset of the character at a position counted from 0; the end if there is none.
std::size_t decalage(std::string_view texte, std::size_t position) {
    std::size_t i = 0;
    while (position > 0 && i < texte.size()) {
        i += taille(texte, i);
        --position;
    }
    return i;
}

}  // namespace

std::size_t longueur(std::string_view texte) {
    return static_cast<std::size_t>(
        std::count_if(texte.begin(), texte.end(), [](char octet) { return !suite(octet); }));
}

std::string milieu(std::string_view texte, std::size_t position, std::size_t nombre) {
    const auto reste = texte.substr(decalage(texte, position > 0 ? position - 1 : 0));
    if (nombre == std::string::npos)
        return std::string(reste);
    return std::string(reste.substr(0, decalage(reste, nombre)));
}

std::string debut(std::string_view texte, std::size_t nombre) {
    return milieu(texte, 1, nombre);
}

std::string fin(std::string_view texte, std::size_t nombre) {
    const auto total = longueur(texte);
    return total <= nombre ? std::string(texte) : milieu(texte, total - nombre + 1);
}

std::string sansfin(std::string_view texte, std::size_t nombre) {
    const auto total = longueur(texte);
    return total <= nombre ? std::string() : debut(texte, total - nombre);
}

std::vector<std::string> caracteres(std::string_view texte) {
    std::vector<std::string> liste;
    for (std::size_t i = 0; i < texte.size();) {
        const auto n = taille(texte, i);
        liste.emplace_back(texte.substr(i, n));
        i += n;
    }
    return liste;
}

std::string minuscules(std::string_view texte) {
    std::string resultat;
    for (const auto& lettre : caracteres(texte)) {
        auto c = premier(lettre);
        const bool latin = (c >= 0xC0 && c <= 0xDE && c != 0xD7);
        if ((c >= U'A' && c <= U'Z') || latin)
            c += 32;
        else if (c == 0x152 || c == 0x160 || c == 0x17D)
            c += 1;
        else if (c == 0x178)
            c = 0xFF;
        resultat += utf8(c);
    }
    return resultat;
}

std::string_view sansblancs(std::string_view texte) {
    constexpr std::string_view blancs = " \t";
    const auto debut = texte.find_first_not_of(blancs);
    if (debut == std::string_view::npos)
        return {};
    return texte.substr(debut, texte.find_last_not_of(blancs) - debut + 1);
}

char32_t premier(std::string_view texte) {
    if (texte.empty())
        return 0;
    const auto n = taille(texte, 0);
    const auto tete = static_cast<unsigned char>(texte[0]);
    const std::size_t attendu = tete < 0x80 ? 1 : tete < 0xE0 ? 2 : tete < 0xF0 ? 3 : 4;
    if (tete < 0xC0 || n != attendu)  // ASCII, or malformed
        return tete;
    char32_t c = tete & (0xFFU >> (n + 1));
    for (std::size_t i = 1; i < n; ++i)
        c = (c << 6) | (static_cast<unsigned char>(texte[i]) & 0x3FU);
    return c;
}

std::string utf8(char32_t caractere) {
    std::string t;
    const auto octet = [&t](char32_t v) { t += static_cast<char>(static_cast<unsigned char>(v)); };
    if (caractere < 0x80) {
        octet(caractere);
    } else if (caractere < 0x800) {
        octet(0xC0 | (caractere >> 6));
        octet(0x80 | (caractere & 0x3F));
    } else if (caractere < 0x10000) {
        octet(0xE0 | (caractere >> 12));
        octet(0x80 | ((caractere >> 6) & 0x3F));
        octet(0x80 | (caractere & 0x3F));
    } else {
        octet(0xF0 | (caractere >> 18));
        octet(0x80 | ((caractere >> 12) & 0x3F));
        octet(0x80 | ((caractere >> 6) & 0x3F));
        octet(0x80 | (caractere & 0x3F));
    }
    return t;
}

std::optional<unsigned char> code1252(char32_t caractere) {
    if (caractere < 0x80 || (caractere >= 0xA0 && caractere <= 0xFF))
        return static_cast<unsigned char>(caractere);
    const auto* place = std::find(hautbas.begin(), hautbas.end(), caractere);
    if (place == hautbas.end())
        return std::nullopt;
    return static_cast<unsigned char>(0x80 + (place - hautbas.begin()));
}

char32_t caractere1252(unsigned char code) {
    return code >= 0x80 && code < 0xA0 ? hautbas.at(code - 0x80U) : code;
}

std::string depuis1252(std::string_view octets) {
    std::string texte;
    texte.reserve(octets.size());
    for (const char octet : octets) {
        const auto code = static_cast<unsigned char>(octet);
        if (code < 0x80)
            texte += octet;
        else
            texte += utf8(caractere1252(code));
    }
    return texte;
}

std::optional<std::string> essayervers1252(std::string_view texte) {
    const bool ascii = std::all_of(texte.begin(), texte.end(), [](char octet) {
        return static_cast<unsigned char>(octet) < 0x80;
    });
    if (ascii)
        return std::string(texte);
    std::string octets;
    octets.reserve(texte.size());
    for (std::size_t i = 0; i < texte.size();) {
        const auto n = taille(texte, i);
        const auto code = code1252(premier(texte.substr(i, n)));
        if (!code)
            return std::nullopt;
        octets += static_cast<char>(*code);
        i += n;
    }
    return octets;
}

std::string vers1252(std::string_view texte) {
    if (auto octets = essayervers1252(texte))
        return *std::move(octets);
    const auto lettres = caracteres(texte);
    const auto fautive = std::find_if(lettres.begin(), lettres.end(), [](const auto& lettre) {
        return !code1252(premier(lettre));
    });
    throw Faute("Le caractère « " + *fautive + " » du texte « " + std::string(texte) +
                " » ne peut pas être écrit dans un fichier : seuls les caractères occidentaux " +
                "(Windows-1252) sont admis.");
}

}  // namespace common
