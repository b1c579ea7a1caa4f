#include "seance.h"

#include <algorithm>
#include <filesystem>

#include "hist.h"
#include "joueurs.h"
#include "textesqt.h"

namespace carnet {

Seance::Seance(const Options& options, std::function<Jour()> jour)
    : dossier_(options.dossier.empty() ? std::filesystem::path(".") : options.dossier),
      disque_(dossier_),
      chemins_(options.chemins),
      jour_(std::move(jour)),
      tache_(this),
      lecture_(this) {}

void Seance::relire() {
    using Lus = std::variant<Motsenvigueur, std::string>;
    const auto lus = std::make_shared<Lus>();
    tache_.lancer(
        [this, lus](const Avance& avance) {
            avance(0, "Lecture des mots");
            *lus = lire(disque_, chemins_);
        },
        [this, lus](const QString& faute) {
            mots_ = {};
            ennui_ = faute;
            if (auto* mots = std::get_if<Motsenvigueur>(lus.get()))
                mots_ = std::move(*mots);
            else
                ennui_ = qt(std::get<std::string>(*lus));
            emit motschanges();
        });
}

void Seance::relirejoueurs() {
    QStringList noms;
    for (const auto& nom : carnet::joueurs(disque_))
        noms << qt(nom);
    if (noms != joueurs_) {
        joueurs_ = noms;
        if (!noms.contains(joueur_))
            joueur_ = noms.value(0);
        emit joueurschanges();
    }
    liresuivi();
}

void Seance::choisirjoueur(const QString& nom) {
    if (nom == joueur_ || !joueurs_.contains(nom))
        return;
    joueur_ = nom;
    emit joueurschanges();
    liresuivi();
}

/// Changes when there is something new to read.
std::string Seance::signature() const {
    auto texte = utf8(joueur_) + ' ' + std::to_string(jour_());
    for (const auto& chemin :
         {profiles::cheminjournal(utf8(joueur_)), profiles::cheminhist(utf8(joueur_))}) {
        const auto fichier = disque_.systeme(chemin);
        std::error_code sans;
        const auto taille = std::filesystem::file_size(fichier, sans);
        const auto quand = std::filesystem::last_write_time(fichier, sans);
        texte += ' ' + std::to_string(sans ? 0 : taille) + ' ' +
                 std::to_string(sans ? 0 : quand.time_since_epoch().count());
    }
    return texte;
}

void Seance::liresuivi() {
    auto present = signature();
    if (present == lu_)
        return;
    lecture_.finir();
    if (!suivi_ || suivi_->util != utf8(joueur_))
        suivi_ = nullptr;
    emit suivichange();
    lu_ = std::move(present);
    if (joueur_.isEmpty())
        return;
    const auto neuf = std::make_shared<Suivi>();
    neuf->util = utf8(joueur_);
    neuf->jour = jour_();
    const auto fini = std::make_shared<bool>(false);
    std::error_code sans;
    const auto octets =
        std::filesystem::file_size(disque_.systeme(profiles::cheminjournal(neuf->util)), sans);
    constexpr std::size_t octetsdeligne = 60;
    const auto lignes = (sans ? 0 : octets) / octetsdeligne + 1;
    lecture_.lancer(
        [this, neuf, fini, lignes](const Avance& avance) {
            *fini = carnet::liresuivi(disque_, *neuf, [&](std::size_t lues) {
                constexpr std::size_t millemes = 1000;
                return avance(static_cast<int>(millemes * std::min(lues, lignes) / lignes),
                              "Lecture du journal");
            });
        },
        [this, neuf, fini](const QString& faute) {
            if (!faute.isEmpty())
                neuf->ennui = utf8(faute);
            if (*fini || !faute.isEmpty())
                suivi_ = neuf;
            else
                lu_.clear();
            emit suivichange();
        });
}

}  // namespace carnet
