#pragma once

// A hand-written lexicon: few words, every form of affix.

#include <algorithm>
#include <initializer_list>
#include <optional>
#include <string>

#include "affixes.h"
#include "lexique.h"
#include "thesaurus.h"
#include "vocabulaire.h"

namespace essais {

/// Affixes in the form of the real file: plurals, feminines, a conjugation, participles, prefixes.
inline const std::string affixes =
    "SET UTF-8\n"
    "FLAG long\n"
    "NEEDAFFIX ()\n"
    "\n"
    "PFX L' Y 1\n"
    "PFX L' 0 l' [aeiou]\n"
    "\n"
    "PFX Um Y 1\n"
    "PFX Um 0 kilo/S.() .\n"
    "PFX Ui Y 1\n"
    "PFX Ui 0 kilo .\n"
    "\n"
    "SFX S. Y 2\n"
    "SFX S. 0 0/L' [^sxz] is:sg\n"
    "SFX S. 0 s/L' [^sxz] is:pl\n"
    "\n"
    "SFX X. Y 2\n"
    "SFX X. 0 0/L' [ul] is:sg\n"
    "SFX X. al aux al is:pl\n"
    "\n"
    "SFX F. Y 3\n"
    "SFX F. 0 0 [^sxz] is:mas is:sg\n"
    "SFX F. ef ève ef is:fem is:sg\n"
    "SFX F. 0 e [éiï] is:fem is:sg\n"
    "\n"
    "SFX a0 Y 7\n"
    "SFX a0 er er/L' er po:infi\n"
    "SFX a0 er ant [^cg]er po:ppre\n"
    "SFX a0 ger geant ger po:ppre\n"
    "SFX a0 er e er po:ipre po:spre po:1sg po:3sg\n"
    "SFX a0 er è er po:ipre po:1isg\n"
    "SFX a0 er ons [^cg]er po:ipre po:1pl\n"
    "SFX a0 er ez er po:ipre po:2pl\n"
    "\n"
    "SFX p+ Y 2\n"
    "SFX p+ er é er po:ppas po:adj po:1jsg is:mas is:sg\n"
    "SFX p+ er ée er po:ppas po:adj is:fem is:sg\n"
    "\n"
    "SFX p. Y 1\n"
    "SFX p. er é er po:ppas po:1jsg is:epi is:inv\n"
    "\n"
    "SFX c0 Y 2\n"
    "SFX c0 0 0 er po:infi po:ppre po:ppas\n"
    "SFX c0 er ont er po:ipre po:iimp po:ipsi po:ifut po:cond po:spre po:simp po:impe po:1sg "
    "po:2sg po:3sg po:1pl po:2pl po:3pl\n"
    "\n"
    "SFX d0 Y 1\n"
    "SFX d0 er ais er po:iimp po:1sg po:2sg\n"
    "\n"
    "SFX iV Y 3\n"
    "SFX iV 0 0 ésir po:infi\n"
    "SFX iV ésir isant ésir po:ppre\n"
    "SFX iV ésir isais ésir po:iimp po:1sg po:2sg\n"
    "\n"
    "SFX yX Y 2\n"
    "SFX yX 0 0 uire po:infi po:ppre po:ppas\n"
    "SFX yX uire uisent uire po:ipre po:iimp po:ipsi po:ifut po:cond po:spre po:simp po:impe "
    "po:3sg "
    "po:1pl po:2pl po:3pl\n";

/// The dictionary of these lines, with its count.
inline std::string dictionnaire(const std::string& lignes) {
    return std::to_string(std::count(lignes.begin(), lignes.end(), '\n')) + '\n' + lignes;
}

inline atelier::Lexique lexique(
    const std::string& lignes, const atelier::Thesaurus& thesaurus = atelier::Thesaurus(),
    const atelier::Retouches& retouches = atelier::retouchessansajouts()) {
    return atelier::lirelexique(dictionnaire(lignes), "petit.dic",
                                atelier::Affixes(affixes, "petit.aff"), thesaurus, retouches);
}

inline atelier::Vocabulaire vocabulaire(
    const std::string& lignes, const atelier::Thesaurus& thesaurus = atelier::Thesaurus(),
    const std::optional<atelier::Dictionnaire>& restriction = std::nullopt) {
    return {lexique(lignes, thesaurus), restriction};
}

/// Lines of nouns that take S, one a word.
inline std::string noms(std::initializer_list<const char*> mots) {
    std::string lignes;
    for (const auto* mot : mots)
        lignes += std::string(mot) + "/S.() po:nom is:mas\n";
    return lignes;
}

/// A verb of few forms, and so defective: -ER, -ANT, -E, -ONS, -EZ.
inline std::string verbe(const char* mot) {
    return std::string(mot) + "/a0() po:v1_it____a\n";
}

/// A verb that lacks nothing, with the forms -ER and -ONT.
inline std::string verbecomplet(const char* mot) {
    return std::string(mot) + "/c0() po:v1_it____a\n";
}

/// Lines of words that are the same everywhere.
inline std::string seuls(std::initializer_list<const char*> mots) {
    std::string lignes;
    for (const auto* mot : mots)
        lignes += std::string(mot) + " po:adv\n";
    return lignes;
}

}  // namespace essais
