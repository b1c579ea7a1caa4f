#include "retouches.h"

#include <algorithm>
#include <array>
#include <optional>

#include "capitales.h"
#include "faute.h"
#include "fichier.h"
#include "lignestexte.h"
#include "textes.h"

namespace atelier {
namespace {

constexpr std::string_view actionretouches = "Lecture des retouches du lexique";
constexpr std::string_view titreinjures = "[injures]";
constexpr std::string_view titrerefus = "[refus]";

struct NomNature {
    std::string_view nom;
    Nature nature;
};
constexpr std::array natures{
    NomNature{"nom", Nature::nom},
    NomNature{"adj", Nature::adjectif},
    NomNature{"verbe", Nature::verbe},
    NomNature{"inv", Nature::autre},
};

/// The lines of a text that are neither empty nor remarks, cut in words.
class LignesUtiles {
  public:
    LignesUtiles(std::string_view texte, std::string_view fichier)
        : lignes_(texte), fichier_(fichier) {}

    [[nodiscard]] std::optional<Mots> suivante() {
        std::string_view ligne;
        while (lignes_.suivante(ligne)) {
            ligne = ligne.substr(0, ligne.find('#'));
            if (ligne.find_first_not_of(' ') != std::string_view::npos)
                return Mots(ligne);
        }
        return std::nullopt;
    }

    [[nodiscard]] std::size_t numero() const { return lignes_.numero(); }

    [[noreturn]] void faute(const std::string& ennui) const {
        throw common::Faute(
            common::rapportligne(actionretouches, fichier_, lignes_.numero(), ennui));
    }

    /// The capitals of a word of the line.
    [[nodiscard]] std::string capitales(std::string_view mot) const {
        auto lues = encapitales(mot);
        if (!lues || lues->empty())
            faute("« " + std::string(mot) + " » n'est pas un mot en minuscules");
        return std::move(*lues);
    }

    [[nodiscard]] Nature nature(std::string_view nom) const {
        const auto* trouve = std::find_if(natures.begin(), natures.end(),
                                          [&](const NomNature& n) { return n.nom == nom; });
        if (trouve == natures.end())
            faute("« " + std::string(nom) + " » : on attend nom, adj, verbe ou inv");
        return trouve->nature;
    }

  private:
    LignesTexte lignes_;
    std::string fichier_;
};

std::string cle(std::string_view lemme, Nature nature) {
    return std::string(lemme) + ' ' + static_cast<char>('0' + static_cast<int>(nature));
}

/// A word that ends so has no other plural than itself.
bool sanspluriel(std::string_view capitales) {
    constexpr std::string_view finales = "SXZ";
    return finales.find(capitales.back()) != std::string_view::npos;
}

/// A singular and its plural in S, if it takes one.
void decliner(std::vector<Ajout::Forme>& formes, const std::string& capitales) {
    if (sanspluriel(capitales)) {
        formes.push_back({capitales, Nombre::invariable});
        return;
    }
    formes.push_back({capitales, Nombre::singulier});
    formes.push_back({capitales + 'S', Nombre::pluriel});
}

/// The forms of a noun or adjective: `autre` is nothing, "inv", the plural of the noun or the
/// feminine of the adjective.
std::vector<Ajout::Forme> formes(const LignesUtiles& lignes, const std::string& capitales,
                                 Nature nature, std::string_view autre) {
    std::vector<Ajout::Forme> liste;
    if (autre == "inv") {
        liste.push_back({capitales, Nombre::invariable});
    } else if (autre.empty() || nature == Nature::adjectif) {
        decliner(liste, capitales);
        if (!autre.empty())
            decliner(liste, lignes.capitales(autre));
    } else {
        liste.push_back({capitales, Nombre::singulier});
        liste.push_back({lignes.capitales(autre), Nombre::pluriel});
    }
    return liste;
}

}  // namespace

Retouches::Retouches(std::string_view ecartes, std::string_view ajouts, std::string_view exclus) {
    lireecartes(ecartes);
    lireajouts(ajouts);
    lireexclus(exclus);
}

void Retouches::lireecartes(std::string_view texte) {
    LignesUtiles lignes(texte, "ecartes.txt");
    while (const auto mots = lignes.suivante()) {
        std::ignore = lignes.capitales((*mots)[0]);
        if (mots->nombre() < 2)
            lignes.faute("on attend un mot et ce qu'il est");
        for (std::size_t i = 1; i < mots->nombre(); ++i)
            ecartes_.insert(cle((*mots)[0], lignes.nature((*mots)[i])));
    }
}

void Retouches::lireajouts(std::string_view texte) {
    LignesUtiles lignes(texte, fichierajouts);
    while (const auto mots = lignes.suivante()) {
        const auto capitales = lignes.capitales((*mots)[0]);
        const auto autre = (*mots)[2];
        auto& ajout = ajouts_.emplace_back();
        ajout.mot = (*mots)[0];
        ajout.ligne = lignes.numero();
        ajout.nature = lignes.nature((*mots)[1]);
        if (mots->nombre() > 3)
            lignes.faute("il y a un mot de trop");
        switch (ajout.nature) {
            case Nature::nom:
            case Nature::adjectif:
                ajout.formes = formes(lignes, capitales, ajout.nature, autre);
                break;
            case Nature::verbe:
                std::ignore = lignes.capitales(autre);
                ajout.modele = autre;
                modeles_.insert(ajout.modele);
                break;
            case Nature::autre:
                ajout.formes.push_back({capitales, Nombre::aucun});
                break;
        }
    }
}

void Retouches::lireexclus(std::string_view texte) {
    LignesUtiles lignes(texte, "exclus.txt");
    std::string_view section;
    while (const auto mots = lignes.suivante()) {
        const auto premier = (*mots)[0];
        if (premier == titreinjures || premier == titrerefus) {
            section = premier;
            continue;
        }
        std::ignore = lignes.capitales(premier);
        if (section == titreinjures) {
            injures_.emplace(premier);
        } else if (section == titrerefus) {
            auto& gardees = refuses_[std::string(premier)];
            for (std::size_t i = 1; i < mots->nombre(); ++i)
                gardees.push_back(lignes.capitales((*mots)[i]));
        } else {
            lignes.faute("on attend " + std::string(titreinjures) + " ou " +
                         std::string(titrerefus));
        }
    }
}

bool Retouches::ecarte(std::string_view lemme, Nature nature) const {
    return ecartes_.contains(cle(lemme, nature));
}

bool Retouches::injurieux(std::string_view lemme) const {
    return injures_.contains(std::string(lemme));
}

bool Retouches::refuse(std::string_view lemme, std::string_view capitales) const {
    const auto refus = refuses_.find(std::string(lemme));
    if (refus == refuses_.end())
        return false;
    const auto& gardees = refus->second;
    return std::find(gardees.begin(), gardees.end(), capitales) == gardees.end();
}

bool Retouches::modele(std::string_view lemme) const {
    return modeles_.contains(std::string(lemme));
}

const Retouches& retouches() {
    static const Retouches lues(texteecartes, texteajouts, texteexclus);
    return lues;
}

const Retouches& retouchessansajouts() {
    static const Retouches lues(texteecartes, {}, texteexclus);
    return lues;
}

}  // namespace atelier
