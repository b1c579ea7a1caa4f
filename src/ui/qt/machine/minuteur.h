#pragma once

#include <cstdint>
#include <functional>
#include <vector>

#include <QObject>
#include <QTimer>

#include "formulaire.h"

namespace ui::qt {

/// Beats the second for the timers of forms. A timer's ticks stay on the grid that its start set,
/// whatever came late; ticks that a long operation held up become one. Ticks due together come in
/// the order of the form's list.
class Minuteur : public QObject {
  public:
    /// Milliseconds of a clock that only goes forward.
    using Horloge = std::function<std::int64_t()>;
    static constexpr std::int64_t periode = 1000;  ///< milliseconds
    static constexpr std::int64_t ensemble = 20;   ///< ticks this near are due together

    /// `executer` runs an event in the model.
    explicit Minuteur(std::function<void(const std::function<void()>&)> executer,
                      Horloge horloge = {});

    /// Drives the timers of a form, those that it makes later too.
    void accueillir(Formulaire& formulaire);
    void oublier(Formulaire& formulaire);
    /// Runs the ticks that are due, then waits for the next.
    void echoir();

    /// No tick comes while one of these lives; what was held up comes once afterwards.
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
        std::int64_t echeance;  ///< meaningful while it runs
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
