// Draws the cells of a table view: days in bands, their ends ruled off, stops set in, totals on a ground of their own;
// in the guide places on theirs, and entries with a badge of their category.
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
