#include "somme.h"

#include <algorithm>
#include <bit>
#include <span>
#include <vector>

namespace installation {
namespace {

// FIPS 180-4, 4.2.2.
constexpr std::array<std::uint32_t, 64> constantes{
    0x428A2F98U, 0x71374491U, 0xB5C0FBCFU, 0xE9B5DBA5U, 0x3956C25BU, 0x59F111F1U, 0x923F82A4U,
    0xAB1C5ED5U, 0xD807AA98U, 0x12835B01U, 0x243185BEU, 0x550C7DC3U, 0x72BE5D74U, 0x80DEB1FEU,
    0x9BDC06A7U, 0xC19BF174U, 0xE49B69C1U, 0xEFBE4786U, 0x0FC19DC6U, 0x240CA1CCU, 0x2DE92C6FU,
    0x4A7484AAU, 0x5CB0A9DCU, 0x76F988DAU, 0x983E5152U, 0xA831C66DU, 0xB00327C8U, 0xBF597FC7U,
    0xC6E00BF3U, 0xD5A79147U, 0x06CA6351U, 0x14292967U, 0x27B70A85U, 0x2E1B2138U, 0x4D2C6DFCU,
    0x53380D13U, 0x650A7354U, 0x766A0ABBU, 0x81C2C92EU, 0x92722C85U, 0xA2BFE8A1U, 0xA81A664BU,
    0xC24B8B70U, 0xC76C51A3U, 0xD192E819U, 0xD6990624U, 0xF40E3585U, 0x106AA070U, 0x19A4C116U,
    0x1E376C08U, 0x2748774CU, 0x34B0BCB5U, 0x391C0CB3U, 0x4ED8AA4AU, 0x5B9CCA4FU, 0x682E6FF3U,
    0x748F82EEU, 0x78A5636FU, 0x84C87814U, 0x8CC70208U, 0x90BEFFFAU, 0xA4506CEBU, 0xBEF9A3F7U,
    0xC67178F2U};

using Mots = std::array<std::uint32_t, 64>;

Mots etendre(std::span<const std::uint8_t, 64> bloc) {
    Mots mots{};
    for (std::size_t i = 0; i < bloc.size(); ++i)
        mots[i / 4] = mots[i / 4] << 8U | bloc[i];
    for (std::size_t i = 16; i < mots.size(); ++i) {
        const auto a = mots[i - 15];
        const auto b = mots[i - 2];
        mots[i] = mots[i - 16] + (std::rotr(a, 7) ^ std::rotr(a, 18) ^ a >> 3U) + mots[i - 7] +
                  (std::rotr(b, 17) ^ std::rotr(b, 19) ^ b >> 10U);
    }
    return mots;
}

}  // namespace

void Somme::melanger() {
    const auto mots = etendre(attente_);
    auto [a, b, c, d, e, f, g, h] = etat_;
    for (std::size_t i = 0; i < mots.size(); ++i) {
        const auto un = h + (std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25)) +
                        ((e & f) ^ (~e & g)) + constantes[i] + mots[i];
        const auto deux =
            (std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22)) + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + un;
        d = c;
        c = b;
        b = a;
        a = un + deux;
    }
    const std::array ajouts{a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < etat_.size(); ++i)
        etat_[i] += ajouts[i];
}

void Somme::ajouter(std::string_view octets) {
    while (!octets.empty()) {
        const auto place = static_cast<std::size_t>(octets_ % bloc);
        const auto pris = octets.substr(0, bloc - place);
        std::copy(pris.begin(), pris.end(), attente_.begin() + static_cast<std::ptrdiff_t>(place));
        octets_ += pris.size();
        octets.remove_prefix(pris.size());
        if (octets_ % bloc == 0)
            melanger();
    }
}

std::string Somme::finir() {
    constexpr std::size_t longueur = 8;  // bytes that tell how many bits there were
    const auto bits = octets_ * 8;
    ajouter("\x80");
    while (octets_ % bloc != bloc - longueur)
        ajouter(std::string_view("\0", 1));
    for (std::size_t i = longueur; i-- > 0;) {
        const char octet = static_cast<char>(bits >> (8 * i) & 0xFFU);
        ajouter({&octet, 1});
    }
    std::string somme;
    for (const auto mot : etat_)
        for (unsigned place = 32; place > 0; place -= 4)
            somme += "0123456789abcdef"[mot >> (place - 4) & 0xFU];
    return somme;
}

std::error_code sommer(common::Disque& disque, std::string_view chemin, std::string& somme) {
    std::unique_ptr<common::Flux> flux;
    if (const auto erreur = disque.ouvrir(chemin, flux))
        return erreur;
    Somme calcul;
    std::vector<char> tampon(64UL * 1024);
    for (std::size_t lus = 1; lus > 0;) {
        if (const auto erreur = flux->lire(tampon, lus))
            return erreur;
        calcul.ajouter({tampon.data(), lus});
    }
    somme = calcul.finir();
    return {};
}

}  // namespace installation
