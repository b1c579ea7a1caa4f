#include "lexique.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <optional>
#include <unordered_map>

#include "annexe.h"
#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"

namespace atelier {
namespace {

constexpr std::string_view actionlexique = "Lecture du lexique";

/// A dictionary may hold this share fewer entries than its first line says before it counts as cut.
constexpr std::size_t tolerance = 100;
constexpr std::size_t formesprevues = 700000;
constexpr int casesmanquantes = 12;

/// Kinds of entry that give no word of the game when the entry is nothing else.
constexpr std::array horsjeu = std::to_array<std::string_view>(
    {"npr", "prn", "patr", "nbro", "pfx", "sfx", "err", "sign", "ponc", "div"});
/// Kinds that rule an entry out whatever else it is.
constexpr std::array proscrits = std::to_array<std::string_view>({"err", "sfx"});

/// The multiples of units of measure that players meet, and the units that take them.
constexpr std::array multiples = std::to_array<std::string_view>(
    {"déca", "déci", "centi", "milli", "kilo", "hecto", "micro", "nano", "méga", "giga"});
constexpr std::array unitesmultipliees =
    std::to_array<std::string_view>({"GRAMME", "LITRE", "METRE", "WATT", "VOLT", "HERTZ", "AMPERE",
                                     "CALORIE", "SECONDE", "WATTHEURE", "PASCAL", "JOULE"});

template <class Table>
bool contient(const Table& table, std::string_view valeur) {
    return std::find(table.begin(), table.end(), valeur) != table.end();
}

/// Cuts a flag of two characters off a run of flags; false if less than two are left.
bool couperdrapeau(std::string_view& drapeaux, std::string_view& drapeau) {
    std::size_t octets = 0;
    for (int i = 0; i < 2; ++i) {
        if (octets >= drapeaux.size())
            return false;
        ++octets;
        while (octets < drapeaux.size() &&
               (static_cast<unsigned char>(drapeaux[octets]) & 0xC0U) == 0x80U)
            ++octets;
    }
    drapeau = drapeaux.substr(0, octets);
    drapeaux.remove_prefix(octets);
    return true;
}

/// A line of the dictionary, read.
struct Entree {
    std::string_view mot;
    std::u32string points;
    std::string capitales;
    std::array<std::string_view, 16> drapeaux{};
    std::size_t nombredrapeaux = 0;
    Traits traits;
    Nature nature = Nature::autre;
    CodeVerbe code;
    bool seule = true;           ///< the entry itself is a form
    bool infinitifseul = false;  ///< the source knows the verb by its infinitive alone
};

class LecteurLexique {
  public:
    LecteurLexique(std::string_view texte, std::string_view chemin, const Affixes& affixes,
                   const Thesaurus& thesaurus, const Retouches& retouches)
        : lignes_(texte),
          chemin_(chemin),
          affixes_(affixes),
          thesaurus_(thesaurus),
          retouches_(retouches) {}

    Lexique lire() {
        const auto annoncees = lireentete();
        lexique_.formes.reserve(formesprevues);
        numeros_.reserve(std::min(annoncees, formesprevues));  // the announcement may be anything
        std::string_view ligne;
        std::size_t lues = 0;
        for (; lignes_.suivante(ligne); ++lues) {
            if (ligne.empty())
                continue;
            if (const auto entree = lireentree(ligne)) {
                expanser(*entree);
                retenirmodele(*entree);
            }
        }
        if (lues + annoncees / tolerance < annoncees)
            faute("le fichier est coupé : il annonce " + std::to_string(annoncees) +
                  " entrées et en a " + std::to_string(lues));
        if (lexique_.formes.empty())
            faute("aucun mot jouable");
        completer();
        return std::move(lexique_);
    }

  private:
    [[noreturn]] void faute(const std::string& ennui) const {
        throw common::Faute(common::rapportligne(actionlexique, chemin_, lignes_.numero(), ennui));
    }

    std::size_t lireentete() {
        std::string_view ligne;
        std::size_t nombre = 0;
        if (!lignes_.suivante(ligne))
            faute("le fichier est vide");
        const auto lu = std::from_chars(ligne.data(), ligne.data() + ligne.size(), nombre);
        if (lu.ec != std::errc() || lu.ptr != ligne.data() + ligne.size())
            faute("on attend le nombre des entrées");
        return nombre;
    }

