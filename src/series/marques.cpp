#include "marques.h"

#include "fichier.h"
#include "reference.h"

namespace series {
namespace {

constexpr int cote = 420;  ///< of a full mark, in twips; a half mark is half as wide
constexpr std::size_t nombredatees = 3;

ui::Controle& creer(ui::Formulaire& formulaire, std::string_view nom, std::size_t boite,
                    const Marque& marque) {
    auto& image = formulaire.ajouter(ui::Genre::Image, nom, static_cast<int>(boite));
    image.visible = false;
    image.infobulle = std::string(marque.infobulle);
    image.accessible = std::string(marque.infobulle);
    return image;
}

}  // namespace

Marques::Marques(ui::Formulaire& formulaire, std::size_t nombre, const Limites& limites)
    : formulaire_(formulaire), limites_(limites), paires_(nombre) {
    for (std::size_t boite = 0; boite < nombre; ++boite)
        for (std::size_t i = 0; i < nombredelistes; ++i)
            paires_[boite][i].pleine =
                &creer(formulaire, tabledesmarques[i].controle, boite, tabledesmarques[i]);
    for (std::size_t boite = 0; boite < nombre; ++boite)
        for (std::size_t i = nombredatees; i < nombredelistes; ++i)
            paires_[boite][i].demie =
                &creer(formulaire, tabledesmarques[i].demicontrole, boite, tabledesmarques[i]);
}

void Marques::charger() {
    constexpr std::string_view action = "Chargement des images";
    for (std::size_t i = 0; i < nombredelistes; ++i) {
        for (const auto fichier : {tabledesmarques[i].image, tabledesmarques[i].demiimage})
            if (!fichier.empty())
                static_cast<void>(
                    common::lirefichier(formulaire_.plateforme().disque(), fichier, action));
        for (auto& paires : paires_) {
            paires[i].pleine->image = std::string(tabledesmarques[i].image);
            if (paires[i].demie != nullptr)
                paires[i].demie->image = std::string(tabledesmarques[i].demiimage);
        }
    }
}

void Marques::placer(std::size_t boite, const ui::Controle& controle) {
    const ui::Cadrage cadre{controle.gauche() + controle.largeur(),
                            controle.haut() + (controle.hauteur() - cote) / 2, cote, cote};
    for (auto& paire : paires_.at(boite)) {
        paire.pleine->placer(cadre);
        if (paire.demie != nullptr)
            paire.demie->placer({cadre.gauche, cadre.haut, cote / 2, cote});
    }
}

void Marques::cacher() {
    for (auto& paires : paires_) {
        for (auto& paire : paires) {
            paire.pleine->visible = false;
            if (paire.demie != nullptr)
                paire.demie->visible = false;
        }
    }
}

void Marques::montrer(std::span<const std::string> mots) {
    const Recherche recherche(mots);
    std::vector<bool> datees(mots.size(), false);  // boxes that bear a dated mark
    for (std::size_t i = 0; i < nombredelistes; ++i) {
        const auto chemin = common::cheminliste(common::listesreference.at(i).fichier);
        const auto trouves = chercherliste(formulaire_.plateforme().disque(), chemin, limites_[i],
                                           recherche, mots.size());
        for (std::size_t boite = 0; boite < mots.size(); ++boite) {
            if (!trouves[boite])
                continue;
            auto& paire = paires_[boite][i];
            const bool demie = paire.demie != nullptr && datees[boite];
            (demie ? paire.demie : paire.pleine)->visible = true;
            datees[boite] = datees[boite] || paire.demie == nullptr;
        }
    }
}

}  // namespace series
