#include "fabrique.h"

#include <algorithm>
#include <string>

#include "catalogue.h"
#include "chemin.h"
#include "dictionnaireperso.h"
#include "fabrication.h"
#include "faute.h"
#include "glossaire.h"

namespace carnet {
namespace {

/// Thrown through the work when the player stops it.
struct Arret {};

// Shares of the work, in thousandths.
constexpr int finlecture = 450;
constexpr int finlistes = 850;
constexpr int finglossaire = 900;
constexpr int fin = 1000;
constexpr std::size_t etapesdelecture = 3;

/// The steps of one share of the work.
class Part {
  public:
    Part(const Avance& avance, int debut, int part, std::size_t etapes)
        : avance_(avance), debut_(debut), part_(part), etapes_(std::max<std::size_t>(1, etapes)) {}
    void operator()(std::string_view quoi) {
        const auto faites = std::min(faites_++, etapes_);
        if (!avance_(debut_ + part_ * static_cast<int>(faites) / static_cast<int>(etapes_), quoi))
            throw Arret();
    }

  private:
    const Avance& avance_;
    int debut_;
    int part_;
    std::size_t etapes_;
    std::size_t faites_ = 0;
};

/// Lists that the making tells of, one by one.
std::size_t listesdites() {
    std::size_t nombre = 2;  // reference lists, notes
    for (const auto& panneau : menu::panneaux())
        nombre += panneau.rangees.size();
    return nombre;
}

}  // namespace

void comparereditions(common::Disque& disque, const Fichiersdeditions& fichiers,
                      Commande& commande) {
    const auto lire = [&](const std::string& chemin) {
        auto lus = lirefichierdemots(disque, chemin);
        if (const auto* ennui = std::get_if<std::string>(&lus))
            throw common::Faute(*ennui);
        return std::move(std::get<Motslus>(lus).mots);
    };
    const auto nom = [](const std::string& chemin) {
        return common::chemin(chemin).filename().string();
    };
    for (std::size_t i = 0; i < atelier::editions.size(); ++i) {
        const auto& ancienne = fichiers.at(i);
        const auto& nouvelle = fichiers.at(i + 1);
        if (ancienne.empty() || nouvelle.empty())
            continue;
        const auto anciens = lire(ancienne);
        commande.nouveautes.at(i) =
            atelier::comparer(anciens, lire(nouvelle), atelier::editions.at(i).liste.places);
        commande.envigueur.comparaisons.at(i) = nom(ancienne) + ", " + nom(nouvelle);
    }
}

bool fabriquer(const atelier::Chemins& chemins, const Commande& commande,
               const std::filesystem::path& dossier, const Avance& avance,
               const atelier::Ecrire& ecrire) try {
    Part lecture(avance, 0, finlecture, etapesdelecture);
    const atelier::Chantier chantier(chemins, commande.dictionnaire, commande.nouveautes,
                                     std::ref(lecture));
    Part listes(avance, finlecture, finlistes - finlecture, listesdites());
    auto fichiers =
        atelier::fabriquer(chantier.matiere(), chantier.thesaurus(), std::ref(listes)).fichiers;
    Part repertoire(avance, finlistes, finglossaire - finlistes, 1);
    repertoire("Répertoire des mots");
    const recherche::Glossaire glossaire(chantier.vocabulaire(), chantier.difficulte());
    for (auto& fichier : recherche::fichiers(glossaire, commande.envigueur))
        fichiers.push_back(std::move(fichier));
    Part ecriture(avance, finglossaire, fin - finglossaire, fichiers.size());
    atelier::installer(fichiers, dossier,
                       [&](const std::filesystem::path& chemin, std::string_view octets) {
                           ecriture("Écriture");
                           return ecrire(chemin, octets);
                       });
    return true;
} catch (const Arret&) {
    return false;
}

}  // namespace carnet
