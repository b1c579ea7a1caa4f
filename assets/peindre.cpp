#include <algorithm>
#include <cmath>

#include "image.h"

namespace assets {

namespace {

struct Echelle {
    double x;
    double y;
};

struct Cadre {
    double gauche;
    double haut;
    double droite;
    double bas;
};

// What the stroke covers, without its soft edge.
Cadre cadre(const Trait& trait) {
    Cadre c{trait.points[0].x, trait.points[0].y, trait.points[0].x, trait.points[0].y};
    for (const Point& p : trait.points) {
        c = {std::min(c.gauche, p.x), std::min(c.haut, p.y), std::max(c.droite, p.x),
             std::max(c.bas, p.y)};
    }
    return {c.gauche - trait.rayon, c.haut - trait.rayon, c.droite + trait.rayon,
            c.bas + trait.rayon};
}

Couleur melange(const Couleur& a, const Couleur& b, double part) {
    const auto entre = [part](double x, double y) { return x + part * (y - x); };
    const auto octet = [&entre](std::uint8_t x, std::uint8_t y) {
        return static_cast<std::uint8_t>(std::lround(entre(x, y)));
    };
    return {octet(a.rouge, b.rouge), octet(a.vert, b.vert), octet(a.bleu, b.bleu),
            entre(a.opacite, b.opacite)};
}

// Part of a pixel that the stroke covers when its edge, `largeur` wide, is at `distance`.
double couverture(double distance, double largeur, bool doux) {
    const double part = std::clamp(0.5 - distance / largeur, 0.0, 1.0);
    return doux ? part * part * (3 - 2 * part) : part;
}

void poser(std::uint8_t* pixel, const Couleur& couleur, double opacite) {
    const double dessous = pixel[3] / 255.0 * (1 - opacite);
    const double total = opacite + dessous;
    const std::uint8_t teintes[] = {couleur.rouge, couleur.vert, couleur.bleu};
    for (int i = 0; i < 3; ++i) {
        pixel[i] = static_cast<std::uint8_t>(
            std::lround((teintes[i] * opacite + pixel[i] * dessous) / total));
    }
    pixel[3] = static_cast<std::uint8_t>(std::lround(total * 255));
}

void poser(Image& image, const Trait& trait, const Echelle& echelle) {
    const Cadre c = cadre(trait);
    const double bord = std::max(trait.flou, 1 / std::min(echelle.x, echelle.y));
    const auto premier = [](double bas) { return std::max(0, static_cast<int>(std::floor(bas))); };
    const auto dernier = [](double haut, int limite) {
        return std::min(limite, static_cast<int>(std::ceil(haut)));
    };
    const int droite = dernier((c.droite + bord) * echelle.x, image.largeur);
    const int pied = dernier((c.bas + bord) * echelle.y, image.hauteur);
    for (int y = premier((c.haut - bord) * echelle.y); y < pied; ++y) {
        const double ligne = (y + 0.5) / echelle.y;
        const double part = std::clamp((ligne - c.haut) / (c.bas - c.haut), 0.0, 1.0);
        const Couleur couleur = melange(trait.haut, trait.bas, part);
        for (int x = premier((c.gauche - bord) * echelle.x); x < droite; ++x) {
            const double d = distance(trait, {(x + 0.5) / echelle.x, ligne});
            const double opacite = couleur.opacite * couverture(d, bord, trait.flou > 0);
            if (opacite > 0) {
                poser(&image.pixels[(static_cast<std::size_t>(y) * image.largeur + x) * 4], couleur,
                      opacite);
            }
        }
    }
}

}  // namespace

Image peindre(const Dessin& dessin, int largeur, int hauteur) {
    Image image{largeur, hauteur, {}};
    image.pixels.resize(static_cast<std::size_t>(largeur) * hauteur * 4);
    const Echelle echelle{largeur / dessin.largeur, hauteur / dessin.hauteur};
    for (const Trait& trait : dessin.traits) {
        poser(image, trait, echelle);
    }
    return image;
}

}  // namespace assets
