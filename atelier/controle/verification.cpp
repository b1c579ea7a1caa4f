#include "verification.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <optional>
#include <set>
#include <unordered_map>
#include <unordered_set>

#include "catalogue.h"
#include "chemin.h"
#include "disquereel.h"
#include "fichier.h"
#include "lignestexte.h"
#include "listes.h"
#include "nombre.h"
#include "texte.h"
#include "verification_rangee.h"

namespace atelier {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view action = "Vérification";
/// Most lines of notes that the makers of the lists put in the file.
constexpr std::size_t seizebits = common::plusgrand16;

/// A row of a list that the help of the menu names, and whether it says that the list has it.
struct Exemple {
    std::string_view fichier;
    std::string_view ligne;
    bool present;
};
constexpr std::array exemples{
    Exemple{"rallonge_ar_7a8L.txt", "CELEBRE;T", true},
    Exemple{"transifausses.txt", "ACEENOT;ACETONE", true},
    Exemple{"courant_8L.txt", "AAAINOPR;PARANOIA", true},
    Exemple{"courant_8L.txt", "AEGIOTUZ;ZIGOTEAU", true},
    Exemple{"courant_8L.txt", "CEIINOPT;OPTICIEN", true},
    Exemple{"6up.txt", "ACINSU;ACINUS", false},
    Exemple{"6v6.txt", "ACINSU;ACINUS", false},
    Exemple{"6v0.txt", "ACINSU;ACINUS", false},
    Exemple{"6v5.txt", "ACINSU;ACINUS", false},
    Exemple{"6v1.txt", "ACINSU;ACINUS", false},
    Exemple{"6v4.txt", "ACINSU;ACINUS", false},
    Exemple{"6v2.txt", "ACINSU;ACINUS", false},
    Exemple{"6v3.txt", "ACINSU;ACINUS", false},
};

class Verificateur {
  public:
    std::vector<Constat> constats;

    /// The bytes of a file; nothing, and a finding, if it cannot be read.
    std::optional<std::string> lire(const fs::path& chemin) {
        std::error_code erreur;
        if (!fs::is_regular_file(chemin, erreur)) {
            dire(Gravite::faute, chemin, 0, "fichier introuvable");
            return std::nullopt;
        }
        common::DisqueReel disque;
        return common::lirefichier(disque, chemin.string(), action);
    }

    void dire(Gravite gravite, const fs::path& chemin, std::size_t ligne, std::string ennui) {
        constats.push_back({gravite, chemin.string(), ligne, std::move(ennui)});
    }

    void borner(const fs::path& chemin, std::size_t nombre, std::string_view quoi,
                std::size_t limite) {
        if (nombre > limite)
            dire(Gravite::faute, chemin, 0,
                 std::to_string(nombre) + " " + std::string(quoi) + " ; la limite est de " +
                     std::to_string(limite));
    }

    void liste(const fs::path& chemin, const std::string& octets, Sorte sorte) {
        finsdeligne(chemin, octets);
        Rangees rangees(sorte);
        LignesTexte lignes(octets);
        std::string_view ligne;
        while (lignes.suivante(ligne)) {
            for (auto& ennui : rangees.lire(ligne))
                dire(Gravite::faute, chemin, lignes.numero(), std::move(ennui));
        }
        const auto solutions = rangees.solutionsmax();
        const bool plusieurs = sorte == Sorte::multi || (sorte == Sorte::perso && solutions > 1);
        const auto limite = plusieurs ? common::rangeesmulti : common::rangeesform1;
        const auto nombre = lignes.numero();
        borner(chemin, nombre, "lignes", limite);
        if (plusieurs && nombre * std::max<std::size_t>(2, solutions) > seizebits)
            dire(Gravite::faute, chemin, 0,
                 "trop de solutions en tout ; la limite est de " + std::to_string(seizebits));
        if (rangees.dernierpluscourt())
            dire(Gravite::remarque, chemin, nombre,
                 "le dernier tirage n'est pas le plus long : la taille des lettres se règle sur "
                 "lui");
    }

    void reference(const fs::path& chemin, std::size_t places) {
        const auto octets = lire(chemin);
        if (!octets)
            return;
        finsdeligne(chemin, *octets);
        std::unordered_set<std::string_view> vus;
        LignesTexte lignes(*octets);
        std::string_view ligne;
        while (lignes.suivante(ligne)) {
            if (!motjouable(ligne))
                dire(Gravite::faute, chemin, lignes.numero(), "on attend un mot en capitales");
            else if (!vus.insert(ligne).second)
                dire(Gravite::faute, chemin, lignes.numero(), "ce mot est déjà dans la liste");
        }
        borner(chemin, lignes.numero(), "mots", places);
    }

