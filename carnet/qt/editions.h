#pragma once

// The editions that a player owns, from the oldest: the new words of each are marked.

#include <array>

#include <QWidget>

#include "fabrique.h"

class QLineEdit;

namespace carnet {

class Editions : public QWidget {
    Q_OBJECT
  public:
    explicit Editions(QWidget* parent);

    [[nodiscard]] Fichiersdeditions fichiers() const;

  signals:
    void change();

  private:
    std::array<QLineEdit*, nombrededitions> saisies_{};
};

}  // namespace carnet
