#include "controle.h"

#include <algorithm>
#include <exception>
#include <utility>

#include "formulaire.h"
#include "texte.h"

namespace ui {

std::string Couleur::nom() const {
    if (*this == fenetre())
        return "systeme:fenetre";
    if (*this == bouton())
        return "systeme:bouton";
    constexpr std::string_view chiffres = "0123456789ABCDEF";
    std::string texte = "#";
    for (int decalage = 20; decalage >= 0; decalage -= 4)
        texte += chiffres[(rvb() >> static_cast<unsigned>(decalage)) & 0xFU];
    return texte;
}

Lieu::Lieu(const Controle& controle)
    : formulaire_(controle.formulaire()),
      controle_(&controle),
      erreurs_(std::uncaught_exceptions()) {}

Lieu::Lieu(const Minuterie& minuterie)
    : formulaire_(minuterie.formulaire()),
      minuterie_(&minuterie),
      erreurs_(std::uncaught_exceptions()) {}

Lieu::Lieu(const Formulaire& formulaire)
    : formulaire_(formulaire), erreurs_(std::uncaught_exceptions()) {}

/// The name is put together only when an error passes by.
Lieu::~Lieu() {
    if (std::uncaught_exceptions() <= erreurs_)
        return;
    try {
        auto nom = formulaire_.nom();
        if (controle_ != nullptr)
            nom += "." + controle_->nomcomplet();
        if (minuterie_ != nullptr)
            nom += "." + minuterie_->nom();
        formulaire_.plateforme().retenirlieu(std::move(nom));
    } catch (const std::exception&) {
        return;  // out of memory: the report goes without the name
    }
}

Controle::Controle(Formulaire& formulaire, Genre genre, std::string nom, int index)
    : focalisable(genre == Genre::Boite || genre == Genre::Bouton || genre == Genre::Case ||
                  genre == Genre::Liste),
      formulaire_(formulaire),
      nom_(std::move(nom)),
      index_(index),
      plan_(formulaire.plan()),
      genre_(genre) {
    if (genre == Genre::Boite || genre == Genre::Liste)
        fond = Couleur::fenetre();
}

std::string Controle::nomcomplet() const {
    return index_ < 0 ? nom_ : nom_ + "(" + std::to_string(index_) + ")";
}

void Controle::placer(const Cadrage& cadre) {
    gauche = cadre.gauche;
    haut = cadre.haut;
    largeur = cadre.largeur;
    hauteur = cadre.hauteur;
}

void Controle::premierplan() {
    plan_ = formulaire_.nouveauplan();
    notifier(Champ::PremierPlan);
}

void Controle::modifie(Champ champ) {
    if (champ == Champ::Texte) {
        textechange();
        return;
    }
    notifier(champ);
    if (champ == Champ::Fond || champ == Champ::Couleur)
        survenir(*this, repeint);
    const bool parti =
        (champ == Champ::Visible && !visible()) || (champ == Champ::Actif && !actif());
    if (parti)
        formulaire_.perdrefocus(*this);
}

/// The caret follows a text that the program shortens to its end; otherwise it stays.
void Controle::textechange() {
    const auto ancienne = longueur_;
    longueur_ = common::longueur(texte());
    if (!std::exchange(saisie_, false)) {
        curseur_ = longueur_ < ancienne ? longueur_ : std::min(curseur_, longueur_);
        ancre_ = curseur_;
    }
    notifier(Champ::Texte);
    survenir(*this, change);
}

std::size_t Controle::selection() const {
    return std::max(curseur_, ancre_) - std::min(curseur_, ancre_);
}

std::string Controle::texteselectionne() const {
    return common::milieu(texte(), std::min(curseur_, ancre_) + 1, selection());
}

void Controle::selectionner(std::size_t ancre, std::size_t curseur) {
    const auto nouvelleancre = std::min(ancre, longueur_);
    const auto nouveaucurseur = std::min(curseur, longueur_);
    if (nouvelleancre == ancre_ && nouveaucurseur == curseur_)
        return;
    ancre_ = nouvelleancre;
    curseur_ = nouveaucurseur;
    notifier(Champ::Selection);
}

void Controle::toutselectionner() {
    selectionner(0, longueur_);
}

void Controle::inserer(std::string_view caracteres) {
    const auto place = std::min(curseur_, ancre_);
    ecrire(common::debut(texte(), place) + std::string(caracteres) +
               common::milieu(texte(), place + selection() + 1),
           place + common::longueur(caracteres));
}

void Controle::deposer() {
    if (!amas_.empty())
        inserer(std::exchange(amas_, {}));
}

void Controle::effacer(bool avant) {
    if (selection() == 0) {
        if (avant ? curseur_ == 0 : curseur_ == longueur_)
            return;
        const auto place = avant ? curseur_ - 1 : curseur_;
        ecrire(common::debut(texte(), place) + common::milieu(texte(), place + 2), place);
        return;
    }
    inserer({});
}

void Controle::ecrire(std::string nouveau, std::size_t curseur) {
    curseur_ = curseur;
    ancre_ = curseur;
    if (nouveau == texte()) {
        notifier(Champ::Selection);
        return;
    }
    saisie_ = true;  // the caret is set already
    texte = std::move(nouveau);
}

}  // namespace ui
