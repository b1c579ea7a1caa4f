#include "proprietes.h"

#include <array>

#include "nombre.h"
#include "textes.h"

namespace banc {
namespace {

using ui::Controle;
using ui::Formulaire;

template <class Objet>
struct Propriete {
    std::string_view nom;
    std::string (*valeur)(const Objet&);
};

std::string ouinon(bool valeur) {
    return valeur ? "oui" : "non";
}

std::string nom(ui::Pointeur pointeur) {
    switch (pointeur) {
        case ui::Pointeur::Fleche:
            return "fleche";
        case ui::Pointeur::Texte:
            return "texte";
        case ui::Pointeur::Attente:
            return "attente";
        case ui::Pointeur::Normal:
            break;
    }
    return "normal";
}

std::string nom(const Controle* controle) {
    return controle == nullptr ? "" : controle->formulaire().nom() + "." + controle->nomcomplet();
}

constexpr std::array ducontrole{
    Propriete<Controle>{"texte", [](const Controle& c) { return c.texte(); }},
    Propriete<Controle>{"fond", [](const Controle& c) { return c.fond().nom(); }},
    Propriete<Controle>{"couleur", [](const Controle& c) { return c.couleur().nom(); }},
    Propriete<Controle>{"visible", [](const Controle& c) { return ouinon(c.visible()); }},
    Propriete<Controle>{"actif", [](const Controle& c) { return ouinon(c.actif()); }},
    Propriete<Controle>{"verrou", [](const Controle& c) { return ouinon(c.verrou()); }},
    Propriete<Controle>{"coche", [](const Controle& c) { return std::to_string(c.coche()); }},
    Propriete<Controle>{"infobulle", [](const Controle& c) { return c.infobulle(); }},
    Propriete<Controle>{"pointeur", [](const Controle& c) { return nom(c.pointeur()); }},
    Propriete<Controle>{"police", [](const Controle& c) { return c.police(); }},
    Propriete<Controle>{"taille",
                        [](const Controle& c) { return common::textenombre(c.taille()); }},
    Propriete<Controle>{"barre", [](const Controle& c) { return ouinon(c.barre()); }},
    Propriete<Controle>{"gras", [](const Controle& c) { return ouinon(c.gras()); }},
    Propriete<Controle>{"italique", [](const Controle& c) { return ouinon(c.italique()); }},
    Propriete<Controle>{"gauche", [](const Controle& c) { return std::to_string(c.gauche()); }},
    Propriete<Controle>{"haut", [](const Controle& c) { return std::to_string(c.haut()); }},
    Propriete<Controle>{"largeur", [](const Controle& c) { return std::to_string(c.largeur()); }},
    Propriete<Controle>{"hauteur", [](const Controle& c) { return std::to_string(c.hauteur()); }},
    Propriete<Controle>{"selection",
                        [](const Controle& c) { return std::to_string(c.selection()); }},
    Propriete<Controle>{"choix", [](const Controle& c) { return joindre(c.choix()); }},
};

constexpr std::array duformulaire{
    Propriete<Formulaire>{"texte", [](const Formulaire& f) { return f.texte(); }},
    Propriete<Formulaire>{"fond", [](const Formulaire& f) { return f.fond().nom(); }},
    Propriete<Formulaire>{"visible", [](const Formulaire& f) { return ouinon(f.visible()); }},
    Propriete<Formulaire>{"pointeur", [](const Formulaire& f) { return nom(f.pointeur()); }},
    Propriete<Formulaire>{"largeur",
                          [](const Formulaire& f) { return std::to_string(f.largeur()); }},
    Propriete<Formulaire>{"hauteur",
                          [](const Formulaire& f) { return std::to_string(f.hauteur()); }},
    Propriete<Formulaire>{"focus", [](const Formulaire& f) { return nom(f.focus()); }},
    Propriete<Formulaire>{"defaut", [](const Formulaire& f) { return nom(f.defaut()); }},
};

constexpr std::array delaminuterie{
    Propriete<ui::Minuterie>{"actif", [](const ui::Minuterie& m) { return ouinon(m.actif()); }},
};

template <class Table, class Objet>
std::optional<std::string> chercher(const Table& table, const Objet& objet,
                                    std::string_view propriete) {
    for (const auto& entree : table) {
        if (entree.nom == propriete)
            return entree.valeur(objet);
    }
    return std::nullopt;
}

/// The line of an object.
template <class Table, class Objet>
std::string decrire(std::string nom, const Table& table, const Objet& objet) {
    for (const auto& entree : table) {
        const auto valeur = entree.valeur(objet);
        if (!valeur.empty())
            nom.append(" ").append(entree.nom).append("=").append(enligne(valeur));
    }
    return nom + "\n";
}

}  // namespace

std::string modele(const Formulaire& formulaire) {
    auto texte = decrire(formulaire.nom(), duformulaire, formulaire);
    for (const auto& controle : formulaire.controles())
        texte += decrire(nom(controle.get()), ducontrole, *controle);
    for (const auto& minuterie : formulaire.minuteries())
        texte += decrire(formulaire.nom() + "." + minuterie->nom(), delaminuterie, *minuterie);
    return texte;
}

std::optional<std::string> lire(const Controle& controle, std::string_view propriete) {
    return chercher(ducontrole, controle, propriete);
}

std::optional<std::string> lire(const Formulaire& formulaire, std::string_view propriete) {
    return chercher(duformulaire, formulaire, propriete);
}

std::optional<std::string> lire(const ui::Minuterie& minuterie, std::string_view propriete) {
    return chercher(delaminuterie, minuterie, propriete);
}

}  // namespace banc
