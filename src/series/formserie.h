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
#include "lettres.h"
#include "marques.h"
#include "menumot.h"
#include "reference.h"
#include "tuiles.h"

namespace series {

/// What tells the two forms apart in the pieces that they share.
struct Gabarit {
    std::string_view nom;             ///< design name of the form
    std::string_view titre;           ///< of the window
    std::string_view nomdesfautes;    ///< design name of the label of faults
    int nbtirages = 0;                ///< racks on screen; box i belongs to rack i modulo this
    int nbboites = 0;                 ///< answer boxes, at most
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
    /// Brings the labels to the background colour.
    virtual void coloration() = 0;
    /// Loads a list and draws its first series.
    virtual void commencer(std::string_view chemin) = 0;
    /// Path of the revision file of the running list.
    [[nodiscard]] std::string getnomfichierderev() const;
    /// Enables or disables the threshold, as the menu's check box "Apprentissage" asks.
    void activerseuil(bool actif) { seuiltxt.actif = actif; }

  protected:
    Formserie(ui::Plateforme& plateforme, common::Voisins& voisins, const Gabarit& gabarit);

    // What each form has its own rules for.
    virtual void nouvelleserie() = 0;
    virtual void corrigerserie() = 0;
    /// Seconds given to a series.
    [[nodiscard]] virtual std::int32_t tempsdeserie() const = 0;
    /// Rack, in the list, of the row at a rack place; what a place without a row gives is the
    /// form's own affair.
    [[nodiscard]] virtual std::string tiragedelarangee(int place) const = 0;
    /// Line of that row in the list's file, 0 if there is none.
    [[nodiscard]] virtual std::size_t lignedelarangee(int place) const = 0;
    /// Puts the notes where they stand while a list runs (false) or once it is done (true).
    virtual void rangernotes(bool listefinie) = 0;

    // Entry of answers.
    /// Fills the pool of letters from a text of a rack place. Throws `Faute` over its limit.
    void lirelettres(std::string_view texte, int place);
    void afficherlettres() { tuiles.afficher(lettres_.tiragenet()); }
    /// Rebuilds the pool and the rack from what its box holds, under assisted entry.
    void recalculerlettres(int rang);
    [[nodiscard]] bool saisieassistee() const;
    /// The focus has come to an answer box.
    void entrerboite(int rang);
    /// A character typed in an answer box.
    void frapper(int rang, int& code);
    void peindrecourante(int rang);
    void peindreaurepos(int rang);
    /// All boxes in use but one, and all racks but its own, at rest.
    void peindreautres(int rang);
    /// Gives the focus to a box.
    void focaliserboite(int rang) { donnerfocus(*solution[static_cast<std::size_t>(rang)]); }

    // The series and the list.
    [[nodiscard]] int placede(int rang) const { return rang % gabarit_.nbtirages; }
    [[nodiscard]] int rangee(int place) const {
        return rangboite_[static_cast<std::size_t>(place)];
    }
    [[nodiscard]] bool serieouverte() const { return corriger.actif(); }
    [[nodiscard]] bool criteresecondes() const { return Label6.texte().starts_with('s'); }
    /// Numeric value of the threshold.
    [[nodiscard]] double seuil() const;
    /// The user may set the criterion: a revision run, or the menu's "Apprentissage" is ticked.
    [[nodiscard]] bool criterelibre() const;
    /// Missed rows go to the revision file by themselves.
    [[nodiscard]] bool erreursaurevision() const;
    /// Hides marks, notes and results, empties hover texts, and ends a pause.
    void effacerserie(int nbmots);
    /// Looks the rows of the series up in the revision file.
    void prendrerevisions(std::vector<std::string> lignes);
    /// Opens the series that has been drawn: entry, focus and clocks.
    void ouvrirserie();
    /// Shows what a correction counted, and the time that the series took.
    void afficherscore(int justes, int tirages);
    /// Adds the notes to their boxes and to the text of notes; `boites[i]` is the box of word i.
    void montrernotes(std::span<const Note> notes, std::span<const int> boites,
                      std::span<const std::string> mots);
    /// Closes the list: percent over `base` (none if it is 0), record, sound; leaving is all that
    /// is left.
    void finirliste(std::int64_t base, std::int64_t fautes);
    /// Font and size of the boxes, from the longest rack of a list.
    void reglerpolices(std::size_t longueur);

    common::Voisins& voisins_;
    Gabarit gabarit_;
    std::string fich_;
    std::vector<int> rangboite_;           ///< by rack place: the row shown, -1 for none
    std::vector<std::string> ligneboite_;  ///< by rack place: that row in list format
    std::vector<bool> enrevision_;         ///< by rack place: that row is in the revision file
    std::vector<int> rapide_;              ///< by box: -1 not judged, 0 failed, 1 passed in time
    int boitesutiles_;                     ///< boxes in use by this list
    int boite_ = 0;                        ///< box that has the focus, or had it last
    int derniereboite_ = 0;                ///< box last entered or double-clicked
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
    void habillerpanneaux();
    void brancher();
    void brancherboites();
    void changerpolice();
    void quitterserie();

    std::int16_t nbseriesfaites_ = 0;
    std::size_t numpolice_ = 0;  ///< of the next font, from 0
};

}  // namespace series
