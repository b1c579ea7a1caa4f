#include "compteur.h"

#include <algorithm>
#include <array>

namespace menu {
namespace {

std::size_t nombrede(char cherche, std::string_view texte) {
    return static_cast<std::size_t>(std::count(texte.begin(), texte.end(), cherche));
}

}  // namespace

void Compteur::voir(std::string_view bloc) {
    if (bloc.empty())
        return;
    const auto dernier = bloc.rfind('\n');
    if (dernier == std::string_view::npos) {
        courants_ += nombrede(';', bloc);
        entamee_ = true;
        return;
    }
    sauts_ += nombrede('\n', bloc);
    const auto avant = bloc.substr(0, dernier).rfind('\n');
    const bool entiere = avant != std::string_view::npos;  // the ended line lies in this block
    const auto debut = entiere ? avant + 1 : 0;
    termines_ = (entiere ? 0 : courants_) + nombrede(';', bloc.substr(debut, dernier - debut));
    const auto reste = bloc.substr(dernier + 1);
    courants_ = nombrede(';', reste);
    entamee_ = !reste.empty();
}

std::error_code compter(common::Disque& disque, std::string_view chemin, Compteur& compteur) {
    std::unique_ptr<common::Flux> flux;
    if (const auto erreur = disque.ouvrir(chemin, flux))
        return erreur;
    std::array<char, 65536> tampon;  // NOLINT(cppcoreguidelines-pro-type-member-init): read into
    std::size_t lus = 0;
    do {
        if (const auto erreur = flux->lire(tampon, lus))
            return erreur;
        compteur.voir({tampon.data(), lus});
    } while (lus > 0);
    return {};
}

}  // namespace menu
