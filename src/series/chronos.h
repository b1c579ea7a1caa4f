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
/// Time used by a series, from the text on its clock: the first character alone counts as minutes,
/// the last two as seconds. Throws `Faute` past 16 bits.
[[nodiscard]] std::string dureeutilisee(std::int32_t tempsserie, std::string_view texteduchrono);

/// The clocks of a series form, their controls and their pause: `temps` counts the series down,
/// `tempstot` the list up, `tempsmot` the seconds in the current box.
class Chronos {
  public:
    /// `limitetotal`: seconds that the total clock cannot reach, if it has such a limit.
    Chronos(ui::Formulaire& formulaire, std::optional<std::int32_t> limitetotal);

    /// Runs at the tick that brings the series to its end.
    std::function<void()> auterme;
    /// Runs at the tick that brings the list to the limit of the total clock, which stays as it
    /// was.
    std::function<void()> alalimite;
    /// Runs at a click of the pause button, which begins a pause or ends it.
    std::function<void()> surpause;

    /// Gives a series its time; the display waits for the next tick.
    void donner(std::int32_t secondes);
    /// Starts the series clock, and the total clock if it is off.
    void lancer();
    void arreterserie() { Timer1.actif = false; }
    void arretertotal() { Timer2.actif = false; }
    /// The total counts again from 0; the clock goes on if it runs.
    void remettretotal() { tempstotal_ = 0; }

    /// The time of a box starts.
    void entrerboite();
    void quitterboite() { Timer3.actif = false; }
    [[nodiscard]] std::int16_t tempsmot() const { return tempsmot_; }

    /// Holds the clocks during a pause. Its end starts that of the series again if it is open.
    void tenir(bool enpause, bool serieouverte);
    /// Shows whether the series, or the list, is over.
    void peindreserie(bool finie) { peindre(temps, finie); }
    void peindretotal(bool fini) { peindre(tempstot, fini); }
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
    std::int32_t tempsaffiche_ = 240;  ///< what `temps` shows, by design four minutes
    std::int32_t tempstotal_ = 0;
    std::int16_t tempsmot_ = 0;
};

}  // namespace series
