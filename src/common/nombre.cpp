#include "nombre.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "faute.h"

namespace common {
namespace {

bool chiffre(char c) {
    return c >= '0' && c <= '9';
}

/// Length of the number at the start of `texte` (sign included), 0 if there is no digit.
std::size_t longueurnombre(std::string_view texte) {
    std::size_t i = 0;
    bool vu = false;
    bool point = false;
    if (i < texte.size() && (texte[i] == '+' || texte[i] == '-'))
        ++i;
    for (; i < texte.size(); ++i) {
        if (chiffre(texte[i]))
            vu = true;
        else if (texte[i] == '.' && !point)
            point = true;
        else
            break;
    }
    return vu ? i : 0;
}

std::int16_t verifie(double entier, std::string_view quoi) {
    constexpr auto bas = std::numeric_limits<std::int16_t>::min();
    if (!(entier >= bas && entier <= plusgrand16)) {
        throw Faute(std::string(quoi) + " : la valeur " + textenombre(entier) +
                    " sort des limites admises (de " + std::to_string(bas) + " à " +
                    std::to_string(plusgrand16) + ").");
    }
    return static_cast<std::int16_t>(entier);
}

}  // namespace

double valeur(std::string_view texte) {
    const auto depart = texte.find_first_not_of(" \t");
    if (depart == std::string_view::npos)
        return 0;
    texte.remove_prefix(depart);
    auto nombre = texte.substr(0, longueurnombre(texte));
    if (nombre.empty())
        return 0;
    if (nombre.front() == '+')
        nombre.remove_prefix(1);
    double resultat = 0;
    const auto lu = std::from_chars(nombre.data(), nombre.data() + nombre.size(), resultat,
                                    std::chars_format::fixed);
    if (lu.ec == std::errc::result_out_of_range) {
        const auto entiere = nombre.substr(0, nombre.find('.'));
        if (entiere.find_first_not_of("-0") == std::string_view::npos)
            return 0;  // too small
        constexpr double enorme = std::numeric_limits<double>::max();
        return nombre.front() == '-' ? -enorme : enorme;
    }
    return resultat;
}

std::int16_t entier16(double nombre, std::string_view quoi) {
    return verifie(std::nearbyint(nombre), quoi);  // the default rounding mode takes ties to even
}

std::int16_t entier16(std::int64_t nombre, std::string_view quoi) {
    return verifie(static_cast<double>(nombre), quoi);
}

std::string CalcDuree(std::int16_t secondes) {
    if (secondes < 0)
        return "00:00";
    return deuxchiffres(secondes / 60) + ":" + deuxchiffres(secondes % 60);
}

std::string textenombre(double nombre) {
    std::array<char, 64> tampon{};  // to_chars, unlike printf, knows no locale
    const auto ecrit = std::to_chars(tampon.data(), tampon.data() + tampon.size(), nombre,
                                     std::chars_format::general, 15);
    return {tampon.data(), ecrit.ptr};
}

std::string decimales(double nombre, int nombrededecimales) {
    // That many digits hold the exact value of any number whose tie could matter here.
    constexpr int decimalesexactes = 60;
    std::array<char, 400> tampon{};
    const auto ecrit = std::to_chars(tampon.data(), tampon.data() + tampon.size(),
                                     std::fabs(nombre), std::chars_format::fixed, decimalesexactes);
    std::string texte(tampon.data(), ecrit.ptr);
    const auto point = texte.find('.');
    const auto gardees =
        static_cast<std::size_t>(std::clamp(nombrededecimales, 0, decimalesexactes - 1));
    const bool plus = texte[point + 1 + gardees] >= '5';
    texte.resize(gardees > 0 ? point + 1 + gardees : point);
    for (auto i = texte.size(); plus && i > 0;) {
        auto& c = texte[--i];
        if (c == '.')
            continue;
        if (c != '9') {
            ++c;
            break;
        }
        c = '0';
        if (i == 0)
            texte.insert(0, "1");
    }
    const bool nul = texte.find_first_not_of("0.") == std::string::npos;
    return nombre < 0 && !nul ? "-" + texte : texte;
}

std::optional<int> entierdechiffres(std::string_view texte) {
    int lu = 0;
    const auto* fin = texte.data() + texte.size();
    if (texte.empty() || !chiffre(texte.front()))
        return std::nullopt;
    const auto [ici, erreur] = std::from_chars(texte.data(), fin, lu);
    return erreur == std::errc() && ici == fin ? std::optional(lu) : std::nullopt;
}

std::string deuxchiffres(std::int64_t nombre) {
    if (nombre < 0)
        return "-" + deuxchiffres(-nombre);
    const auto texte = std::to_string(nombre);
    return texte.size() < 2 ? "0" + texte : texte;
}

}  // namespace common
