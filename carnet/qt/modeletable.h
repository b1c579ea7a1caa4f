#pragma once

// A table of texts, for a view and for the screen reader.

#include <QAbstractTableModel>

#include "tableaux.h"

namespace carnet {

class Modeletable : public QAbstractTableModel {
    Q_OBJECT
  public:
    using QAbstractTableModel::QAbstractTableModel;

    void montrer(Tableau tableau);
    [[nodiscard]] const Tableau& tableau() const { return tableau_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    Tableau tableau_;
};

}  // namespace carnet
