#include "somme.h"

#include <vector>

namespace installation {

std::string enhexadecimal(std::span<const std::uint8_t> octets) {
    constexpr std::string_view chiffres = "0123456789abcdef";
    std::string texte;
    for (const auto octet : octets) {
        texte += chiffres[octet >> 4U];
        texte += chiffres[octet & 0xFU];
    }
    return texte;
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
