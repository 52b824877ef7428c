// The grid of text cells: one fixed head row, one fixed column, a current row, a selection. Row 0 is the head row; as
// an item model the rows from 1 on are the model's rows and row 0 gives the headings.
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
    /// Cuts or adds rows at the end. Current row, selection end and top row stay within 1 and the last row; they are 0
    /// while there is nothing but the head row.
    void setRows(int rows);
    void setColumns(int columns);

    /// The text of a cell; empty outside the grid.
    [[nodiscard]] const QString& cell(int row, int column) const;
    /// Does nothing outside the grid.
    void setCell(int row, int column, QString text);
    /// Copies the cells from `firstColumn` on of one row over those of another.
    void copyRow(int from, int to, int firstColumn);
    void clearRow(int row, int firstColumn);
    /// The rows `first` to `last` go `by` rows down, or up where it is negative, over what is there; the rows that they
    /// leave are blank. Column 0 stays. False, and nothing done, without such rows or room for them.
    bool shiftRows(int first, int last, int by);
    /// Takes a row from 1 on out; those below it move up, and an empty one comes in at the end.
    void removeRow(int row);
    /// Empties all cells, the head row's too.
    void clearCells();

    /// The rows whose texts have changed since this was last asked, from 1 on; nothing if they are many or the whole
    /// table is another one.
    [[nodiscard]] std::optional<std::vector<int>> takeChangedRows();

    /// All rows from 1 on: taken out, so that the head row is left, and put in.
    [[nodiscard]] TestiTabella takeContents();
    void setContents(TestiTabella&& rows);

    [[nodiscard]] int row() const { return row_; }
    [[nodiscard]] int col() const { return col_; }
    [[nodiscard]] int rowSel() const { return rowSel_; }
    [[nodiscard]] int colSel() const { return colSel_; }
    [[nodiscard]] int topRow() const { return topRow_; }
    /// Current cell; the selection becomes that cell.
    void setCurrent(int row, int column);
    void select(int row, int column, int rowSel, int colSel);
    void setTopRow(int row);
    /// The row from which the user moves on: one of the selection, its first one until another is named.
    [[nodiscard]] int rowAtHand() const { return rowAtHand_; }
    void setRowAtHand(int row);

    [[nodiscard]] int columnWidth(int column) const;
    void setColumnWidth(int column, int twips);
    [[nodiscard]] Allineamento alignment(int column) const;
    void setAlignment(int column, Allineamento alignment);

    /// Marks a cell with the window's own colour in place of the grid's.
    void setMarked(int row, int column, bool on);
    [[nodiscard]] bool marked(int row, int column) const;

    /// Switched off, the view learns nothing until it is switched on again, and then of one change of everything.
    void setRedraw(bool on);

    /// The user's click on a row (from 1), a double click on the current row, a key.
    void clickRow(int row);
    void doubleClick();
    void pressKey(int code);
    /// The user's mark on a row of a list that is chosen from: what a button then takes.
    void markRow(int row);
    std::function<void()> onMark;
    std::function<void()> onClick;
    std::function<void()> onDblClick;
    std::function<void(int& code)> onKeyPress;

    [[nodiscard]] QAbstractTableModel& model();

  signals:
    /// Current row, selection or top row are different now.
    void selectionChanged();

  private:
    friend class GridModel;
    void keepInside();
    void noteChange(int row);
    void forgetChangedRows() { changed_.reset(); }

    std::vector<QString> head_;
    TestiTabella cells_;                      ///< of the rows from 1 on
    std::optional<std::vector<int>> changed_; ///< nothing: all rows
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
