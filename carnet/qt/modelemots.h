#pragma once

// The words that a search found, as a table.

#include <memory>
#include <vector>

#include <QAbstractTableModel>

#include "glossaire.h"

namespace carnet {

class Modelemots : public QAbstractTableModel {
    Q_OBJECT
  public:
    enum Colonne { tirage, mot, nature, poids, devant, derriere, colonnes };

    using QAbstractTableModel::QAbstractTableModel;

    void montrer(std::shared_ptr<const recherche::Glossaire> glossaire,
                 std::vector<std::uint32_t> places);
    [[nodiscard]] const std::vector<std::uint32_t>& places() const { return places_; }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation sens, int role) const override;

  private:
    std::shared_ptr<const recherche::Glossaire> glossaire_;
    std::vector<std::uint32_t> places_;
};

/// What a word is, in French: "nom, pluriel".
[[nodiscard]] QString natures(const recherche::Fiche& fiche);

}  // namespace carnet
