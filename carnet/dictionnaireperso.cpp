#include "dictionnaireperso.h"

#include <algorithm>

#include "lignestexte.h"
#include "texte.h"

namespace carnet {
namespace {

constexpr std::size_t extraitmax = 40;
constexpr std::size_t exemplesmax = 12;

bool ascii(std::string_view texte) {
    return std::all_of(texte.begin(), texte.end(),
                       [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// A word of fifteen letters, each of four bytes, and what may stand around it.
constexpr std::size_t lignemax = 256;

class Lecteur {
  public:
    Motslus lire(std::string_view octets) {
        if (octets.starts_with(common::marqueutf8)) {
            octets.remove_prefix(common::marqueutf8.size());
            utf8_ = true;
        }
        atelier::LignesTexte lignes(octets);
        std::string_view ligne;
        while (lignes.suivante(ligne)) {
            numero_ = lignes.numero();
            prendre(common::sansblancs(ligne));
        }
        auto& mots = lus_.mots;
        std::sort(mots.begin(), mots.end());
        const auto avant = mots.size();
        mots.erase(std::unique(mots.begin(), mots.end()), mots.end());
        lus_.doubles = avant - mots.size();
        for (const auto& mot : mots)
            ++lus_.parlongueur.at(mot.taille());
        lus_.encodage = utf8_ && autre_ ? Encodage::meles
                        : autre_        ? Encodage::windows1252
                        : utf8_         ? Encodage::utf8
                                        : Encodage::ascii;
        return std::move(lus_);
    }

  private:
    void prendre(std::string_view ligne) {
        if (ligne.empty())
            return;
        if (ligne.size() > lignemax) {
            refuser(decoder(ligne.substr(0, extraitmax)), "trop long pour un mot");
            return;
        }
        const auto texte = decoder(ligne);
        const auto mot = atelier::encapitales(common::minuscules(texte));
        if (!mot)
            refuser(texte, ennui(texte));
        else if (mot->size() < atelier::longueurmin || mot->size() > atelier::longueurmax)
            refuser(texte, std::to_string(mot->size()) + " lettre(s) ; on attend de " +
                               std::to_string(atelier::longueurmin) + " à " +
                               std::to_string(atelier::longueurmax));
        else
            lus_.mots.emplace_back(*mot);
    }

    static std::string ennui(std::string_view texte) {
        if (texte.find_first_of(" \t") != std::string_view::npos)
            return "un blanc : on attend un mot par ligne";
        if (texte.find('-') != std::string_view::npos)
            return "un trait d'union";
        if (texte.find('\'') != std::string_view::npos || texte.find("’") != std::string_view::npos)
            return "une apostrophe";
        return "autre chose que des lettres";
    }

    std::string decoder(std::string_view octets) {
        if (ascii(octets))
            return std::string(octets);
        const bool utf8 = atelier::points(octets).has_value();
        (utf8 ? utf8_ : autre_) = true;
        return utf8 ? std::string(octets) : common::depuis1252(octets);
    }

    void refuser(const std::string& texte, std::string ennui) {
        ++lus_.refusees;
        if (lus_.montrees.size() < refusmontres)
            lus_.montrees.push_back({numero_, common::debut(texte, extraitmax), std::move(ennui)});
    }

    Motslus lus_;
    std::size_t numero_ = 0;
    bool utf8_ = false;
    bool autre_ = false;
};

}  // namespace

std::variant<Motslus, std::string> liremots(std::string_view octets) {
    if (octets.empty())
        return "le fichier est vide";
    if (octets.starts_with("\xFF\xFE") || octets.starts_with("\xFE\xFF"))
        return "c'est un texte en UTF-16 ; enregistrez-le en UTF-8";
    if (octets.find('\0') != std::string_view::npos)
        return "ce n'est pas un texte";
    auto lus = Lecteur().lire(octets);
    if (lus.mots.empty())
        return "aucun mot de 2 à 15 lettres, un par ligne";
    return lus;
}

std::variant<Motslus, std::string> lirefichierdemots(common::Disque& disque,
                                                     std::string_view chemin) {
    const auto rapport = [&](const std::string& ennui) {
        return std::string(chemin) + " : " + ennui + ".";
    };
    std::unique_ptr<common::Flux> flux;
    if (const auto erreur = disque.ouvrir(chemin, flux))
        return rapport(common::raison(erreur));
    std::string octets;
    constexpr std::size_t bloc = std::size_t{1} << 20U;
    while (true) {
        const auto avant = octets.size();
        octets.resize(avant + bloc);
        std::size_t lus = 0;
        if (const auto erreur = flux->lire({octets.data() + avant, bloc}, lus))
            return rapport(common::raison(erreur));
        octets.resize(avant + lus);
        if (lus == 0)
            break;
        if (octets.size() > octetsmax)
            return rapport("trop gros pour une liste de mots ; la limite est de " +
                           std::to_string(octetsmax >> 20U) + " Mo");
    }
    auto lus = liremots(octets);
    if (auto* ennui = std::get_if<std::string>(&lus))
        return rapport(*ennui);
    return lus;
}

std::string_view nom(Encodage encodage) {
    switch (encodage) {
        case Encodage::ascii:
            return "sans accents";
        case Encodage::utf8:
            return "UTF-8";
        case Encodage::windows1252:
            return "Windows-1252";
        case Encodage::meles:
            return "UTF-8 et Windows-1252 mêlés, chaque ligne lue selon le sien";
    }
    return {};
}

Ecart comparer(const atelier::Dictionnaire& mots, const recherche::Glossaire& lexique) {
    Ecart ecart;
    for (const auto& mot : mots) {
        if (lexique.chercher(mot.texte()))
            ++ecart.communs;
        else if (++ecart.inconnus <= exemplesmax)
            ecart.exemplesinconnus.emplace_back(mot.texte());
    }
    ecart.manquants = lexique.fiches().size() - ecart.communs;
    for (const auto& fiche : lexique.fiches()) {
        if (ecart.exemplesmanquants.size() == std::min(exemplesmax, ecart.manquants))
            break;
        if (!std::binary_search(mots.begin(), mots.end(), fiche.mot))
            ecart.exemplesmanquants.emplace_back(fiche.texte());
    }
    return ecart;
}

}  // namespace carnet