    /// The entry of a line; nothing if the game has no use for it.
    std::optional<Entree> lireentree(std::string_view ligne) {
        const Mots mots(ligne);
        if (mots.coupes())
            faute("l'entrée a trop de champs ; la limite est de " + std::to_string(Mots::limite));
        const auto tete = mots[0];
        const auto barre = tete.find('/');
        Entree entree;
        entree.mot = tete.substr(0, barre);
        const auto lu = points(entree.mot);
        if (!lu)
            faute("le texte n'est pas en UTF-8");
        auto capitales = encapitales(*lu);
        if (!capitales)
            return std::nullopt;
        entree.points = *lu;
        entree.capitales = std::move(*capitales);
        auto drapeaux =
            barre == std::string_view::npos ? std::string_view() : tete.substr(barre + 1);
        if (!liredrapeaux(drapeaux, entree) || !lirechamps(mots, entree))
            return std::nullopt;
        if (retouches_.ecarte(entree.mot, entree.nature))
            return std::nullopt;
        if (entree.infinitifseul && thesaurus_.frequence(entree.mot) == 0)
            return std::nullopt;
        return entree;
    }

    /// False for a unit symbol.
    bool liredrapeaux(std::string_view drapeaux, Entree& entree) const {
        std::string_view drapeau;
        while (!drapeaux.empty()) {
            if (!couperdrapeau(drapeaux, drapeau))
                faute("un drapeau n'a qu'un caractère");
            if (!affixes_.connait(drapeau))
                faute("les affixes ne définissent pas le drapeau « " + std::string(drapeau) + " »");
            if (drapeau == drapeaucasse)
                return false;
            if (drapeau == drapeausansforme)
                entree.seule = false;
            else if (entree.nombredrapeaux == entree.drapeaux.size())
                faute("l'entrée a trop de drapeaux ; la limite est de " +
                      std::to_string(entree.drapeaux.size()));
            else
                entree.drapeaux[entree.nombredrapeaux++] = drapeau;
        }
        return true;
    }

    /// False for an entry that gives no word of the game.
    static bool lirechamps(const Mots& mots, Entree& entree) {
        bool utile = false;
        bool nom = false;
        bool adjectif = false;
        bool verbe = false;
        bool locution = false;
        bool horslocution = false;
        for (std::size_t i = 1; i < mots.nombre(); ++i) {
            entree.traits.lire(mots[i]);
            if (!mots[i].starts_with("po:"))
                continue;
            const auto valeur = mots[i].substr(3);
            if (contient(proscrits, valeur))
                return false;
            utile = utile || !contient(horsjeu, valeur);
            nom = nom || valeur == "nom";
            adjectif = adjectif || valeur == "adj";
            verbe = lirecode(valeur, entree.code) || verbe;
            entree.infinitifseul = entree.infinitifseul || valeur == "infi";
            if (valeur.starts_with("loc."))
                locution = true;
            else if (valeur != "mg")
                horslocution = true;
        }
        if (!utile)
            return false;
        if (locution && !horslocution && !admisenlocution(entree.capitales))
            return false;
        entree.nature = nom        ? Nature::nom
                        : adjectif ? Nature::adjectif
                        : verbe    ? Nature::verbe
                                   : Nature::autre;
        return true;
    }

    std::uint32_t lemme(std::string_view texte, std::string_view capitales) {
        const auto [place, nouveau] =
            numeros_.try_emplace(std::string(texte), static_cast<std::uint32_t>(numeros_.size()));
        if (nouveau) {
            auto& cree = lexique_.lemmes.emplace_back();
            cree.texte = texte;
            cree.capitales = capitales;
            cree.frequence = thesaurus_.frequence(texte);
            cree.injurieux = retouches_.injurieux(texte);
        }
        return place->second;
    }

    void expanser(const Entree& entree) {
        const auto numero = lemme(entree.mot, entree.capitales);
        if (entree.seule)
            ajouter(entree, numero, entree.capitales, entree.traits);
        std::string forme;
        for (std::size_t i = 0; i < entree.nombredrapeaux; ++i) {
            const auto drapeau = entree.drapeaux[i];
            if (drapeau == drapeauunite || drapeau == drapeauunitefixe)
                expanserunite(entree, drapeau == drapeauunite);
            for (const auto& regle : affixes_.suffixes(drapeau)) {
                if (!entree.points.ends_with(regle.retrait) ||
                    !regle.condition.convient(entree.points))
                    continue;
                const auto retrait = encapitales(regle.retrait)->size();
                forme.assign(entree.capitales, 0, entree.capitales.size() - retrait);
                forme += regle.ajout;
                ajouter(entree, numero, forme, regle.traits.completes(entree.traits));
            }
        }
    }

