#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <QObject>
#include <QTimer>

#include "formulaire.h"

namespace ui::qt {

/// Drives the timers of forms, each of which ticks once a second. Ticks fall whole seconds after
/// the timer's start, even if an earlier one came late; ticks missed during a long operation become
/// a single one. Timers that are due together tick in the order of the forms and of their lists.
class Minuteur : public QObject {
  public:
    /// Milliseconds, from any origin, of a clock that never goes back.
    using Horloge = std::function<std::int64_t()>;
    static constexpr std::int64_t periode = 1000;  ///< milliseconds
    static constexpr std::int64_t ensemble =
        20;  ///< milliseconds; ticks this close are due together

    /// `executer` runs a tick as an event of the model. Without `horloge` the machine's clock.
    explicit Minuteur(std::function<void(const std::function<void()>&)> executer,
                      Horloge horloge = {});

    /// Drives the timers of a form, those that it creates later included.
    void accueillir(Formulaire& formulaire);
    /// To be called before the form is destroyed.
    void oublier(Formulaire& formulaire);
    /// Runs the ticks that are due, then sets the alarm for the next.
    void echoir();

    /// While an object of this class lives no timer ticks; a timer that was due then ticks once
    /// afterwards.
    class Silence {
      public:
        explicit Silence(Minuteur& minuteur) : minuteur_(minuteur) { ++minuteur_.silences_; }
        Silence(const Silence&) = delete;
        Silence& operator=(const Silence&) = delete;
        ~Silence() {
            if (--minuteur_.silences_ == 0)
                minuteur_.armer();
        }

      private:
        Minuteur& minuteur_;
    };

  private:
    struct Suivi {
        Minuterie* minuterie;
        const Formulaire* formulaire;
        std::int64_t echeance;  ///< next tick; has a meaning only while the timer runs
    };

    void suivre(const Formulaire& formulaire, Minuterie& minuterie);
    void changement(const Minuterie& minuterie);
    void armer();
    [[nodiscard]] Suivi* due(std::int64_t limite, std::size_t depuis);

    std::function<void(const std::function<void()>&)> executer_;
    Horloge horloge_;
    QTimer reveil_;
    std::vector<Suivi> suivis_;  ///< in the order of the forms and of their lists
    int silences_ = 0;
};

}  // namespace ui::qt
