// SPDX-License-Identifier: MIT
// Draws the cells of a table view. Days alternate in bands and end with a line, stops are indented, totals have a
// background of their own. In the guide, places have a background and entries have a badge for their category.
#pragma once

#include <QStyledItemDelegate>

#include "schedule/row_look.h"

namespace vanzer::desktop {

class TableView;

class RowDelegate : public QStyledItemDelegate {
    Q_OBJECT
  public:
    explicit RowDelegate(TableView& view);
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  private:
    struct Cell;
    void drawGround(QPainter& painter, const Cell& cell) const;
    void drawText(QPainter& painter, const Cell& cell) const;
    void drawTotal(QPainter& painter, const Cell& cell) const;
    void drawCategory(QPainter& painter, const Cell& cell) const;

    TableView& view_;
};

} // namespace vanzer::desktop
