#include "sauvegarde.h"

#include <algorithm>
#include <array>

#include "chemin.h"
#include "disquereel.h"
#include "fichier.h"
#include "listes.h"
#include "reponses.h"

namespace carnet {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view provisoire = ".tmp";
constexpr std::string_view attente = "Retour de ";
constexpr std::array journaux{"hist.dat", "journal.txt"};
constexpr int essaismax = 1000;
constexpr int millemes = 1000;

Issue refus(std::string_view quoi, const fs::path& ou, const std::error_code& erreur) {
    return {Issue::Etat::refuse,
            common::rapportfichier(quoi, ou.string(), common::raison(erreur)),
            {},
            {},
            0,
            {}};
}

Issue refus(std::string ennui) {
    return {Issue::Etat::refuse, std::move(ennui), {}, {}, 0, {}};
}

/// `base`, or the first of `base (2)`, `base (3)`... that `libre` takes.
template <class Libre>
fs::path premierlibre(const fs::path& base, Libre&& libre) {
    auto essai = base;
    for (int i = 2; !libre(essai) && i < essaismax; ++i)
        essai = common::chemin(base.string() + " (" + std::to_string(i) + ")");
    return essai;
}

/// dd/mm/yyyy of the last record.
std::string dernieredate(std::string_view hist) {
    constexpr std::size_t longueur = 10;
    while (hist.ends_with('\n') || hist.ends_with('\r'))
        hist.remove_suffix(1);
    return std::string(hist.substr(hist.find_last_of('\n') + 1).substr(0, longueur));
}

/// Folders of a copy under way.
bool enroute(std::string_view nom) {
    return nom.ends_with(provisoire) || nom.starts_with(attente);
}

}  // namespace

std::string dossierenattente(std::string_view util) {
    return std::string(attente) + std::string(util);
}

std::error_code Sauvegarde::lister(const fs::path& dossier, Contenu& contenu) {
    std::vector<fs::path> noms;
    if (const auto erreur = appels_->lister(dossier, noms))
        return erreur;
    for (const auto& nom : noms) {
        const auto texte = nom.filename().string();
        if (texte == "." || texte == ".." || texte.ends_with(provisoire))
            continue;
        common::Etat etat;
        const auto erreur = appels_->etat(dossier / nom.filename(), etat);
        if (erreur && erreur != std::errc::no_such_file_or_directory)
            return erreur;  // a file may not be left out in silence
        const bool fichier = !erreur && etat.genre == common::Genre::Fichier &&
                             texte.find('\\') == std::string::npos;
        (fichier ? contenu.fichiers : contenu.laisses).push_back(texte);
    }
    std::sort(contenu.fichiers.begin(), contenu.fichiers.end());
    std::sort(contenu.laisses.begin(), contenu.laisses.end());
    return {};
}

bool Sauvegarde::existe(const fs::path& chemin) {
    common::Etat etat;
    return appels_->etat(chemin, etat) != std::errc::no_such_file_or_directory;
}

std::error_code Sauvegarde::nommer(const fs::path& ancien, const fs::path& nouveau) {
    if (existe(nouveau))
        return std::make_error_code(std::errc::file_exists);
    if (const auto erreur = appels_->renommer(ancien, nouveau))
        return erreur;
    static_cast<void>(appels_->synchroniserdossier(nouveau.parent_path()));
    return {};
}

std::string Sauvegarde::lire(const fs::path& fichier) {
    common::DisqueReel disque(fichier.parent_path(), *appels_);
    std::string octets;
    static_cast<void>(common::essayerlire(disque, fichier.filename().string(), octets));
    return octets;
}

/// Takes away a folder that was under way, whatever of it there is.
void Sauvegarde::effacer(const fs::path& dossier) {
    std::vector<fs::path> noms;
    if (appels_->lister(dossier, noms))
        return;
    for (const auto& nom : noms)
        static_cast<void>(appels_->supprimer(dossier / nom.filename()));
    static_cast<void>(appels_->supprimer(dossier));
}

/// Copies the files of a folder into a new one; takes that one away if it is stopped or refused.
bool Sauvegarde::transporter(const fs::path& source, const fs::path& cible,
                             const Avancecopie& avance, Issue& issue) {
    effacer(cible);
    common::DisqueReel depuis(source, *appels_);
    common::DisqueReel vers(cible, *appels_);
    Contenu contenu;
    auto erreur = lister(source, contenu);
    auto ou = source;
    if (!erreur)
        erreur = common::DisqueReel(cible.parent_path(), *appels_)
                     .creerdossier(cible.filename().string());
    for (std::size_t i = 0; !erreur && i < contenu.fichiers.size(); ++i) {
        if (!avance(static_cast<int>(millemes * i / contenu.fichiers.size()))) {
            effacer(cible);
            issue.etat = Issue::Etat::arrete;
            return false;
        }
        const auto& nom = contenu.fichiers[i];
        ou = source / common::chemin(nom);
        std::string octets;
        if ((erreur = common::essayerlire(depuis, nom, octets)))
            break;
        ou = cible / common::chemin(nom);
        erreur = vers.remplacer(nom, octets);
    }
    if (erreur) {
        effacer(cible);
        issue = refus("Copie", ou, erreur);
        return false;
    }
    issue.fichiers = contenu.fichiers.size();
    issue.laisses = contenu.laisses;
    return true;
}

