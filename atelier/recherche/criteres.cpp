#include "criteres.h"

#include <algorithm>
#include <limits>
#include <set>

#include "listes.h"
#include "motif.h"
#include "nouveautes.h"
#include "valeurs.h"

namespace recherche {
namespace {

using atelier::longueurmax;
using atelier::longueurmin;

constexpr Plage longueurs{longueurmin, longueurmax};
constexpr Plage poidspossibles{0, 9 * longueurmax};
constexpr Plage voyellespossibles{0, longueurmax};
constexpr Plage anagrammespossibles{1, 1'000'000'000};
constexpr Plage parpossibles{1, common::solutionsmulti};
/// Letters that nobody types more of, so that a whole file is no value.
constexpr std::size_t lettresmax = 100;

/// Fills the search from a value.
using Lire = void (*)(std::string_view valeur, const Contexte& contexte, Demande& demande);

struct Cle {
    std::string_view nom;
    Lire lire;
    bool filtre;  ///< may be given more than once
};

template <class Valeur>
void plagede(std::string_view valeur, const Plage& bornes, Demande& demande, Valeur de) {
    demande.criteres.emplace_back([p = plage(valeur, bornes), de](const Fiche& f, std::uint32_t) {
        return p.contient(de(f));
    });
}

void longueur(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    plagede(valeur, longueurs, demande, [](const Fiche& f) { return f.mot.taille(); });
}

void poids(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    plagede(valeur, poidspossibles, demande, [](const Fiche& f) { return f.poids; });
}

void voyelles(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    plagede(valeur, voyellespossibles, demande, [](const Fiche& f) { return f.voyelles; });
}

void anagrammes(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    plagede(valeur, anagrammespossibles, demande, [](const Fiche& f) { return f.anagrammes; });
}

/// Letters and jokers, so many that a word can come of them.
Reserve reserve(std::string_view valeur, std::size_t max) {
    const auto lettres = capitales(valeur, "?");
    if (lettres.size() < longueurmin || lettres.size() > max)
        throw Ennui("on attend de " + std::to_string(longueurmin) + " à " + std::to_string(max) +
                    " lettres, et non " + std::to_string(lettres.size()));
    return Reserve(lettres);
}

void lettres(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.criteres.emplace_back(
        [r = reserve(valeur, longueurmax)](const Fiche& f, std::uint32_t) {
            return f.mot.taille() == r.taille() && r.fait(f);
        });
}

void parmi(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.criteres.emplace_back([r = reserve(valeur, lettresmax)](const Fiche& f, std::uint32_t) {
        return f.mot.taille() <= r.taille() && r.fait(f);
    });
}

void motif(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    std::string ennui;
    const Motif lu(capitales(valeur, "?*[]^"), ennui);
    if (!ennui.empty())
        throw Ennui(ennui);
    demande.criteres.emplace_back(
        [lu](const Fiche& f, std::uint32_t) { return lu.convient(f.texte()); });
}

/// Letters that follow one another in a word.
std::string suite(std::string_view valeur) {
    auto lettres = capitales(valeur);
    if (lettres.size() > longueurmax)
        throw Ennui(entreguillemets(valeur) + " est plus long que tout mot ; la limite est de " +
                    std::to_string(longueurmax) + " lettres");
    return lettres;
}

void debut(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.criteres.emplace_back(
        [s = suite(valeur)](const Fiche& f, std::uint32_t) { return f.texte().starts_with(s); });
}

void fin(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.criteres.emplace_back(
        [s = suite(valeur)](const Fiche& f, std::uint32_t) { return f.texte().ends_with(s); });
}

/// The word holds the run, or does not.
void suites(std::string_view valeur, bool dedans, Demande& demande) {
    for (const auto element : liste(valeur)) {
        const auto s = suite(element);
        std::uint32_t bits = 0;
        for (const char lettre : s)
            bits |= bitlettre(lettre);
        demande.criteres.emplace_back([s, bits, dedans](const Fiche& f, std::uint32_t) {
            const bool tient =
                (bits & ~f.lettres) == 0 && f.texte().find(s) != std::string_view::npos;
            return tient == dedans;
        });
    }
}

void contient(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    suites(valeur, true, demande);
}

void sans(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    suites(valeur, false, demande);
}

/// The names that a table knows, for a report.
template <class Table>
std::string noms(const Table& table) {
    std::string enligne;
    for (const auto& entree : table)
        enligne.append(enligne.empty() ? "" : ", ").append(entree.nom);
    return enligne;
}

void nature(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    unsigned voulues = 0;
    unsigned exclues = 0;
    for (auto nom : liste(valeur)) {
        const bool nie = nom.starts_with('!');
        if (nie)
            nom.remove_prefix(1);
        const auto* trouvee = std::find_if(natures.begin(), natures.end(),
                                           [&](const Nature& n) { return n.nom == nom; });
        if (trouvee == natures.end()) {
            throw Ennui(entreguillemets(nom) + " n'en est pas une ; on attend " + noms(natures));
        }
        (nie ? exclues : voulues) |= trouvee->bit;
    }
    demande.criteres.emplace_back([voulues, exclues](const Fiche& f, std::uint32_t) {
        return (voulues == 0 || (f.marques & voulues) != 0) && (f.marques & exclues) == 0;
    });
}

/// `oui` or `non`, in lower case: in capitals they are letters.
std::optional<bool> ouiounon(std::string_view valeur) {
    if (valeur == "oui")
        return true;
    if (valeur == "non")
        return false;
    return std::nullopt;
}

void commun(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    const auto voulu = ouiounon(valeur);
    if (!voulu)
        throw Ennui("on attend oui ou non, et non " + entreguillemets(valeur));
    demande.criteres.emplace_back([voulu](const Fiche& f, std::uint32_t) {
        return ((f.marques & bitcommun) != 0) == *voulu;
    });
}

/// The letters in front of a word, or those behind it.
using Cote = decltype(&Fiche::devant);

void rallonge(std::string_view valeur, Cote cote, Demande& demande) {
    const auto voulu = ouiounon(valeur);
    std::uint32_t bits = (1U << 26U) - 1;
    if (!voulu) {
        bits = 0;
        for (const char lettre : capitales(valeur))
            bits |= bitlettre(lettre);
    }
    demande.criteres.emplace_back(
        [bits, cote, vrai = voulu.value_or(true)](const Fiche& f, std::uint32_t) {
            return ((f.*cote & bits) != 0) == vrai;
        });
}

void devant(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    rallonge(valeur, &Fiche::devant, demande);
}

void derriere(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    rallonge(valeur, &Fiche::derriere, demande);
}

/// The word is one of a list's.
void appartenance(std::string_view fichier, bool dedans, const Contexte& contexte,
                  Demande& demande) {
    auto lus = contexte.liste(fichier);
    if (auto* ennui = std::get_if<std::string>(&lus))
        throw Ennui(*ennui);
    std::vector<bool> membres(contexte.glossaire.fiches().size());
    const auto& mots = std::get<std::vector<std::string>>(lus);
    for (const auto& mot : mots) {
        if (const auto place = contexte.glossaire.chercher(mot))
            membres[*place] = true;
    }
    if (mots.empty() && dedans)
        demande.remarques.push_back("La liste " + entreguillemets(fichier) + " est vide.");
    demande.criteres.emplace_back(
        [membres = std::move(membres), dedans](const Fiche& /*f*/, std::uint32_t place) {
            return membres[place] == dedans;
        });
}

/// The file of a list from what the player calls it.
std::string fichierdeliste(std::string_view valeur) {
    constexpr std::string_view extension = ".txt";
    std::string fichier(valeur);
    if (!fichier.ends_with(extension))
        fichier += extension;
    return fichier;
}

void dans(std::string_view valeur, const Contexte& contexte, Demande& demande) {
    appartenance(fichierdeliste(valeur), true, contexte, demande);
}

void pasdans(std::string_view valeur, const Contexte& contexte, Demande& demande) {
    appartenance(fichierdeliste(valeur), false, contexte, demande);
}

void nouveau(std::string_view valeur, const Contexte& contexte, Demande& demande) {
    const auto* edition =
        std::find_if(atelier::editions.begin(), atelier::editions.end(),
                     [&](const atelier::Edition& e) { return e.annee == valeur; });
    if (edition == atelier::editions.end())
        throw Ennui("on attend 2008, 2012 ou 2016, et non " + entreguillemets(valeur));
    appartenance(edition->liste.fichier, true, contexte, demande);
}

template <class Valeur, std::size_t taille>
Valeur parnom(std::string_view valeur,
              const std::array<std::pair<std::string_view, Valeur>, taille>& noms) {
    std::string attendus;
    for (const auto& [nom, sens] : noms) {
        if (nom == valeur)
            return sens;
        attendus.append(attendus.empty() ? "" : ", ").append(nom);
    }
    throw Ennui("on attend " + attendus + ", et non " + entreguillemets(valeur));
}

void ordre(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.ordre = parnom<Ordre, 5>(valeur, {{{"alphabet", Ordre::alphabet},
                                               {"difficulte", Ordre::difficulte},
                                               {"probabilite", Ordre::probabilite},
                                               {"poids", Ordre::poids},
                                               {"hasard", Ordre::hasard}}});
}

void graine(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.graine = nombre(valeur, std::numeric_limits<std::uint64_t>::max());
}

void max(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.max = static_cast<std::size_t>(nombre(valeur, 1'000'000'000));
    if (*demande.max == 0)
        throw Ennui("on attend 1 ou davantage");
}

void forme(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.forme = parnom<Forme, 2>(valeur, {{{"liste", Forme::liste}, {"mots", Forme::mots}}});
}

void par(std::string_view valeur, const Contexte& /*contexte*/, Demande& demande) {
    demande.par = plage(valeur, parpossibles);
}

constexpr std::array lescles{
    Cle{"longueur", longueur, true}, Cle{"lettres", lettres, true},
    Cle{"parmi", parmi, true},       Cle{"motif", motif, true},
    Cle{"debut", debut, true},       Cle{"fin", fin, true},
    Cle{"contient", contient, true}, Cle{"sans", sans, true},
    Cle{"poids", poids, true},       Cle{"voyelles", voyelles, true},
    Cle{"nature", nature, true},     Cle{"anagrammes", anagrammes, true},
    Cle{"commun", commun, true},     Cle{"devant", devant, true},
    Cle{"derriere", derriere, true}, Cle{"dans", dans, true},
    Cle{"pasdans", pasdans, true},   Cle{"nouveau", nouveau, true},
    Cle{"ordre", ordre, false},      Cle{"graine", graine, false},
    Cle{"max", max, false},          Cle{"forme", forme, false},
    Cle{"par", par, false},
};

constexpr std::string_view blancs = " \t\r\n";

/// Takes the next criterion off the text: up to a blank outside double quotes, which are left out.
std::string prendre(std::string_view& texte) {
    std::string mot;
    bool ouvert = false;
    std::size_t i = 0;
    for (; i < texte.size() && (ouvert || blancs.find(texte[i]) == std::string_view::npos); ++i) {
        if (texte[i] == '"')
            ouvert = !ouvert;
        else
            mot += texte[i];
    }
    texte.remove_prefix(i);
    if (ouvert)
        throw Ennui("il manque un guillemet fermant");
    return mot;
}

class Lecteur {
  public:
    explicit Lecteur(const Contexte& contexte) : contexte_(contexte) {}

    std::variant<Demande, Refus> lire(std::string_view texte) {
        try {
            while (true) {
                texte.remove_prefix(std::min(texte.find_first_not_of(blancs), texte.size()));
                if (texte.empty())
                    break;
                nom_ = std::string(texte.substr(0, texte.find_first_of(" \t\r\n=")));
                critere(prendre(texte));
            }
            nom_ = "graine";
            if (demande_.graine && demande_.ordre != Ordre::hasard)
                throw Ennui("elle ne sert qu'avec ordre=hasard");
        } catch (const Ennui& ennui) {
            return Refus{nom_, ennui.what()};
        }
        return std::move(demande_);
    }

  private:
    void critere(const std::string& mot) {
        const auto egal = mot.find('=');
        nom_ = mot.substr(0, egal);
        const auto* cle = std::find_if(lescles.begin(), lescles.end(),
                                       [&](const Cle& c) { return c.nom == nom_; });
        if (cle == lescles.end()) {
            throw Ennui("critère inconnu ; on attend " + noms(lescles));
        }
        if (egal == std::string::npos || egal + 1 == mot.size())
            throw Ennui("il manque une valeur ; on attend " + nom_ + "=...");
        if (!cle->filtre && !vus_.insert(nom_).second)
            throw Ennui("donné deux fois");
        cle->lire(std::string_view(mot).substr(egal + 1), contexte_, demande_);
    }

    const Contexte& contexte_;
    Demande demande_;
    std::string nom_;
    std::set<std::string> vus_;
};

}  // namespace

std::variant<Demande, Refus> liredemande(std::string_view texte, const Contexte& contexte) {
    return Lecteur(contexte).lire(texte);
}

std::vector<std::string_view> cles() {
    std::vector<std::string_view> noms;
    for (const auto& cle : lescles)
        noms.push_back(cle.nom);
    return noms;
}

}  // namespace recherche
