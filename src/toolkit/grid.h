// SPDX-License-Identifier: MIT
// A grid of text cells with a fixed head row, a fixed column, a current row and a selection. Row 0 is the head row. As
// an item model, rows from 1 on are the model's rows and row 0 gives the headings.
#pragma once

#include <functional>
#include <optional>
#include <unordered_set>
#include <vector>

#include <QAbstractTableModel>

#include "core/table_texts.h"
#include "toolkit/control.h"

namespace vanzer {

enum class Allineamento { Sinistra, Centro, Destra };

class GridModel;

class Grid : public Control {
    Q_OBJECT
  public:
    Grid(QString baseName, int index, Frame* frame, int rows, int columns);
    ~Grid() override;

    [[nodiscard]] int rows() const { return cells_.rows() + 1; }
    [[nodiscard]] int columns() const { return columns_; }
    /// Removes or adds rows at the end. Current row, selection end and top row are kept between 1 and the last row;
    /// they are 0 if only the head row is left.
    void setRows(int rows);
    void setColumns(int columns);

    /// The text of a cell; empty outside the grid.
    [[nodiscard]] const QString& cell(int row, int column) const;
    /// Does nothing outside the grid.
    void setCell(int row, int column, QString text);
    /// Copies the cells of row `from` over those of row `to`, from `firstColumn` on.
    void copyRow(int from, int to, int firstColumn);
    void clearRow(int row, int firstColumn);
    /// Moves the rows `first` to `last` down by `by` rows, or up if `by` is negative. They overwrite the rows at their
    /// new place and leave blank rows behind. Column 0 stays. Does nothing and returns false if either place is outside
    /// the grid.
    bool shiftRows(int first, int last, int by);
    /// Removes a row (from 1). The rows below it move up and an empty row is added at the end.
    void removeRow(int row);
    /// Empties all cells, including the head row.
    void clearCells();

    /// The rows (from 1) whose texts changed since the last call. Nothing if they are many or the whole table was
    /// replaced.
    [[nodiscard]] std::optional<std::vector<int>> takeChangedRows();

    /// Moves all rows from 1 on out of the grid, so that only the head row is left, or puts such rows in.
    [[nodiscard]] TestiTabella takeContents();
    void setContents(TestiTabella&& rows);

    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int col() const { return col_; }
    [[nodiscard]] int rowSel() const { return rowSel_; }
    [[nodiscard]] int colSel() const { return colSel_; }
    [[nodiscard]] int topRow() const { return topRow_; }
    /// Sets the current cell; the selection becomes that cell.
    void setCurrent(int row, int column);
    void select(int row, int column, int rowSel, int colSel);
    void setTopRow(int row);
    /// The row of the selection from which the user moves on. The first one until another is set.
    [[nodiscard]] int rowAtHand() const { return rowAtHand_; }
    void setRowAtHand(int row);

    /// Width of a column in twips; views hide a column of width 0.
    [[nodiscard]] int columnWidth(int column) const;
    void setColumnWidth(int column, int twips);
    [[nodiscard]] Allineamento alignment(int column) const;
    void setAlignment(int column, Allineamento alignment);

    /// Marks a cell, or takes the mark away. Views draw marked cells in a colour of their own.
    void setMarked(int row, int column, bool on);
    [[nodiscard]] bool marked(int row, int column) const;

    /// While redraw is off, the view is told nothing. Switching it on again reports one change of the whole grid.
    void setRedraw(bool on);

    /// Events of the user: a click on a row (from 1), a double click on the current row, a key.
    void clickRow(int row);
    void doubleClick();
    void pressKey(int code);
    /// The user marks a row in a list to choose from. A button then takes that row.
    void markRow(int row);
    std::function<void()> onMark;
    std::function<void()> onClick;
    std::function<void()> onDblClick;
    std::function<void(int& code)> onKeyPress;

    [[nodiscard]] QAbstractTableModel& model();

  signals:
    /// The current row, the selection or the top row has changed.
    void selectionChanged();

  private:
    friend class GridModel;
    void keepInside();
    void noteChange(int row);
    void forgetChangedRows() { changed_.reset(); }

    std::vector<QString> head_;
    TestiTabella cells_;                      ///< rows from 1 on
    std::optional<std::vector<int>> changed_; ///< no value: all rows
    int columns_;
    int row_ = 0;
    int col_ = 1;
    int rowSel_ = 0;
    int colSel_ = 1;
    int topRow_ = 0;
    int rowAtHand_ = 0;
    std::vector<int> widths_;
    std::vector<Allineamento> alignments_;
    std::unordered_set<qint64> marked_;
    int redrawOff_ = 0;
    std::unique_ptr<GridModel> model_;
};

/// Switches redraw off for a scope.
class SenzaRidisegno {
  public:
    explicit SenzaRidisegno(Grid& grid) : grid_(grid) { grid_.setRedraw(false); }
    ~SenzaRidisegno() { grid_.setRedraw(true); }
    SenzaRidisegno(const SenzaRidisegno&) = delete;
    SenzaRidisegno& operator=(const SenzaRidisegno&) = delete;

  private:
    Grid& grid_;
};

} // namespace vanzer