    void retenirmodele(const Entree& entree) {
        if (entree.nature == Nature::verbe && retouches_.modele(entree.mot))
            modeles_.try_emplace(std::string(entree.mot), entree);
    }

    /// Adds the words that the source lacks.
    void completer() {
        for (const auto& ajout : retouches_.ajouts()) {
            if (ajout.modele.empty())
                ajoutermot(ajout);
            else
                conjuguer(ajout);
        }
    }

    void ajoutermot(const Ajout& ajout) {
        Entree entree;
        entree.nature = ajout.nature;
        const auto numero = lemme(ajout.mot, *encapitales(ajout.mot));
        for (const auto& forme : ajout.formes) {
            Traits traits;
            traits.nombre = forme.nombre;
            ajouter(entree, numero, forme.capitales, traits);
        }
    }

    void conjuguer(const Ajout& ajout) {
        const auto modele = modeles_.find(ajout.modele);
        if (modele == modeles_.end())
            throw common::Faute(common::rapportligne(
                actionlexique, fichierajouts, ajout.ligne,
                "« " + ajout.modele + " » n'est pas un verbe du lexique « " + chemin_ + " »"));
        auto entree = modele->second;
        entree.mot = ajout.mot;
        entree.points = *points(ajout.mot);
        entree.capitales = *encapitales(ajout.mot);
        expanser(entree);
    }

    /// A unit of measure and its multiples, which the source makes by prefixes.
    void expanserunite(const Entree& entree, bool variable) {
        ajouterunite(entree, entree.mot, entree.capitales, variable);
        if (!contient(unitesmultipliees, entree.capitales))
            return;
        for (const auto multiple : multiples) {
            ajouterunite(entree, std::string(multiple) + std::string(entree.mot),
                         *encapitales(multiple) + entree.capitales, variable);
        }
    }

    void ajouterunite(const Entree& entree, std::string_view mot, const std::string& capitales,
                      bool variable) {
        const auto numero = lemme(mot, capitales);
        auto traits = entree.traits;
        traits.nombre = variable ? Nombre::singulier : Nombre::invariable;
        ajouter(entree, numero, capitales, traits);
        if (!variable)
            return;
        traits.nombre = Nombre::pluriel;
        ajouter(entree, numero, capitales + "S", traits);
    }

    void ajouter(const Entree& entree, std::uint32_t numero, std::string_view forme,
                 const Traits& traits) {
        // Persons that stand only before their pronoun make no word.
        if (traits.personnes == inversee && (traits.temps & (infinitif | participepasse)) == 0)
            return;
        auto& lemme = lexique_.lemmes[numero];
        if (retouches_.refuse(lemme.texte, forme))
            return;
        ++lexique_.expansees;
        if (entree.nature == Nature::verbe) {
            lemme.cases |= cases(traits);
            const bool passe = (traits.temps & participepasse) != 0;
            lemme.participe = lemme.participe || passe;
            lemme.participevarie =
                lemme.participevarie || (passe && traits.nombre != Nombre::invariable);
        }
        if (forme.size() < longueurmin || forme.size() > longueurmax)
            return;
        lexique_.formes.push_back({Capitales(forme), {numero, traits, entree.nature, entree.code}});
    }

    LignesTexte lignes_;
    std::string chemin_;
    const Affixes& affixes_;
    const Thesaurus& thesaurus_;
    const Retouches& retouches_;
    Lexique lexique_;
    std::unordered_map<std::string, Entree> modeles_;
    std::unordered_map<std::string, std::uint32_t> numeros_;
};

}  // namespace

std::uint64_t Lemme::manquantes() const {
    return ~cases & ((1ULL << nombredecases) - 1);
}

bool Lemme::defectif() const {
    return std::popcount(manquantes()) >= casesmanquantes;
}

Lexique lirelexique(std::string_view texte, std::string_view chemin, const Affixes& affixes,
                    const Thesaurus& thesaurus, const Retouches& retouches) {
    return LecteurLexique(texte, chemin, affixes, thesaurus, retouches).lire();
}

}  // namespace atelier
