#include "saisie.h"

#include <algorithm>
#include <array>

#include "texte.h"
#include "valeurs.h"

namespace series {
namespace {

bool lettre(int code) {
    return code >= 'A' && code <= 'Z';
}

/// Codes that no answer takes: blanks, digits, punctuation, diacritic keys, accented letters.
bool refusee(int code) {
    struct Plage {
        int premier;
        int dernier;
    };
    static constexpr std::array refusees{Plage{32, 64}, Plage{91, 96}, Plage{168, 168},
                                         Plage{176, 176}, Plage{192, 255}};
    return std::any_of(refusees.begin(), refusees.end(), [code](const Plage& plage) {
        return code >= plage.premier && code <= plage.dernier;
    });
}

/// Shows the letters left in the place of the rack.
void reduire(Place& place, const Lettres& lettres) {
    place.affiche = lettres.restantes();
    place.entame = true;
}

}  // namespace

int majuscule(int code) {
    return code >= 'a' && code <= 'z' ? code - ('a' - 'A') : code;
}

bool saisieassistee(const Serie& serie, bool option) {
    return lettresdutirage(serie.nature) && serie.ouverte && option;
}

bool remplacelareponse(int code, bool remplacetout) {
    return remplacetout && lettre(majuscule(code));
}

Frappe frapper(Serie& serie, Lettres& lettres, int boite, int code, bool assistee) {
    code = majuscule(code);
    if (!serie.ouverte)
        return {lettre(code) ? 0 : code};
    bool refus = refusee(code);
    if (assistee) {
        const auto touchetexte =
            common::utf8(common::caractere1252(static_cast<unsigned char>(code)));
        const bool prise = lettres.prendre(touchetexte);
        if (prise)
            reduire(serie.place(boite), lettres);
        refus = refus || (lettre(code) && !prise);
    }
    return refus ? Frappe{0, true} : Frappe{code};
}

void recalculer(Serie& serie, Lettres& lettres, int boite, std::string_view reponse) {
    lettres.recalculer(reponse);
    auto& place = serie.place(boite);
    if (place.affiche.find_first_of(serie.regles.marquesgardees) == std::string::npos)
        reduire(place, lettres);
}

void rendretirage(Serie& serie, const Lettres& lettres, int boite, bool assistee) {
    auto& place = serie.place(boite);
    // A rack that was reduced is given back, even if the option was switched off meanwhile.
    if (assistee || place.entame) {
        if (place.rang >= 0 && !serie.regles.rendlettresnues)
            place.affiche = place.tirage;
        else if (!lettres.tiragenet().empty())
            place.affiche = lettres.tiragenet();
    }
    place.entame = false;
}

std::optional<int> parcours(int boite, int code, int nbboites) {
    switch (code) {
        case ui::touches::entree:
        case ui::touches::bas:
            return (boite + 1) % nbboites;
        case ui::touches::haut:
            return (boite + nbboites - 1) % nbboites;
        default:
            return std::nullopt;
    }
}

std::size_t lettresentrop(const Serie& serie, int boite, std::string_view texte) {
    const auto limite = common::longueur(serie.place(boite).affiche);
    const auto longueur = common::longueur(texte);
    return rallonges(serie.nature) || longueur <= limite ? 0 : longueur - limite;
}

bool ajuger(const Serie& serie, int boite) {
    const auto& place = serie.place(boite);
    return place.rang >= 0 && !(serie.regles.jugesiaffiche && place.affiche.empty());
}

}  // namespace series
