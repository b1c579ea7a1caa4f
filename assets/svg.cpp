#include <algorithm>
#include <cstdio>
#include <locale>
#include <sstream>

#include "image.h"

namespace assets {
namespace {

/// A number with three decimals at the most, whatever the language of the system.
std::string nombre(double valeur) {
    std::ostringstream flux;
    flux.imbue(std::locale::classic());
    flux.setf(std::ios::fixed);
    flux.precision(3);
    flux << valeur;
    auto texte = flux.str();
    texte.erase(texte.find_last_not_of('0') + 1);
    if (texte.back() == '.')
        texte.pop_back();
    return texte == "-0" ? "0" : texte;
}

/// ` name="value"`
std::string attribut(const char* nom, const std::string& valeur) {
    return std::string(" ") + nom + "=\"" + valeur + "\"";
}

std::string arret(const char* place, const Couleur& couleur) {
    char code[sizeof "#RRGGBB"];
    static_cast<void>(std::snprintf(code, sizeof code, "#%02X%02X%02X", couleur.rouge, couleur.vert,
                                    couleur.bleu));
    return "<stop" + attribut("offset", place) + attribut("stop-color", code) + "/>";
}

std::string chemin(const Trait& trait) {
    std::string texte;
    for (const Point& p : trait.points)
        texte += (texte.empty() ? "M" : "L") + nombre(p.x) + " " + nombre(p.y);
    // A point alone is drawn as a line of no length, which has round ends.
    if (trait.points.size() == 1)
        texte += "h0";
    return trait.plein ? texte + "Z" : texte;
}

/// The stroke, as opaque as its top, with the colours and the soft edge that are named after its
/// rank.
std::string element(const Trait& trait, const std::string& rang) {
    const auto [haut, bas] =
        std::minmax_element(trait.points.begin(), trait.points.end(),
                            [](const Point& a, const Point& b) { return a.y < b.y; });
    std::string texte = "<linearGradient" + attribut("id", "c" + rang) +
                        attribut("gradientUnits", "userSpaceOnUse") + attribut("x1", "0") +
                        attribut("x2", "0") + attribut("y1", nombre(haut->y - trait.rayon)) +
                        attribut("y2", nombre(bas->y + trait.rayon)) + ">" +
                        arret("0", trait.haut) + arret("1", trait.bas) + "</linearGradient>\n";
    const auto couleur = "url(#c" + rang + ")";
    std::string dessin = "<path" + attribut("d", chemin(trait)) +
                         attribut("fill", trait.plein ? couleur : "none") +
                         attribut("fill-rule", "evenodd");
    if (trait.rayon > 0)
        dessin += attribut("stroke", couleur) + attribut("stroke-width", nombre(2 * trait.rayon)) +
                  attribut("stroke-linecap", "round") + attribut("stroke-linejoin", "round");
    // Of the whole, not of the colours: line and inside overlap.
    if (trait.haut.opacite < 1)
        dessin += attribut("opacity", nombre(trait.haut.opacite));
    if (trait.flou > 0) {
        constexpr double largeurs = 4;  // deviations in the width of an edge
        texte += "<filter" + attribut("id", "f" + rang) + attribut("x", "-50%") +
                 attribut("y", "-50%") + attribut("width", "200%") + attribut("height", "200%") +
                 "><feGaussianBlur" + attribut("stdDeviation", nombre(trait.flou / largeurs)) +
                 "/></filter>\n";
        dessin += attribut("filter", "url(#f" + rang + ")");
    }
    return texte + dessin + "/>\n";
}

}  // namespace

std::string svg(const Dessin& dessin) {
    std::string texte =
        "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg" +
        attribut("xmlns", "http://www.w3.org/2000/svg") +
        attribut("width", nombre(dessin.largeur)) + attribut("height", nombre(dessin.hauteur)) +
        attribut("viewBox", "0 0 " + nombre(dessin.largeur) + " " + nombre(dessin.hauteur)) + ">\n";
    for (std::size_t i = 0; i < dessin.traits.size(); ++i)
        if (!dessin.traits[i].points.empty())
            texte += element(dessin.traits[i], std::to_string(i));
    return texte + "</svg>\n";
}

}  // namespace assets
