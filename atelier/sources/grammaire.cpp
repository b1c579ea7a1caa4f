#include "grammaire.h"

#include <algorithm>
#include <bit>

namespace atelier {
namespace {

template <class Valeur>
struct Nom {
    std::string_view nom;
    Valeur valeur;
};

constexpr std::array nomstemps{
    Nom<Temps>{"infi", infinitif},      Nom<Temps>{"ppre", participepresent},
    Nom<Temps>{"ppas", participepasse}, Nom<Temps>{"ipre", present},
    Nom<Temps>{"iimp", imparfait},      Nom<Temps>{"ipsi", passesimple},
    Nom<Temps>{"ifut", futur},          Nom<Temps>{"cond", conditionnel},
    Nom<Temps>{"spre", subjonctif},     Nom<Temps>{"simp", subjonctifimparfait},
    Nom<Temps>{"impe", imperatif},
};

constexpr std::array nomspersonnes{
    Nom<Personne>{"1sg", je},   Nom<Personne>{"2sg", tu},        Nom<Personne>{"3sg", il},
    Nom<Personne>{"1pl", nous}, Nom<Personne>{"2pl", vous},      Nom<Personne>{"3pl", ils},
    Nom<Personne>{"3pl!", ils}, Nom<Personne>{"1isg", inversee}, Nom<Personne>{"1jsg", inversee},
};

constexpr std::array nomsgenres{
    Nom<Genre>{"mas", Genre::masculin},
    Nom<Genre>{"fem", Genre::feminin},
    Nom<Genre>{"epi", Genre::epicene},
};

constexpr std::array nomsnombres{
    Nom<Nombre>{"sg", Nombre::singulier},
    Nom<Nombre>{"pl", Nombre::pluriel},
    Nom<Nombre>{"inv", Nombre::invariable},
};

template <class Table>
auto chercher(const Table& table, std::string_view nom) {
    const auto trouve =
        std::find_if(table.begin(), table.end(), [&](const auto& n) { return n.nom == nom; });
    return trouve == table.end() ? nullptr : &*trouve;
}

/// Tenses that have six persons, in the order of their cells.
constexpr std::array sixpersonnes{present,      imparfait,  passesimple,        futur,
                                  conditionnel, subjonctif, subjonctifimparfait};
constexpr std::uint8_t toutes = je | tu | il | nous | vous | ils;

}  // namespace

bool Traits::lire(std::string_view champ) {
    constexpr std::size_t prefixe = 3;  // "po:", "is:"
    if (champ.size() <= prefixe)
        return false;
    const auto nom = champ.substr(prefixe);
    if (const auto* t = chercher(nomstemps, nom)) {
        temps |= t->valeur;
        return true;
    }
    if (const auto* p = chercher(nomspersonnes, nom)) {
        personnes |= p->valeur;
        return true;
    }
    if (const auto* g = chercher(nomsgenres, nom)) {
        if (genre == Genre::aucun)
            genre = g->valeur;
        return true;
    }
    if (const auto* n = chercher(nomsnombres, nom)) {
        if (nombre == Nombre::aucun)
            nombre = n->valeur;
        return true;
    }
    return false;
}

Traits Traits::completes(const Traits& autre) const {
    Traits somme = *this;
    somme.temps |= autre.temps;
    somme.personnes |= autre.personnes;
    if (genre == Genre::aucun)
        somme.genre = autre.genre;
    if (nombre == Nombre::aucun)
        somme.nombre = autre.nombre;
    return somme;
}

std::uint64_t cases(const Traits& traits) {
    std::uint64_t remplies = traits.temps & (infinitif | participepresent | participepasse);
    unsigned debut = 3;
    const std::uint64_t qui = traits.personnes & toutes;
    for (const auto t : sixpersonnes) {
        if ((traits.temps & t) != 0)
            remplies |= qui << debut;
        debut += 6;
    }
    if ((traits.temps & imperatif) != 0) {
        if ((traits.personnes & tu) != 0)
            remplies |= 1ULL << debut;
        if ((traits.personnes & nous) != 0)
            remplies |= 2ULL << debut;
        if ((traits.personnes & vous) != 0)
            remplies |= 4ULL << debut;
    }
    return remplies;
}

bool lirecode(std::string_view valeur, CodeVerbe& code) {
    if (valeur.size() < 5 || valeur[0] != 'v' || valeur[1] < '0' || valeur[1] > '3')
        return false;
    code.groupe = valeur[1];
    code.transitif = valeur[4] == 't';
    code.decrit = !valeur.ends_with("zz");
    return true;
}

}  // namespace atelier
