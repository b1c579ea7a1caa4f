#include "thesaurus.h"

#include <algorithm>
#include <charconv>

#include "capitales.h"
#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"

namespace atelier {
namespace {

constexpr std::string_view actionthesaurus = "Lecture du thésaurus";
constexpr std::size_t fichesprevues = 60000;

/// Cuts the next item off a line of items between bars.
std::string_view suivant(std::string_view& ligne) {
    const auto barre = ligne.find('|');
    const auto item = ligne.substr(0, barre);
    ligne.remove_prefix(barre == std::string_view::npos ? ligne.size() : barre + 1);
    return item;
}

}  // namespace

Thesaurus::Thesaurus(std::string texte, std::string_view chemin)
    : texte_(std::make_unique<const std::string>(std::move(texte))) {
    LignesTexte lignes(*texte_);
    const auto faute = [&](const std::string& ennui) {
        return common::Faute(common::rapportligne(actionthesaurus, chemin, lignes.numero(), ennui));
    };
    std::string_view ligne;
    if (!lignes.suivante(ligne) || ligne != "UTF-8")
        throw faute("on attend « UTF-8 »");
    fiches_.reserve(fichesprevues);
    while (lignes.suivante(ligne)) {
        auto reste = ligne;
        const auto mot = suivant(reste);
        std::size_t sens = 0;
        const auto lu = std::from_chars(reste.data(), reste.data() + reste.size(), sens);
        if (mot.empty() || reste.empty() || lu.ec != std::errc() ||
            lu.ptr != reste.data() + reste.size())
            throw faute("on attend un mot, une barre et le nombre de ses sens");
        std::uint32_t donnes = 0;
        std::size_t debut = 0;
        for (std::size_t i = 0; i < sens; ++i) {
            if (!lignes.suivante(ligne))
                throw faute("le fichier est coupé : il manque des sens de « " + std::string(mot) +
                            " »");
            if (i == 0)
                debut = static_cast<std::size_t>(ligne.data() - texte_->data());
            reste = ligne;
            suivant(reste);  // the part of speech
            while (!reste.empty()) {
                ++fiches_[suivant(reste)].frequence;
                ++donnes;
            }
        }
        auto& fiche = fiches_[mot];
        fiche.frequence += donnes;
        if (fiche.sens == 0) {
            fiche.sens = sens;
            fiche.debut = debut;
        }
    }
}

std::uint32_t Thesaurus::frequence(std::string_view mot) const {
    const auto trouve = fiches_.find(mot);
    return trouve == fiches_.end() ? 0 : trouve->second.frequence;
}

std::vector<std::string_view> Thesaurus::synonymes(std::string_view mot) const {
    std::vector<std::string_view> liste;
    const auto trouve = fiches_.find(mot);
    if (trouve == fiches_.end())
        return liste;
    LignesTexte lignes(std::string_view(*texte_).substr(trouve->second.debut));
    std::string_view ligne;
    for (std::size_t i = 0; i < trouve->second.sens && lignes.suivante(ligne); ++i) {
        suivant(ligne);
        while (!ligne.empty()) {
            const auto synonyme = suivant(ligne);
            if (encapitales(synonyme) &&
                std::find(liste.begin(), liste.end(), synonyme) == liste.end())
                liste.push_back(synonyme);
        }
    }
    return liste;
}

}  // namespace atelier
