// Orders that are the user's mouse and keyboard.

#include <algorithm>
#include <array>

#include "cible.h"
#include "ordres.h"
#include "texte.h"
#include "textes.h"

namespace banc {
namespace {

struct ToucheNommee {
    std::string_view nom;
    Frappe frappe;
};

constexpr std::array touchesnommees{
    ToucheNommee{"Entree", {{ui::touches::entree}, {}}},
    ToucheNommee{"Haut", {{ui::touches::haut}, {}}},
    ToucheNommee{"Bas", {{ui::touches::bas}, {}}},
    ToucheNommee{"Gauche", {{ui::touches::gauche}, {}}},
    ToucheNommee{"Droite", {{ui::touches::droite}, {}}},
    ToucheNommee{"Suppr", {{ui::touches::suppr}, {}}},
    ToucheNommee{"Retour", {{ui::touches::retour}, {}}},
    ToucheNommee{"Tab", {{ui::touches::tab}, {}}},
    ToucheNommee{"MajTab", {{ui::touches::tab, true}, {}}},
    ToucheNommee{"F8", {{ui::touches::f8}, {}}},
    ToucheNommee{"F12", {{ui::touches::f12}, {}}},
    ToucheNommee{"Echap", {{ui::touches::echap}, {}}},
};

/// The key that types a character: letters, digits and the blank have a code, the others none.
Frappe frappe(char32_t caractere) {
    int code = 0;
    if (caractere >= U'a' && caractere <= U'z')
        code = static_cast<int>(caractere - U'a' + U'A');
    else if ((caractere >= U'A' && caractere <= U'Z') || (caractere >= U'0' && caractere <= U'9') ||
             caractere == U' ')
        code = static_cast<int>(caractere);
    return {{code}, caractere};
}

std::string clic(Seance& seance, const Ordre& ordre) {
    seance.pilote->cliquer(atteindre(seance, ordre.suite));
    return {};
}

std::string doubleclic(Seance& seance, const Ordre& ordre) {
    seance.pilote->doublecliquer(atteindre(seance, ordre.suite));
    return {};
}

std::string survol(Seance& seance, const Ordre& ordre) {
    seance.pilote->survoler(atteindre(seance, ordre.suite));
    return {};
}

std::string relache(Seance& seance, const Ordre& ordre) {
    seance.pilote->relacher(atteindre(seance, ordre.suite));
    return {};
}

std::string focus(Seance& seance, const Ordre& ordre) {
    auto& cible = atteindre(seance, ordre.suite);
    if (!cible.focalisable)
        throw Refus("contrôle sans focus : " + ordre.suite);
    seance.pilote->focaliser(cible);
    return {};
}

std::string taper(Seance& seance, const Ordre& ordre) {
    static_cast<void>(devant(seance));
    for (const auto& lettre : common::caracteres(sansguillemets(ordre.suite)))
        seance.pilote->frapper(frappe(common::premier(lettre)));
    return {};
}

std::string touche(Seance& seance, const Ordre& ordre) {
    static_cast<void>(devant(seance));
    const auto* place = std::find_if(touchesnommees.begin(), touchesnommees.end(),
                                     [&](const ToucheNommee& t) { return t.nom == ordre.suite; });
    if (place == touchesnommees.end())
        throw OrdreFaux("touche inconnue : " + ordre.suite);
    seance.pilote->frapper(place->frappe);
    return {};
}

std::string selectionner(Seance& seance, const Ordre& /*ordre*/) {
    auto* boite = devant(seance).focus();
    if (boite == nullptr ||
        (boite->genre() != ui::Genre::Boite && boite->genre() != ui::Genre::Liste))
        throw Refus("aucune boîte de texte n'a le focus");
    seance.pilote->selectionner(*boite);
    return {};
}

std::string choisir(Seance& seance, const Ordre& ordre) {
    const auto [nom, suite, lignes, numero, defaut] = decouper(ordre.suite);
    auto& liste = atteindre(seance, nom);
    const auto& choix = liste.choix();
    const auto entree = sansguillemets(suite);
    if (std::find(choix.begin(), choix.end(), entree) == choix.end())
        throw Refus("la liste " + nom + " n'a pas l'entrée " + entree);
    seance.pilote->choisir(liste, entree);
    return {};
}

std::string menu(Seance& seance, const Ordre& ordre) {
    auto& formulaire = formulairedumenu(seance);
    if (ordre.suite == "aucun") {
        seance.pilote->fermermenu(formulaire);
        return {};
    }
    auto& entree = controle(seance, ordre.suite);
    if (!proposee(entree))
        throw Refus("l'entrée n'est pas dans le menu ouvert : " + ordre.suite);
    if (!ui::Formulaire::accessible(entree))
        throw Refus("entrée cachée ou grisée : " + ordre.suite);
    seance.pilote->choisirentree(entree);
    return {};
}

std::string fermer(Seance& seance, const Ordre& ordre) {
    seance.pilote->fermer(fenetre(seance, ordre.suite));
    return {};
}

constexpr std::array commandesusager{
    Commande{"clic", clic},     Commande{"doubleclic", doubleclic},
    Commande{"survol", survol}, Commande{"relache", relache},
    Commande{"focus", focus},   Commande{"taper", taper},
    Commande{"touche", touche}, Commande{"selectionner", selectionner},
    Commande{"menu", menu},     Commande{"choisir", choisir},
    Commande{"fermer", fermer},
};

}  // namespace

std::span<const Commande> ordresdelusager() {
    return commandesusager;
}

}  // namespace banc
