// SPDX-License-Identifier: MIT
// The view of a grid, which draws its rows by their kind.
#pragma once

#include <span>
#include <vector>

#include <QTableView>

#include "desktop/tints.h"
#include "schedule/row_look.h"
#include "toolkit/grid.h"

namespace vanzer::desktop {

class TableView : public QTableView {
    Q_OBJECT
  public:
    explicit TableView(QWidget* parent = nullptr);

    /// `grid` and `categories`, the names of the guide's categories, must outlive the view.
    void setGrid(Grid& grid, std::span<const QString> categories);
    [[nodiscard]] const Grid& grid() const { return *grid_; }

    /// Updates column widths, current row and top row from the grid.
    void showLayout();
    void showSelection();

    /// The look of a row, from 1 as in the grid.
    [[nodiscard]] const AspettoRiga& look(int row) const;
    /// True if a selected row is shown in full colour. In a table to choose from this is only the grid's rowAtHand();
    /// the other rows of the block are fainter.
    [[nodiscard]] bool standsOut(int row) const;
    [[nodiscard]] const Tints& tints() const { return tints_; }

  signals:
    void rowClicked(int row);
    void rowDoubleClicked(int row);
    /// A key moved the mark in a table to choose from.
    void rowMarked(int row);
    /// An arrow or page key: 38 up, 40 down, 33 page up, 34 page down.
    void keyCode(int code);
    void scrolledTo(int topRow);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    /// True for a table to choose from: its form sets the property "sceglie".
    [[nodiscard]] bool choosing() const;
    void pressChoosingKey(QKeyEvent& event);
    void fitColumns();
    void fitRows();
    void measureTexts() const;
    void spanTotals();
    [[nodiscard]] int ownWidth(int column) const;
    [[nodiscard]] int headWidth(int column) const;
    [[nodiscard]] int leastWidth(int column) const;
    [[nodiscard]] int textWidth(int column) const;
    [[nodiscard]] bool flexible(int column) const;
    void tellCell(const QPoint& at);

    Grid* grid_ = nullptr;
    std::span<const QString> categories_;
    Tints tints_;
    mutable std::vector<int> textWidths_; ///< pixels, by column; empty after the texts have changed
    mutable std::vector<AspettoRiga> looks_;
    mutable bool looksKnown_ = false;
    bool showing_ = false;
    int topShown_ = -1;
    int spanned_ = 0;
};

} // namespace vanzer::desktop
