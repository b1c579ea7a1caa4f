// Form1: focus and keys of the answer boxes, and the second line of entry.

#include "form1.h"
#include "texte.h"

namespace series {

void Form1::branchersaisie() {
    for (int i = 0; i < nbboitesform1; ++i) {
        auto& reponse = *solution[static_cast<std::size_t>(i)];
        auto& rack = *tirage[static_cast<std::size_t>(i)];
        reponse.sortie = [this, i] { quitterboite(i); };
        reponse.toucheenfoncee = [this, i](ui::Touche& touche) { toucheboite(i, touche); };
        reponse.doubleclic = [this, i, &reponse] { ouvrirmenumot(i, reponse); };
        rack.doubleclic = [this, i, &rack] { ouvrirmenumot(i, rack); };
    }
    Command2.clic = [this] { suivante(); };
    valider.clic = [this] { validerrecherche(); };
    recherche.change = [this] {
        const auto limite = common::longueur(tirage[static_cast<std::size_t>(boite_)]->texte());
        if (voisins_.form3.typ == "rallong" || common::longueur(recherche.texte()) <= limite)
            return;
        if (voisins_.options.check1())
            plateforme().bip();
        recherche.texte = common::sansfin(recherche.texte(), 1);
    };
    recherche.entree = [this] {
        mettredefaut(valider);
        if (!serieouverte())
            return;
        peindreautres(boite_);
        peindrecourante(boite_);
    };
    recherche.clic = [this] {
        mettredefaut(valider);
        if (!serieouverte())
            return;
        tirage[0]->fond = ui::couleurs::tirageaurepos;
        solution[0]->fond = ui::couleurs::courante;
    };
}

void Form1::suivante() {
    focaliserboite((boite_ + 1) % nbboitesform1);
}

void Form1::toucheboite(int rang, ui::Touche& touche) {
    switch (touche.code) {
        case ui::touches::bas:
            suivante();
            touche.avalee = true;
            break;
        case ui::touches::haut:
            focaliserboite((rang + nbboitesform1 - 1) % nbboitesform1);
            touche.avalee = true;
            break;
        case ui::touches::suppr:
            touche.avalee = !serieouverte();
            break;
        default:
            break;
    }
}

void Form1::quitterboite(int rang) {
    chronos.quitterboite();
    auto& rack = *tirage[static_cast<std::size_t>(rang)];
    if (saisieassistee()) {
        if (rangee(rang) >= 0)
            rack.texte = tiragedelarangee(rang);
        else if (!lettres_.tiragenet().empty())
            rack.texte = lettres_.tiragenet();
    }
    if (rangee(rang) < 0 || !serieouverte())
        return;
    if (criteresecondes())
        juger(rang, "OK");
    peindreaurepos(rang);
}

/// The seconds criterion: a box passes if it is right and was left in time; once failed, it stays
/// failed in this series.
void Form1::juger(int rang, std::string_view motsijuste) {
    const auto place = static_cast<std::size_t>(rang);
    const bool bon =
        seuil() > chronos.tempsmot() && solution[place]->texte() == rangees_.solution(rangee(rang));
    if (bon && rapide_[place] == 0)
        return;
    rapide_[place] = bon ? 1 : 0;
    voyant.texte = bon ? std::string(motsijuste) : "NON";
}

void Form1::validerrecherche() {
    auto& reponse = *solution[static_cast<std::size_t>(boite_)];
    if (serieouverte())
        reponse.texte = recherche.texte();
    recherche.texte = "";
    donnerfocus(reponse);
    suivante();
    donnerfocus(recherche);
}

}  // namespace series
