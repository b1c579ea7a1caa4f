#include "nomwindows.h"

#include <algorithm>
#include <array>
#include <string>

#include "disque.h"

namespace common {
namespace {

constexpr std::size_t longueurlimite = 255;
constexpr std::string_view interdits = "<>:\"/\\|?*";
constexpr std::array<std::string_view, 6> appareils{"CON", "PRN",    "AUX",
                                                    "NUL", "CONIN$", "CONOUT$"};
/// Ports have a number behind them, from 1 to 9 or in superior.
constexpr std::array<std::string_view, 2> ports{"COM", "LPT"};
constexpr std::array<std::string_view, 3> superieurs{"¹", "²", "³"};

char majuscule(char c) {
    return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// The part of a name by which Windows knows a device: no extension, no blanks before it.
std::string racine(std::string_view nom) {
    std::string debut(nom.substr(0, nom.find_first_of(".:")));
    while (debut.ends_with(' '))
        debut.pop_back();
    std::transform(debut.begin(), debut.end(), debut.begin(), majuscule);
    return debut;
}

bool estport(std::string_view nom) {
    if (std::find(ports.begin(), ports.end(), nom.substr(0, 3)) == ports.end())
        return false;
    const auto numero = nom.substr(3);
    return (numero.size() == 1 && numero[0] >= '1' && numero[0] <= '9') ||
           std::find(superieurs.begin(), superieurs.end(), numero) != superieurs.end();
}

/// In the units of 16 bits that Windows counts.
std::size_t longueurlarge(std::string_view nom) {
    constexpr unsigned char suite = 0x80;  // bytes behind the first of a character begin with 10
    constexpr unsigned char masque = 0xC0;
    constexpr unsigned char dedeux = 0xF0;  // a character of two units
    std::size_t unites = 0;
    for (const char c : nom) {
        const auto octet = static_cast<unsigned char>(c);
        unites += (octet & masque) == suite ? 0U : octet >= dedeux ? 2U : 1U;
    }
    return unites;
}

bool estcommande(char c) {
    return static_cast<unsigned char>(c) < ' ';
}

}  // namespace

std::error_code nompourwindows(std::string_view nom) {
    if (nom.empty() || nom == "." || nom == "..")
        return {};
    const auto debut = racine(nom);
    if (std::find(appareils.begin(), appareils.end(), debut) != appareils.end() || estport(debut))
        return Ennui::NomReserve;
    if (nom.find_first_of(interdits) != nom.npos || nom.back() == '.' || nom.back() == ' ' ||
        std::any_of(nom.begin(), nom.end(), estcommande))
        return Ennui::NomInterdit;
    return longueurlarge(nom) > longueurlimite ? std::make_error_code(std::errc::filename_too_long)
                                               : std::error_code();
}

}  // namespace common
