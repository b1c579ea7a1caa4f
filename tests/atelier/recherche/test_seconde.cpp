// The search against a second one, plain and slow, for thousands of searches drawn by chance.

#include <algorithm>
#include <functional>
#include <map>
#include <random>
#include <set>

#include <gmock/gmock.h>

#include "invariables.h"
#include "petitglossaire.h"

namespace test_seconde {
namespace {

using namespace recherche;
using Mots = std::vector<std::string>;

constexpr std::size_t essaisparcritere = 120;
constexpr std::size_t essaisensemble = 1000;
constexpr std::string_view alphabetdessai = "AEILNRSTUZ";

std::string trie(std::string mot) {
    std::sort(mot.begin(), mot.end());
    return mot;
}

/// Words by chance on few letters, so that many are anagrams or extensions of one another.
std::string lignesauhasard() {
    std::mt19937 hasard(20240611);
    std::set<std::string> bases;
    while (bases.size() < 500) {
        std::string mot;
        for (auto taille = 2 + hasard() % 6; taille > 0; --taille)
            mot += static_cast<char>(alphabetdessai[hasard() % 10] - 'A' + 'a');
        bases.insert(mot);
    }
    std::string lignes;
    for (const auto& mot : bases) {
        switch (hasard() % 4) {
            case 0:
                lignes += mot + " po:adv\n";
                break;
            case 1:
                lignes += mot + "er/a0p+() po:v1_it____a\n";
                break;
            default:
                lignes += mot + "/S.() po:nom is:mas\n";
        }
    }
    return lignes;
}

/// Every seventh word or so has a synonym.
std::string thesaurusauhasard(const std::string& lignes) {
    std::string texte = "UTF-8\n";
    for (std::size_t debut = 0; debut < lignes.size(); debut = lignes.find('\n', debut) + 1) {
        const auto mot = lignes.substr(debut, lignes.find_first_of("/ ", debut) - debut);
        if (mot.front() == 'a' || mot.back() == 't')
            texte += mot + "|1\n(Nom)|chose\n";
    }
    return texte;
}

class Seconde {
  public:
    Seconde()
        : v_(essais::vocabulaire(lignesauhasard(),
                                 atelier::Thesaurus(thesaurusauhasard(lignesauhasard()), "t.dat"))),
          difficulte_(v_),
          glossaire_(v_, difficulte_) {
        for (const auto& mot : v_.mots()) {
            mots_.emplace_back(mot.texte());
            ++anagrammes_[trie(mots_.back())];
        }
        std::sort(mots_.begin(), mots_.end());
        connus_.insert(mots_.begin(), mots_.end());
        std::mt19937 hasard(5);
        for (const auto& mot : mots_) {
            if (hasard() % 5 == 0)
                listes_["une.txt"].push_back(mot);
            if (hasard() % 9 == 0)
                listes_["ods6.txt"].push_back(mot);
        }
    }

    using Predicat = std::function<bool(const std::string&)>;
    struct Critere {
        std::string texte;
        Predicat passe;
    };

    [[nodiscard]] const Glossaire& glossaire() const { return glossaire_; }
    [[nodiscard]] const essais::Listes& listes() const { return listes_; }
    [[nodiscard]] const Mots& mots() const { return mots_; }
    [[nodiscard]] const atelier::Vocabulaire& v() const { return v_; }
    [[nodiscard]] std::size_t anagrammes(const std::string& mot) const {
        return anagrammes_.at(trie(mot));
    }
    [[nodiscard]] bool existe(const std::string& mot) const { return connus_.contains(mot); }
    [[nodiscard]] int difficulte(const std::string& mot) const {
        return difficulte_.de(*v_.chercher(mot));
    }

  private:
    atelier::Vocabulaire v_;
    atelier::Difficulte difficulte_;
    Glossaire glossaire_;
    Mots mots_;
    std::set<std::string> connus_;
    std::map<std::string, std::size_t> anagrammes_;
    essais::Listes listes_;
};

const Seconde& seconde() {
    static const Seconde s;
    return s;
}

/// Draws criteria.
class Tireur {
  public:
    explicit Tireur(std::uint32_t graine) : hasard_(graine) {}

    std::size_t nombre(std::size_t bornes) { return hasard_() % bornes; }
    bool pile() { return nombre(2) == 0; }

    std::string lettres(std::size_t taille) {
        std::string texte;
        for (std::size_t i = 0; i < taille; ++i)
            texte += alphabetdessai[nombre(alphabetdessai.size())];
        return texte;
    }
    const std::string& mot() { return seconde().mots()[nombre(seconde().mots().size())]; }

