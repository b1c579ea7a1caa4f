#pragma once

// What the two series forms have in common: the window's parts and their plumbing. The state of the
// list and of its series is a value (`Serie`); the form reads the boxes, asks the rules, and shows
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

/// The constants of a window. What never changes while a form lives is a field here, also where it
/// is a function of its arguments; what a form does, on its own controls and with the tables of its
/// own run, is a virtual of `Formserie`.
struct Gabarit {
    std::string_view nom;    ///< design name of the form
    std::string_view titre;  ///< of the window
    int nbcadres = 0;        ///< frames and lines of the decoration
    int nblignes = 0;
    Regles regles;  ///< of its series
    /// The box to which a key leads from a box; none for a key that does not move.
    std::optional<int> (*parcours)(int boite, int code, int nbsolutions) = nullptr;
    bool videenfaute = false;         ///< a letter typed for a place without a rack is a fault
    bool longsgardentpolice = false;  ///< with long racks the answers keep the font that they had
    std::string_view nomdesfautes;    ///< design name of the label of faults
    std::string_view enmoinsde;       ///< `Label5` under the seconds criterion
    std::string_view troptard;        ///< what `voyant` says of a failure under that criterion
    Limites limites{};                ///< most items of each reference list
    std::size_t limitenotes = 0;      ///< most lines of the notes
    Lignesdemots lignesdemots{};      ///< which lines of the notes are compared
    bool notessurletirage = false;    ///< a note shows on the rack too
    std::optional<std::int32_t> limitetotal;  ///< seconds at which the total clock is a fault
};

class Formserie : public ui::Formulaire {
  public:
    /// What a series form reads and calls of the others.
    struct Voisins {
        const common::VariablesForm3& form3;
        const common::VariablesDialog2& dialog2;
        ui::FaceMenu& menu;
        ui::FaceOptions& options;
        std::string& journalenattente;  ///< lines of both forms that the disk has not taken
    };

    /// The load operation, once per run of the program.
    void charger();
    /// Brings the labels to the background colour of the form.
    virtual void coloration();
    /// Loads a list and draws its first series.
    virtual void commencer(std::string_view chemin) = 0;
    /// Path of the revision file of the running list.
    [[nodiscard]] std::string getnomfichierderev() const;
    /// Enables or disables the threshold, as the menu's check box "Apprentissage" asks.
    void activerseuil(bool actif) { seuiltxt.actif = actif; }

  protected:
    Formserie(ui::Plateforme& plateforme, const Voisins& voisins, const Gabarit& gabarit);

    virtual void corrigerserie() = 0;
    /// The seconds criterion, at the departure from a box.
    [[nodiscard]] virtual Correction jugerdepart(int boite) = 0;
    /// Puts the notes where they stand while a list runs (false) or once it is done (true).
    virtual void rangernotes(bool listefinie) = 0;

    // Entry of answers.
    void afficherlettres() { tuiles.afficher(lettres_.tiragenet()); }
    void peindrecourante(int rang);
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
    void garderechantillon(int taille);
    void nouvelleserie();
    /// Ends a correction: writes the journal, then takes the eliminated rows out. With none left it
    /// closes the list: percent of `base` less the faults (none if `base` is 0), record, sound;
    /// leaving is all that is left.
    void finserie(std::int64_t base, std::int64_t fautes, const std::string& textedesfautes);
    /// Seconds given to a series.
    [[nodiscard]] std::int32_t tempsdeserie() const;
    /// The series clock at its start, and only the boxes in use on screen.
    void initchrono();
    /// Font and size of the boxes, from the longest rack of a list.
    void reglerpolices(std::size_t longueur);
    /// Words the criterion.
    void libellercritere();
    /// The user may set the criterion: a revision run, or the menu's "Apprentissage" is ticked.
    [[nodiscard]] bool criterelibre() const;

    // The correction.
    /// Stops the clocks of the series; the next one may be drawn. Racks have all their letters.
    void arreterserie();
    /// What the boxes hold.
    [[nodiscard]] std::vector<std::string> reponses() const;
    /// No answer can be changed any more; all racks at rest.
    void fermersaisie();
    /// Shows what was judged and writes the missed rows, in this order. Throws `Faute` for a table
    /// that was full. `atemps`: what `voyant` says of an answer given in time.
    void appliquer(const Correction& correction, std::string_view atemps);
    /// Shows what a correction counted, and the time that the series took.
    void afficherscore(const Correction& correction);
    /// Adds the notes to their boxes and to the text of notes; `boites[i]` is the box of word i.
    void montrernotes(std::span<const std::string> mots, std::span<const int> boites);
    /// Opens the word menu on the row of a rack place, if the series is corrected and the box that
    /// was clicked holds text.
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

    // Colours and texts, as the value has them.
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
    /// Fills the pool of letters from a text of a box's rack. Throws `Faute` over its limit.
    void lirelettres(std::string_view texte, int rang);
    /// All letters of the rack of a box are free again. Throws `Faute` if there is none to take.
    void libererlettres(int rang);
    /// Rebuilds the pool and the rack from what its box holds, under assisted entry.
    void recalculerlettres(int rang);

    void effacerserie();
    void prendrerevisions();
    void ouvrirserie();
    [[nodiscard]] std::string nomenregistre() const;
    /// Writes what the racks of the series were judged on to the journal.
    void tenirjournal();
    void finirliste(const Findeliste& fin, const std::string& textedesfautes);

    /// Missed rows go to the revision file by themselves.
    [[nodiscard]] bool erreursaurevision() const;
    /// Appends the rows that the revision file lacks, in one write.
    void garderenrevision(std::span<const Ratee> ratees);

    std::int16_t nbseriesfaites_ = 0;
    std::size_t numpolice_ = 0;  ///< of the next font, from 0
};

}  // namespace series