Issue Sauvegarde::copier(const std::string& util, const fs::path& destination, Jour jour,
                         const Avancecopie& avance) {
    common::DisqueReel jeu(jeu_, *appels_);
    if (!nomdejoueur(util) || !jeu.estdossier(util))
        return refus("Pas de joueur « " + util + " » dans ce dossier de jeu.");
    const auto nom = common::chemin(util);
    const auto source = jeu_ / nom;
    std::error_code sans;
    const auto vrai = fs::weakly_canonical(source, sans);
    const auto but = fs::weakly_canonical(destination, sans);
    if (std::mismatch(vrai.begin(), vrai.end(), but.begin(), but.end()).first == vrai.end())
        return refus(
            "La copie ne peut aller dans le dossier du joueur lui-même : choisissez-en un "
            "autre.");
    const auto date = premierlibre(destination / ("Orvane " + textejour(jour)),
                                   [&](const fs::path& essai) { return !existe(essai / nom); });
    common::DisqueReel ailleurs(destination, *appels_);
    const bool neuf = !existe(date);
    if (const auto erreur = ailleurs.creerdossier(date.filename().string()))
        return refus("Création du dossier", date, erreur);
    Issue issue;
    const auto encours = date / common::chemin(util + std::string(provisoire));
    if (transporter(source, encours, avance, issue)) {
        if (const auto erreur = nommer(encours, date / nom)) {
            effacer(encours);
            issue = refus("Copie", date / nom, erreur);
        } else {
            issue.etat = Issue::Etat::fait;
            issue.dossier = date / nom;
        }
    }
    if (issue.etat != Issue::Etat::fait && neuf)
        static_cast<void>(appels_->supprimer(date));
    return issue;
}

Sauvegarde::Retour Sauvegarde::examiner(const fs::path& copie) {
    Retour retour;
    const auto propre = copie.has_filename() ? copie : copie.parent_path();
    retour.util = propre.filename().string();
    Contenu dela;
    if (const auto erreur = lister(propre, dela))
        retour.ennui = common::rapportfichier("Lecture", propre.string(), common::raison(erreur));
    else if (!existe(propre / "hist.dat") || !existe(propre / "settings.dat"))
        retour.ennui =
            "Ce n'est pas la copie d'un joueur : il y manque hist.dat ou settings.dat. "
            "Choisissez le dossier qui porte le nom du joueur, dans « Orvane » et une "
            "date.";
    else if (!nomdejoueur(retour.util) || enroute(retour.util))
        retour.ennui = "« " + retour.util + " » ne peut être le nom d'un joueur.";
    if (!retour.ennui.empty())
        return retour;
    const auto ici = jeu_ / propre.filename();
    std::error_code sans;
    if (fs::equivalent(ici, propre, sans)) {
        retour.ennui = "Ce dossier est celui du jeu lui-même : choisissez une copie.";
        return retour;
    }
    retour.existe = existe(ici);
    retour.copiejusqua = dernieredate(lire(propre / journaux[0]));
    if (!retour.existe)
        return retour;
    retour.icijusqua = dernieredate(lire(ici / journaux[0]));
    bool suite = true;  // the copy begins with all that is in play
    bool memesjournaux = true;
    for (const auto* nom : journaux) {
        const auto la = lire(propre / nom);
        const auto present = lire(ici / nom);
        suite = suite && la.starts_with(present);
        memesjournaux = memesjournaux && la == present;
    }
    Contenu dici;
    retour.identique =
        !lister(ici, dici) && dici.fichiers == dela.fichiers &&
        std::all_of(dici.fichiers.begin(), dici.fichiers.end(), [&](const auto& nom) {
            const auto fichier = common::chemin(nom);
            return lire(ici / fichier) == lire(propre / fichier);
        });
    retour.risque = !retour.identique && (!suite || memesjournaux);
    return retour;
}

Issue Sauvegarde::remettre(const fs::path& copie, Jour jour, const Avancecopie& avance) {
    const auto retour = examiner(copie);
    if (!retour.ennui.empty())
        return refus(retour.ennui);
    const auto propre = copie.has_filename() ? copie : copie.parent_path();
    const auto place = jeu_ / propre.filename();
    const auto pret = jeu_ / common::chemin(dossierenattente(retour.util));
    const auto encours = common::chemin(pret.string() + std::string(provisoire));
    Issue issue;
    if (!transporter(propre, encours, avance, issue))
        return issue;
    effacer(pret);
    auto erreur = nommer(encours, pret);
    if (!erreur && retour.existe) {
        issue.ancien =
            premierlibre(jeu_ / common::chemin(retour.util + " avant le " + textejour(jour)),
                         [&](const fs::path& essai) { return !existe(essai); });
        erreur = nommer(place, issue.ancien);
    }
    if (!erreur && (erreur = nommer(pret, place)) && !issue.ancien.empty())
        static_cast<void>(nommer(issue.ancien, place));
    if (erreur) {
        effacer(encours);
        effacer(pret);
        return refus("Retour de la copie", place, erreur);
    }
    issue.etat = Issue::Etat::fait;
    issue.dossier = place;
    return issue;
}

std::vector<std::string> Sauvegarde::achever() {
    std::vector<fs::path> noms;
    std::vector<std::string> attendent;
    if (appels_->lister(jeu_, noms))
        return {};
    for (const auto& nom : noms) {
        const auto texte = nom.filename().string();
        if (!texte.starts_with(attente) || texte.ends_with(provisoire))
            continue;
        const auto util = texte.substr(attente.size());
        if (nomdejoueur(util) && nommer(jeu_ / nom.filename(), jeu_ / common::chemin(util)))
            attendent.push_back(util);
    }
    std::sort(attendent.begin(), attendent.end());
    return attendent;
}

}  // namespace carnet
