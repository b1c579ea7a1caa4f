#include "cible.h"

#include <algorithm>
#include <charconv>

namespace banc {
namespace {

struct Designation {
    std::string_view nom;
    int index = -1;
};

/// "solution(3)" or "corriger".
Designation designer(std::string_view texte) {
    const auto ouvrante = texte.find('(');
    if (ouvrante == std::string_view::npos)
        return {texte};
    Designation designation{texte.substr(0, ouvrante)};
    const auto* fin = texte.data() + texte.size() - 1;
    const auto lu = std::from_chars(texte.data() + ouvrante + 1, fin, designation.index);
    if (texte.back() != ')' || lu.ec != std::errc{} || lu.ptr != fin)
        throw OrdreFaux("nom mal formé : " + std::string(texte));
    return designation;
}

ui::Formulaire& formulaire(const Seance& seance, std::string_view nom) {
    auto* trouve = seance.plateforme.bureau.trouver(nom);
    if (trouve == nullptr)
        throw Refus("formulaire absent : " + std::string(nom));
    return *trouve;
}

}  // namespace

Cible trouver(const Seance& seance, std::string_view nom) {
    const auto point = nom.find('.');
    Cible cible{&formulaire(seance, nom.substr(0, point))};
    if (point == std::string_view::npos)
        return cible;
    const auto designation = designer(nom.substr(point + 1));
    cible.controle = cible.formulaire->trouver(designation.nom, designation.index);
    for (const auto& minuterie : cible.formulaire->minuteries()) {
        if (designation.index < 0 && minuterie->nom() == designation.nom)
            cible.minuterie = minuterie.get();
    }
    if (cible.controle == nullptr && cible.minuterie == nullptr)
        throw Refus("contrôle inconnu : " + std::string(nom));
    return cible;
}

ui::Controle& controle(const Seance& seance, std::string_view nom) {
    const auto cible = trouver(seance, nom);
    if (cible.controle == nullptr)
        throw OrdreFaux("ce n'est pas un contrôle : " + std::string(nom));
    return *cible.controle;
}

ui::Formulaire& fenetre(const Seance& seance, std::string_view nom) {
    auto& form = formulaire(seance, nom);
    if (!form.visible())
        throw Refus("fenêtre cachée : " + std::string(nom));
    return form;
}

ui::Controle& atteindre(const Seance& seance, std::string_view nom) {
    auto& vise = controle(seance, nom);
    static_cast<void>(fenetre(seance, vise.formulaire().nom()));
    if (vise.genre() == ui::Genre::Entree)
        throw Refus("entrée de menu (ordre menu) : " + std::string(nom));
    if (!vise.visible())
        throw Refus("contrôle caché : " + std::string(nom));
    if (!vise.actif())
        throw Refus("contrôle grisé : " + std::string(nom));
    return vise;
}

ui::Formulaire& formulairedumenu(const Seance& seance) {
    for (auto* form : seance.plateforme.bureau.formulaires()) {
        if (form->menuouvert() != nullptr)
            return *form;
    }
    throw Refus("aucun menu n'est ouvert");
}

bool proposee(const ui::Controle& entree) {
    const auto* menu = entree.formulaire().menuouvert();
    return menu != nullptr &&
           std::find(menu->entrees.begin(), menu->entrees.end(), &entree) != menu->entrees.end();
}

ui::Formulaire& devant(const Seance& seance) {
    auto* form = seance.plateforme.bureau.actif();
    if (form == nullptr)
        throw Refus("aucune fenêtre n'est montrée");
    return *form;
}

}  // namespace banc
