#include "tuiles.h"

#include <utility>

#include "texte.h"

namespace series {
namespace {

/// Name for assistive technologies: number and letter of the tile.
void nommer(ui::Controle& tuile, int rang) {
    const auto nom = "Tuile " + std::to_string(rang + 1);
    tuile.accessible = tuile.texte().empty() ? nom : nom + " : " + tuile.texte();
}

}  // namespace

Tuiles::Tuiles(ui::Formulaire& formulaire) {
    constexpr double taille = 24;
    for (int rang = 0; rang < static_cast<int>(nombre); ++rang) {
        auto& tuile = formulaire.ajouter(ui::Genre::Bouton, "Command1", rang);
        tuile.aspect = ui::Aspect::Tuile;
        tuile.fond = ui::couleurs::tuile;
        tuile.taille = taille;
        tuile.gras = true;
        nommer(tuile, rang);
        tuile.clic = [this, rang] { cliquer(rang); };
        tuiles_[static_cast<std::size_t>(rang)] = &tuile;
    }
}

void Tuiles::relever() {
    gauche_ = tuiles_[0]->gauche();
    largeur_ = tuiles_[0]->largeur();
}

void Tuiles::afficher(std::string_view tiragenet) {
    const auto lettres = common::caracteres(tiragenet);
    if (lettres.empty() || lettres.size() > nombre)
        return;
    for (std::size_t i = 0; i < nombre; ++i) {
        tuiles_[i]->texte = i < lettres.size() ? lettres[i] : std::string();
        tuiles_[i]->gauche = gauche_ + static_cast<int>(i) * largeur_;
        nommer(*tuiles_[i], static_cast<int>(i));
    }
}

void Tuiles::peindre(ui::Couleur couleur) {
    for (auto* tuile : tuiles_)
        tuile->fond = couleur;
}

void Tuiles::cliquer(int rang) {
    surclic();
    if (lettre_ < 0) {
        lettre_ = rang;
        return;
    }
    auto& premiere = *tuiles_[static_cast<std::size_t>(std::exchange(lettre_, -1))];
    auto& seconde = *tuiles_[static_cast<std::size_t>(rang)];
    if (premiere.texte().empty() || seconde.texte().empty())
        return;
    const int place = premiere.gauche();
    premiere.gauche = seconde.gauche();
    seconde.gauche = place;
}

}  // namespace series
