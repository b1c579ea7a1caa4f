// orvane-listes: makes the word lists of the program, checks them, tells what they hold.

#include <exception>
#include <filesystem>
#include <iostream>
#include <random>

#include "chantier.h"
#include "chemin.h"
#include "commande.h"
#include "console.h"
#include "dictionnaire.h"
#include "disquereel.h"
#include "envigueur.h"
#include "fabrication.h"
#include "fichier.h"
#include "listes.h"
#include "options.h"
#include "recherche.h"
#include "sortie.h"
#include "verification.h"

namespace {

using namespace atelier;

enum Etat { bien = 0, enfaute = 1, mauvaisusage = 2 };

/// One line on a terminal, written over and over; nothing elsewhere.
class Ligne {
  public:
    void dire(std::string_view quoi) const {
        if (terminal_)
            std::cerr << "\r\033[K" << quoi << "..." << std::flush;
    }
    void effacer() const {
        if (terminal_)
            std::cerr << "\r\033[K" << std::flush;
    }

  private:
    bool terminal_ = common::erreurssurterminal();
};

Dictionnaire mots(const std::string& chemin) {
    common::DisqueReel disque;
    return liredictionnaire(common::lirefichier(disque, chemin, "Lecture du dictionnaire"), chemin);
}

Nouveautes nouveautes(const Options& options) {
    Nouveautes toutes;
    for (std::size_t i = 0; i < editions.size(); ++i) {
        const auto& comparaison = options.comparaisons.at(i);
        if (comparaison)
            toutes.at(i) = comparer(mots(comparaison->ancienne), mots(comparaison->nouvelle),
                                    editions.at(i).liste.places);
    }
    return toutes;
}

Chantier chantier(const Options& options, const Progression& progression) {
    return {options.chemins, options.mots ? std::optional(mots(*options.mots)) : std::nullopt,
            nouveautes(options), progression};
}

std::string nom(const std::string& chemin) {
    return common::chemin(chemin).filename().string();
}

/// What the lists are made of, for those who look at them later.
recherche::Envigueur envigueur(const Options& options) {
    recherche::Envigueur e;
    if (options.mots)
        e.fichier = nom(*options.mots);
    for (std::size_t i = 0; i < editions.size(); ++i) {
        if (const auto& comparaison = options.comparaisons.at(i))
            e.comparaisons.at(i) = nom(comparaison->ancienne) + ", " + nom(comparaison->nouvelle);
    }
    return e;
}

int fabriquer(const Options& options) {
    const Ligne ligne;
    const auto dire = [&](std::string_view quoi) { ligne.dire(quoi); };
    const auto sources = chantier(options, dire);
    auto production = fabriquer(sources.matiere(), sources.thesaurus(), dire);
    ligne.dire("Répertoire des mots");
    const recherche::Glossaire glossaire(sources.vocabulaire(), sources.difficulte());
    for (auto& fichier : recherche::fichiers(glossaire, envigueur(options)))
        production.fichiers.push_back(std::move(fichier));
    ligne.dire("Écriture");
    installer(production.fichiers, common::chemin(options.cible));
    ligne.effacer();
    for (const auto& avertissement : production.avertissements)
        std::cerr << avertissement << '\n';
    return bien;
}

int verifier(const Options& options) {
    const auto constats = std::filesystem::is_directory(common::chemin(options.cible))
                              ? verifierdossier(options.cible)
                              : verifierfichier(options.cible);
    int etat = bien;
    for (const auto& constat : constats) {
        std::cout << constat.texte() << '\n';
        if (constat.gravite == Gravite::faute)
            etat = enfaute;
    }
    return etat;
}

int decrire(const Options& options) {
    const auto sources = chantier(options, [](std::string_view) {});
    const auto listes = decrire(sources.matiere(), options.cible);
    if (listes.empty())
        throw MauvaisUsage("Le catalogue n'a pas de liste « " + options.cible + " ».");
    for (const auto& liste : listes) {
        std::cout << liste.fichier << (liste.libelle.empty() ? "" : " (" + liste.libelle + ")")
                  << " : " << liste.regle << ' ' << liste.rangees
                  << (liste.rangees > 1 ? " lignes.\n" : " ligne.\n");
    }
    return bien;
}

/// The words in force in the working folder, unless others are asked for.
std::optional<recherche::Glossaire> motsenvigueur(const Options& options, common::Disque& disque) {
    std::string octets;
    const auto chemin = common::cheminliste(recherche::fichierglossaire);
    if (options.desource || common::essayerlire(disque, chemin, octets))
        return std::nullopt;
    return recherche::Glossaire::lire(octets);
}

int chercher(const Options& options) {
    common::DisqueReel disque;
    auto glossaire = motsenvigueur(options, disque);
    Nouveautes comparees;
    if (!glossaire) {
        const auto sources = chantier(options, [](std::string_view) {});
        glossaire.emplace(sources.vocabulaire(), sources.difficulte());
        comparees = sources.nouveautes();
    }
    const auto lire = [&](std::string_view fichier) -> recherche::Motsdeliste {
        for (std::size_t i = 0; i < editions.size(); ++i) {
            if (fichier != editions.at(i).liste.fichier || !options.comparaisons.at(i))
                continue;
            std::vector<std::string> mots;
            for (const auto& mot : comparees.at(i))
                mots.emplace_back(mot.texte());
            return mots;
        }
        return recherche::motsdeliste(disque, fichier);
    };
    std::random_device hasard;
    const recherche::Contexte contexte{*glossaire, lire};
    return recherche::commander(options.cible, contexte, hasard(), std::cout, std::cerr) ? bien
                                                                                         : enfaute;
}

int executer(const Options& options) {
    switch (options.commande) {
        case Commande::fabriquer:
            return fabriquer(options);
        case Commande::verifier:
            return verifier(options);
        case Commande::decrire:
            return decrire(options);
        case Commande::chercher:
            return chercher(options);
        case Commande::aide:
            std::cout << aide();
            return bien;
        case Commande::version:
            std::cout << "orvane-listes " ORVANE_VERSION "\n";
            return bien;
    }
    return mauvaisusage;
}

}  // namespace

int main(int nombre, char** arguments) {
    try {
        common::preparerconsole();
        return executer(lireoptions(common::arguments(nombre, arguments)));
    } catch (const MauvaisUsage& usage) {
        std::cerr << usage.what() << "\nVoir orvane-listes --help.\n";
        return mauvaisusage;
    } catch (const std::exception& faute) {
        std::cerr << faute.what() << '\n';
        return enfaute;
    }
}
