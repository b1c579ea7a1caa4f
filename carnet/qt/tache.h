#pragma once

// Long work in a thread of its own. It tells how far it is and can be stopped.

#include <atomic>
#include <functional>
#include <string>

#include <QObject>
#include <QThread>

#include "fabrique.h"

namespace carnet {

class Tache : public QObject {
    Q_OBJECT
  public:
    explicit Tache(QObject* parent);
    ~Tache() override { finir(); }

    /// Runs `travail` in the thread, then `fin` here. `fin` gets what a `Faute` said, or nothing.
    /// One work at a time: while there is one, returns false and runs nothing.
    bool lancer(std::function<void(const Avance&)> travail,
                std::function<void(const QString& faute)> fin);
    [[nodiscard]] bool encours() const { return fil_ != nullptr; }
    /// The work ends at its next step.
    void arreter() { arret_ = true; }
    /// Stops the work and waits for it; its `fin` is not run.
    void finir();

  signals:
    void avancee(int millemes, const QString& quoi);
    /// A work has begun or ended.
    void change();

  private:
    QThread* fil_ = nullptr;
    std::atomic<bool> arret_ = false;
    QString faute_;
};

}  // namespace carnet
