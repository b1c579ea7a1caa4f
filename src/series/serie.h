#pragma once

// A list that is worked through, and the series that runs: a value that is copied like any other.
// It knows no window; chance and disk come in as arguments.

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

/// In what the series of the two windows are meant to differ.
struct Regles {
    int nbplaces = 0;               ///< racks of a series, at most
    int nbboites = 0;               ///< answer boxes, at most
    std::size_t limiterangees = 0;  ///< most rows of a list
    Comblement comblement{};        ///< of the draw of a series
    /// A row as the revision file has it, in a list of so many solutions a rack.
    std::string (*enligne)(std::string_view tirage, std::string_view suite,
                           std::size_t nbsolutions) = nullptr;
    /// Leaving a box gives its rack back in bare letters; otherwise as the list has it.
    bool rendlettresnues = false;
    /// A rack that shows no letter is not judged when its box is left.
    bool jugesiaffiche = false;
    /// Mark-up that keeps a rack from being rewritten by erasing.
    std::string_view marquesgardees;
};

/// A rack place of the running series.
struct Place {
    int rang = -1;            ///< row of the list, -1 for a place without a rack
    std::size_t ligne = 0;    ///< line of that row in the list's file, from 1; 0 for none
    std::string tirage;       ///< rack of the row
    std::string suite;        ///< what stands behind it in the row: its solution or solutions
    std::string texte;        ///< the row in list format
    std::string affiche;      ///< rack as the window shows it
    bool enrevision = false;  ///< the row is in the revision file
    bool entame = false;      ///< assisted entry wrote what is shown
    std::optional<profiles::Tiragejuge> juge;  ///< what it was judged on, once it was
};

/// What takes a row out of the list.
struct Critere {
    bool secondes = false;  ///< an answer given in time; otherwise a number of right answers
    double seuil = 1;       ///< seconds, or right answers
};

/// A box under the seconds criterion. A failed one stays failed in its series.
enum class Rapide : std::uint8_t { Nonjugee, Ratee, Atemps };

struct Serie {
    explicit Serie(const Regles& desregles);

    Regles regles;
    std::string fich;  ///< path of the list
    Nature nature = Nature::Simple;
    Rangees rangees;
    int boitesutiles;                   ///< boxes in use by this list
    std::vector<Place> places;          ///< `regles.nbplaces` of them
    std::vector<Rapide> rapides;        ///< by box
    std::vector<Etatreponse> verdicts;  ///< by box, of the correction; `Repos` for one not judged
    Critere critere;
    /// Answers are taken. True before the first list too, as `corriger` is enabled by design.
    bool ouverte = true;
    bool enpause = false;

    [[nodiscard]] int placede(int boite) const { return boite % regles.nbplaces; }
    /// Place of a box.
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
    /// Racks of the running series, or of the next one once `finir` has run.
    [[nodiscard]] int nombre() const;
};

/// Takes a list's rows, for a run that starts. Throws `Faute` as `Rangees::lire` does.
void ouvrirliste(Serie& serie, common::Disque& disque, std::string_view chemin, Nature nature);

/// Keeps only so many rows, drawn by chance.
void echantillonner(Serie& serie, common::Hasard& hasard, int taille);

/// Draws a series: places filled from the first, nothing judged, no rack reduced.
void tirer(Serie& serie, common::Hasard& hasard);

/// Keeps what the rack of a place is judged on, unless a judgement of it has failed before in this
/// series: that one has shown the solutions.
void retenirjugement(Serie& serie, int place, std::vector<std::string> solutions,
                     std::vector<std::string> saisis);
/// What the racks of the series were judged on, in the order of the screen.
[[nodiscard]] std::vector<profiles::Tiragejuge> jugements(const Serie& serie);

/// Takes a judgement of the seconds criterion; none is told if the box had failed before.
std::optional<bool> retenir(Serie& serie, int boite, bool bon);
/// Eliminates the rows whose first box passed the seconds criterion.
void eliminerrapides(Serie& serie);

/// Gives every rack that assisted entry has reduced, and that of the box entered last, the text
/// that it has in the list.
void rendretirages(Serie& serie, int derniereboite);

/// The list is done.
struct Findeliste {
    std::optional<double> pourc;  ///< none for a list that was empty from the start
};
/// Takes the eliminated rows out; tells the end of the list once none is left. `base` and `fautes`
/// are those of the whole list.
[[nodiscard]] std::optional<Findeliste> finir(Serie& serie, std::int64_t base, std::int64_t fautes);

}  // namespace series
