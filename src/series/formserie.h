#pragma once

// What the two series forms have in common: the controls, and how events reach the rules. The state
// of a list and its series is a value (`Serie`); a form reads the boxes, calls the rules, and shows
// what they return.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "chronos.h"
#include "correction.h"
#include "faces.h"
#include "formulaire.h"
#include "lettres.h"
#include "marques.h"
#include "menumot.h"
#include "reference.h"
#include "serie.h"
#include "tuiles.h"

namespace series {

/// In what the two forms differ. What stays the same as long as a form lives is a field here, pure
/// functions included; what acts on a form's own controls or tables is a virtual of `Formserie`.
struct Gabarit {
    std::string_view nom;    ///< design name of the form
    std::string_view titre;  ///< of the window
    int nbcadres = 0;        ///< frames and lines of the decoration
    int nblignes = 0;
    Regles regles;  ///< of its series
    /// The box to which a key leads from a box; none for a key that does not move.
    std::optional<int> (*parcours)(int boite, int code, int nbsolutions) = nullptr;
    bool videenfaute = false;         ///< typing in a box whose place has no rack is a fault
    bool longsgardentpolice = false;  ///< long racks leave the font of the answers as it is
    std::string_view nomdesfautes;    ///< design name of the label of faults
    std::string_view enmoinsde;       ///< `Label5` under the seconds criterion
    std::string_view troptard;        ///< what `voyant` says of a failure under that criterion
    Limites limites{};                ///< most items of each reference list
    std::size_t limitenotes = 0;      ///< most lines of the notes
    Lignesdemots lignesdemots{};      ///< which lines of the notes are compared with the words
    bool notessurletirage = false;    ///< the rack too shows the note as its tooltip
    std::optional<std::int32_t> limitetotal;  ///< reaching so many seconds in all is a fault
};

/// A series form: `Form1` or `Multi`. Its operations throw `Faute` for a file that cannot be read
/// or written, and for what exceeds a limit.
class Formserie : public ui::Formulaire {
  public:
    /// What a series form reads, and the other forms that it calls.
    struct Voisins {
        const common::VariablesForm3& form3;
        const common::VariablesDialog2& dialog2;
        ui::FaceMenu& menu;
        ui::FaceOptions& options;
        std::string& journalenattente;  ///< lines of both forms that the disk has not taken
    };

    /// Prepares the new form; called once. Throws `Faute` if the picture of a mark cannot be read.
    void charger();
    /// Gives the labels the background colour of the form.
    virtual void coloration();
    /// Loads the list `chemin` and draws its first series.
    virtual void commencer(std::string_view chemin) = 0;
    /// Path of the revision file of the running list.
    [[nodiscard]] std::string getnomfichierderev() const;
    /// Enables or disables the threshold, as the menu's check box "Apprentissage" asks.
    void activerseuil(bool actif) { seuiltxt.actif = actif; }

  protected:
    Formserie(ui::Plateforme& plateforme, const Voisins& voisins, const Gabarit& gabarit);

    /// Judges the running series and shows the outcome.
    virtual void corrigerserie() = 0;
    /// Judges a box that is left, under the seconds criterion.
    [[nodiscard]] virtual Correction jugerdepart(int boite) = 0;
    /// Moves the box of notes to its place once the list is done, or while it runs.
    virtual void rangernotes(bool listefinie) = 0;

    // Entry of answers.
    void afficherlettres() { tuiles.afficher(lettres_.tiragenet()); }
    void peindrecourante(int rang);
    /// Paints all boxes in use except one, and all racks except that of this box, as at rest.
    void peindreautres(int rang);
    /// Moves the text of the second line of entry to the current box, and makes the next box
    /// current.
    virtual void validerrecherche();
    /// Paints the first rack as at rest and box `rang` as current, after a click in the second line
    /// of entry.
    void cliquerrecherche(int rang);

