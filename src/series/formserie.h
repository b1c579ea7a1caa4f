#pragma once

// What the two series forms have in common: the window's parts and their plumbing. The rules in
// which `Form1` and `Multi` are meant to differ stay in their own classes.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "chronos.h"
#include "formulaire.h"
#include "formulaires.h"
#include "journal.h"
#include "lettres.h"
#include "marques.h"
#include "menumot.h"
#include "rangees.h"
#include "reference.h"
#include "tirage.h"
#include "tuiles.h"

namespace series {

/// Title of the list in which the letters of an answer aren't those of its rack.
inline constexpr std::string_view benjamins = "Benjamins uniques";

/// What tells the two forms apart in the pieces that they share.
struct Gabarit {
    std::string_view nom;    ///< design name of the form
    std::string_view titre;  ///< of the window
    int nbcadres = 0;        ///< frames and lines of the decoration
    int nblignes = 0;
    int nbtirages = 0;                ///< racks on screen; box i belongs to rack i modulo this
    int nbboites = 0;                 ///< answer boxes, at most
    std::size_t limiterangees = 0;    ///< most rows of a list
    Comblement comblement{};          ///< of the draw of a series
    bool longsgardentpolice = false;  ///< with long racks the answers keep the font that they had
    std::string_view nomdesfautes;    ///< design name of the label of faults
    std::string_view enmoinsde;       ///< `Label5` under the seconds criterion
    std::string_view troptard;        ///< what `voyant` says of a failure under that criterion
    Limites limites{};                ///< most items of each reference list
    std::size_t limitenotes = 0;      ///< most lines of the notes
    Lignesdemots lignesdemots{};      ///< which lines of the notes are compared
    bool notessurletirage = false;    ///< a note shows on the rack too
    std::string_view marquesgardees;  ///< mark-up that keeps a rack from being rewritten by erasing
    std::optional<std::int32_t> limitetotal;  ///< seconds at which the total clock is a fault
};

class Formserie : public ui::Formulaire {
  public:
    /// The load operation, once per run of the program.
    virtual void charger();
    /// Brings the labels to the background colour of the form.
    virtual void coloration();
    /// Loads a list and draws its first series.
    virtual void commencer(std::string_view chemin) = 0;
    /// Path of the revision file of the running list.
    [[nodiscard]] std::string getnomfichierderev() const;
    /// Enables or disables the threshold, as the menu's check box "Apprentissage" asks.
    void activerseuil(bool actif) { seuiltxt.actif = actif; }

  protected:
    Formserie(ui::Plateforme& plateforme, common::Voisins& voisins, const Gabarit& gabarit);

    /// A rack answered wrong in a series, and its row in list format.
    struct Ratee {
        int place = 0;
        std::string ligne;
    };

    // What each form has its own rules for.
    virtual void corrigerserie() = 0;
    /// A row as the revision file has it.
    [[nodiscard]] virtual std::string lignedelaliste(int rang) const = 0;
    /// The box to which a key leads from a box; none for a key that does not move.
    [[nodiscard]] virtual std::optional<int> boitevoisine(int rang, int code) const = 0;
    /// The rack whose letters an answer may take.
    [[nodiscard]] virtual std::string tirageasaisir(int place) const {
        return tiragedelarangee(place);
    }
    /// Gives a rack back the letters that assisted entry took off it.
    virtual void rendreletirage(int place) = 0;
    /// There is a rack to judge at this place.
    [[nodiscard]] virtual bool occupee(int place) const { return rangee(place) >= 0; }
    /// The seconds criterion, at the departure from a box.
    virtual void jugerboite(int rang) = 0;
    /// Puts the notes where they stand while a list runs (false) or once it is done (true).
    virtual void rangernotes(bool listefinie) = 0;

    // Entry of answers.
    /// Fills the pool of letters from a text of a rack place. Throws `Faute` over its limit.
    void lirelettres(std::string_view texte, int place);
    void afficherlettres() { tuiles.afficher(lettres_.tiragenet()); }
    /// Rebuilds the pool and the rack from what its box holds, under assisted entry.
    void recalculerlettres(int rang);
    [[nodiscard]] bool saisieassistee() const;
    void peindrecourante(int rang);
    void peindreaurepos(int rang);
    /// All boxes in use but one, and all racks but its own, at rest.
    void peindreautres(int rang);
    /// Puts the second line of entry in the current box, and makes the next one current.
    void validerrecherche();
    /// A click in the second line of entry: the first rack at rest, this box in the current colour.
    void cliquerrecherche(int rang);

    // The list.
    /// Takes a list's rows, for a run that starts.
    void ouvrirliste(std::string_view chemin);
    /// Keeps only so many rows, drawn by chance.
    void echantillonner(int taille);
    void nouvelleserie();
    /// Takes the eliminated rows out. With none left it closes the list: percent of `base` less
    /// the faults (none if `base` is 0), record, sound; leaving is all that is left.
    void finserie(std::int64_t base, std::int64_t fautes);
    /// Racks of the running series.
    [[nodiscard]] int nombredelaserie() const;
    [[nodiscard]] int placede(int rang) const { return rang % gabarit_.nbtirages; }
    /// Row shown at a rack place, -1 for none.
    [[nodiscard]] int rangee(int place) const {
        return rangboite_[static_cast<std::size_t>(place)];
    }
    /// Rack, in the list, of that row; empty for none.
    [[nodiscard]] std::string tiragedelarangee(int place) const;
    /// Line of that row in the list's file, 0 for none.
    [[nodiscard]] std::size_t lignedufichier(int place) const {
        return lignesdufichier_[static_cast<std::size_t>(place)];
    }
    /// Seconds given to a series.
    [[nodiscard]] std::int32_t tempsdeserie() const;
    /// The series clock at its start, and only the boxes in use on screen.
    void initchrono();
    /// Font and size of the boxes, from the longest rack of a list.
    void reglerpolices(std::size_t longueur);

