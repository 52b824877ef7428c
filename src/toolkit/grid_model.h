// SPDX-License-Identifier: MIT
// The item model of a grid, for table views.
#pragma once

#include <QAbstractTableModel>

namespace vanzer {

class Grid;

class GridModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    /// True for a marked cell.
    static constexpr int MarkedRole = Qt::UserRole + 1;

    explicit GridModel(Grid& grid) : grid_(grid) {}

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  private:
    friend class Grid;
    Grid& grid_;
};

} // namespace vanzer
