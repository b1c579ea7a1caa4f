#include "modeletable.h"

#include "textesqt.h"

namespace carnet {

void Modeletable::montrer(Tableau tableau) {
    beginResetModel();
    tableau_ = std::move(tableau);
    endResetModel();
}

int Modeletable::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(tableau_.rangees.size());
}

int Modeletable::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(tableau_.titres.size());
}

QVariant Modeletable::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    return qt(tableau_.rangees.at(static_cast<std::size_t>(index.row()))
                  .at(static_cast<std::size_t>(index.column())));
}

QVariant Modeletable::headerData(int section, Qt::Orientation sens, int role) const {
    if (role != Qt::DisplayRole || sens != Qt::Horizontal)
        return {};
    return qt(tableau_.titres.at(static_cast<std::size_t>(section)));
}

}  // namespace carnet
