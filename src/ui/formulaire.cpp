#include "formulaire.h"

#include <algorithm>
#include <stdexcept>

namespace ui {

Formulaire::Formulaire(Plateforme& plateforme, std::string nom)
    : nom_(std::move(nom)), plateforme_(plateforme) {}

Formulaire::~Formulaire() {
    if (vue != nullptr)
        vue->adieu();
}

void Formulaire::montrer() {
    visible = true;
    modifie(ChampFormulaire::Montre);
}

Controle& Formulaire::ajouter(Genre genre, std::string_view nomducontrole, int index) {
    controles_.push_back(
        std::make_unique<Controle>(*this, genre, std::string(nomducontrole), index));
    auto& controle = *controles_.back();
    parnom_.emplace(std::pair(std::string(nomducontrole), index), &controle);
    return controle;
}

Controle& Formulaire::poser(Genre genre, std::string_view nomducontrole, int index,
                            std::string_view libelle, const Cadrage& cadre) {
    auto& controle = ajouter(genre, nomducontrole, index);
    controle.texte = std::string(libelle);
    controle.fondu = genre == Genre::Etiquette;
    controle.placer(cadre);
    return controle;
}

Minuterie& Formulaire::ajouterminuterie(std::string_view nomdelaminuterie) {
    auto& minuterie = *minuteries_.emplace_back(
        std::make_unique<Minuterie>(*this, std::string(nomdelaminuterie)));
    if (surminuterie)
        surminuterie(minuterie);
    return minuterie;
}

Menu& Formulaire::ajoutermenu(std::string_view nomdumenu) {
    return *menus_.emplace_back(std::make_unique<Menu>(Menu{std::string(nomdumenu), {}}));
}

Controle* Formulaire::trouver(std::string_view nomducontrole, int index) const {
    const auto place = parnom_.find(std::pair(std::string(nomducontrole), index));
    return place == parnom_.end() ? nullptr : place->second;
}

Controle& Formulaire::controle(std::string_view nomducontrole, int index) const {
    if (auto* trouve = trouver(nomducontrole, index))
        return *trouve;
    const auto rang = index < 0 ? std::string() : "(" + std::to_string(index) + ")";
    throw std::out_of_range("la fenêtre " + nom_ + " n'a pas de contrôle « " +
                            std::string(nomducontrole) + rang + " »");
}

bool Formulaire::accessible(const Controle& controle) {
    return controle.visible() && controle.actif();
}

void Formulaire::donnerfocus(Controle& controle) {
    if (focus_ == &controle)
        return;
    repere_ = &controle;
    prendrefocus(accessible(controle) ? &controle : nullptr);
}

void Formulaire::perdrefocus(Controle& controle) {
    if (focus_ != &controle)
        return;
    repere_ = &controle;
    prendrefocus(nullptr);
}

void Formulaire::prendrefocus(Controle* controle) {
    auto* ancien = std::exchange(focus_, controle);
    if (ancien != nullptr)
        survenir(*ancien, ancien->sortie);
    modifie(ChampFormulaire::Focus);
    if (controle != nullptr && focus_ == controle)
        survenir(*controle, controle->entree);
}

void Formulaire::ouvrirmenu(Menu& menu) {
    menuouvert_ = &menu;
    modifie(ChampFormulaire::Menu);
}

void Formulaire::focaliser(Controle& controle) {
    if (controle.focalisable && accessible(controle))
        donnerfocus(controle);
}

void Formulaire::cliquer(Controle& controle) {
    if (!accessible(controle))
        return;
    focaliser(controle);
    if (controle.genre() == Genre::Case)
        controle.coche = !controle.coche();
    if (controle.genre() == Genre::Boite && !controle.multiligne) {
        const auto bout = std::string::npos;
        controle.selectionner(bout, bout);
    }
    survenir(controle, controle.clic);
}

void Formulaire::doublecliquer(Controle& controle) {
    if (!accessible(controle))
        return;
    focaliser(controle);
    survenir(controle, controle.doubleclic);
}

void Formulaire::choisir(Controle& liste, std::string_view entree) {
    liste.texte = std::string(entree);
    const auto bout = std::string::npos;
    liste.selectionner(bout, bout);
    survenir(liste, liste.clic);
}

void Formulaire::choisirentree(Controle& entree) {
    if (menuouvert_ == nullptr || !accessible(entree))
        return;
    fermermenu();
    survenir(entree, entree.clic);
}

void Formulaire::fermermenu() {
    if (menuouvert_ == nullptr)
        return;
    menuouvert_ = nullptr;
    modifie(ChampFormulaire::Menu);
}

void Formulaire::fermer() {
    if (fermeture)
        survenir(*this, fermeture);
    else
        visible = false;
}

}  // namespace ui
