// The panels: how a row of the catalogue becomes what the menu shows.

#include <algorithm>

#include "aides.h"
#include "compteur.h"
#include "faute.h"
#include "form3.h"
#include "listes.h"

namespace menu {
namespace {

/// What assistive technologies are told of a button, beside its caption: its row.
std::string de(std::string_view libelle) {
    return libelle.empty() ? std::string() : " : " + std::string(libelle);
}

}  // namespace

void Form3::effacerpanneau() {
    ouvert_ = false;
    annoncer({});
    for (std::size_t r = 0; r < nblignes; ++r) {
        auto& ligne = lignes_[r];
        ligne.nom.texte = "";
        ligne.nombre.texte = "";
        ecrireresultat(r, {});
        placernombre(r, false);
        for (auto* bouton : {&ligne.echantillon, &ligne.tout, &ligne.revision})
            bouton->visible = false;
        placertout(r, false);
        for (auto* partie : ligne.parties)
            partie->visible = false;
    }
    total_.texte = "";
    for (std::size_t i = 0; i < acces_.size(); ++i) {
        if (!lesacces()[i].permanent())
            acces_[i]->visible = false;
    }
    lignes_[rangeepersonnelle].nom.visible = true;
    for (const auto* groupe : {&entetes_, &verbes_, &cheres_, &images_})
        std::for_each(groupe->begin(), groupe->end(), [](auto* c) { c->visible = false; });
    perso_.visible = false;
    persook_.visible = false;
}

/// A first-level button that only shows a group leaves the last panel as it was; the one of a group
/// within a group leaves none.
void Form3::ouvrir(const Acces& acces, ui::Controle& bouton) {
    if (acces.panneau != nullptr || !acces.permanent()) {
        panneau_ = acces.panneau;
        listes_.clear();
    }
    if (acces.panneau != nullptr)
        listes_ = listesdupanneau(*acces.panneau, perso_.texte());
    effacerpanneau();
    const auto groupe = acces.montre;
    for (std::size_t i = 0; i < acces_.size(); ++i) {
        if (danslegroupe(lesacces()[i], groupe))
            acces_[i]->visible = true;
    }
    donnerfocus(bouton);
    if (acces.panneau != nullptr)
        remplir(*acces.panneau);
}

void Form3::remplir(const Panneau& panneau) {
    for (auto* entete : entetes_)
        entete->visible = true;
    for (std::size_t r = 0; r < listes_.size(); ++r)
        remplirrangee(r, r < panneau.rangees.size() ? panneau.rangees[r].libelle : "");
    std::size_t somme = 0;
    for (std::size_t r = 0; r < panneau.rangees.size(); ++r)
        somme += compterrangee(r);
    for (std::size_t r = 0; r < listes_.size(); ++r) {
        placernombre(r, panneau.nombredecale);
        if (listes_[r].parties > 0)
            montrerparties(r);
    }
    montrerinsignes(panneau);
    perso_.visible = panneau.personnel;
    persook_.visible = panneau.personnel;
    for (auto* image : images_)
        image->visible = panneau.images;
    if (panneau.total)
        total_.texte = "Tot=" + std::to_string(somme);
    if (!panneau.aide.empty())
        aide(panneau.aide);
    ouvert_ = true;
    maj();
}

void Form3::remplirrangee(std::size_t rangee, std::string_view libelle) {
    auto& ligne = lignes_[rangee];
    ligne.nom.texte = std::string(libelle);
    for (auto* bouton : {&ligne.echantillon, &ligne.tout, &ligne.revision}) {
        bouton->accessible = bouton->texte() + de(libelle);
        bouton->visible = true;
    }
}

std::size_t Form3::compterrangee(std::size_t rangee) {
    const auto chemin = common::cheminliste(listes_[rangee].fichier);
    Compteur compteur;
    if (const auto erreur = compter(plateforme().disque(), chemin, compteur)) {
        throw common::Faute(common::rapportfichier("Comptage des mots d'une liste", chemin,
                                                   common::raison(erreur)));
    }
    lignes_[rangee].nombre.texte = std::to_string(compteur.lignes());
    return compteur.lignes();
}

void Form3::montrerparties(std::size_t rangee) {
    placertout(rangee, true);
    const auto index = boutondepartie(*panneau_, rangee);
    for (std::size_t i = 0; i < listes_[rangee].parties; ++i) {
        auto& partie = *lignes_[index].parties[i];
        partie.accessible = "Partie " + partie.texte() + de(lignes_[rangee].nom.texte());
        partie.visible = true;
    }
    placerparties(index, rangee);
}

void Form3::montrerinsignes(const Panneau& panneau) {
    std::size_t verbes = 0;
    std::size_t cheres = 0;
    for (std::size_t r = 0; r < panneau.rangees.size(); ++r) {
        const auto genre = panneau.rangees[r].insigne;
        if (genre == Insigne::aucun)
            continue;
        auto& insigne = genre == Insigne::verbe ? *verbes_.at(verbes++) : *cheres_.at(cheres++);
        placerinsigne(insigne, r);
        insigne.visible = true;
    }
}

/// "Valid" means that the file can be read to its end. The semicolons of its last line tell whether
/// its racks have several solutions.
void Form3::verifierpersonnel() {
    const auto nom = perso_.texte();
    Compteur compteur;
    if (const auto erreur = compter(plateforme().disque(), common::cheminliste(nom), compteur)) {
        aide(common::raison(erreur));
        return;
    }
    auto& ligne = lignes_[rangeepersonnelle];
    ligne.nombre.texte = std::to_string(compteur.lignes());
    listes_.at(rangeepersonnelle).fichier = nom;
    ligne.nom.visible = false;
    ligne.nom.texte = nom;
    aide(personnelvalide);
    voisins_.form3.persomulti = compteur.pointsvirgules() > 1;
    ecrireresultat(rangeepersonnelle, {});
    maj();
}

}  // namespace menu
