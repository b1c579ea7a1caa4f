#include "options.h"

#include <algorithm>

namespace atelier {
namespace {

struct NomCommande {
    std::string_view nom;
    Commande commande;
    bool argument;
};

constexpr std::array commandes{
    NomCommande{"--sortie", Commande::fabriquer, true},
    NomCommande{"--verifier", Commande::verifier, true},
    NomCommande{"--decrire", Commande::decrire, false},
    NomCommande{"--chercher", Commande::chercher, true},
    NomCommande{"--help", Commande::aide, false},
    NomCommande{"--version", Commande::version, false},
};

class Lecteur {
  public:
    explicit Lecteur(std::span<const std::string> arguments) : reste_(arguments) {
        options_.chemins = cheminsdorigine();
    }

    Options lire() {
        while (!reste_.empty()) {
            const auto nom = reste_.front();
            reste_ = reste_.subspan(1);
            if (!commande(nom))
                option(nom);
        }
        if (!commandelue_)
            throw MauvaisUsage("Il manque --sortie, --verifier, --decrire ou --chercher.");
        return options_;
    }

  private:
    std::string valeur(const std::string& nom) {
        if (reste_.empty() || reste_.front().empty() || reste_.front().starts_with("--"))
            throw MauvaisUsage("L'option " + nom + " attend une valeur.");
        auto lue = reste_.front();
        reste_ = reste_.subspan(1);
        return lue;
    }

    bool commande(const std::string& nom) {
        const auto* trouve = std::find_if(commandes.begin(), commandes.end(),
                                          [&](const NomCommande& c) { return c.nom == nom; });
        if (trouve == commandes.end())
            return false;
        if (commandelue_)
            throw MauvaisUsage("Une seule commande à la fois : " + nom + " est de trop.");
        commandelue_ = true;
        options_.commande = trouve->commande;
        const bool suivie = !reste_.empty() && !reste_.front().starts_with("--");
        if (trouve->commande == Commande::chercher && !reste_.empty() && reste_.front().empty())
            reste_ = reste_.subspan(1);  // no criterion: all words
        else if (trouve->argument || (trouve->commande == Commande::decrire && suivie))
            options_.cible = valeur(nom);
        return true;
    }

    void option(const std::string& nom) {
        options_.desource = true;
        if (nom == "--lexique")
            options_.chemins.lexique = valeur(nom);
        else if (nom == "--affixes")
            options_.chemins.affixes = valeur(nom);
        else if (nom == "--thesaurus")
            options_.chemins.thesaurus = valeur(nom);
        else if (nom == "--sans-ajouts")
            options_.chemins.ajouts = false;
        else if (nom == "--mots")
            options_.mots = valeur(nom);
        else if (nom == "--nouveautes")
            comparaison(valeur(nom));
        else
            throw MauvaisUsage("Option inconnue : " + nom + ".");
    }

    /// YEAR=OLD,NEW
    void comparaison(const std::string& texte) {
        const auto egal = texte.find('=');
        const auto virgule = texte.find(',', egal == std::string::npos ? 0 : egal);
        if (egal == std::string::npos || virgule == std::string::npos || virgule == egal + 1 ||
            virgule + 1 == texte.size())
            throw MauvaisUsage("On attend --nouveautes ANNEE=ANCIENNE,NOUVELLE et non « " + texte +
                               " ».");
        const auto annee = texte.substr(0, egal);
        const auto* edition = std::find_if(editions.begin(), editions.end(),
                                           [&](const Edition& e) { return e.annee == annee; });
        if (edition == editions.end())
            throw MauvaisUsage("L'année « " + annee +
                               " » n'est pas celle d'une édition : on attend 2008, 2012 ou 2016.");
        options_.comparaisons.at(static_cast<std::size_t>(edition - editions.begin())) =
            Comparaison{texte.substr(egal + 1, virgule - egal - 1), texte.substr(virgule + 1)};
    }

    std::span<const std::string> reste_;
    Options options_;
    bool commandelue_ = false;
};

}  // namespace

Options lireoptions(std::span<const std::string> arguments) {
    return Lecteur(arguments).lire();
}

std::string aide() {
    const auto origine = cheminsdorigine();
    return "orvane-listes : fait les listes de mots d'Orvane.\n"
           "\n"
           "  orvane-listes --sortie DOSSIER [OPTIONS]   fait toutes les listes dans DOSSIER\n"
           "  orvane-listes --verifier DOSSIER|FICHIER   dit ce qui ne va pas dans des listes\n"
           "  orvane-listes --decrire [LISTE] [OPTIONS]  dit ce que contient une liste, ou toutes\n"
           "  orvane-listes --chercher CRITERES [OPTIONS]\n"
           "                                             les mots ou la liste que des critères "
           "font\n"
           "  orvane-listes --help | --version\n"
           "\n"
           "Options :\n"
           "  --lexique DIC        lexique (hunspell) ; par défaut " +
           origine.lexique +
           "\n"
           "  --affixes AFF        ses affixes ; par défaut " +
           origine.affixes +
           "\n"
           "  --thesaurus DAT      thésaurus (mythes) ; par défaut " +
           origine.thesaurus +
           "\n"
           "  --sans-ajouts        n'ajoute rien au lexique\n"
           "  --mots FICHIER       ne garde que les mots de ce fichier, un par ligne\n"
           "  --nouveautes ANNEE=ANCIENNE,NOUVELLE\n"
           "                       mots entrés en 2008, 2012 ou 2016, d'après deux éditions\n"
           "\n"
           "État de sortie : 0 tout va bien, 1 une faute, 2 un mauvais usage.\n";
}

}  // namespace atelier
