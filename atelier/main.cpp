// orvane-listes: makes the word lists of the program, checks them, tells what they hold.

#include <exception>
#include <filesystem>
#include <iostream>
#include <unistd.h>

#include "dictionnaire.h"
#include "disquereel.h"
#include "fabrication.h"
#include "faute.h"
#include "fichier.h"
#include "options.h"
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
    bool terminal_ = ::isatty(STDERR_FILENO) != 0;
};

std::string lire(const std::string& chemin, std::string_view action) {
    common::DisqueReel disque;
    return common::lirefichier(disque, chemin, action);
}

Dictionnaire mots(const std::string& chemin) {
    return liredictionnaire(lire(chemin, "Lecture du dictionnaire"), chemin);
}

/// The sources, read, and what the rules need of them.
struct Sources {
    Thesaurus thesaurus;
    Vocabulaire vocabulaire;
    Difficulte difficulte;
    Nouveautes nouveautes;

    explicit Sources(const Options& options)
        : thesaurus(lire(options.thesaurus, "Lecture du thésaurus"), options.thesaurus),
          vocabulaire(
              lirelexique(lire(options.lexique, "Lecture du lexique"), options.lexique,
                          Affixes(lire(options.affixes, "Lecture des affixes"), options.affixes),
                          thesaurus, options.ajouts ? retouches() : retouchessansajouts()),
              options.mots ? std::optional(mots(*options.mots)) : std::nullopt),
          difficulte(vocabulaire) {
        for (std::size_t i = 0; i < editions.size(); ++i) {
            const auto& comparaison = options.comparaisons.at(i);
            if (comparaison)
                nouveautes.at(i) =
                    comparer(mots(comparaison->ancienne), mots(comparaison->nouvelle),
                             editions.at(i).liste.places);
        }
    }
    [[nodiscard]] Matiere matiere() const { return {vocabulaire, difficulte, nouveautes}; }
};

int fabriquer(const Options& options) {
    const Ligne ligne;
    ligne.dire("Lecture du lexique");
    const Sources sources(options);
    const auto production = fabriquer(sources.matiere(), sources.thesaurus,
                                      [&](std::string_view quoi) { ligne.dire(quoi); });
    ligne.dire("Écriture");
    installer(production.fichiers, options.cible);
    ligne.effacer();
    for (const auto& avertissement : production.avertissements)
        std::cerr << avertissement << '\n';
    return bien;
}

int verifier(const Options& options) {
    const auto constats = std::filesystem::is_directory(options.cible)
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
    const Sources sources(options);
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

int executer(const Options& options) {
    switch (options.commande) {
        case Commande::fabriquer:
            return fabriquer(options);
        case Commande::verifier:
            return verifier(options);
        case Commande::decrire:
            return decrire(options);
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
        const std::vector<std::string> mots(arguments + 1, arguments + nombre);
        return executer(lireoptions(mots));
    } catch (const MauvaisUsage& usage) {
        std::cerr << usage.what() << "\nVoir orvane-listes --help.\n";
        return mauvaisusage;
    } catch (const std::exception& faute) {
        std::cerr << faute.what() << '\n';
        return enfaute;
    }
}
