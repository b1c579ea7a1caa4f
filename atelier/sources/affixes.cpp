#include "affixes.h"

#include <array>
#include <charconv>

#include "capitales.h"
#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"

namespace atelier {
namespace {

constexpr std::string_view actionaffixes = "Lecture des affixes";
/// Marks that the file names by keyword instead of by rules.
constexpr std::array marques{drapeausansforme, drapeaucasse, std::string_view("--"),
                             std::string_view("{}"), std::string_view("**")};

}  // namespace

bool Condition::lire(std::u32string_view texte) {
    if (texte == U".")
        return true;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        Place place;
        if (texte[i] != U'[') {
            if (texte[i] != U'.')
                place.lettres = texte[i];
            else
                place.sauf = true;
        } else {
            const auto fin = texte.find(U']', i);
            if (fin == std::u32string_view::npos)
                return false;
            place.sauf = texte[i + 1] == U'^';
            const auto debut = i + (place.sauf ? 2 : 1);
            place.lettres = texte.substr(debut, fin - debut);
            i = fin;
        }
        places_.push_back(std::move(place));
    }
    return true;
}

bool Condition::convient(std::u32string_view mot) const {
    if (mot.size() < places_.size())
        return false;
    const auto debut = mot.size() - places_.size();
    for (std::size_t i = places_.size(); i-- > 0;) {
        const bool dedans = places_[i].lettres.find(mot[debut + i]) != std::u32string::npos;
        if (dedans == places_[i].sauf)
            return false;
    }
    return true;
}

/// Reads an affix file line by line.
class LecteurAffixes {
  public:
    LecteurAffixes(Affixes& affixes, std::string_view texte, std::string_view chemin)
        : affixes_(affixes), lignes_(texte), chemin_(chemin) {}

    void lire() {
        std::string_view ligne;
        while (lignes_.suivante(ligne))
            lireligne(ligne);
        if (attendues_ > 0)
            fautebloc();
        if (!utf8_)
            faute("il manque la ligne « SET UTF-8 »");
        if (!longs_)
            faute("il manque la ligne « FLAG long »");
    }

  private:
    [[noreturn]] void faute(const std::string& ennui) const {
        throw common::Faute(common::rapportligne(actionaffixes, chemin_, lignes_.numero(), ennui));
    }

    [[noreturn]] void fautebloc() const {
        faute("le fichier est coupé : il manque " + std::to_string(attendues_) +
              " règle(s) du drapeau « " + drapeau_ + " »");
    }

    void lireligne(std::string_view ligne) {
        const Mots mots(ligne);
        const bool suffixe = mots[0] == "SFX";
        if (!suffixe && mots[0] != "PFX") {
            if (attendues_ > 0)
                fautebloc();
            if (mots[0] == "SET")
                utf8_ = mots[1] == "UTF-8";
            if (mots[0] == "FLAG")
                longs_ = mots[1] == "long";
            return;
        }
        if (mots.coupes())
            faute("la règle a trop de champs ; la limite est de " + std::to_string(Mots::limite));
        if (attendues_ == 0)
            ouvrirbloc(mots);
        else if (mots[1] != drapeau_)
            fautebloc();
        else {
            --attendues_;
            if (suffixe)
                ajouter(mots);
        }
    }

    void ouvrirbloc(const Mots& mots) {
        const auto nombre = mots[3];
        const auto lu = std::from_chars(nombre.data(), nombre.data() + nombre.size(), attendues_);
        if (nombre.empty() || lu.ec != std::errc() || lu.ptr != nombre.data() + nombre.size())
            faute("on attend le nombre des règles du drapeau « " + std::string(mots[1]) + " »");
        drapeau_ = mots[1];
        affixes_.drapeaux_.try_emplace(drapeau_);
    }

    [[nodiscard]] std::u32string decoder(std::string_view texte) const {
        const auto lu = points(texte);
        if (!lu)
            faute("le texte n'est pas en UTF-8");
        return *lu;
    }

    void ajouter(const Mots& mots) {
        if (mots.nombre() < 5)
            faute("règle de suffixe incomplète");
        Regle lue;
        if (mots[2] != "0")
            lue.retrait = decoder(mots[2]);
        // Behind the slash stand the prefixes of elision, which make no word of the game.
        const auto ajout = mots[3].substr(0, mots[3].find('/'));
        const auto capitales = ajout == "0" ? std::string() : encapitales(decoder(ajout));
        if (!capitales)
            return;  // "vas-y": no word of the game
        lue.ajout = *capitales;
        if (!lue.condition.lire(decoder(mots[4])))
            faute("la condition « " + std::string(mots[4]) + " » n'est pas fermée");
        for (std::size_t i = 5; i < mots.nombre(); ++i)
            lue.traits.lire(mots[i]);
        affixes_.drapeaux_[drapeau_].push_back(std::move(lue));
    }

    Affixes& affixes_;
    LignesTexte lignes_;
    std::string chemin_;
    std::string drapeau_;
    std::size_t attendues_ = 0;
    bool utf8_ = false;
    bool longs_ = false;
};

Affixes::Affixes(std::string_view texte, std::string_view chemin) {
    LecteurAffixes(*this, texte, chemin).lire();
}

const std::vector<Regle>& Affixes::suffixes(std::string_view drapeau) const {
    static const std::vector<Regle> aucune;
    const auto trouve = drapeaux_.find(std::string(drapeau));
    return trouve == drapeaux_.end() ? aucune : trouve->second;
}

bool Affixes::connait(std::string_view drapeau) const {
    return drapeaux_.contains(std::string(drapeau)) ||
           std::find(marques.begin(), marques.end(), drapeau) != marques.end();
}

}  // namespace atelier
