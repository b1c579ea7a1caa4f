#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "formulaire.h"

namespace series {

/// Text of the series clock: minutes, ":", seconds in two digits.
[[nodiscard]] std::string texteserie(std::int32_t secondes);
/// Text of the total clock: hours, ":", minutes and seconds in two digits each.
[[nodiscard]] std::string textetotal(std::int32_t secondes);
/// The time used of `tempsserie` seconds, as mm:ss, from what the clock shows: its first character
/// is the minutes left, its last two the seconds. Throws `Faute` if the time exceeds 16 bits.
[[nodiscard]] std::string dureeutilisee(std::int32_t tempsserie, std::string_view texteduchrono);

/// The clocks of a series form, their controls and their pause: `temps` counts the series down,
/// `tempstot` the list up, `tempsmot` the seconds in the current box.
class Chronos {
  public:
    /// `limitetotal`: seconds that the total clock must not reach; none: no limit.
    Chronos(ui::Formulaire& formulaire, std::optional<std::int32_t> limitetotal);

    /// Runs when the time of the series is up.
    std::function<void()> auterme;
    /// Runs in place of the tick that would bring the total clock to its limit.
    std::function<void()> alalimite;
    /// Runs when the pause button is clicked, to begin a pause or to end it.
    std::function<void()> surpause;

    /// Sets the time of a series, in seconds; the display follows at the next tick.
    void donner(std::int32_t secondes);
    /// Starts the series clock, and the total clock if it is off.
    void lancer();
    void arreterserie() { Timer1.actif = false; }
    void arretertotal() { Timer2.actif = false; }
    /// Sets the total back to 0; its clock goes on if it runs.
    void remettretotal() { tempstotal_ = 0; }

    /// Starts to count the seconds in a box.
    void entrerboite();
    void quitterboite() { Timer3.actif = false; }
    /// Seconds in the current box.
    [[nodiscard]] std::int16_t tempsmot() const { return tempsmot_; }

    /// Stops the clocks for a pause, or starts them after it, that of the series only if the series
    /// is open.
    void tenir(bool enpause, bool serieouverte);
    /// Paint the clock of the series, of the list, as running or as over.
    void peindreserie(bool finie) { peindre(temps, finie); }
    void peindretotal(bool fini) { peindre(tempstot, fini); }
    /// The time used by the series, as `dureeutilisee`.
    [[nodiscard]] std::string utilise() const {
        return dureeutilisee(tempsserie_, texteserie(tempsaffiche_));
    }

    ui::Controle& Label3;
    ui::Controle& Label1;
    ui::Controle& temps;
    ui::Controle& Label2;
    ui::Controle& tempstot;
    ui::Controle& Check1;
    ui::Controle& Command5;
    ui::Minuterie& Timer1;
    ui::Minuterie& Timer2;
    ui::Minuterie& Timer3;

  private:
    void battreserie();
    void battretotal();
    static void peindre(ui::Controle& horloge, bool arretee);

    std::optional<std::int32_t> limitetotal_;
    std::int32_t tempsrestant_ = 0;
    std::int32_t tempsserie_ = 0;
    std::int32_t tempsaffiche_ = 240;  ///< what `temps` shows; four minutes in the design
    std::int32_t tempstotal_ = 0;
    std::int16_t tempsmot_ = 0;
};

}  // namespace series