    // The criterion of elimination.
    [[nodiscard]] bool criteresecondes() const { return Label6.texte().starts_with('s'); }
    /// Words the criterion.
    void libellercritere(bool secondes);
    /// Numeric value of the threshold.
    [[nodiscard]] double seuil() const;
    /// The user may set the criterion: a revision run, or the menu's "Apprentissage" is ticked.
    [[nodiscard]] bool criterelibre() const;
    /// Takes a judgement of the seconds criterion: once failed, a box stays failed in this series.
    void retenirrapide(int rang, bool bon, std::string_view atemps);

    // The correction.
    [[nodiscard]] bool serieouverte() const { return corriger.actif(); }
    /// Gives every rack that assisted entry has reduced, and the one of the box entered last, the
    /// text that it has in the list.
    void rendretirages();
    /// Stops the clocks of the series; the next one may be drawn.
    void arreterserie();
    /// No answer can be changed any more; all racks at rest.
    void fermersaisie();
    /// Missed rows go to the revision file by themselves.
    [[nodiscard]] bool erreursaurevision() const;
    /// Appends the rows that the revision file lacks, in one write.
    void garderenrevision(std::span<const Ratee> ratees);
    /// Keeps what the boxes of a rack hold for the journal, unless a judgement of it has failed
    /// before in this series: that one has shown the solutions.
    void retenirjugement(int place, std::vector<std::string> solutions,
                         std::vector<std::string> saisis);
    /// Writes what was kept of the first racks to the journal.
    void tenirjournal(int nombre);
    /// Shows what a correction counted, and the time that the series took.
    void afficherscore(int justes, int tirages);
    /// Adds the notes to their boxes and to the text of notes; `boites[i]` is the box of word i.
    void montrernotes(std::span<const std::string> mots, std::span<const int> boites);
    /// Opens the word menu on the row of a rack place, if the series is corrected and the box that
    /// was clicked holds text.
    void ouvrirmenumot(int place, const ui::Controle& boite, std::string_view mot, bool definition);

    common::Voisins& voisins_;
    Gabarit gabarit_;
    std::string fich_;
    Rangees rangees_;
    std::vector<int> rapide_;  ///< by box: -1 not judged, 0 failed, 1 passed in time
    int boitesutiles_;         ///< boxes in use by this list
    int boite_ = 0;            ///< box that has the focus, or had it last
    int derniereboite_ = 0;    ///< box last entered or double-clicked
    Lettres lettres_;

    std::vector<ui::Controle*> Frame1;
    std::vector<ui::Controle*> lignes;
    std::vector<ui::Controle*> tirage;
    std::vector<ui::Controle*> solution;
    ui::Controle& Label7;
    ui::Controle& Label5;
    ui::Controle& seuiltxt;
    ui::Controle& Label6;
    ui::Controle& voyant;
    ui::Controle& Command4;
    Chronos chronos;
    ui::Controle& Label4;
    ui::Controle& motsleft;
    ui::Controle& Label8;
    ui::Controle& fautesaffichees;  ///< `nbftot` or `nbftotal`
    ui::Controle& nbseries;
    ui::Controle& score;
    ui::Controle& tps;
    ui::Controle& cache;
    ui::Controle& Command2;
    Tuiles tuiles;
    ui::Controle& recherche;
    ui::Controle& valider;
    ui::Controle& corriger;
    ui::Controle& restart;
    ui::Controle& quitter;
    ui::Controle& Command3;
    ui::Controle& police;
    Marques marques;
    ui::Controle& InfoSourisText;
    Menumot menumot;

  private:
    std::vector<ui::Controle*> rangerde(ui::Genre genre, std::string_view nomcommun, int nombre,
                                        int premier = 0);
    void traduirecouleurs();
    void habillerboites();
    void ecriretextes();
    void habillerpanneaux();
    void brancher();
    /// The racks and the answer boxes in use.
    [[nodiscard]] std::vector<ui::Controle*> boitesvisibles() const;
    void changerpolice();
    void quitterserie();

    void brancherboites();
    void brancherrecherche();
    void entrerboite(int rang);
    void quitterboite(int rang);
    void frapper(int rang, int& code);
    void toucheboite(int rang, ui::Touche& touche);
    void reduire(int place);
    void suivante();
    void focaliserboite(int rang) { donnerfocus(*solution[static_cast<std::size_t>(rang)]); }

    void effacerserie();
    void tirerrangees();
    void prendrerevisions();
    void ouvrirserie();
    [[nodiscard]] std::string nomenregistre() const;
    void finirliste(std::int64_t base, std::int64_t fautes);

    std::vector<int> rangboite_;                ///< by rack place: the row shown, -1 for none
    std::vector<std::size_t> lignesdufichier_;  ///< by rack place: line of that row in the list
    std::vector<std::string> ligneboite_;       ///< by rack place: that row in list format
    std::vector<bool> enrevision_;              ///< by rack place: that row is in the revision file
    std::vector<bool> entame_;                  ///< by rack place: assisted entry wrote the rack
    std::vector<std::optional<profiles::Tiragejuge>> juges_;  ///< by rack place
    std::int16_t nbseriesfaites_ = 0;
    std::size_t numpolice_ = 0;  ///< of the next font, from 0
};

}  // namespace series
