#include "fichier.h"

#include <algorithm>

#include "faute.h"
#include "texte.h"

namespace common {
namespace {

constexpr std::size_t lusdunefois = limiteligne;

std::string octets(std::span<const std::string> lignes, std::string_view chemin,
                   std::string_view action, std::size_t limite) {
    std::string resultat;
    for (const auto& ligne : lignes) {
        const auto avant = resultat.size();
        resultat.append(vers1252(ligne)).append(findeligne);
        if (resultat.size() - avant > limite)
            throw Faute(rapportfichier(action, chemin, lignetroplongue(limite)));
    }
    return resultat;
}

/// The bytes of a file, as long as `admettre` likes what has come.
template <class Admettre>
std::error_code lire(Disque& disque, std::string_view chemin, std::string& contenu,
                     const Admettre& admettre) {
    contenu.clear();
    std::unique_ptr<Flux> flux;
    auto erreur = disque.ouvrir(chemin, flux);
    std::size_t lus = 1;
    while (!erreur && lus > 0) {
        const auto place = contenu.size();
        contenu.resize(place + lusdunefois);
        lus = 0;
        erreur = flux->lire(std::span(contenu).subspan(place), lus);
        contenu.resize(place + lus);
        if (!admettre())
            return Ennui::LigneTropLongue;
    }
    return erreur;
}

/// Looks at the lines from the place `ligne` on, which goes to where the last one begins. False if
/// one is too long: `contenu` then ends before it.
bool mesurer(std::string& contenu, std::size_t& ligne, std::size_t limite) {
    if (contenu.size() - ligne < limite)
        return true;  // as most files are: none of the lines in it can be
    while (true) {
        const auto saut = contenu.find('\n', ligne);
        if (std::min(saut, contenu.size()) - ligne >= limite) {
            contenu.resize(ligne);
            return false;
        }
        if (saut == std::string::npos)
            return true;
        ligne = saut + 1;
    }
}

}  // namespace

std::string lignetroplongue(std::size_t limite) {
    return "la ligne est trop longue ; la limite est de " + std::to_string(limite) + " octets";
}

std::string rapportfichier(std::string_view action, std::string_view chemin,
                           std::string_view ennui) {
    return std::string(action) + " : fichier « " + std::string(chemin) +
           " » : " + std::string(ennui) + ".";
}

std::string rapportligne(std::string_view action, std::string_view chemin, std::size_t ligne,
                         std::string_view ennui) {
    return std::string(action) + " : fichier « " + std::string(chemin) + " », ligne " +
           std::to_string(ligne) + " : " + std::string(ennui) + ".";
}

std::error_code essayerliretexte(Disque& disque, std::string_view chemin, std::string& contenu,
                                 std::size_t limite) {
    std::size_t ligne = 0;
    return lire(disque, chemin, contenu, [&] { return mesurer(contenu, ligne, limite); });
}

std::string liretexte(Disque& disque, std::string_view chemin, std::string_view action,
                      std::size_t limite) {
    std::string contenu;
    const auto erreur = essayerliretexte(disque, chemin, contenu, limite);
    if (erreur == Ennui::LigneTropLongue) {
        const auto lignes = std::count(contenu.begin(), contenu.end(), '\n');
        throw Faute(rapportligne(action, chemin, static_cast<std::size_t>(lignes) + 1,
                                 lignetroplongue(limite)));
    }
    if (erreur)
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return contenu;
}

std::error_code essayerlire(Disque& disque, std::string_view chemin, std::string& contenu) {
    return lire(disque, chemin, contenu, [] { return true; });
}

std::string lirefichier(Disque& disque, std::string_view chemin, std::string_view action) {
    std::string contenu;
    if (const auto erreur = essayerlire(disque, chemin, contenu))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
    return contenu;
}

void ajouterlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                   std::string_view action, std::size_t limite) {
    if (const auto erreur = disque.ajouter(chemin, octets(lignes, chemin, action, limite)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void remplacerlignes(Disque& disque, std::string_view chemin, std::span<const std::string> lignes,
                     std::string_view action, std::size_t limite) {
    if (const auto erreur = disque.remplacer(chemin, octets(lignes, chemin, action, limite)))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

void toucher(Disque& disque, std::string_view chemin, std::string_view action) {
    if (const auto erreur = disque.ajouter(chemin, {}))
        throw Faute(rapportfichier(action, chemin, raison(erreur)));
}

}  // namespace common
