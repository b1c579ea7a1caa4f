#include "utilisateurs.h"

#include <algorithm>
#include <memory>
#include <set>
#include <utility>

#include "faute.h"
#include "hist.h"
#include "settings.h"
#include "texte.h"

namespace profiles {
namespace {

/// The folder that is being filled.
constexpr std::string_view provisoire = "nouvel-utilisateur.tmp";

/// Keeps the other programs from the list of users, and from making users of their own. Null if
/// there is no list.
std::unique_ptr<common::Verrou> prendreusers(common::Disque& disque, std::string_view action) {
    std::unique_ptr<common::Verrou> verrou;
    const auto erreur = disque.verrouiller(fichierusers, verrou);
    if (erreur && erreur != std::errc::no_such_file_or_directory)
        throw common::Faute(common::rapportfichier(action, fichierusers, common::raison(erreur)));
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

std::vector<std::string> reunir(std::vector<std::string> lus, std::span<const std::string> liste) {
    std::multiset<std::string> restants(lus.begin(), lus.end());
    for (const auto& nom : liste) {
        const auto place = restants.find(nom);
        if (place == restants.end())
            lus.push_back(nom);
        else
            restants.erase(place);
    }
    return lus;
}

void ecrireusers(common::Disque& disque, std::span<const std::string> liste,
                 const std::string& nom) {
    constexpr std::string_view action = "Écriture de la liste des utilisateurs";
    const auto verrou = prendreusers(disque, action);
    if (verrou == nullptr) {
        // Another program may be making the file too: its users are then before these.
        common::ajouterlignes(disque, fichierusers, lignesusers(liste, nom), action);
        return;
    }
    auto lus = utilisateurs(common::liretexte(disque, fichierusers, action));
    common::remplacerlignes(disque, fichierusers,
                            lignesusers(reunir(std::move(lus.noms), liste), nom), action);
}

bool dossierexiste(common::Disque& disque, std::string_view nom) {
    return nom.empty() || disque.estdossier(nom);
}

void creerutilisateur(common::Disque& disque, const std::string& nom) {
    const auto action = "Création de l'utilisateur « " + nom + " »";
    const auto verrou = prendreusers(disque, action);
    if (const auto erreur = disque.creerdossier(provisoire))
        throw common::Faute(common::rapportfichier(action, provisoire, common::raison(erreur)));
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
