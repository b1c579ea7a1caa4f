// Form1: the correction of a series, the wrong rows and the word menu.

#include <algorithm>
#include <iterator>

#include "faute.h"
#include "fichier.h"
#include "form1.h"
#include "revision.h"
#include "texte.h"

namespace series {
namespace {

constexpr std::string_view action = "Correction de la série";

/// One word for each letter: with a joker the letters are so many answers.
std::vector<std::string> variantes(std::string_view mot, std::string_view lettres, bool devant) {
    std::vector<std::string> mots;
    for (const auto& lettre : common::caracteres(lettres))
        mots.push_back(devant ? lettre + std::string(mot) : std::string(mot) + lettre);
    return mots;
}

}  // namespace

std::vector<std::string> motsdesnotes(std::string_view tirage, std::string_view solution,
                                      std::string_view typ, std::string_view titre) {
    if (typ != "rallong")
        return {std::string(solution)};
    if (titre.starts_with("Rallonges ava")) {
        if (tirage.starts_with('?'))
            return variantes(tirage.substr(1), solution, true);
        return {std::string(solution) + std::string(tirage)};
    }
    if (titre.starts_with("Rallonges arr")) {
        if (tirage.ends_with('?'))
            return variantes(tirage.substr(0, tirage.size() - 1), solution, false);
        return {std::string(tirage) + std::string(solution)};
    }
    return {};
}

void Form1::corrigerserie() {
    chronos.arreterserie();
    chronos.quitterboite();
    chronos.temps.fond = ui::couleurs::juste;
    restart.actif = true;
    const int nombre = nombredelaserie();
    if (rangee(derniereboite_) >= 0)
        tirage[static_cast<std::size_t>(derniereboite_)]->texte = tiragedelarangee(derniereboite_);
    marquer(nombre);
    noter(nombre);
    if (criteresecondes() && nombre > 0)
        juger(nombre - 1, "OUI");
    corriger.actif = false;
    for (auto* boite : tirage)
        boite->fond = ui::couleurs::tirageaurepos;
    for (auto* boite : solution)
        boite->pressepapiers = false;
    const int justes = jugerreponses(nombre);
    if (criteresecondes()) {
        for (int i = 0; i < nombre; ++i)
            if (rapide_[static_cast<std::size_t>(i)] == 1)
                rangees_.eliminer(rangee(i));
    }
    afficherscore(justes, nombre);
    fautesaffichees.texte = std::to_string(motsfaux_.size());
    finserie();
}

void Form1::marquer(int nombre) {
    std::vector<std::string> mots;
    mots.reserve(static_cast<std::size_t>(nombre));
    for (int i = 0; i < nombre; ++i)
        mots.push_back(rangees_.solution(rangee(i)));
    marques.montrer(mots);
}

void Form1::noter(int nombre) {
    const auto& menu = voisins_.form3;
    const bool sansnotes =
        menu.nombase == "Benjamins uniques" || menu.nombase == "Benjamins uniques (révisions)";
    std::vector<std::string> mots;
    std::vector<int> boites;
    for (int i = 0; i < nombre && !sansnotes; ++i) {
        auto motsdelarangee = motsdesnotes(tiragedelarangee(i), rangees_.solution(rangee(i)),
                                           menu.typ, Label7.texte());
        if (motsdelarangee.size() > limitevariantes) {
            throw common::Faute(common::rapportligne(
                action, fich_, lignedelarangee(i),
                "la solution d'un tirage à joker a trop de lettres ; la limite est de " +
                    std::to_string(limitevariantes)));
        }
        boites.insert(boites.end(), motsdelarangee.size(), i);
        std::move(motsdelarangee.begin(), motsdelarangee.end(), std::back_inserter(mots));
    }
    montrernotes(cherchernotes(plateforme().disque(), fichierdesnotes, gabarit_.limitenotes,
                               gabarit_.lignesdemots, Recherche(mots)),
                 boites, mots);
}

/// Colours each answer, counts and eliminates; the number of right ones.
int Form1::jugerreponses(int nombre) {
    int justes = 0;
    std::vector<std::string> fautes;
    std::vector<int> boites;
    const bool succes = !criteresecondes();
    for (int i = 0; i < nombre; ++i) {
        auto& reponse = *solution[static_cast<std::size_t>(i)];
        if (reponse.texte() == rangees_.solution(rangee(i))) {
            reponse.fond = ui::couleurs::juste;
            ++justes;
            if (succes && seuil() <= rangees_.reussir(rangee(i)))
                rangees_.eliminer(rangee(i));
            continue;
        }
        compterfaute(i, fautes);
        boites.push_back(i);
    }
    if (erreursaurevision())
        garderfautes(fautes, boites);
    return justes;
}

/// Shows a wrong answer with its solution, and counts its row once in the list.
void Form1::compterfaute(int rang, std::vector<std::string>& fautes) {
    auto& reponse = *solution[static_cast<std::size_t>(rang)];
    auto& rack = *tirage[static_cast<std::size_t>(rang)];
    reponse.fond = ui::couleurs::faux;
    if (reponse.texte().empty()) {
        reponse.texte = rack.texte();
    } else if (voisins_.form3.typ == "rallong") {
        reponse.infobulle = "Vous aviez saisi: " + reponse.texte();
        reponse.texte = rack.texte();
    } else {
        reponse.infobulle = "Tirage: " + rack.texte();
        reponse.barre = true;
    }
    const auto mot = rangees_.solution(rangee(rang));
    fautes.push_back(rack.texte() + ";" + mot);
    if (!motsfaux_.contains(fautes.back()) && motsfaux_.size() == limitemotsfaux) {
        throw common::Faute(
            common::rapportligne(action, fich_, lignedelarangee(rang),
                                 "trop de mots faux dans cette liste ; la limite est de " +
                                     std::to_string(limitemotsfaux)));
    }
    motsfaux_.insert(fautes.back());
    rack.texte = mot;
    rack.fond = ui::couleurs::juste;
}

/// Appends the wrong rows that the revision file lacks, `fautes[i]` being the row of `boites[i]`.
void Form1::garderfautes(const std::vector<std::string>& fautes, const std::vector<int>& boites) {
    if (fautes.empty())
        return;
    const auto chemin = getnomfichierderev();
    const auto presentes = presentsenrevision(plateforme().disque(), chemin, fautes);
    std::vector<std::string> nouvelles;
    for (std::size_t i = 0; i < fautes.size(); ++i) {
        const bool deja = presentes[i] || std::find(nouvelles.begin(), nouvelles.end(),
                                                    fautes[i]) != nouvelles.end();
        if (deja)
            continue;
        nouvelles.push_back(fautes[i]);
        enrevision_[static_cast<std::size_t>(boites[i])] = true;
    }
    ajouterenrevision(plateforme().disque(), chemin, nouvelles);
}

void Form1::ouvrirmenumot(int rang, const ui::Controle& boite) {
    derniereboite_ = rang;
    if (serieouverte() || boite.texte().empty() || rangee(rang) < 0)
        return;
    const auto place = static_cast<std::size_t>(rang);
    menumot.surrevision = [this, place](bool dedans) { enrevision_[place] = dedans; };
    const bool definition = boite.fond() == ui::couleurs::juste && voisins_.form3.typ != "rallong";
    menumot.ouvrir({boite.texte(), ligneboite_[place], definition, enrevision_[place]});
}

}  // namespace series
