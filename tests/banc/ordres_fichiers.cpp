// Orders on the files of the working folder.

#include <array>
#include <charconv>
#include <filesystem>
#include <fstream>

#include "fichier.h"
#include "ordres.h"
#include "texte.h"
#include "textes.h"

namespace banc {
namespace {

namespace fs = std::filesystem;

fs::path chemin(Seance& seance, std::string_view nom) {
    if (nom.empty())
        throw OrdreFaux("chemin attendu");
    return seance.plateforme.disque().systeme(nom);
}

/// Writes on the real disk, whatever the program is refused.
void ecrire(Seance& seance, std::string_view nom, std::string_view octets) {
    const auto fichier = chemin(seance, nom);
    fs::create_directories(fichier.parent_path());
    if (!fs::is_directory(fichier))
        fs::remove(fichier);  // a picture of the program may have this name too
    if (!(std::ofstream(fichier, std::ios::binary) << octets).flush())
        throw Refus("écriture impossible : " + std::string(nom));
}

std::string ordrefichier(Seance& seance, const Ordre& ordre) {
    std::string octets;
    for (const auto& ligne : ordre.lignes)
        octets.append(common::vers1252(ligne)).append("\r\n");
    ecrire(seance, ordre.suite, octets);
    return {};
}

std::string ordreoctets(Seance& seance, const Ordre& ordre) {
    const auto blanc = ordre.suite.rfind(' ');
    if (blanc == std::string::npos)
        throw OrdreFaux("octets CHEMIN HEXA");
    const auto hexa = std::string_view(ordre.suite).substr(blanc + 1);
    std::string octets;
    constexpr std::size_t paire = 2;
    constexpr int base = 16;
    for (std::size_t i = 0; i < hexa.size(); i += paire) {
        unsigned char octet = 0;
        const auto* debut = hexa.data() + i;
        const auto* fin = debut + std::min(paire, hexa.size() - i);
        const auto lu = std::from_chars(debut, fin, octet, base);
        if (lu.ec != std::errc{} || lu.ptr != debut + paire)
            throw OrdreFaux("octets en hexadécimal attendus : " + std::string(hexa));
        octets += static_cast<char>(octet);
    }
    ecrire(seance, std::string_view(ordre.suite).substr(0, blanc), octets);
    return {};
}

std::string supprimer(Seance& seance, const Ordre& ordre) {
    if (!fs::remove(chemin(seance, ordre.suite)))
        throw Refus("fichier absent : " + ordre.suite);
    return {};
}

std::string lectureseule(Seance& seance, const Ordre& ordre) {
    static_cast<void>(chemin(seance, ordre.suite));
    seance.plateforme.disque().refuser(ordre.suite);
    return {};
}

std::string contenu(Seance& seance, const Ordre& ordre) {
    common::DisqueReel disque;
    common::Lignes lignes(disque, chemin(seance, ordre.suite).string(), "Lecture",
                          common::limiterangee);
    std::string_view ligne;
    std::size_t lues = 0;
    for (; lignes.suivante(ligne); ++lues) {
        const auto lue = common::depuis1252(ligne);
        if (lues >= ordre.lignes.size())
            throw Refus("ligne de trop : « " + lue + " »");
        if (lue != ordre.lignes[lues])
            throw Refus("ligne " + std::to_string(lues + 1) + " : attendu « " + ordre.lignes[lues] +
                        " », lu « " + lue + " »");
    }
    if (lues < ordre.lignes.size())
        throw Refus("il manque la ligne « " + ordre.lignes[lues] + " »");
    return {};
}

std::string absent(Seance& seance, const Ordre& ordre) {
    if (fs::exists(chemin(seance, ordre.suite)))
        throw Refus("le fichier existe : " + ordre.suite);
    return {};
}

constexpr std::array commandesfichiers{
    Commande{"fichier", ordrefichier, true}, Commande{"octets", ordreoctets, true},
    Commande{"supprimer", supprimer, true},  Commande{"lectureseule", lectureseule, true},
    Commande{"contenu", contenu, true},      Commande{"absent", absent, true},
};

}  // namespace

std::span<const Commande> ordresdesfichiers() {
    return commandesfichiers;
}

}  // namespace banc
