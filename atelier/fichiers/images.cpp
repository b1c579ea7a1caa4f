#include "images.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <vector>

#include "alphabet.h"
#include "image.h"

namespace atelier {
namespace {

// Lengths in pixels of the screen.
constexpr int marge = 24;
constexpr int hauteurtitre = 18;
constexpr int soustitre = 20;
constexpr int hauteurrangee = 21;
constexpr int hauteurlettre = 11;
constexpr int largeurlettre = 12;  // a cell: the letters of all rows stand in columns
constexpr int entremots = 16;
constexpr double plumetitre = 2;
constexpr double plumetirage = 2;
constexpr double plumemot = 1.3;

constexpr std::uint8_t blanc = 15;
constexpr std::uint8_t ombre = 14;  // under every second row
constexpr double opaque = 255;

/// A text drawn once: how much of each pixel it covers, 0 to 255.
struct Encre {
    int largeur = 0;
    int hauteur = 0;
    std::vector<std::uint8_t> parts;
};

Encre tracer(std::string_view texte, double hauteur, double plume) {
    const auto dessin = assets::mot(texte, hauteur, plume, assets::rvb(0));
    const auto cote = [](double longueur) {
        return std::max(1, static_cast<int>(std::ceil(longueur)));
    };
    auto entier = dessin;  // whole pixels, so that nothing is stretched
    entier.largeur = cote(dessin.largeur);
    entier.hauteur = cote(dessin.hauteur);
    const auto image = assets::peindre(entier, cote(dessin.largeur), cote(dessin.hauteur));
    Encre encre{image.largeur, image.hauteur, {}};
    for (std::size_t i = 3; i < image.pixels.size(); i += 4)
        encre.parts.push_back(image.pixels[i]);
    return encre;
}

std::vector<std::string_view> mots(const Rangee& rangee) {
    std::vector<std::string_view> liste{rangee.tirage};
    std::string_view reste = rangee.solutions;
    while (!reste.empty()) {
        const auto fin = reste.find(';');
        liste.push_back(reste.substr(0, fin));
        reste.remove_prefix(fin == std::string_view::npos ? reste.size() : fin + 1);
    }
    return liste;
}

class Page {
  public:
    Page(int largeur, int hauteur, int finesse)
        : finesse_(finesse), image_{largeur * finesse, hauteur * finesse, {}} {
        image_.niveaux.assign(
            static_cast<std::size_t>(image_.largeur) * static_cast<std::size_t>(image_.hauteur),
            blanc);
    }

    void ombrer(int gauche, int haut, int droite, int bas) {
        for (int y = haut * finesse_; y < bas * finesse_; ++y) {
            for (int x = gauche * finesse_; x < droite * finesse_; ++x)
                pixel(x, y) = ombre;
        }
    }

    void titre(std::string_view texte, int gauche, int haut) {
        poser(tracer(texte, hauteurtitre * finesse_, plumetitre * finesse_), gauche * finesse_,
              haut * finesse_);
    }

    /// A word, each letter in the middle of its cell.
    void mot(std::string_view texte, int gauche, int haut, double plume) {
        for (const char lettre : texte) {
            const auto& encre = trace(lettre, plume);
            poser(encre, gauche * finesse_ + (largeurlettre * finesse_ - encre.largeur) / 2,
                  haut * finesse_);
            gauche += largeurlettre;
        }
    }

    [[nodiscard]] std::string png() const { return assets::png(image_); }

  private:
    std::uint8_t& pixel(int x, int y) {
        return image_
            .niveaux[static_cast<std::size_t>(y) * static_cast<std::size_t>(image_.largeur) +
                     static_cast<std::size_t>(x)];
    }

    const Encre& trace(char lettre, double plume) {
        const auto [place, nouvelle] = traces_.try_emplace({lettre, plume});
        if (nouvelle)
            place->second = tracer({&lettre, 1}, hauteurlettre * finesse_, plume * finesse_);
        return place->second;
    }

    void poser(const Encre& encre, int gauche, int haut) {
        for (int y = 0; y < encre.hauteur; ++y) {
            for (int x = 0; x < encre.largeur; ++x) {
                const auto part = encre.parts[static_cast<std::size_t>(y) *
                                                  static_cast<std::size_t>(encre.largeur) +
                                              static_cast<std::size_t>(x)];
                auto& dessous = pixel(gauche + x, haut + y);
                dessous = static_cast<std::uint8_t>(std::lround(dessous * (1 - part / opaque)));
            }
        }
    }

    int finesse_;
    assets::Gris image_;
    std::map<std::pair<char, double>, Encre> traces_;
};

}  // namespace

std::string dessinertable(std::string_view titre, std::span<const Rangee> rangees, int finesse) {
    std::size_t colonnes = 1;
    std::size_t lettres = 1;
    for (const auto& rangee : rangees) {
        colonnes = std::max(colonnes, mots(rangee).size());
        lettres = std::max(lettres, rangee.tirage.size());
    }
    const int largeurmot = static_cast<int>(lettres) * largeurlettre + entremots;
    const int largeurtable = static_cast<int>(colonnes) * largeurmot - entremots;
    const int largeurtitre =
        static_cast<int>(std::ceil(assets::mot(titre, hauteurtitre, plumetitre, {}).largeur));
    const int largeur = std::max(largeurtable, largeurtitre) + 2 * marge;
    const int debut = marge + hauteurtitre + soustitre;
    const int hauteur = debut + static_cast<int>(rangees.size()) * hauteurrangee + marge;
    Page page(largeur, hauteur, finesse);
    page.titre(titre, marge, marge);
    int haut = debut;
    for (std::size_t i = 0; i < rangees.size(); ++i, haut += hauteurrangee) {
        if (i % 2 == 0)
            page.ombrer(marge / 2, haut, largeur - marge / 2, haut + hauteurrangee);
        int gauche = marge;
        for (const auto mot : mots(rangees[i])) {
            page.mot(mot, gauche, haut + (hauteurrangee - hauteurlettre) / 2,
                     gauche == marge ? plumetirage : plumemot);
            gauche += largeurmot;
        }
    }
    return page.png();
}

}  // namespace atelier