    /// A range as a text and its ends.
    std::pair<std::string, std::pair<std::size_t, std::size_t>> plage(std::size_t min,
                                                                      std::size_t max) {
        const auto a = min + nombre(max - min + 1);
        const auto b = a + nombre(3);
        return {pile() ? std::to_string(a) + '-' + std::to_string(b) : std::to_string(a), {a, b}};
    }
    Seconde::Critere mesure(const std::string& cle, std::size_t min, std::size_t max,
                            const std::function<std::size_t(const std::string&)>& de) {
        auto [texte, bornes] = plage(min, max);
        if (texte.find('-') == std::string::npos)
            bornes.second = bornes.first;
        return {cle + '=' + texte, [bornes = bornes, de](const std::string& m) {
                    return de(m) >= bornes.first && de(m) <= bornes.second;
                }};
    }
    Seconde::Critere critere(std::size_t sorte);

  private:
    std::mt19937 hasard_;
};

constexpr std::size_t sortes = 17;

std::size_t poids(const std::string& mot) {
    std::size_t total = 0;
    for (const char lettre : mot)
        total += lettre == 'Z' ? 9 : 0;  // the other letters of the test are worth one point
    return total;
}

std::size_t voyelles(const std::string& mot) {
    return static_cast<std::size_t>(std::count_if(mot.begin(), mot.end(), [](char c) {
        return std::string_view("AEIOUY").find(c) != std::string_view::npos;
    }));
}

/// Takes letters off one by one, jokers for what is not there.
bool fait(std::string reserve, const std::string& mot) {
    for (const char lettre : mot) {
        auto place = reserve.find(lettre);
        if (place == std::string::npos)
            place = reserve.find('?');
        if (place == std::string::npos)
            return false;
        reserve.erase(place, 1);
    }
    return true;
}

/// A pattern, one sign after the other.
bool convient(std::string_view motif, std::string_view mot) {
    if (motif.empty())
        return mot.empty();
    if (motif.front() == '*')
        return convient(motif.substr(1), mot) || (!mot.empty() && convient(motif, mot.substr(1)));
    if (mot.empty())
        return false;
    if (motif.front() == '[') {
        const auto fin = motif.find(']');
        auto classe = motif.substr(1, fin - 1);
        const bool sauf = classe.front() == '^';
        if (sauf)
            classe.remove_prefix(1);
        const bool dedans = classe.find(mot.front()) != std::string_view::npos;
        return dedans != sauf && convient(motif.substr(fin + 1), mot.substr(1));
    }
    return (motif.front() == '?' || motif.front() == mot.front()) &&
           convient(motif.substr(1), mot.substr(1));
}

bool est(const std::string& nature, const std::string& mot) {
    const auto& v = seconde().v();
    const auto& m = *v.chercher(mot);
    using atelier::Lecture;
    if (nature == "nom")
        return v.une(m, [](const Lecture& l) { return l.nature == atelier::Nature::nom; });
    if (nature == "infinitif")
        return v.une(m, [](const Lecture& l) { return l.al(atelier::infinitif); });
    if (nature == "participe")
        return v.une(m, [](const Lecture& l) {
            return l.al(atelier::participepresent) || l.al(atelier::participepasse);
        });
    if (nature == "conjugue")
        return v.toutes(m, [](const Lecture& l) { return l.finie(); });
    if (nature == "pluriel")
        return m.plurielevident;
    if (nature == "invariable")
        return atelier::invariable(v, m);
    return m.entree;
}

Seconde::Critere rallonge(Tireur& t, bool devant) {
    const auto* const cle = devant ? "devant=" : "derriere=";
    const auto sur = [devant](const std::string& m, const std::string& lettres) {
        return std::any_of(lettres.begin(), lettres.end(),
                           [&](char c) { return seconde().existe(devant ? c + m : m + c); });
    };
    const std::string toutes = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
    switch (t.nombre(3)) {
        case 0:
            return {cle + std::string("oui"), [=](const auto& m) { return sur(m, toutes); }};
        case 1:
            return {cle + std::string("non"), [=](const auto& m) { return !sur(m, toutes); }};
        default: {
            const auto lettres = t.lettres(1 + t.nombre(3));
            return {cle + lettres, [=](const auto& m) { return sur(m, lettres); }};
        }
    }
}

Seconde::Critere reserve(Tireur& t, bool exacte) {
    auto lettres = exacte ? t.mot() : t.lettres(3 + t.nombre(6));
    for (auto jokers = t.nombre(3); jokers > 0; --jokers)
        lettres[t.nombre(lettres.size())] = '?';
    return {(exacte ? "lettres=" : "parmi=") + lettres, [=](const std::string& m) {
                return fait(lettres, m) && (!exacte || m.size() == lettres.size());
            }};
}

Seconde::Critere motif(Tireur& t) {
    std::string texte;
    for (const char lettre : t.mot()) {
        switch (t.nombre(6)) {
            case 0:
                texte += '*';
                break;
            case 1:
                texte += '?';
                break;
            case 2:
                texte += (t.pile() ? "[^" : "[") + t.lettres(1 + t.nombre(3)) + ']';
                break;
            default:
                texte += lettre;
        }
    }
    if (t.pile())
        texte += '*';
    return {"motif=" + texte, [=](const std::string& m) { return convient(texte, m); }};
}

Seconde::Critere naturedemot(Tireur& t) {
    std::string texte;
    Mots voulues;
    Mots exclues;
    for (auto reste = 1 + t.nombre(3); reste > 0; --reste) {
        const std::string nom(natures.at(t.nombre(natures.size())).nom);
        const bool nie = t.nombre(3) == 0;
        texte += (texte.empty() ? "" : ",") + std::string(nie ? "!" : "") + nom;
        (nie ? exclues : voulues).push_back(nom);
    }
    return {"nature=" + texte, [=](const std::string& m) {
                const auto telle = [&](const std::string& nom) { return est(nom, m); };
                return (voulues.empty() || std::any_of(voulues.begin(), voulues.end(), telle)) &&
                       std::none_of(exclues.begin(), exclues.end(), telle);
            }};
}

Seconde::Critere suites(Tireur& t, bool dedans) {
    const auto a = t.lettres(1 + t.nombre(2));
    const auto b = t.lettres(1);
    const bool deux = t.pile();
    return {(dedans ? "contient=" : "sans=") + a + (deux ? ',' + b : ""),
            [=](const std::string& m) {
                const auto tient = [&](const std::string& s) {
                    return (m.find(s) != std::string::npos) == dedans;
                };
                return tient(a) && (!deux || tient(b));
            }};
}

Seconde::Critere dansliste(const std::string& texte, const std::string& fichier, bool dedans) {
    return {texte, [=](const std::string& m) {
                const auto& liste = seconde().listes().at(fichier);
                return (std::find(liste.begin(), liste.end(), m) != liste.end()) == dedans;
            }};
}

Seconde::Critere Tireur::critere(std::size_t sorte) {
    switch (sorte) {
        case 0:
            return mesure("longueur", 2, 10, [](const std::string& m) { return m.size(); });
        case 1:
            return reserve(*this, true);
        case 2:
            return reserve(*this, false);
        case 3:
            return motif(*this);
        case 4: {
            const auto s = mot().substr(0, 1 + nombre(2));
            return {"debut=" + s, [=](const std::string& m) { return m.rfind(s, 0) == 0; }};
        }
        case 5: {
            const auto s = lettres(1 + nombre(2));
            return {"fin=" + s, [=](const std::string& m) {
                        return m.size() >= s.size() && m.substr(m.size() - s.size()) == s;
                    }};
        }
        case 6:
            return suites(*this, true);
        case 7:
            return suites(*this, false);
        case 8:
            return mesure("poids", 0, 18, poids);
        case 9:
            return mesure("voyelles", 0, 5, voyelles);
        case 10:
            return naturedemot(*this);
        case 11:
            return mesure("anagrammes", 1, 4,
                          [](const std::string& m) { return seconde().anagrammes(m); });
        case 12: {
            const bool oui = pile();
            return {oui ? "commun=oui" : "commun=non", [=](const std::string& m) {
                        return (seconde().v().chercher(m)->frequence > 0) == oui;
                    }};
        }
        case 13:
            return rallonge(*this, true);
        case 14:
            return rallonge(*this, false);
        case 15:
            return pile() ? dansliste("dans=une", "une.txt", true)
                          : dansliste("pasdans=une.txt", "une.txt", false);
        default:
            return dansliste("nouveau=2012", "ods6.txt", true);
    }
}

/// Ways to take the letters of a word from the bag, letter by letter of the alphabet.
std::uint64_t facons(const std::string& mot) {
    static const std::map<char, unsigned> sac{{'A', 9}, {'E', 15}, {'I', 8}, {'L', 5},
                                              {'N', 6}, {'R', 6},  {'S', 6}, {'T', 6},
                                              {'U', 6}, {'Z', 1},  {'O', 6}};
    const std::function<std::uint64_t(unsigned, unsigned)> choix = [&](unsigned n, unsigned k) {
        if (k == 0)
            return std::uint64_t{1};
        return n == 0 ? std::uint64_t{0} : choix(n - 1, k) + choix(n - 1, k - 1);
    };
    std::uint64_t nombre = 1;
    for (const auto& [lettre, tuiles] : sac)
        nombre *= choix(tuiles, static_cast<unsigned>(std::count(mot.begin(), mot.end(), lettre)));
    return nombre;
}

/// The words that pass, ordered and cut.
Mots lentement(const std::vector<Seconde::Critere>& criteres, std::size_t ordre, std::size_t max) {
    Mots passent;
    for (const auto& mot : seconde().mots()) {
        if (std::all_of(criteres.begin(), criteres.end(),
                        [&](const auto& c) { return c.passe(mot); }))
            passent.push_back(mot);
    }
    const auto descendre = [&](const auto& mesure) {
        std::stable_sort(passent.begin(), passent.end(),
                         [&](const auto& a, const auto& b) { return mesure(a) > mesure(b); });
    };
    if (ordre == 1)
        descendre([](const std::string& m) { return seconde().difficulte(m); });
    if (ordre == 2)
        descendre(facons);
    if (ordre == 3)
        descendre(poids);
    passent.resize(std::min(passent.size(), max));
    return passent;
}

/// A rack with the shortest beginning of the word that no other word on its letters has.
std::string indice(const std::string& mot) {
    if (seconde().anagrammes(mot) == 1)
        return trie(mot);
    for (std::size_t n = 1;; ++n) {
        const auto partages =
            std::count_if(seconde().mots().begin(), seconde().mots().end(), [&](const auto& m) {
                return trie(m) == trie(mot) && m.substr(0, n) == mot.substr(0, n);
            });
        if (partages == 1)
            return '(' + mot.substr(0, n) + ')' + trie(mot.substr(n));
    }
}

/// The rows of words of racks that have `min` to `max` of them.
Mots rangeeslentes(const Mots& mots, std::size_t min, std::size_t max) {
    std::map<std::pair<std::size_t, std::string>, std::set<std::string>> tirages;
    for (const auto& mot : mots)
        tirages[{mot.size(), trie(mot)}].insert(mot);
    Mots rangees;
    for (const auto& [cle, solutions] : tirages) {
        if (solutions.size() < min || solutions.size() > max)
            continue;
        std::string rangee = solutions.size() == 1 ? indice(*solutions.begin()) : cle.second;
        for (const auto& solution : solutions)
            rangee += ';' + solution;
        rangees.push_back(rangee);
    }
    return rangees;
}

Mots vite(const std::string& texte) {
    const auto contexte = essais::contexte(seconde().glossaire(), seconde().listes());
    const auto lue = liredemande(texte, contexte);
    if (const auto* refus = std::get_if<Refus>(&lue))
        return {refus->texte()};
    return essais::mots(seconde().glossaire(),
                        chercher(seconde().glossaire(), std::get<Demande>(lue), 1));
}

Mots rangeesvite(const std::string& texte) {
    const auto contexte = essais::contexte(seconde().glossaire(), seconde().listes());
    const auto demande = std::get<Demande>(liredemande(texte, contexte));
    const auto faite = enliste(seconde().glossaire(), chercher(seconde().glossaire(), demande, 1));
    if (const auto* refus = std::get_if<Refus>(&faite))
        return {refus->texte()};
    return std::get<Liste>(faite).rangees;
}

class Chaque : public testing::TestWithParam<std::size_t> {};
TEST_P(Chaque, critere_garde_les_memes_mots) {
    Tireur t(static_cast<std::uint32_t>(GetParam()));
    for (std::size_t essai = 0; essai < essaisparcritere; ++essai) {
        const auto critere = t.critere(GetParam());
        ASSERT_EQ(vite(critere.texte + " forme=mots"),
                  lentement({critere}, 0, seconde().mots().size()))
            << critere.texte;
    }
}
INSTANTIATE_TEST_SUITE_P(Seconde, Chaque, testing::Range<std::size_t>(0, sortes));

TEST(Seconde, des_criteres_ensemble_un_ordre_et_un_maximum_donnent_les_memes_mots) {
    constexpr std::array ordres{"alphabet", "difficulte", "probabilite", "poids"};
    Tireur t(99);
    std::size_t trouves = 0;
    for (std::size_t essai = 0; essai < essaisensemble; ++essai) {
        std::vector<Seconde::Critere> criteres;
        std::string texte;
        for (auto reste = t.nombre(4); reste > 0; --reste) {
            criteres.push_back(t.critere(t.nombre(sortes)));
            texte += criteres.back().texte + ' ';
        }
        const auto ordre = t.nombre(ordres.size());
        const auto max = 1 + t.nombre(200);
        texte += std::string("ordre=") + ordres.at(ordre) + " max=" + std::to_string(max);
        const auto attendus = lentement(criteres, ordre, max);
        trouves += attendus.size();
        ASSERT_EQ(vite(texte + " forme=mots"), attendus) << texte;
        const bool seuls = t.pile();
        ASSERT_EQ(rangeesvite(texte + (seuls ? " par=1" : " par=2-5")),
                  rangeeslentes(attendus, seuls ? 1 : 2, seuls ? 1 : 5))
            << texte;
    }
    EXPECT_GT(trouves, essaisensemble);
}

}  // namespace
}  // namespace test_seconde
