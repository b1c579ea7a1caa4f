#include "miseajour.h"

#include <array>

#include "fichier.h"
#include "nombre.h"
#include "texte.h"

namespace dialogs {
namespace {

constexpr std::string_view fichierversion = "version_en_ligne.txt";
constexpr std::string_view fichierlien = "downloadlink.txt";
constexpr std::string_view fichierinstalleur = "orvane_setup.exe";

// Bytes of a file, at most. The lines of the small ones need no limit of their own.
constexpr std::int64_t tailledetexte = 1 << 16;  // of the version file, of the link file
constexpr std::int64_t tailleinstalleur = 512LL << 20U;

using Ligne = std::optional<std::string>;

/// The first two lines of a file; nothing for a line that it lacks.
std::array<Ligne, 2> premiereslignes(std::string_view octets) {
    common::Lignes lignes(octets);
    std::array<Ligne, 2> lues;
    for (auto& lue : lues) {
        std::string_view ligne;
        if (lignes.suivante(ligne))
            lue = common::depuis1252(ligne);
    }
    return lues;
}

}  // namespace

bool memeversion(std::string_view locale, std::string_view publiee) {
    return common::valeur(locale) == common::valeur(publiee);
}

void MiseAJour::verifier() {
    const auto chemin = dansdossierprogramme(fichierversion);
    if (!plateforme_.telecharger(publication_.version, chemin, {.taille = tailledetexte})) {
        ouvrirpage(
            "Erreur durant la vérification. Votre navigateur va s'ouvrir sur la page d'Orvane.",
            ui::Icone::Exclamation);
        return;
    }
    const auto [ligne, somme] = premiereslignes(
        common::lirefichier(plateforme_.disque(), chemin, "Vérification de la mise à jour"));
    const auto publiee = ligne.value_or("");
    if (memeversion(form3_.versionlocale, publiee))
        plateforme_.message("Votre logiciel est à jour.", ui::Icone::Information);
    else if (proposer(publiee))
        telecharger(somme);
}

bool MiseAJour::proposer(std::string_view publiee) {
    return plateforme_.question("Votre version actuelle est " + form3_.versionlocale +
                                "\nLa mise à jour " + std::string(publiee) +
                                " est disponible. Voulez-vous la télécharger ?");
}

/// Downloads the link, then the installer, which must match the published sum if there is one. If
/// the link fails, the menu keeps its busy pointer.
void MiseAJour::telecharger(const std::optional<std::string>& somme) {
    plateforme_.message(
        "Le programme va télécharger la nouvelle version, cela peut prendre quelques secondes.",
        ui::Icone::Information);
    menu_.patienter(true);
    menu_.aide("Téléchargement en cours");
    plateforme_.laissercourir();
    if (!plateforme_.telecharger(publication_.lien, fichierlien,
                                 {.sure = true, .taille = tailledetexte})) {
        ouvrirpage(
            "Erreur durant le téléchargement automatisé, désolé. Votre navigateur va s'ouvrir sur "
            "la page d'Orvane, vous pourrez ensuite télécharger la dernière version.",
            ui::Icone::Exclamation);
        return;
    }
    const auto lien = lirelien();
    if (!lien)
        return;
    const bool complet = plateforme_.telecharger(
        *lien, fichierinstalleur, {.sure = true, .taille = tailleinstalleur, .somme = somme});
    menu_.patienter(false);
    if (complet)
        installer();
    else
        ouvrirpage(
            "Votre navigateur va s'ouvrir sur la page d'Orvane, vous pourrez ensuite télécharger "
            "la dernière version.",
            ui::Icone::Information);
}

/// Opens the installer and ends the program, unless a downloaded file cannot be deleted.
void MiseAJour::installer() {
    plateforme_.message(
        "Orvane va maintenant se fermer et l'installation de la mise à jour va débuter. Suivez les "
        "instructions puis cochez \"Lancer Orvane\" à la fin pour le relancer.",
        ui::Icone::Information);
    plateforme_.ouvrir(dansdossierprogramme(fichierinstalleur));
    for (const auto fichier : {fichierlien, fichierversion})
        if (plateforme_.disque().supprimer(fichier))
            return;
    plateforme_.laissercourir();
    ui::Plateforme::terminer();
}

void MiseAJour::ouvrirpage(std::string_view explication, ui::Icone icone) {
    plateforme_.message(explication, icone);
    plateforme_.ouvrir(publication_.page);
}

/// The address in the link file; nothing if it cannot be read, which ends the check without a
/// message.
std::optional<std::string> MiseAJour::lirelien() {
    std::string octets;
    if (common::essayerlire(plateforme_.disque(), fichierlien, octets))
        return std::nullopt;
    return premiereslignes(octets).front();
}

std::string MiseAJour::dansdossierprogramme(std::string_view fichier) {
    return plateforme_.dossierprogramme() + std::string(fichier);
}

}  // namespace dialogs
