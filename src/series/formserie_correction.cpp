// The correction, as both series forms have it: what closes a series, what was judged on screen,
// notes, missed rows, the word menu. What is right is told by the rules of each form's series.

#include <algorithm>

#include "faute.h"
#include "fichier.h"
#include "formserie.h"
#include "nombre.h"
#include "reference.h"
#include "revision.h"

namespace series {
namespace {

void annoter(ui::Controle& boite, const std::string& note) {
    boite.infobulle = note;
    boite.pointeur = ui::Pointeur::Texte;
}

}  // namespace

void Formserie::arreterserie() {
    chronos.arreterserie();
    chronos.quitterboite();
    chronos.peindreserie(true);
    restart.actif = true;
    rendretirages(serie_, derniereboite_);
    montrertirages();
}

std::vector<std::string> Formserie::reponses() const {
    std::vector<std::string> textes;
    textes.reserve(solution.size());
    for (const auto* boite : solution)
        textes.push_back(boite->texte());
    return textes;
}

void Formserie::fermersaisie() {
    corriger.actif = serie_.ouverte;
    for (int place = 0; place < gabarit_.regles.nbplaces; ++place)
        peindretirage(place, Etattirage::Repos);
    for (auto* boite : solution)
        boite->pressepapiers = false;
}

void Formserie::appliquer(const Correction& correction, std::string_view atemps) {
    for (const auto& corrigee : correction.boites) {
        auto& boite = *solution[static_cast<std::size_t>(corrigee.boite)];
        peindrereponse(corrigee.boite, corrigee.etat);
        boite.texte = corrigee.texte;
        if (corrigee.infobulle)
            boite.infobulle = *corrigee.infobulle;
        if (corrigee.barree)
            boite.barre = true;
    }
    for (const auto& corrige : correction.tirages) {
        const auto i = static_cast<std::size_t>(corrige.place);
        if (corrige.etat)
            peindretirage(corrige.place, *corrige.etat);
        if (corrige.infobulle)
            tirage[i]->infobulle = *corrige.infobulle;
        if (corrige.texte)
            serie_.places[i].affiche = *corrige.texte;
        montrertirage(corrige.place);
    }
    if (correction.atemps)
        voyant.texte = std::string(*correction.atemps ? atemps : gabarit_.troptard);
    if (erreursaurevision())
        garderenrevision(correction.ratees);
    if (const auto& pleine = correction.pleine) {
        throw common::Faute(common::rapportligne(
            actioncorrection, serie_.fich, serie_.place(pleine->place).ligne,
            "trop de " + std::string(pleine->quoi) + " dans cette liste ; la limite est de " +
                std::to_string(pleine->limite)));
    }
}

bool Formserie::erreursaurevision() const {
    return voisins_.form3.toue != common::modes::revision && !voisins_.menu.app();
}

void Formserie::garderenrevision(std::span<const Ratee> ratees) {
    if (ratees.empty())
        return;
    const auto chemin = getnomfichierderev();
    std::vector<std::string> lignesratees;
    for (const auto& ratee : ratees)
        lignesratees.push_back(ratee.ligne);
    const auto presentes = ajoutsdejapresents(plateforme().disque(), chemin, lignesratees);
    ajouterenrevision(plateforme().disque(), chemin, nouvellesrevisions(serie_, ratees, presentes));
}

void Formserie::afficherscore(const Correction& correction) {
    score.texte = std::to_string(correction.justes) + "/" + std::to_string(correction.nombre);
    score.visible = true;
    nbseriesfaites_ =
        common::entier16(std::int64_t{nbseriesfaites_} + 1, "Nombre de séries réalisées");
    nbseries.texte = std::to_string(nbseriesfaites_) + " série(s) déjà réalisée(s).";
    tps.texte = chronos.utilise();
    tps.visible = true;
}

void Formserie::montrernotes(std::span<const std::string> mots, std::span<const int> boites) {
    auto notes = cherchernotes(plateforme().disque(), common::fichierinfosouris,
                               gabarit_.limitenotes, gabarit_.lignesdemots, Recherche(mots));
    if (notes.empty())
        return;
    const auto boite = [&](const Note& note) { return boites[note.mot]; };
    std::stable_sort(notes.begin(), notes.end(),
                     [&](const Note& a, const Note& b) { return boite(a) < boite(b); });
    std::string textedesnotes;
    for (const auto& note : notes) {
        const int rang = boite(note);
        annoter(*solution[static_cast<std::size_t>(rang)], note.texte);
        if (gabarit_.notessurletirage)
            annoter(*tirage[static_cast<std::size_t>(serie_.placede(rang))], note.texte);
        textedesnotes += mots[note.mot] + " " + note.texte + "\n";
    }
    InfoSourisText.texte = textedesnotes;
    InfoSourisText.visible = true;
    InfoSourisText.premierplan();
}

void Formserie::ouvrirmenumot(int place, const ui::Controle& boite, std::string_view mot,
                              bool definition) {
    derniereboite_ = place;
    const auto i = static_cast<std::size_t>(place);
    const auto& objet = serie_.places[i];
    if (serie_.ouverte || boite.texte().empty() || objet.rang < 0)
        return;
    menumot.surrevision = [this, i](bool dedans) { serie_.places[i].enrevision = dedans; };
    menumot.ouvrir({std::string(mot), objet.texte, definition, objet.enrevision});
}

}  // namespace series
