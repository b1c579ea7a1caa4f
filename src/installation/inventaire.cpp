#include "inventaire.h"

#include <algorithm>

#include "disquereel.h"
#include "faute.h"
#include "fichier.h"
#include "somme.h"

namespace installation {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view actioninventaire = "Inventaire des fichiers du programme";
constexpr std::string_view separation = "  ./";

/// The path of the rules for a file of the folder.
std::string cheminde(const fs::path& relatif) {
    const auto octets = relatif.generic_u8string();
    std::string chemin(octets.begin(), octets.end());
    std::replace(chemin.begin(), chemin.end(), '/', '\\');
    return chemin;
}

bool estsomme(std::string_view texte) {
    return texte.size() == chiffresdesomme &&
           texte.find_first_not_of("0123456789abcdef") == texte.npos;
}

/// A file's line, read; nothing may stand in it that leads out of the folder.
bool lireligne(std::string_view ligne, Fourni& fourni) {
    constexpr auto debut = chiffresdesomme + separation.size();
    if (ligne.size() <= debut || !estsomme(ligne.substr(0, chiffresdesomme)) ||
        ligne.substr(chiffresdesomme, separation.size()) != separation)
        return false;
    fourni.somme = ligne.substr(0, chiffresdesomme);
    fourni.chemin = ligne.substr(debut);
    std::replace(fourni.chemin.begin(), fourni.chemin.end(), '/', '\\');
    const auto entoure = "\\" + fourni.chemin + "\\";
    return entoure.find("\\..\\") == entoure.npos && entoure.find("\\\\") == entoure.npos;
}

}  // namespace

std::string lignede(const Fourni& fourni) {
    auto chemin = fourni.chemin;
    std::replace(chemin.begin(), chemin.end(), '\\', '/');
    return fourni.somme + std::string(separation) + chemin;
}

Inventaire inventorier(const fs::path& dossier) {
    Inventaire inventaire;
    std::error_code erreur;
    std::vector<std::string> chemins;
    for (fs::recursive_directory_iterator i(dossier, erreur), fin; !erreur && i != fin;
         i.increment(erreur)) {
        const auto chemin = cheminde(i->path().lexically_relative(dossier));
        if (i->is_regular_file(erreur) && chemin != fichierinventaire)
            chemins.push_back(chemin);
    }
    if (erreur)
        throw common::Faute(
            common::rapportfichier(actioninventaire, dossier.string(), common::raison(erreur)));
    std::sort(chemins.begin(), chemins.end());
    common::DisqueReel disque(dossier);
    for (const auto& chemin : chemins) {
        Fourni fourni{{}, chemin};
        if (const auto ennui = sommer(disque, chemin, fourni.somme))
            throw common::Faute(
                common::rapportfichier(actioninventaire, chemin, common::raison(ennui)));
        inventaire.fichiers.push_back(std::move(fourni));
    }
    return inventaire;
}

std::string versionde(std::string_view numero, const std::vector<Fourni>& fichiers) {
    Somme somme;
    for (const auto& fourni : fichiers)
        somme.ajouter(lignede(fourni) + "\n");
    return std::string(numero) + " " + somme.finir();
}

std::string ecrire(const Inventaire& inventaire) {
    auto texte = inventaire.version + "\n";
    for (const auto& fourni : inventaire.fichiers)
        texte += lignede(fourni) + "\n";
    return texte;
}

Inventaire lireinventaire(common::Disque& disque) {
    const auto octets = common::liretexte(disque, fichierinventaire, actioninventaire);
    common::Lignes lignes(octets);
    Inventaire inventaire;
    std::string_view ligne;
    if (lignes.suivante(ligne))
        inventaire.version = ligne;
    for (std::size_t numero = 2; lignes.suivante(ligne); ++numero) {
        Fourni fourni;
        if (!lireligne(ligne, fourni))
            throw common::Faute(common::rapportligne(actioninventaire, fichierinventaire, numero,
                                                     "ce n'est pas une somme et un nom"));
        inventaire.fichiers.push_back(std::move(fourni));
    }
    if (inventaire.version.empty())
        throw common::Faute(
            common::rapportligne(actioninventaire, fichierinventaire, 1, "la version manque"));
    return inventaire;
}

}  // namespace installation
