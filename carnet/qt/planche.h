#pragma once

// A picture, and its table beside it.

#include <QWidget>

#include "dessin.h"
#include "modeletable.h"

class QSplitter;
class QTableView;

namespace carnet {

class Planche : public QWidget {
    Q_OBJECT
  public:
    /// `titre` names both for those who do not see them.
    Planche(const QString& titre, QWidget* parent);

    void montrer(const QString& titre, Sujet sujet, Tableau tableau);
    [[nodiscard]] Dessin* dessin() { return dessin_; }
    [[nodiscard]] const Tableau& tableau() const { return modele_->tableau(); }
    [[nodiscard]] QTableView* table() { return table_; }

  private:
    void nommer(const QString& titre);

    Dessin* dessin_;
    Modeletable* modele_;
    QTableView* table_;
    QSplitter* partage_;
    bool couchees_ = false;
};

}  // namespace carnet
