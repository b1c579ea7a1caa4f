#include "catalogue.h"

#include <algorithm>
#include <array>

#include "listes.h"
#include "listes_autres.h"
#include "listes_bases.h"
#include "listes_multiples.h"
#include "listes_uniques.h"
#include "partage.h"
#include "tableau.h"

namespace menu {
namespace {

constexpr std::array lespanneaux{
    Panneau{
        .cle = "bt",
        .bouton = {"Command1", -1, "BASES TECHNIQUES"},
        .rangees = listes::bt,
        .partiesserrees = true,
    },
    Panneau{
        .cle = "ta",
        .bouton = {"Command2", -1, "TECHNIQUE APPROFONDIE"},
        .rangees = listes::ta,
    },
    Panneau{
        .cle = "conja",
        .bouton = {"Command7", 0, "Conjugaisons et 1 seul non conjugué", Groupe::uniques, 3510},
        .rangees = listes::conja,
    },
    Panneau{
        .cle = "6",
        .bouton = {"Command7", 1, "6 lettres", Groupe::uniques, 1350},
        .rangees = listes::six,
        .total = true,
        .aide = "Les mots de 6 lettres uniques, pouvant scrabbler.\nDonc par exemple pas "
                "ACINUS.\nPeuvent comporter quelques exceptions.",
    },
    Panneau{
        .cle = "7",
        .bouton = {"Command7", 2, "7 lettres", Groupe::uniques, 1350},
        .rangees = listes::sept,
        .total = true,
        .aide =
            "Les mots de 7 lettres permettent des scrabbles secs, il \"suffit\" de leur trouver "
            "une place sur la grille.",
    },
    Panneau{
        .cle = "8",
        .bouton = {"Command7", 3, "8 lettres", Groupe::uniques, 1350},
        .rangees = listes::huit,
        .total = true,
        .aide = "Les mots de 8 lettres utilisent une lettre de la grille, ce sont des scrabbles "
                "\"en appui\".\nCe sont les plus nombreux et en moyenne les plus difficiles.",
    },
    Panneau{
        .cle = "78lca",
        .bouton = {"Command8", -1, "poids < 12", Groupe::chere, 1470},
        .rangees = listes::lc78a,
        .total = true,
    },
    Panneau{
        .cle = "78lcb",
        .bouton = {"Command9", -1, "poids > 11", Groupe::chere, 1470},
        .rangees = listes::lc78b,
        .total = true,
    },
    Panneau{
        .cle = "duos7",
        .bouton = {"Command7", 5, "Duos 7 lettres", Groupe::multiples, 2340},
        .rangees = listes::duos7,
        .total = true,
        .etape = 1,
    },
    Panneau{
        .cle = "duos8",
        .bouton = {"Command7", 6, "Duos 8 lettres", Groupe::multiples, 2340},
        .rangees = listes::duos8,
        .total = true,
        .etape = 1,
    },
    Panneau{
        .cle = "trios",
        .bouton = {"Command7", 7, "Trios 7 et 8 L", Groupe::multiples, 2340},
        .rangees = listes::trios,
        .total = true,
        .etape = 2,
    },
    Panneau{
        .cle = "quatquin",
        .bouton = {"Command7", 8, "Quatuors et plus  7 et 8 L", Groupe::multiples, 3510},
        .rangees = listes::quatquin,
        .total = true,
        .etape = 3,
        .images = true,
    },
    Panneau{
        .cle = "conjm",
        .bouton = {"Command7", 9, "Conjugaisons", Groupe::multiples, 2610},
        .rangees = listes::conjm,
        .total = true,
        .etape = 4,
    },
    Panneau{
        .cle = "formdif",
        .bouton = {"Command15", 0, "Formations difficiles", Groupe::autres, 4440},
        .rangees = listes::formdif,
    },
    Panneau{
        .cle = "rallong",
        .bouton = {"Command15", 1, "Rallonges d'une lettre", Groupe::autres, 4440},
        .rangees = listes::rallong,
        .typ = common::typrallonges,
        .aide = listes::rallonges,
        .nombredecale = true,
    },
    Panneau{
        .cle = "autres",
        .bouton = {"Command15", 2, "Listes diverses", Groupe::autres, 4440},
        .rangees = listes::autres,
        .personnel = true,
    },
};

constexpr std::array groupes{
    Boutondegroupe{{"Command3", -1, "SCRABBLES UNIQUES"}, Groupe::uniques},
    Boutondegroupe{{"Command4", -1, "SCRABBLES MULTIPLES"}, Groupe::multiples},
    Boutondegroupe{{"Command5", -1, "AUTRES LISTES"}, Groupe::autres},
    Boutondegroupe{{"Command7", 4, "Lettre chère   7 et 8 L", Groupe::uniques, 2460},
                   Groupe::chere},
};

/// Most rows of a panel that have a badge.
constexpr std::size_t insignes(Insigne insigne) {
    std::size_t plus = 0;
    for (const auto& p : lespanneaux) {
        const auto nombre = std::count_if(p.rangees.begin(), p.rangees.end(),
                                          [&](const Rangee& r) { return r.insigne == insigne; });
        plus = std::max(plus, static_cast<std::size_t>(nombre));
    }
    return plus;
}

constexpr bool tient(const Rangee& rangee) {
    return rangee.parties <= nbparties && rangee.parties != 1 && rangee.solutions >= 1 &&
           rangee.solutions <= common::solutionsmulti;
}

constexpr bool tient(const Panneau& p) {
    constexpr auto rangeetient = [](const Rangee& rangee) { return tient(rangee); };
    const auto lignes = p.personnel ? rangeepersonnelle : nblignes;
    const bool juste = !p.personnel || p.rangees.size() == lignes;
    return juste && p.rangees.size() <= lignes && p.etape < nbetapes &&
           std::all_of(p.rangees.begin(), p.rangees.end(), rangeetient);
}

static_assert(insignes(Insigne::verbe) <= nbverbes, "a panel has more verb rows than badges");
static_assert(insignes(Insigne::chere) <= nbcheres, "a panel has more high-value rows than badges");
static_assert(std::all_of(lespanneaux.begin(), lespanneaux.end(),
                          [](const Panneau& p) { return tient(p); }),
              "a panel has more rows, or a row other parts, than the menu can show");

}  // namespace

std::span<const Panneau> panneaux() {
    return lespanneaux;
}

const Panneau* panneau(std::string_view cle) {
    const auto* trouve = std::find_if(lespanneaux.begin(), lespanneaux.end(),
                                      [&](const Panneau& p) { return p.cle == cle; });
    return trouve == lespanneaux.end() ? nullptr : trouve;
}

const Rangee* rangeedefichier(std::string_view fichier) {
    for (const auto& p : lespanneaux) {
        for (const auto& rangee : p.rangees) {
            bool trouvee = rangee.fichier == fichier;
            for (std::size_t i = 0; i < rangee.parties && !trouvee; ++i)
                trouvee = fichierdepartie(rangee.fichier, i) == fichier;
            if (trouvee)
                return &rangee;
        }
    }
    return nullptr;
}

std::span<const Boutondegroupe> boutonsdegroupe() {
    return groupes;
}

char lettredepartie(std::size_t partie) {
    return "abcd"[partie];
}

std::string fichierdepartie(std::string_view fichier, std::size_t partie) {
    const auto point = fichier.rfind('.');
    return std::string(fichier.substr(0, point)) + '_' + lettredepartie(partie) +
           std::string(fichier.substr(point));
}

std::vector<std::string> fichiersfixes() {
    std::vector<std::string> noms;
    for (const auto& p : lespanneaux) {
        for (const auto& rangee : p.rangees) {
            noms.emplace_back(rangee.fichier);
            for (std::size_t i = 0; i < rangee.parties; ++i)
                noms.push_back(fichierdepartie(rangee.fichier, i));
        }
    }
    return noms;
}

}  // namespace menu
