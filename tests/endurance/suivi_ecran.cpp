// What holds of every screen, and from one screen to the next within a series.

#include <algorithm>
#include <array>

#include "suivi.h"
#include "textes.h"

namespace endurance {
namespace {

namespace c = ui::couleurs;

constexpr ui::Couleur blancs{0xFFC0C0};

/// Colours that the parts of a form may take.
struct Teintes {
    std::vector<ui::Couleur> tirage;
    std::vector<ui::Couleur> solution;
};

const Teintes& teintes(bool multi) {
    static const Teintes form1{{c::tirageaurepos, c::juste},
                               {c::solutionaurepos, c::courante, c::juste, c::faux}};
    static const Teintes celles{{c::tirageaurepos, c::juste, blancs, c::faux},
                                {c::solutionaurepos, c::courante, c::juste, c::tirageaurepos}};
    return multi ? celles : form1;
}

bool contient(const std::vector<ui::Couleur>& couleurs, const ui::Couleur& couleur) {
    return std::find(couleurs.begin(), couleurs.end(), couleur) != couleurs.end();
}

std::string numerote(const char* quoi, std::size_t rang) {
    return std::string(quoi) + " " + std::to_string(rang);
}

std::string lettresde(const std::string& texte) {
    std::string lettres;
    std::copy_if(texte.begin(), texte.end(), std::back_inserter(lettres),
                 [](char lettre) { return lettre >= 'A' && lettre <= 'Z'; });
    return lettres;
}

bool unelettre(char octet) {
    return (octet >= 'A' && octet <= 'Z') || (octet >= 'a' && octet <= 'z');
}

}  // namespace

void Suivi::verifierecran(const Ecran& ecran, Constats& constats) const {
    constats.exiger(!ecran.corriger || !ecran.restart, "corriger et restart tous deux actifs");
    constats.exiger(ecran.focusaccessible, "un contrôle caché ou grisé a le focus");
    verifieretat(ecran, constats);
    verifiercouleurs(ecran, constats);
    const auto utiles = static_cast<std::size_t>(boites());
    for (std::size_t i = 0; i < ecran.solution.size(); ++i) {
        const auto& boite = ecran.solution[i];
        constats.egal(boite.visible, i < utiles, numerote("réponse montrée", i));
        constats.egal(boite.verrou, ecran.pause && i < utiles, numerote("réponse verrouillée", i));
    }
}

void Suivi::verifieretat(const Ecran& ecran, Constats& constats) const {
    const bool ouverte = ecran.etat() == Etat::Ouverte;
    constats.egal(ecran.minuteries[0], ouverte && !ecran.pause, "chronomètre de la série");
    constats.exiger(!ecran.minuteries[2] || ouverte, "temps du mot hors d'une série");
    if (ecran.etat() != Etat::Finie)
        constats.egal(ecran.minuteries[1], !ecran.pause, "chronomètre total");
    constats.egal(ecran.recherche, !ecran.pause, "ligne de saisie active");
    constats.egal(ecran.scorevisible, !ouverte, "score montré");
    constats.exiger(!ecran.menu || !ouverte, "menu ouvert pendant une série");
    constats.exiger(!ecran.marques || !ouverte, "marque montrée pendant une série");
    constats.exiger(!ecran.notesvisibles || (!ouverte && !ecran.notes.empty()),
                    "notes montrées sans raison");
    constats.exiger(!ouverte || ecran.notes.empty(), "notes gardées au tirage");
    const auto tempsdelaserie = ouverte ? ui::Couleur::fenetre() : c::juste;
    constats.exiger(ecran.fondtemps == tempsdelaserie, "couleur du temps de la série");
    const bool finie = ecran.etat() == Etat::Finie;
    constats.exiger(ecran.fondtempstot == (finie ? c::juste : ui::Couleur::fenetre()),
                    "couleur du temps total");
    constats.exiger(ecran.fondquitter == (finie ? c::tuile : ui::Couleur::bouton()),
                    "couleur de quitter");
}

void Suivi::verifiercouleurs(const Ecran& ecran, Constats& constats) const {
    const auto& permises = teintes(multi_);
    for (std::size_t i = 0; i < ecran.tirage.size(); ++i)
        constats.exiger(contient(permises.tirage, ecran.tirage[i].fond),
                        numerote("couleur du tirage", i) + " : " + ecran.tirage[i].fond.nom());
    for (std::size_t i = 0; i < ecran.solution.size(); ++i)
        constats.exiger(
            contient(permises.solution, ecran.solution[i].fond),
            numerote("couleur de la réponse", i) + " : " + ecran.solution[i].fond.nom());
    const auto tuile = ecran.etat() == Etat::Finie ? c::faux : c::tuile;
    constats.exiger(std::all_of(ecran.tuiles.begin(), ecran.tuiles.end(),
                                [&](const auto& fond) { return fond == tuile; }),
                    "couleur des tuiles");
}

/// From one moment of a series to the next the racks stay, whole or with letters taken off, and one
/// answer changes at most.
void Suivi::verifierouverte(const Moment& moment, Constats& constats) const {
    const auto& apres = moment.apres;
    for (std::size_t i = 0; i < apres.tirage.size(); ++i) {
        const auto& texte = apres.tirage[i].texte;
        const auto* sienne = rangee(static_cast<int>(i));
        const auto rack = sienne == nullptr ? std::string() : sienne->tirage;
        constats.exiger(texte == rack || tirede(texte, net(rack)), numerote("tirage", i)
                                                                       .append(" : lu « ")
                                                                       .append(texte)
                                                                       .append(" », de « ")
                                                                       .append(rack)
                                                                       .append(" »"));
    }
    int changees = 0;
    for (std::size_t i = 0; i < apres.solution.size(); ++i) {
        const auto& texte = apres.solution[i].texte;
        changees += texte != moment.avant.solution[i].texte ? 1 : 0;
        constats.exiger(std::none_of(texte.begin(), texte.end(),
                                     [](char lettre) { return lettre >= 'a' && lettre <= 'z'; }),
                        numerote("minuscule dans la réponse", i));
    }
    // Under the seconds criterion `Multi` writes what is missing into the rack that is left.
    const bool ecrit = multi_ && moment.avant.secondes();
    constats.exiger(changees <= 1 || ecrit, std::to_string(changees) + " réponses changées");
    constats.egal(apres.motsleft, moment.avant.motsleft, "tirages restants pendant la série");
    constats.egal(apres.fautes, moment.avant.fautes, "fautes pendant la série");
    verifierlettres(moment, constats);
}

/// Under assisted entry an answer that was made of letters of the rack still is.
void Suivi::verifierlettres(const Moment& moment, Constats& constats) const {
    const int boite = moment.avant.boiteactive;
    const auto* sienne = boite < 0 ? nullptr : rangee(placede(boite));
    if (!moment.tape() || !assistee() || sienne == nullptr)
        return;
    const auto i = static_cast<std::size_t>(boite);
    const auto lettres = net(sienne->tirage);
    if (tirede(lettresde(moment.avant.solution[i].texte), lettres)) {
        constats.exiger(tirede(lettresde(moment.apres.solution[i].texte), lettres),
                        numerote("lettre hors du tirage, réponse", i));
    }
}

/// A corrected series stays as it is, but for what the player may still type in a box.
void Suivi::verifierfigee(const Moment& moment, Constats& constats) {
    const auto& avant = moment.avant;
    const auto& apres = moment.apres;
    const auto tape = moment.tape() ? banc::sansguillemets(moment.ordre.suite) : std::string();
    const bool ecrit = !std::all_of(tape.begin(), tape.end(), unelettre) || moment.touche("Retour");
    for (std::size_t i = 0; i < apres.tirage.size(); ++i) {
        constats.egal(apres.tirage[i].texte, avant.tirage[i].texte, numerote("tirage corrigé", i));
        constats.exiger(apres.tirage[i].fond == avant.tirage[i].fond,
                        numerote("couleur du tirage corrigé", i));
    }
    for (std::size_t i = 0; i < apres.solution.size(); ++i) {
        const bool sienne = ecrit && avant.boiteactive == static_cast<int>(i);
        constats.exiger(sienne || apres.solution[i].texte == avant.solution[i].texte,
                        numerote("réponse corrigée", i) + " changée");
        constats.exiger(apres.solution[i].fond == avant.solution[i].fond,
                        numerote("couleur de la réponse corrigée", i));
    }
    for (const auto& [lu, attendu, quoi] :
         {std::tuple{&apres.motsleft, &avant.motsleft, "tirages restants"},
          std::tuple{&apres.fautes, &avant.fautes, "fautes"},
          std::tuple{&apres.score, &avant.score, "score"},
          std::tuple{&apres.nbseries, &avant.nbseries, "séries"}})
        constats.egal(*lu, *attendu, std::string(quoi) + " après la correction");
}

}  // namespace endurance
