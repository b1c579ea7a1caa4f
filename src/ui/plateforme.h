#pragma once

// What the rules need from outside: clock, chance, disk, sound, shell, downloads, message boxes,
// letting pending events run, and the window of a form.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "fichier.h"
#include "hasard.h"
#include "horloge.h"

namespace ui {

class Formulaire;

enum class Icone : std::uint8_t { Aucune, Information, Exclamation, Question };
enum class Reponse : std::uint8_t { Ok, Oui, Non };

/// What a download has to meet to succeed.
struct Exigence {
    /// Only from addresses that `adressesure` accepts, redirections included.
    bool sure = false;
    std::int64_t taille = 0;  ///< most bytes
    /// SHA-256 as 64 hexadecimal digits, with blanks around them; no content matches any other
    /// text.
    std::optional<std::string> somme{};
};

/// Ends the program normally and at once: thrown by `terminer`, caught by `executer`.
struct Fin {
    int statut = 0;
};

class Plateforme {
  public:
    Plateforme() = default;
    Plateforme(const Plateforme&) = delete;
    Plateforme& operator=(const Plateforme&) = delete;
    virtual ~Plateforme() = default;

    virtual common::Disque& disque() = 0;
    virtual common::Hasard& hasard() = 0;
    [[nodiscard]] virtual common::Instant maintenant() = 0;

    /// The system beep.
    void bip();
    /// Runs `suite`; if it beeps, however often, makes a single beep at its end.
    void unseulbip(const std::function<void()>& suite);
    /// Opens an address or a file with its default handler; a failure is ignored.
    virtual void ouvrir(std::string_view cible) = 0;
    /// Downloads an address, never from a cache, to a file, which gets its name only once complete.
    /// On failure returns false and leaves the file as it was.
    [[nodiscard]] virtual bool telecharger(std::string_view adresse, std::string_view chemin,
                                           const Exigence& exigence) = 0;
    /// The prefix that turns a file's name into its path in the program's folder: that folder and a
    /// backslash, or empty if it is the working folder.
    [[nodiscard]] virtual std::string dossierprogramme() { return {}; }

    /// A message box with an OK button; returns when it is answered.
    void message(std::string_view texte, Icone icone = Icone::Aucune);
    /// A question with Yes and No buttons; true for Yes.
    [[nodiscard]] bool question(std::string_view texte);
    /// Plays a wave file of the working folder to its end. Silent if the machine cannot play it.
    void jouerson(std::string_view fichier);
    /// Lets pending events run.
    void laissercourir();

    /// A form has just been created: gives it a window and drives its timers.
    virtual void accueillir(Formulaire& formulaire) = 0;

    /// Runs an event; the one place from which handlers are called. On a fault it shows the report
    /// and ends the program. Does nothing once the program has ended. Events may nest.
    void executer(const std::function<void()>& evenement);
    /// Runs `suite` when the outermost event has finished.
    void apres(std::function<void()> suite) { suites_.push_back(std::move(suite)); }
    /// Ends the program at once.
    [[noreturn]] static void terminer(int statut = 0) { throw Fin{statut}; }

    /// An error passes through a handler of this control, timer or form; the innermost one counts.
    void retenirlieu(std::string nom);

    [[nodiscard]] bool fini() const { return fini_; }
    /// Exit status, once the program has ended.
    [[nodiscard]] int statut() const { return statut_; }

  protected:
    /// Makes the system beep.
    virtual void sonner() = 0;
    [[nodiscard]] virtual Reponse demander(std::string_view texte, Icone icone, bool ouinon) = 0;
    virtual void jouer(std::string_view fichier) = 0;
    virtual void pomper() = 0;
    /// Shows the report of a fault.
    virtual void rapporter(std::string_view rapport) = 0;
    /// Leaves the event loop.
    virtual void arreter(int statut) = 0;

  private:
    void proteger(const std::function<void()>& evenement);
    void finir(int statut);
    void verifierfin() const;

    std::vector<std::function<void()>> suites_;
    std::string lieu_;  ///< where the error on its way began; empty: in no handler
    int profondeur_ = 0;
    int statut_ = 0;
    bool fini_ = false;
    bool bipsretenus_ = false;  ///< inside `unseulbip`
    bool bipdemande_ = false;
};

}  // namespace ui
