#include "vocabulaire.h"

#include <bit>
#include <numeric>

namespace atelier {
namespace {

/// Points of A to Z.
constexpr std::array valeurs{1, 3, 3, 2, 1, 4, 2, 4, 1, 8,  10, 1,  2,
                             1, 1, 3, 8, 1, 1, 1, 1, 4, 10, 10, 10, 10};

std::size_t hachage(const Capitales& mot) {
    const auto moities = mot.nombres();
    auto h = (moities[0] ^ std::rotl(moities[1], 29)) * 0x9E3779B97F4A7C15ULL;
    h ^= h >> 32U;
    return static_cast<std::size_t>(h * 0xD6E8FEB86659FD93ULL >> 20U);
}

Rang rang(const Mot& mot, bool nonverbale, bool participe) {
    if (nonverbale && !mot.plurielevident)
        return Rang::nonconjugue;
    if (mot.infinitif)
        return Rang::infinitif;
    if (mot.plurielevident)
        return Rang::plurielevident;
    return participe ? Rang::participe : Rang::conjugue;
}

template <class Element>
std::span<const Element> tranche(const std::vector<Element>& elements, std::size_t min,
                                 std::size_t max) {
    const auto debut =
        std::partition_point(elements.begin(), elements.end(),
                             [&](const Element& e) { return e.lettres.taille() < min; });
    const auto fin = std::partition_point(
        debut, elements.end(), [&](const Element& e) { return e.lettres.taille() <= max; });
    return {debut, fin};
}

}  // namespace

int points(char lettre) {
    return valeurs.at(static_cast<std::size_t>(lettre - 'A'));
}

Vocabulaire::Vocabulaire(Lexique lexique, const std::optional<Dictionnaire>& dictionnaire)
    : lemmes_(std::move(lexique.lemmes)) {
    if (dictionnaire)
        restreindre(lexique.formes, *dictionnaire);
    ranger(lexique.formes);
    indexer();
    for (auto& mot : mots_)
        qualifier(mot);
    former();
}

void Vocabulaire::restreindre(std::vector<Forme>& formes, const Dictionnaire& dictionnaire) {
    const auto connu = [&](const Capitales& mot) {
        return std::binary_search(dictionnaire.begin(), dictionnaire.end(), mot);
    };
    std::erase_if(formes, [&](const Forme& f) { return !connu(f.mot); });
    std::vector<Capitales> lus;
    lus.reserve(formes.size());
    for (const auto& f : formes)
        lus.push_back(f.mot);
    std::sort(lus.begin(), lus.end());
    for (const auto& mot : dictionnaire) {
        if (std::binary_search(lus.begin(), lus.end(), mot))
            continue;
        const auto texte = mot.texte();
        const bool pluriel = texte.size() > longueurmin &&
                             (texte.back() == 'S' || texte.back() == 'X') &&
                             connu(Capitales(texte.substr(0, texte.size() - 1)));
        Lecture lecture;
        lecture.nature = Nature::nom;
        lecture.traits.nombre = pluriel ? Nombre::pluriel : Nombre::singulier;
        lecture.lemme = static_cast<std::uint32_t>(lemmes_.size());
        lemmes_.emplace_back().capitales = texte;
        formes.push_back({mot, lecture});
    }
}

/// Makes the words and their readings of the forms.
void Vocabulaire::ranger(std::vector<Forme>& formes) {
    std::sort(formes.begin(), formes.end(), [](const Forme& a, const Forme& b) {
        if (a.mot != b.mot)
            return a.mot < b.mot;
        return a.lecture.lemme < b.lecture.lemme;
    });
    lectures_.reserve(formes.size());
    mots_.reserve(formes.size());
    for (const auto& forme : formes) {
        if (mots_.empty() || mots_.back().lettres != forme.mot) {
            Mot mot;
            mot.lettres = forme.mot;
            mot.lecture = static_cast<std::uint32_t>(lectures_.size());
            mots_.push_back(mot);
        }
        lectures_.push_back(forme.lecture);
        ++mots_.back().lectures;
    }
}

void Vocabulaire::indexer() {
    index_.assign(std::bit_ceil(mots_.size() * 2 + 1), 0);
    const auto masque = index_.size() - 1;
    for (std::uint32_t i = 0; i < mots_.size(); ++i) {
        auto place = hachage(mots_[i].lettres) & masque;
        while (index_[place] != 0)
            place = (place + 1) & masque;
        index_[place] = i + 1;
    }
}

const Mot* Vocabulaire::chercher(std::string_view capitales) const {
    if (capitales.size() > longueurmax)
        return nullptr;
    const Capitales cherche(capitales);
    const auto masque = index_.size() - 1;
    for (auto place = hachage(cherche) & masque; index_[place] != 0; place = (place + 1) & masque) {
        const auto& mot = mots_[index_[place] - 1];
        if (mot.lettres == cherche)
            return &mot;
    }
    return nullptr;
}

void Vocabulaire::qualifier(Mot& mot) const {
    for (const char lettre : mot.texte()) {
        mot.poids = static_cast<std::uint8_t>(mot.poids + points(lettre) - 1);
        mot.chere = mot.chere || points(lettre) >= pointschere;
    }
    bool nonverbale = false;
    bool pluriels = true;
    bool participe = false;
    mot.conjugue = true;
    mot.injurieux = true;
    for (const auto& lecture : lectures(mot)) {
        mot.frequence = std::max(mot.frequence, lemme(lecture).frequence);
        mot.conjugue = mot.conjugue && lecture.finie();
        mot.injurieux = mot.injurieux && lemme(lecture).injurieux;
        mot.infinitif = mot.infinitif || lecture.al(infinitif);
        participe = participe || lecture.al(participepresent | participepasse);
        if (!lecture.nonverbale())
            continue;
        nonverbale = true;
        pluriels = pluriels && lecture.aunnombre(Nombre::pluriel);
    }
    const auto texte = mot.texte();
    mot.plurielevident = nonverbale && !mot.infinitif && pluriels &&
                         (texte.back() == 'S' || texte.back() == 'X') &&
                         existe(texte.substr(0, texte.size() - 1));
    mot.entree = mot.infinitif || (nonverbale && !mot.plurielevident);
    mot.rang = rang(mot, nonverbale, participe);
}

/// Gathers the words by their letters.
void Vocabulaire::former() {
    std::vector<std::pair<Capitales, std::uint32_t>> lettres;
    lettres.reserve(mots_.size());
    for (std::uint32_t i = 0; i < mots_.size(); ++i)
        lettres.emplace_back(mots_[i].lettres.triees(), i);
    std::sort(lettres.begin(), lettres.end());
    places_.reserve(mots_.size());
    tirages_.reserve(mots_.size());
    for (const auto& [cle, place] : lettres) {
        if (tirages_.empty() || tirages_.back().lettres != cle)
            tirages_.push_back({cle, static_cast<std::uint32_t>(places_.size()), 0, 0});
        places_.push_back(place);
        auto& tirage = tirages_.back();
        ++tirage.mots;
        if (!mots_[place].conjugue)
            ++tirage.nonconjugues;
        mots_[place].tirage = static_cast<std::uint32_t>(tirages_.size() - 1);
    }
    for (auto& mot : mots_)
        mot.unique = tirages_[mot.tirage].mots == 1;
}

std::span<const Mot> Vocabulaire::mots(std::size_t min, std::size_t max) const {
    return tranche(mots_, min, max);
}

std::span<const Tirage> Vocabulaire::tirages(std::size_t min, std::size_t max) const {
    return tranche(tirages_, min, max);
}

}  // namespace atelier
