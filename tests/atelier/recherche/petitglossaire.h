#pragma once

// The words of a small lexicon, as a search sees them, and lists in memory.

#include <map>
#include <string>
#include <vector>

#include "criteres.h"
#include "difficulte.h"
#include "glossaire.h"
#include "petitlexique.h"
#include "recherche.h"

namespace essais {

inline recherche::Glossaire glossaire(const atelier::Vocabulaire& v) {
    return {v, atelier::Difficulte(v)};
}

inline std::vector<std::string> mots(const recherche::Glossaire& g,
                                     const std::vector<std::uint32_t>& places) {
    std::vector<std::string> textes;
    for (const auto place : places)
        textes.emplace_back(g.fiches()[place].texte());
    return textes;
}

/// Lists by file name.
using Listes = std::map<std::string, std::vector<std::string>, std::less<>>;

inline recherche::Contexte contexte(const recherche::Glossaire& g, const Listes& listes) {
    return {g, [&listes](std::string_view fichier) -> recherche::Motsdeliste {
                const auto trouvee = listes.find(fichier);
                if (trouvee == listes.end())
                    return "la liste manque";
                return trouvee->second;
            }};
}

}  // namespace essais
