#include "annexe.h"

#include <algorithm>
#include <array>

namespace atelier {
namespace {

constexpr std::string_view locutions =
    "AFIN ANTAN API ARRACHEPIED AUPRES AUTOUR BERZINGUE BIEN BRIC CATIMINI CLOCHEPIED "
    "CONTREBORD CONTREHAUT CONTREPOIL CONTREVOIE CROUPETONS DEMEURANT DEMI EMBLEE ENVI EX "
    "FACE FLORES GRACE INSTAR JEUN LORS PARCE PERPETE PERPETTE POURVU QUANT RECULONS SANS SUS "
    "TANDIS TANT TAPINOIS TATONS TEMPERA TIRELARIGOT TRAVIOLE ";

constexpr std::string_view frequents =
    "ETRE AVOIR FAIRE DIRE ALLER VOIR VENIR TENIR LIRE RIRE BOIRE AIMER JOUER PAYER POSER "
    "LAVER LEVER TIRER CRIER TUER OSER FINIR JETER MENER AGIR FUIR USER UNIR NIER LIER NAGER "
    "VOTER NOTER VIVRE AIDER CITER GERER CREER SUBIR DURER CEDER VOLER FUMER JUGER GARER "
    "DINER SAVOIR PASSER DONNER METTRE PARLER PORTER PENSER ENTRER RESTER PERDRE RENDRE "
    "SORTIR TOMBER MONTER PARTIR SENTIR MANGER SUIVRE SERVIR COURIR OUVRIR ECRIRE OFFRIR "
    "MOURIR DEVOIR CROIRE GARDER GAGNER FERMER DORMIR POUVOIR VOULOIR PRENDRE TROUVER APPELER "
    "ARRIVER LAISSER MONTRER ARRETER CHOISIR OCCUPER REVENIR DEVENIR ACHETER OUBLIER JOINDRE "
    "REGARDER DEMANDER CHERCHER ATTENDRE REPONDRE ENTENDRE ECOUTER COMPTER MARCHER COMMENCER "
    "CONTINUER CONNAITRE EXPLIQUER PERMETTRE RACONTER RENCONTRER TRAVAILLER COMPRENDRE "
    "PRESENTER RETROUVER ";

constexpr auto enser = std::to_array<std::string_view>(
    {"E",     "ES",      "ONS",    "EZ",     "ENT",   "AIS",     "AIT",   "IONS",  "IEZ",
     "AIENT", "AI",      "AS",     "A",      "AMES",  "ATES",    "ERENT", "ASSE",  "ASSES",
     "AT",    "ASSIONS", "ASSIEZ", "ASSENT", "ERAI",  "ERAS",    "ERA",   "ERONS", "EREZ",
     "ERONT", "ERAIS",   "ERAIT",  "ERIONS", "ERIEZ", "ERAIENT", "ANT",   "EE",    "EES"});

constexpr auto engroupe2 = std::to_array<std::string_view>(
    {"IS",     "IT",       "ISSONS", "ISSEZ", "ISSENT", "ISSAIS", "ISSAIT", "ISSIONS",
     "ISSIEZ", "ISSAIENT", "IMES",   "ITES",  "IRENT",  "ISSE",   "ISSES",  "IRAI",
     "IRAS",   "IRA",      "IRONS",  "IREZ",  "IRONT",  "IRAIS",  "IRAIT",  "IRIONS",
     "IRIEZ",  "IRAIENT",  "ISSANT", "I",     "IE",     "IES"});

constexpr auto enautres = std::to_array<std::string_view>(
    {"",     "S",    "T",     "RAI",   "RAS",    "RA",    "RONS",    "REZ",    "RONT",
     "RAIS", "RAIT", "RIONS", "RIEZ",  "RAIENT", "U",     "US",      "UE",     "UES",
     "UT",   "UMES", "UTES",  "URENT", "USSE",   "USSES", "USSIONS", "USSIEZ", "USSENT"});

using Ensemble = std::unordered_set<std::string_view>;

/// The words of a text between blanks.
Ensemble ensemble(std::string_view texte) {
    Ensemble mots;
    while (!texte.empty()) {
        const auto blanc = texte.find(' ');
        if (blanc > 0)
            mots.insert(texte.substr(0, blanc));
        texte.remove_prefix(blanc == std::string_view::npos ? texte.size() : blanc + 1);
    }
    return mots;
}

}  // namespace

bool admisenlocution(std::string_view capitales) {
    static const auto mots = ensemble(locutions);
    return mots.contains(capitales);
}

bool verbefrequent(std::string_view capitales) {
    static const auto mots = ensemble(frequents);
    return mots.contains(capitales);
}

std::span<const std::string_view> terminaisonser() {
    return enser;
}
std::span<const std::string_view> terminaisonsgroupe2() {
    return engroupe2;
}
std::span<const std::string_view> terminaisonsautres() {
    return enautres;
}

}  // namespace atelier
