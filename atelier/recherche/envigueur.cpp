#include "envigueur.h"

#include <algorithm>
#include <charconv>

#include "lignestexte.h"
#include "listes.h"
#include "texte.h"

namespace recherche {
namespace {

constexpr std::string_view motlibre = "libre";
constexpr std::string_view motperso = "perso";

}  // namespace

std::string nomretenu(std::string_view fichier) {
    std::string nom;
    for (const auto& caractere : common::caracteres(fichier)) {
        const auto c = common::premier(caractere);
        nom += c >= U' ' && common::code1252(c) ? caractere : "?";
    }
    return nom;
}

std::string octets(const Envigueur& envigueur) {
    std::string texte(envigueur.libre() ? motlibre : motperso);
    texte.append(common::findeligne)
        .append(std::to_string(envigueur.mots))
        .append(common::findeligne);
    texte.append(common::vers1252(nomretenu(envigueur.fichier))).append(common::findeligne);
    for (std::size_t i = 0; i < atelier::editions.size(); ++i) {
        if (envigueur.comparaisons.at(i).empty())
            continue;
        texte.append(atelier::editions.at(i).annee).append("=");
        texte.append(common::vers1252(nomretenu(envigueur.comparaisons.at(i))))
            .append(common::findeligne);
    }
    return texte;
}

std::optional<Envigueur> lireenvigueur(std::string_view octets) {
    atelier::LignesTexte lignes(octets);
    std::string_view ligne;
    if (!lignes.suivante(ligne) || (ligne != motlibre && ligne != motperso))
        return std::nullopt;
    const bool libre = ligne == motlibre;
    Envigueur lu;
    if (!lignes.suivante(ligne) ||
        std::from_chars(ligne.data(), ligne.data() + ligne.size(), lu.mots).ptr !=
            ligne.data() + ligne.size())
        return std::nullopt;
    if (!lignes.suivante(ligne) || ligne.empty() != libre)
        return std::nullopt;
    lu.fichier = common::depuis1252(ligne);
    while (lignes.suivante(ligne)) {
        const auto egal = ligne.find('=');
        for (std::size_t i = 0; i < atelier::editions.size(); ++i) {
            if (egal != std::string_view::npos &&
                ligne.substr(0, egal) == atelier::editions[i].annee)
                lu.comparaisons.at(i) = common::depuis1252(ligne.substr(egal + 1));
        }
    }
    return lu;
}

std::vector<atelier::Fichier> fichiers(const Glossaire& glossaire, Envigueur envigueur) {
    const auto dans = [](std::string_view fichier) {
        return std::string(common::dossierlistes) + '/' + std::string(fichier);
    };
    envigueur.mots = glossaire.fiches().size();
    return {{dans(fichierglossaire), glossaire.octets()},
            {dans(fichierenvigueur), octets(envigueur)}};
}

}  // namespace recherche
