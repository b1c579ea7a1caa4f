#pragma once

// A list that the player works through, and its running series, as a value without a window. Chance
// and disk come in as arguments.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "etats.h"
#include "fichier.h"
#include "hasard.h"
#include "journal.h"
#include "nature.h"
#include "pioche.h"
#include "rangees.h"

namespace series {

/// In what the series of the two forms differ.
struct Regles {
    int nbplaces = 0;               ///< racks of a series, at most
    int nbboites = 0;               ///< answer boxes, at most
    std::size_t limiterangees = 0;  ///< most rows of a list
    Comblement comblement{};        ///< how a series is drawn
    /// A row in list format; `nbsolutions` are those of each rack of its list.
    std::string (*enligne)(std::string_view tirage, std::string_view suite,
                           std::size_t nbsolutions) = nullptr;
    /// When a box is left, its rack comes back without mark-up; otherwise as in the list.
    bool rendlettresnues = false;
    /// A rack that shows nothing is not judged when its box is left.
    bool jugesiaffiche = false;
    /// Under assisted entry, erasing does not rewrite a rack that has one of these characters.
    std::string_view marquesgardees;
};

/// A place of the running series, with its rack.
struct Place {
    int rang = -1;            ///< index of the row in `Serie::rangees`; -1: there is no rack
    std::size_t ligne = 0;    ///< line of the row in the file of the list, from 1; 0: no rack
    std::string tirage;       ///< the rack, as in the list
    std::string suite;        ///< what follows it in the row: its solution or solutions
    std::string texte;        ///< the row in list format
    std::string affiche;      ///< what the window shows of the rack
    bool enrevision = false;  ///< the row is in the revision file
    bool entame = false;      ///< assisted entry took letters off what is shown
    std::optional<profiles::Tiragejuge> juge;  ///< what it was judged on, once it was
};

/// When a row is eliminated from the list.
struct Critere {
    bool secondes = false;  ///< when answered in time; otherwise after a number of right answers
    double seuil = 1;       ///< the seconds, or the right answers
};

/// What the seconds criterion found of a box. A box that has failed stays so until the next series.
enum class Rapide : std::uint8_t { Nonjugee, Ratee, Atemps };

/// A list and its running series. Boxes and places are numbered from 0; box i belongs to the place
/// i modulo `regles.nbplaces`.
struct Serie {
    explicit Serie(const Regles& desregles);

    Regles regles;
    std::string fich;  ///< path of the list
    Nature nature = Nature::Simple;
    Rangees rangees;
    int boitesutiles;                   ///< boxes in use by this list
    std::vector<Place> places;          ///< `regles.nbplaces` of them
    std::vector<Rapide> rapides;        ///< by box
    std::vector<Etatreponse> verdicts;  ///< by box; `Repos`: not judged
    Critere critere;
    /// Answers are taken. True before the first list too, when `corriger` is enabled.
    bool ouverte = true;
    bool enpause = false;

    [[nodiscard]] int placede(int boite) const { return boite % regles.nbplaces; }
    /// The place that a box belongs to.
    [[nodiscard]] Place& place(int boite) {
        return places[static_cast<std::size_t>(placede(boite))];
    }
    [[nodiscard]] const Place& place(int boite) const {
        return places[static_cast<std::size_t>(placede(boite))];
    }
    /// Boxes in use for each rack.
    [[nodiscard]] std::size_t nbsolutions() const {
        return static_cast<std::size_t>(boitesutiles / regles.nbplaces);
    }
    /// The racks of the running series; after `finir`, of the next one.
    [[nodiscard]] int nombre() const;
};

/// Reads the rows of a list, at the start of a run. Throws `Faute` as `Rangees::lire` does.
void ouvrirliste(Serie& serie, common::Disque& disque, std::string_view chemin, Nature nature);

/// Keeps only `taille` rows, drawn by chance; `taille` is at most the number of rows.
void echantillonner(Serie& serie, common::Hasard& hasard, int taille);

/// Draws a series. Fills the places from the first on, and forgets all verdicts.
void tirer(Serie& serie, common::Hasard& hasard);

/// Keeps what the rack of a place is judged on, unless it has failed before in this series: the
/// solutions have been shown since.
void retenirjugement(Serie& serie, int place, std::vector<std::string> solutions,
                     std::vector<std::string> saisis);
/// What the racks of the series were judged on, in the order of the screen.
[[nodiscard]] std::vector<profiles::Tiragejuge> jugements(const Serie& serie);

/// Records whether a box met the seconds criterion, and returns it; nothing if the box had failed
/// before.
std::optional<bool> retenir(Serie& serie, int boite, bool bon);
/// Eliminates the rows whose first box met the seconds criterion.
void eliminerrapides(Serie& serie);

/// Shows a rack as in the list again if assisted entry has reduced it, or if it belongs to
/// `derniereboite`, the box entered last.
void rendretirages(Serie& serie, int derniereboite);

/// The end of a list.
struct Findeliste {
    std::optional<double> pourc;  ///< percentage of right answers; none if the list was empty
};
/// Removes the eliminated rows, and returns the end of the list if none is left. `base` is what the
/// percentage is taken of, `fautes` are the faults, both of the whole list.
[[nodiscard]] std::optional<Findeliste> finir(Serie& serie, std::int64_t base, std::int64_t fautes);

}  // namespace series
