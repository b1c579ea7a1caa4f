#include <algorithm>
#include <array>
#include <map>
#include <set>

#include "invariables.h"
#include "regles.h"

namespace atelier {
namespace {

std::string plus(const Mot& mot, std::string_view fin) {
    return std::string(mot.texte()) + std::string(fin);
}

std::string_view sansfinale(const Mot& mot) {
    return mot.texte().substr(0, mot.taille() - 1);
}

Contenu invariables(const Matiere& m) {
    const auto mots =
        choisir(m.mots, 3, 9, [&](const Mot& mot) { return invariable(m.mots, mot); });
    return indiques(m.mots, mots, mots);
}

/// Fewest vowels of a balanced word less one, and most plus one, by length from 6.
constexpr std::array peudevoyelles{1, 1, 2, 2};
constexpr std::array beaucoupdevoyelles{5, 5, 6, 7};

bool desequilibre(const Mot& mot) {
    const auto t = mot.texte();
    const auto voyelles = std::count_if(t.begin(), t.end(), [](char lettre) {
        return std::string_view("AEIOUY").find(lettre) != std::string_view::npos;
    });
    const auto rang = mot.taille() - 6;
    return voyelles <= peudevoyelles.at(rang) || voyelles >= beaucoupdevoyelles.at(rang);
}

Contenu desequilibres(const Matiere& m) {
    return simples(m.mots, choisir(m.mots, 6, 9, [](const Mot& mot) {
                       return mot.entree && mot.unique && desequilibre(mot);
                   }));
}

/// Racks on which two or three infinitives stand.
Contenu anaverbes(const Matiere& m) {
    Contenu contenu;
    for (const auto& tirage : m.mots.tirages(4, 9)) {
        const auto verbes = choisir(m.mots, tirage, infinitive);
        if (verbes.size() == 2 || verbes.size() == 3)
            ajoutermultiple(contenu, m.mots, tirage, verbes);
    }
    return contenu;
}

/// What a player must not put down, the agreement of a participle that does not agree, on a rack
/// that makes exactly one word.
Contenu faussestransitivites(const Matiere& m) {
    std::map<Capitales, const Tirage*> parlettres;
    for (const auto& tirage : m.mots.tirages(6, 9))
        parlettres.emplace(tirage.lettres, &tirage);
    std::set<const Mot*> solutions;
    for (const auto& mot : m.mots.mots(longueurmin, 8)) {
        if (!m.mots.une(mot, [&](const Lecture& l) {
                return l.al(participepasse) && m.mots.lemme(l).participesinvariables();
            }))
            continue;
        for (const std::string_view accord : {"E", "S", "ES"}) {
            const auto faute = plus(mot, accord);
            if (faute.size() < 6 || faute.size() > 9 || m.mots.existe(faute))
                continue;
            const auto tirage = parlettres.find(Capitales(faute).triees());
            if (tirage == parlettres.end() || tirage->second->mots != 1)
                continue;
            const auto& seul = m.mots.mot(m.mots.places(*tirage->second).front());
            if (!seul.injurieux)
                solutions.insert(&seul);
        }
    }
    return simples(m.mots, {solutions.begin(), solutions.end()});
}

/// Words in S that lose it in no form.
Contenu sfinal(const Matiere& m) {
    return simples(
        m.mots, choisir(m.mots, 6, 9, [&](const Mot& mot) {
            return mot.finiten("S") && !mot.finiten("AIS") && !mot.finiten("OIS") &&
                   !m.mots.existe(sansfinale(mot)) && !mot.conjugue &&
                   m.mots.tirage(mot).nonconjugues == 1 && m.mots.une(mot, [&](const Lecture& l) {
                       return l.nonverbale() &&
                              (l.aunnombre(Nombre::invariable) || l.aunnombre(Nombre::aucun) ||
                               (l.aunnombre(Nombre::pluriel) &&
                                m.mots.lemme(l).capitales == mot.texte()));
                   });
        }));
}

/// Three letters in front of a word that make one longer word and only one.
Contenu benjamins(const Matiere& m) {
    constexpr std::size_t lettres = 3;
    std::map<const Mot*, Selection> parmot;
    for (const auto& allongee : m.mots.mots(5 + lettres, 7 + lettres)) {
        const auto* mot = m.mots.chercher(allongee.texte().substr(lettres));
        if (mot != nullptr && mot->entree)
            parmot[mot].push_back(&allongee);
    }
    Contenu contenu;
    for (const auto& [mot, longs] : parmot) {
        if (longs.size() != 1 || !longs.front()->entree || longs.front()->injurieux ||
            mot->injurieux)
            continue;
        const std::string texte(mot->texte());
        contenu.rangees.push_back(
            {texte, texte, std::string(longs.front()->texte().substr(0, lettres))});
        contenu.mots.push_back(place(m.mots, *longs.front()));
    }
    return contenu;
}

/// A verb with another verb's letters and one more, in another order than at an end.
bool allonge(const Mot& verbe, const Mot& allongee, char lettre) {
    return allongee.texte() == lettre + std::string(verbe.texte()) ||
           allongee.texte() == std::string(verbe.texte()) + lettre;
}

/// A verb, and the letter to add to it.
struct Base {
    const Mot* verbe = nullptr;
    char lettre = 0;
};

using Verbes = std::map<Capitales, Selection>;  // by their letters

/// The commonest verb that makes `cible` with another letter, by alphabet among equals.
Base meilleurebase(const Vocabulaire& v, const Mot& cible, const Verbes& verbes) {
    const auto& lettres = v.tirage(cible).lettres;
    Base meilleure;
    for (std::size_t i = 0; i < cible.taille(); ++i) {
        std::string reste(lettres.texte());
        const char lettre = reste[i];
        reste.erase(i, 1);
        const auto trouves = verbes.find(Capitales(reste));
        if (trouves == verbes.end())
            continue;
        for (const auto* verbe : trouves->second) {
            if (allonge(*verbe, cible, lettre))
                continue;
            const auto* m = meilleure.verbe;
            if (m == nullptr || verbe->frequence > m->frequence ||
                (verbe->frequence == m->frequence && verbe->texte() < m->texte()))
                meilleure = {verbe, lettre};
        }
    }
    return meilleure;
}

/// A verb and a letter on which exactly one verb stands.
Contenu verbesplusun(const Matiere& m) {
    const auto& v = m.mots;
    Verbes verbes;
    for (const auto* verbe : choisir(v, 4, 7, infinitive)) {
        if (!defectif(v, *verbe))
            verbes[v.tirage(*verbe).lettres].push_back(verbe);
    }
    Contenu contenu;
    for (const auto* cible : choisir(v, 5, 8, infinitive)) {
        if (defectif(v, *cible) || choisir(v, v.tirage(*cible), infinitive).size() != 1)
            continue;
        const auto base = meilleurebase(v, *cible, verbes);
        if (base.verbe == nullptr)
            continue;
        contenu.rangees.push_back({plus(*base.verbe, {&base.lettre, 1}),
                                   plus(*base.verbe, "+") + base.lettre,
                                   std::string(cible->texte())});
        contenu.mots.push_back(place(v, *cible));
    }
    ordonner(contenu);
    return contenu;
}

}  // namespace

std::vector<Recette> recettesdiverses() {
    return {
        {"invar.txt",
         "Les mots invariables de 3 à 9 lettres qui ne finissent pas par S, X ou Z et qui ne "
         "prennent ni S ni X.",
         invariables},
        {"deseq_cons_voy.txt",
         "Les entrées de 6 à 9 lettres, sans anagramme, qui ont très peu ou beaucoup de "
         "voyelles.",
         desequilibres},
        {"anaverbes.txt", "Les tirages de 4 à 9 lettres qui font deux ou trois infinitifs.",
         anaverbes},
        {"transifausses.txt",
         "Le seul mot d'un tirage où l'on croirait accorder un participe passé invariable.",
         faussestransitivites},
        {"s_final.txt",
         "Les mots de 6 à 9 lettres qui finissent par S et n'existent pas sans lui, hors -AIS "
         "et -OIS.",
         sfinal},
        {"benj_uni.txt",
         "Les mots de 5 à 7 lettres que trois lettres devant prolongent en un seul mot ; la "
         "solution est ces trois lettres.",
         benjamins},
        {"vbavb.txt",
         "Un verbe de 4 à 7 lettres et une lettre qui font un autre verbe, autrement qu'au "
         "bout.",
         verbesplusun},
    };
}

}  // namespace atelier
