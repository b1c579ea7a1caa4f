#pragma once

// A value for each of many short texts. Short texts are stored beside their values, and none is
// allocated by itself, so that a look-up costs two cache misses.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <deque>
#include <string>
#include <string_view>
#include <vector>

namespace carnet {

/// A hash of a text, taken eight bytes at a time. It differs between machines: not to be stored.
[[nodiscard]] inline std::uint32_t empreinte(std::string_view texte) {
    constexpr std::uint64_t melange = 0x9e3779b97f4a7c15;
    std::uint64_t somme = texte.size();
    const auto prendre = [&](std::uint64_t mot) {
        somme = (somme ^ mot) * melange;
        somme ^= somme >> 32U;
    };
    while (texte.size() >= sizeof(std::uint64_t)) {
        std::uint64_t mot = 0;
        std::memcpy(&mot, texte.data(), sizeof mot);
        prendre(mot);
        texte.remove_prefix(sizeof mot);
    }
    std::uint64_t reste = 0;
    for (const char octet : texte)
        reste = reste << 8U | static_cast<unsigned char>(octet);
    prendre(reste);
    return static_cast<std::uint32_t>(somme);
}

template <class Valeur>
class Parmots {
  public:
    /// The value of a text, or null. Valid as long as this is.
    [[nodiscard]] Valeur* chercher(std::string_view texte) {
        if (places_.empty())
            return nullptr;
        const auto& place = places_[trouver(texte, empreinte(texte))];
        return place.rang == 0 ? nullptr : &entrees_[place.rang - 1].valeur;
    }
    /// The value of a text, a new one if there is none. Valid as long as this is.
    Valeur& ranger(std::string_view texte) {
        if (entrees_.size() * 2 >= places_.size())
            agrandir();
        const auto signe = empreinte(texte);
        auto& place = places_[trouver(texte, signe)];
        if (place.rang == 0) {
            entrees_.emplace_back();
            poser(texte, entrees_.back());
            place = {signe, static_cast<std::uint32_t>(entrees_.size())};
        }
        return entrees_[place.rang - 1].valeur;
    }
    /// Calls `voir` with each text and its value, in the order in which they came. The texts are
    /// valid until the next `ranger`.
    template <class Voir>
    void chaque(Voir&& voir) const {
        for (const auto& entree : entrees_)
            voir(texte(entree), entree.valeur);
    }
    [[nodiscard]] std::size_t taille() const { return entrees_.size(); }

  private:
    /// An entry with the place of a rack on the ladder (`Echelle`) then fills one cache line.
    static constexpr std::size_t court = 36;
    struct Entree {
        std::size_t taille = 0;
        std::array<char, court> debut{};  ///< the text, or where it begins in `longs_`
        Valeur valeur{};
    };
    struct Place {
        std::uint32_t signe = 0;
        std::uint32_t rang = 0;  ///< in `entrees_`, from 1; 0: free
    };

    void poser(std::string_view texte, Entree& entree) {
        entree.taille = texte.size();
        if (texte.size() <= court) {
            std::copy(texte.begin(), texte.end(), entree.debut.begin());
            return;
        }
        const auto ici = longs_.size();
        std::memcpy(entree.debut.data(), &ici, sizeof ici);
        longs_.append(texte);
    }
    [[nodiscard]] std::string_view texte(const Entree& entree) const {
        if (entree.taille <= court)
            return {entree.debut.data(), entree.taille};
        std::size_t ici = 0;
        std::memcpy(&ici, entree.debut.data(), sizeof ici);
        return {longs_.data() + ici, entree.taille};
    }
    /// Where a text is, or the free place where it would go.
    [[nodiscard]] std::size_t trouver(std::string_view cherche, std::uint32_t signe) const {
        const auto masque = places_.size() - 1;
        for (auto ici = signe & masque;; ici = (ici + 1) & masque) {
            const auto& place = places_[ici];
            if (place.rang == 0 ||
                (place.signe == signe && texte(entrees_[place.rang - 1]) == cherche))
                return ici;
        }
    }
    void agrandir() {
        constexpr std::size_t premieres = 1024;
        std::vector<Place> places(places_.empty() ? premieres : places_.size() * 2);
        const auto masque = places.size() - 1;
        for (const auto& place : places_) {
            auto ici = place.signe & masque;
            while (place.rang != 0 && places[ici].rang != 0)
                ici = (ici + 1) & masque;
            if (place.rang != 0)
                places[ici] = place;
        }
        places_ = std::move(places);
    }

    std::string longs_;
    std::deque<Entree> entrees_;
    std::vector<Place> places_;  ///< a power of two of them, at most half taken
};

}  // namespace carnet
