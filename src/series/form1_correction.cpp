// Form1: the correction of a series, the wrong rows and the word menu.

#include <iterator>
#include <utility>

#include "faute.h"
#include "fichier.h"
#include "form1.h"
#include "texte.h"

namespace series {
namespace {

constexpr std::string_view action = "Correction de la série";

/// One word for each letter: with a joker the letters are so many answers. One word past the limit
/// tells that there are too many.
std::vector<std::string> variantes(std::string_view mot, std::string_view lettres, bool devant) {
    std::vector<std::string> mots;
    for (const auto& lettre : common::caracteres(common::debut(lettres, limitevariantes + 1)))
        mots.push_back(devant ? lettre + std::string(mot) : std::string(mot) + lettre);
    return mots;
}

}  // namespace

std::vector<std::string> motsdesnotes(std::string_view tirage, std::string_view solution,
                                      std::string_view typ, std::string_view titre) {
    if (typ != common::typrallonges)
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
    arreterserie();
    const int nombre = nombredelaserie();
    rendretirages();
    marquer(nombre);
    noter(nombre);
    if (criteresecondes() && nombre > 0)
        juger(nombre - 1, "OUI");
    fermersaisie();
    const int justes = jugerreponses(nombre);
    tenirjournal(nombre);
    if (criteresecondes()) {
        for (int i = 0; i < nombre; ++i)
            if (rapide_[static_cast<std::size_t>(i)] == 1)
                rangees_.eliminer(rangee(i));
    }
    afficherscore(justes, nombre);
    const auto fautes = static_cast<std::int64_t>(motsfaux_.size());
    fautesaffichees.texte = std::to_string(fautes);
    finserie(nbmotsinitial_, fautes);
}

void Form1::marquer(int nombre) {
    std::vector<std::string> mots;
    mots.reserve(static_cast<std::size_t>(nombre));
    for (int i = 0; i < nombre; ++i)
        mots.push_back(rangees_.suite(rangee(i)));
    marques.montrer(mots);
}

void Form1::noter(int nombre) {
    const auto& menu = voisins_.form3;
    const bool sansnotes = menu.nombase == benjamins ||
                           menu.nombase == std::string(benjamins).append(common::titrerevision);
    std::vector<std::string> mots;
    std::vector<int> boites;
    for (int i = 0; i < nombre && !sansnotes; ++i) {
        auto motsdelarangee =
            motsdesnotes(tiragedelarangee(i), rangees_.suite(rangee(i)), menu.typ, Label7.texte());
        if (motsdelarangee.size() > limitevariantes) {
            throw common::Faute(common::rapportligne(
                action, fich_, lignedufichier(i),
                "la solution d'un tirage à joker a trop de lettres ; la limite est de " +
                    std::to_string(limitevariantes)));
        }
        boites.insert(boites.end(), motsdelarangee.size(), i);
        std::move(motsdelarangee.begin(), motsdelarangee.end(), std::back_inserter(mots));
    }
    montrernotes(mots, boites);
}

/// Colours each answer, counts and eliminates; the number of right ones.
int Form1::jugerreponses(int nombre) {
    int justes = 0;
    std::vector<Ratee> ratees;
    int i = 0;
    for (; i < nombre; ++i) {
        auto& reponse = *solution[static_cast<std::size_t>(i)];
        const auto mot = rangees_.suite(rangee(i));
        retenirjugement(i, {mot}, {reponse.texte()});
        if (reponse.texte() == mot) {
            reponse.fond = ui::couleurs::juste;
            ++justes;
            if (!criteresecondes() && seuil() <= rangees_.reussir(rangee(i)))
                rangees_.eliminer(rangee(i));
            continue;
        }
        auto ligne = lignedelaliste(rangee(i));
        if (motsfaux_.size() == limitemotsfaux && !motsfaux_.contains(ligne))
            break;
        montrerfaute(i);
        motsfaux_.insert(ligne);
        ratees.push_back({i, std::move(ligne)});
    }
    if (erreursaurevision())
        garderenrevision(ratees);
    if (i < nombre) {
        throw common::Faute(
            common::rapportligne(action, fich_, lignedufichier(i),
                                 "trop de mots faux dans cette liste ; la limite est de " +
                                     std::to_string(limitemotsfaux)));
    }
    return justes;
}

/// Shows a wrong answer, or none, with the solution.
void Form1::montrerfaute(int rang) {
    auto& reponse = *solution[static_cast<std::size_t>(rang)];
    auto& rack = *tirage[static_cast<std::size_t>(rang)];
    reponse.fond = ui::couleurs::faux;
    if (reponse.texte().empty()) {
        reponse.texte = rack.texte();
    } else if (voisins_.form3.typ == common::typrallonges) {
        reponse.infobulle = "Vous aviez saisi: " + reponse.texte();
        reponse.texte = rack.texte();
    } else {
        reponse.infobulle = "Tirage: " + rack.texte();
        reponse.barre = true;
    }
    rack.texte = rangees_.suite(rangee(rang));
    rack.fond = ui::couleurs::juste;
}

/// A definition is offered for the box that shows the right word.
void Form1::ouvrirmenu(int rang, const ui::Controle& boite) {
    const bool juste = boite.fond() == ui::couleurs::juste;
    ouvrirmenumot(rang, boite, boite.texte(), juste && voisins_.form3.typ != common::typrallonges);
}

}  // namespace series