    void notes(const fs::path& chemin) {
        const auto octets = lire(chemin);
        if (!octets)
            return;
        finsdeligne(chemin, *octets);
        LignesTexte lignes(*octets);
        std::string_view ligne;
        while (lignes.suivante(ligne)) {
            const bool mot = lignes.numero() % 2 == 1;
            if (ligne.empty())
                dire(Gravite::faute, chemin, lignes.numero(),
                     "ligne vide : tout ce qui suit serait ignoré");
            else if (mot && !motjouable(ligne))
                dire(Gravite::faute, chemin, lignes.numero(), "on attend un mot en capitales");
            else if (!mot && motjouable(ligne))
                dire(Gravite::faute, chemin, lignes.numero(),
                     "cette note est un mot en capitales et passerait pour lui");
        }
        if (lignes.numero() % 2 != 0)
            dire(Gravite::faute, chemin, lignes.numero(), "il manque la note du dernier mot");
        borner(chemin, lignes.numero(), "lignes", common::lignesinfosourismulti);
    }

    void catalogue(const fs::path& dossier) {
        for (const auto& panneau : menu::panneaux()) {
            for (const auto& rangee : panneau.rangees) {
                const auto chemin = dossier / rangee.fichier;
                const auto octets = lire(chemin);
                if (octets)
                    liste(chemin, *octets, sorte(rangee));
                parties(dossier, rangee, octets.value_or(""));
                if (octets)
                    chercherexemples(chemin, *octets, rangee.fichier);
            }
        }
        for (const auto& r : common::listesreference)
            reference(dossier / r.fichier, r.places);
    }

  private:
    void finsdeligne(const fs::path& chemin, std::string_view octets) {
        if (octets.empty())
            return;
        if (!octets.ends_with('\n'))
            dire(Gravite::remarque, chemin, 0, "la dernière ligne n'est pas finie");
        std::size_t numero = 0;
        for (auto place = octets.find('\n'); place != std::string_view::npos;
             place = octets.find('\n', place + 1)) {
            ++numero;
            if (place == 0 || octets[place - 1] != '\r') {
                dire(Gravite::remarque, chemin, numero, "ligne finie par LF sans CR");
                return;
            }
        }
    }

    void parties(const fs::path& dossier, const menu::Rangee& rangee, const std::string& tout) {
        std::string suite;
        for (std::size_t k = 0; k < rangee.parties; ++k) {
            const auto chemin = dossier / menu::fichierdepartie(rangee.fichier, k);
            const auto octets = lire(chemin);
            if (!octets)
                return;
            suite += *octets;
        }
        if (rangee.parties > 0 && suite != tout)
            dire(Gravite::faute, dossier / rangee.fichier, 0,
                 "les parties, mises bout à bout, ne font pas la liste");
    }

    void chercherexemples(const fs::path& chemin, const std::string& octets,
                          std::string_view fichier) {
        for (const auto& exemple : exemples) {
            if (exemple.fichier != fichier)
                continue;
            const auto ligne = std::string(common::findeligne) + std::string(exemple.ligne);
            const bool trouve =
                (std::string(common::findeligne) + octets)
                    .find(ligne + std::string(common::findeligne)) != std::string::npos;
            if (trouve != exemple.present)
                dire(Gravite::remarque, chemin, 0,
                     "l'aide du menu dit que « " + std::string(exemple.ligne) +
                         (exemple.present ? " » y est" : " » n'y est pas"));
        }
    }
};

}  // namespace

std::string Constat::texte() const {
    return fichier + (ligne > 0 ? ", ligne " + std::to_string(ligne) : "") + " : " +
           (gravite == Gravite::remarque ? "remarque : " : "") + ennui + ".";
}

std::vector<Constat> verifierfichier(const std::string& chemin) {
    Verificateur verificateur;
    const auto fichier = common::chemin(chemin);
    const auto nom = fichier.filename().string();
    const auto* trouvee =
        std::find_if(common::listesreference.begin(), common::listesreference.end(),
                     [&](const auto& r) { return r.fichier == nom; });
    if (nom == common::fichierinfosouris) {
        verificateur.notes(fichier);
    } else if (trouvee != common::listesreference.end()) {
        verificateur.reference(fichier, trouvee->places);
    } else if (const auto octets = verificateur.lire(fichier)) {
        verificateur.liste(fichier, *octets, sorteconnue(nom).value_or(Sorte::perso));
    }
    return std::move(verificateur.constats);
}

std::vector<Constat> verifierdossier(const std::string& chemin) {
    Verificateur verificateur;
    const auto dossier = common::chemin(chemin);
    const auto listes = dossier / common::dossierlistes;
    const bool parent = fs::is_directory(listes);
    verificateur.catalogue(parent ? listes : dossier);
    if (parent)
        verificateur.notes(dossier / common::fichierinfosouris);
    return std::move(verificateur.constats);
}

}  // namespace atelier
