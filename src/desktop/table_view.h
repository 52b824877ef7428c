// The grid as the user sees it: the cells of a grid model, with the rows told apart by what they are.
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

    /// The grid and the names of the guide's categories live longer than the view.
    void setGrid(Grid& grid, std::span<const QString> categories);
    [[nodiscard]] const Grid& grid() const { return *grid_; }

    /// Column widths, current row and top row as the grid has them now.
    void showLayout();
    void showSelection();

    /// `row` counts from 1, as in the grid.
    [[nodiscard]] const AspettoRiga& look(int row) const;
    /// Of a block that is chosen in a list the row at hand is marked in full, the others softly.
    [[nodiscard]] bool standsOut(int row) const;
    [[nodiscard]] const Tints& tints() const { return tints_; }

  signals:
    void rowClicked(int row);
    void rowDoubleClicked(int row);
    /// A key moved the mark of a table that is chosen from.
    void rowMarked(int row);
    /// Arrows and page keys: 38, 40, 33, 34.
    void keyCode(int code);
    void scrolledTo(int topRow);

  protected:
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;

  private:
    /// The table is chosen from: its form says "sceglie".
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
    mutable std::vector<int> textWidths_; ///< by column; empty when the texts have changed
    mutable std::vector<AspettoRiga> looks_;
    mutable bool looksKnown_ = false;
    bool showing_ = false;
    int topShown_ = -1;
    int spanned_ = 0;
};

} // namespace vanzer::desktop
