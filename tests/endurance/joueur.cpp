// The folder that a session finds, and the choice of what to do next.

#include "joueur.h"

#include <algorithm>
#include <array>
#include <numeric>

#include "catalogue.h"
#include "liste.h"

namespace endurance {
namespace {

/// The lines of a part of a list.
std::vector<std::string> tranche(const std::vector<std::string>& lignes, std::size_t parties,
                                 std::size_t rang) {
    const auto borne = [&](std::size_t i) {
        return lignes.begin() + static_cast<std::ptrdiff_t>(lignes.size() * i / parties);
    };
    return {borne(rang), borne(rang + 1)};
}

}  // namespace

void Joueur::faire(const std::vector<Coup>& coups) {
    const auto total = std::accumulate(coups.begin(), coups.end(), std::size_t{0},
                                       [](std::size_t s, const Coup& c) { return s + c.poids; });
    auto sort = alea_.sous(total);
    for (const auto& coup : coups) {
        if (sort < coup.poids) {
            (this->*coup.faire)();
            return;
        }
        sort -= coup.poids;
    }
}

void Joueur::preparer() {
    constexpr std::array utilisateurs{"Essai", "Élodie Ça", "Zoé, la 2e"};
    const bool parlemenu = alea_.surcent(75);
    if (parlemenu)
        util_ = alea_.choisir(utilisateurs);
    donner("graine " + std::to_string(alea_.sous(100000)));
    donner("horloge 20" + std::to_string(alea_.entre(10, 60)) +
           "-12-31 23:" + std::to_string(alea_.entre(10, 59)) + ":00");
    ecrirelistes();
    ecrirereferences();
    ecrireprofils();
    ecrirerevisions();
    if (parlemenu)
        connecter();
    else
        lancerdirectement();
}

void Joueur::ecrirelistes() {
    listes_ = fairelistes(alea_);
    for (const auto& liste : listes_) {
        donner("fichier listes\\" + liste.fichier, liste.lignes);
        for (std::size_t i = 0; i < liste.parties; ++i)
            donner("fichier listes\\" + menu::fichierdepartie(liste.fichier, i),
                   tranche(liste.lignes, liste.parties, i));
    }
    donner("fichier listes\\perso.txt",
           lignesdeliste(alea_, Sorte::Simple, false, alea_.entre(1, 40)));
    donner("fichier listes\\ma liste été.txt",
           lignesdeliste(alea_, Sorte::Balisee, true, alea_.entre(1, 25)));
}

void Joueur::ecrirereferences() {
    constexpr std::array fichiers{"ods5.txt", "ods6.txt",    "ods7.txt",
                                  "vbi.txt",  "vbt4-10.txt", "inv.txt"};
    const auto mots = motsconnus(listes_, alea_);
    for (const auto* fichier : fichiers) {
        std::vector<std::string> siens;
        std::copy_if(mots.begin(), mots.end(), std::back_inserter(siens),
                     [&](const std::string& /*mot*/) { return alea_.surcent(40); });
        donner("fichier listes\\" + std::string(fichier), siens);
    }
    std::vector<std::string> notes;
    for (const auto& mot : mots) {
        notes.push_back(mot);
        notes.push_back(alea_.surcent(20) ? "=" + mot : "Note « été » sur un mot");
    }
    donner("fichier infosouris.txt", notes);
}

void Joueur::ecrireprofils() {
    constexpr std::array couleurs{"Par défaut", "Vert", "Gris", "Fuchsia"};
    const auto nombre = [&](std::size_t bas, std::size_t haut) {
        return std::to_string(alea_.entre(bas, haut));
    };
    donner("fichier " + util_ + "\\settings.dat",
           {"95", "80", nombre(2, 22), nombre(1, 2), nombre(0, 1), alea_.choisir(couleurs),
            alea_.surcent(70) ? "1" : "0"});
    donner("fichier " + util_ + "\\hist.dat",
           alea_.surcent(50) ? std::vector<std::string>()
                             : std::vector<std::string>{"24/08/2019 - 14:35 - 95.3% - T - 3lc.txt",
                                                        "25/08/2019 - 14:35 - 5% - vb6_a.txt"});
}

/// Revision files of some lists, with some of their rows.
void Joueur::ecrirerevisions() {
    for (const auto& liste : listes_) {
        if (!alea_.surcent(40))
            continue;
        std::vector<std::string> lignes;
        for (const auto& rangee : lesrangees(liste.lignes)) {
            const auto ligne = formes(rangee, liste.multi, 0).front();
            if (alea_.surcent(20) && std::count(lignes.begin(), lignes.end(), ligne) == 0)
                lignes.push_back(ligne);
        }
        donner("fichier " + util_ + "\\rev-" + liste.fichier, lignes);
    }
}

void Joueur::connecter() {
    donner("connexion " + util_);
}

void Joueur::choisir() {
    if (const auto* suivi = partie_.serie()) {
        multi_ = suivi->lancement().multi;
        jouerserie();
    } else {
        jouermenu();
    }
}

void Joueur::jouer(std::size_t ordres) {
    while (continuer() && partie_.ordres() < ordres)
        choisir();
}

}  // namespace endurance
