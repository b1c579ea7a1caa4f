#include "utilisateurs.h"

#include <algorithm>
#include <memory>

#include "faute.h"
#include "hist.h"
#include "settings.h"
#include "texte.h"

namespace profiles {
namespace {

/// The folder that is being filled.
constexpr std::string_view provisoire = "nouvel-utilisateur.tmp";

/// Makes the folder, and keeps another program, which may be making a user of its own, from it.
std::unique_ptr<common::Verrou> prendreprovisoire(common::Disque& disque, std::string_view action) {
    std::unique_ptr<common::Verrou> verrou;
    while (verrou == nullptr) {
        if (const auto erreur = disque.creerdossier(provisoire)) {
            throw common::Faute(common::rapportfichier(action, provisoire, common::raison(erreur)));
        }
        verrou = disque.verrouiller(provisoire);
    }
    return verrou;
}

std::error_code nommer(common::Disque& disque, const std::string& nom) {
    if (disque.existe(nom))
        return std::make_error_code(std::errc::file_exists);
    return disque.renommer(provisoire, nom);
}

/// Takes away what a refused name leaves; what resists is left for the next creation to reuse.
void nettoyer(common::Disque& disque) {
    for (const auto& chemin :
         {cheminhist(provisoire), cheminsettings(provisoire), std::string(provisoire)})
        static_cast<void>(disque.supprimer(chemin));
}

}  // namespace

Utilisateurs utilisateurs(std::string_view octets) {
    Utilisateurs lus;
    common::Lignes lignes(octets);
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        lus.derniereligne = common::depuis1252(ligne);
        if (!ligne.empty())
            lus.noms.push_back(lus.derniereligne);
    }
    return lus;
}

std::vector<std::string> lignesusers(std::span<const std::string> liste, const std::string& nom) {
    std::vector<std::string> lignes;
    std::copy_if(liste.begin(), liste.end(), std::back_inserter(lignes),
                 [&](const std::string& entree) { return entree != nom; });
    lignes.push_back(nom);
    return lignes;
}

void ecrireusers(common::Disque& disque, std::span<const std::string> liste,
                 const std::string& nom) {
    common::remplacerlignes(disque, fichierusers, lignesusers(liste, nom),
                            "Écriture de la liste des utilisateurs");
}

bool dossierexiste(common::Disque& disque, std::string_view nom) {
    return nom.empty() || disque.estdossier(nom);
}

void creerutilisateur(common::Disque& disque, const std::string& nom) {
    const auto action = "Création de l'utilisateur « " + nom + " »";
    const auto verrou = prendreprovisoire(disque, action);
    common::remplacerlignes(disque, cheminhist(provisoire), {}, action);
    common::remplacerlignes(disque, cheminsettings(provisoire), lignessettings({}), action);
    const auto erreur = nommer(disque, nom);
    if (!erreur)
        return;
    nettoyer(disque);
    if (disque.estdossier(nom))
        return;  // another program has made the same user meanwhile
    throw common::Faute(action + " : le système refuse un dossier de ce nom (" +
                        common::raison(erreur) +
                        "). Relancez le programme et choisissez un autre nom.");
}

}  // namespace profiles
