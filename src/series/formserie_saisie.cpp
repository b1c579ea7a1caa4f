// Entry of answers, as both series forms have it: the pool of letters, the keys that are taken or
// refused, the walk of the focus, the second line of entry, the colours of the current box.

#include <string>

#include "faute.h"
#include "fichier.h"
#include "formserie.h"
#include "saisie.h"

namespace series {

void Formserie::brancherboites() {
    tuiles.surclic = [this] {
        if (serie_.ouverte)
            peindrecourante(boite_);
    };
    for (int i = 0; i < gabarit_.regles.nbboites; ++i) {
        auto& boite = *solution[static_cast<std::size_t>(i)];
        boite.entree = [this, i] { entrerboite(i); };
        boite.sortie = [this, i] { quitterboite(i); };
        boite.toucheenfoncee = [this, i](ui::Touche& touche) { toucheboite(i, touche); };
        boite.caractere = [this, i](int& code) { frapper(i, code); };
        boite.toucherelachee = [this, i](int code) {
            const bool efface = code == ui::touches::retour || code == ui::touches::suppr;
            if (efface && serie_.ouverte)
                recalculerlettres(i);
        };
    }
    Command2.clic = [this] { suivante(); };
}

void Formserie::brancherrecherche() {
    recherche.caractere = [](int& code) { code = majuscule(code); };
    valider.clic = [this] { validerrecherche(); };
}

std::optional<int> Formserie::boitevoisine(int rang, int code) const {
    return gabarit_.parcours(rang, code, static_cast<int>(serie_.nbsolutions()));
}

void Formserie::suivante() {
    if (const auto boite = boitevoisine(boite_, ui::touches::entree))
        focaliserboite(*boite);
}

void Formserie::toucheboite(int rang, ui::Touche& touche) {
    if (touche.code == ui::touches::suppr)
        touche.avalee = !serie_.ouverte;
    const auto boite = boitevoisine(rang, touche.code);
    if (!boite)
        return;
    touche.avalee = true;
    focaliserboite(*boite);
}

void Formserie::validerrecherche() {
    auto& reponse = *solution[static_cast<std::size_t>(boite_)];
    if (serie_.ouverte)
        reponse.texte = recherche.texte();
    recherche.texte = "";
    donnerfocus(reponse);
    suivante();
    donnerfocus(recherche);
}

void Formserie::cliquerrecherche(int rang) {
    mettredefaut(valider);
    if (!serie_.ouverte)
        return;
    peindretirage(0, Etattirage::Repos);
    peindrereponse(rang, Etatreponse::Courante);
}

bool Formserie::assistee() const {
    return saisieassistee(serie_, voisins_.dialog2.saisieassistee != 0);
}

void Formserie::lirelettres(std::string_view texteduntirage, int rang) {
    if (lettres_.lirelettres(texteduntirage))
        return;
    throw common::Faute(common::rapportligne(
        "Saisie d'une réponse", serie_.fich, serie_.place(rang).ligne,
        "le tirage « " + std::string(texteduntirage) + " » a trop de lettres ; la limite est de " +
            std::to_string(Lettres::limite)));
}

void Formserie::libererlettres(int rang) {
    const auto& place = serie_.place(rang);
    if (place.rang < 0 && gabarit_.videenfaute) {
        throw common::Faute(common::rapportfichier(
            "Saisie d'une réponse", serie_.fich,
            "le tirage n° " + std::to_string(serie_.placede(rang) + 1) +
                " est vide et n'admet aucune lettre ; la série s'arrête au tirage n° " +
                std::to_string(serie_.nombre())));
    }
    lirelettres(place.tirage, rang);
}

void Formserie::recalculerlettres(int rang) {
    if (!assistee())
        return;
    recalculer(serie_, lettres_, rang, solution[static_cast<std::size_t>(rang)]->texte());
    montrertirage(serie_.placede(rang));
}

void Formserie::entrerboite(int rang) {
    boite_ = rang;
    derniereboite_ = rang;
    if (serie_.ouverte) {
        mettredefaut(Command2);
        if (serie_.critere.secondes)
            chronos.entrerboite();
        peindreautres(rang);
        peindrecourante(rang);
    }
    lirelettres(serie_.place(rang).affiche, rang);
    afficherlettres();
    if (serie_.ouverte)
        recalculerlettres(rang);
}

void Formserie::quitterboite(int rang) {
    chronos.quitterboite();
    rendretirage(serie_, lettres_, rang, assistee());
    montrertirage(serie_.placede(rang));
    if (!ajuger(serie_, rang) || !serie_.ouverte)
        return;
    if (serie_.critere.secondes)
        appliquer(jugerdepart(rang), "OK");
    peindreaurepos(rang);
}

void Formserie::peindrecourante(int rang) {
    peindretirage(serie_.placede(rang), Etattirage::Courant);
    peindrereponse(rang, Etatreponse::Courante);
}

void Formserie::peindreaurepos(int rang) {
    peindretirage(serie_.placede(rang), Etattirage::Repos);
    peindrereponse(rang, Etatreponse::Repos);
}

void Formserie::peindreautres(int rang) {
    for (int place = 0; place < gabarit_.regles.nbplaces; ++place)
        if (place != serie_.placede(rang))
            peindretirage(place, Etattirage::Repos);
    for (int i = 0; i < serie_.boitesutiles; ++i)
        if (i != rang)
            peindrereponse(i, Etatreponse::Repos);
}

void Formserie::frapper(int rang, int& code) {
    const auto& boite = *solution[static_cast<std::size_t>(rang)];
    const bool assiste = assistee();
    if (assiste && remplacelareponse(code, boite.remplacetout()))
        libererlettres(rang);
    const auto frappe = series::frapper(serie_, lettres_, rang, code, assiste);
    montrertirage(serie_.placede(rang));
    code = frappe.code;
    if (frappe.bip)
        plateforme().bip();
}

}  // namespace series
