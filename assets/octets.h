#pragma once

#include <cstdint>
#include <string>

namespace assets {

/// Appends the `nombre` lowest bytes of `valeur` (at most 4), the lowest first.
inline void petitboutien(std::string& octets, std::uint32_t valeur, int nombre) {
    for (int i = 0; i < nombre; ++i)
        octets += static_cast<char>(valeur >> (8 * i) & 0xFFU);
}

/// Appends the four bytes of `valeur`, the highest first.
inline void grosboutien(std::string& octets, std::uint32_t valeur) {
    for (int i = 3; i >= 0; --i)
        octets += static_cast<char>(valeur >> (8 * i) & 0xFFU);
}

}  // namespace assets