    // The list.
    /// Reads the rows of a list, at the start of a run.
    void ouvrirliste(std::string_view chemin);
    /// Keeps only `taille` rows, drawn by chance.
    void garderechantillon(int taille);
    /// Draws a series and opens it.
    void nouvelleserie();
    /// Ends a correction: writes the journal and removes the eliminated rows. If none is left, ends
    /// the list: writes its record, with the percentage of `base` that was not at fault (none if
    /// `base` is 0), and plays the sound. The player can then only leave.
    void finserie(std::int64_t base, std::int64_t fautes, const std::string& textedesfautes);
    /// The time for a series, in seconds.
    [[nodiscard]] std::int32_t tempsdeserie() const;
    /// Sets the series clock to its start, and shows only the boxes in use.
    void initchrono();
    /// Chooses font and size of the boxes, for racks of this many characters.
    void reglerpolices(std::size_t longueur);
    /// Writes the labels of the criterion.
    void libellercritere();
    /// The user may set the criterion: a revision run, or the menu's "Apprentissage" is ticked.
    [[nodiscard]] bool criterelibre() const;

    // The correction.
    /// Stops the clocks of the series and lets the player draw the next one. Gives reduced racks
    /// all their letters back.
    void arreterserie();
    /// What the answer boxes hold.
    [[nodiscard]] std::vector<std::string> reponses() const;
    /// Locks the answers, and paints all racks as at rest.
    void fermersaisie();
    /// Shows what was judged, then adds the missed rows to the revision file. Throws `Faute` if a
    /// table was full. `atemps` is what `voyant` says of an answer given in time.
    void appliquer(const Correction& correction, std::string_view atemps);
    /// Shows the score of a correction, and the time that the series took.
    void afficherscore(const Correction& correction);
    /// Shows the notes of the words, on their boxes and in the box of notes; `boites[i]` is the box
    /// of word i.
    void montrernotes(std::span<const std::string> mots, std::span<const int> boites);
    /// Opens the word menu for the row of a place, if the series is corrected and `boite`, which
    /// was clicked, is not empty.
    void ouvrirmenumot(int place, const ui::Controle& boite, std::string_view mot, bool definition);

    Voisins voisins_;
    Gabarit gabarit_;
    Serie serie_;
    int boite_ = 0;          ///< box that has the focus, or had it last
    int derniereboite_ = 0;  ///< box last entered or double-clicked
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
    void habillerboites();
    void ecriretextes();
    void habillerpanneaux();
    void brancher();
    /// The racks and the answer boxes in use.
    [[nodiscard]] std::vector<ui::Controle*> boitesvisibles() const;
    void changerpolice();
    void quitterserie();
    void basculerpause();

    // Show what `serie_` holds.
    void peindretirage(int place, Etattirage etat);
    void peindrereponse(int rang, Etatreponse etat);
    void peindreaurepos(int rang);
    void montrertirage(int place);
    void montrertirages();

    void brancherboites();
    void brancherrecherche();
    void entrerboite(int rang);
    void quitterboite(int rang);
    void frapper(int rang, int& code);
    void toucheboite(int rang, ui::Touche& touche);
    void suivante();
    [[nodiscard]] std::optional<int> boitevoisine(int rang, int code) const;
    void focaliserboite(int rang) { donnerfocus(*solution[static_cast<std::size_t>(rang)]); }
    [[nodiscard]] bool assistee() const;
    /// Fills the pool of letters from `texte`, a rack of box `rang`. Throws `Faute` for too many.
    void lirelettres(std::string_view texte, int rang);
    /// Frees all letters of the rack of a box. Throws `Faute` if its place has no rack.
    void libererlettres(int rang);
    /// Under assisted entry, rebuilds the pool and the rack from what box `rang` holds.
    void recalculerlettres(int rang);

    void effacerserie();
    void prendrerevisions();
    void ouvrirserie();
    [[nodiscard]] std::string nomenregistre() const;
    /// Writes what the racks of the series were judged on to the journal.
    void tenirjournal();
    void finirliste(const Findeliste& fin, const std::string& textedesfautes);

    /// Missed rows are added to the revision file by themselves.
    [[nodiscard]] bool erreursaurevision() const;
    /// Appends the rows that the revision file lacks, in one write.
    void garderenrevision(std::span<const Ratee> ratees);

    std::int16_t nbseriesfaites_ = 0;
    std::size_t numpolice_ = 0;  ///< of the next font, from 0
};

}  // namespace series
