#include "annexe.h"

#include <algorithm>
#include <array>

#include "exclus.h"
#include "lignestexte.h"

namespace atelier {
namespace {

constexpr std::string_view locutions =
    "AFIN ANTAN API ARRACHEPIED AUPRES AUTOUR BERZINGUE BIEN BRIC CATIMINI CLOCHEPIED "
    "CONTREBORD CONTREHAUT CONTREPOIL CONTREVOIE CROUPETONS DEMEURANT DEMI EMBLEE ENVI EX "
    "FACE FLORES GRACE INSTAR JEUN LORS PARCE PERPETE PERPETTE POURVU QUANT RECULONS SANS SUS "
    "TANDIS TANT TAPINOIS TATONS TEMPERA TIRELARIGOT TRAVIOLE ";

constexpr std::string_view ecartes =
    "AB ABRUPTO ABSTRACTO ABSURDO AC AD AEQUO AETERNAM AL ALTER ANNUA ANNUUS ARCCOSH ARCCOTAN "
    "ARCCOTANH ARCSIN ARCSINH ARCTAN ARCTANH AV AVR BENE BIBL BIBLIOGR BIG BRRR CAETERA "
    "CAPELLA CAPPELLA CATHEDRA CAUSA CETERA CF CHAP CIRC CIT CLAUSUS COETERA COLL COMMODO "
    "COMMUNIS CONF CONFER CONTRARIO CONTREFA COSH COTAN COTANH CUJUS DEC DEI DEXTRORSUM DIE "
    "DIV DONA DPI ECCE ECSTAS ED EDD ENV ETC ETYM EXTENSO EXTREMIS FACTO FAM FENG FEVR FIG "
    "FORTIORI FRANCA FRENCH FRUTTI GENERIS GIORNO GOOD GROSSO GRRR HAB HIGH HMM HOC HOMINEM "
    "HONORIS HPZ IBID IBN ID INCH INCOGNITA INCOMMODO INFINITUM INITIO INTUITU IPSO IRATO "
    "JANV JUIL JUSQU KPC KSS LANLAIRE LATERE LIBITUM LINGUA LINI LITT LN LORSQU LOW MACOS "
    "MADE MANU MEL MILITARI MIRABILIS MMM MODO MORTEM MUTANDIS MUTATIS NAPUS NAUSEAM NEC NEW "
    "NIHILO NOV NUNC OCT OECONOMICUS OP OPENBSD OPERANDI ORBI OVO PANTOCRATOR PATRES PERENNE "
    "PERSONA PERSONAE PETTO PFF PFFT POPULI POST POSTERIORI PRESQU PRIORI PROFESSO PROFUNDIS "
    "PSITT PST PT PUISQU QU QUA QUANTI QUELQU QUIA QUO QUOIQU REF REL RETRO RISORIUS RISTOR "
    "SAPIENS SATIVUM SB SENESTRORSUM SENIORITA SENOR SENORA SENORITA SENSU SHUI SIN SINE SINH "
    "SITU SMALL STATU STRICTO SUI SUPPL TANH TEL THALIANA TNT TRAD TUMEFACIENS URBI UTERI "
    "UTERO VADE VALOREM VISU VITAE VITAM VITRO VIVENDI VIVO VOL VS ";

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

Ensemble lignesde(std::string_view texte) {
    Ensemble mots;
    LignesTexte lignes(texte);
    std::string_view ligne;
    while (lignes.suivante(ligne)) {
        if (!ligne.empty() && ligne.front() != '#')
            mots.insert(ligne);
    }
    return mots;
}

}  // namespace

bool ecarte(std::string_view capitales) {
    static const auto mots = ensemble(ecartes);
    return mots.contains(capitales);
}

bool admisenlocution(std::string_view capitales) {
    static const auto mots = ensemble(locutions);
    return mots.contains(capitales);
}

bool verbefrequent(std::string_view capitales) {
    static const auto mots = ensemble(frequents);
    return mots.contains(capitales);
}

bool exclu(std::string_view lemme) {
    static const auto mots = lignesde(texteexclus);
    return mots.contains(lemme);
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
