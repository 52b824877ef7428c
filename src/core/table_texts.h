// SPDX-License-Identifier: MIT
// The texts of a table's cells, stored column by column. Texts of one column lie next to each other, which makes a pass
// over a long column fast. A column that was never written takes no memory.
#pragma once

#include <vector>

#include <QList>
#include <QString>

namespace vanzer {

/// Rows and columns count from 0. The number of columns has no limit. A copy shares the columns until one of the two
/// tables is written.
class TestiTabella {
  public:
    [[nodiscard]] int rows() const { return rows_; }
    /// Removes rows at the end or adds blank ones.
    void setRows(int rows);
    /// Adds a blank row and returns its number.
    int addRow();
    void removeRow(int row);

    /// Empty where nothing was written.
    [[nodiscard]] const QString& text(int row, int column) const {
        const auto c = static_cast<std::size_t>(column);
        return c < columns_.size() && row < columns_[c].size() ? columns_[c].at(row) : none;
    }
    /// A cell to write to. The reference holds until another row of the column is written or the number of rows
    /// changes.
    [[nodiscard]] QString& at(int row, int column) {
        const auto c = static_cast<std::size_t>(column);
        if (c >= columns_.size())
            columns_.resize(c + 1);
        if (columns_[c].isEmpty())
            columns_[c] = QList<QString>(rows_);
        return columns_[c][row];
    }
    [[nodiscard]] bool operator==(const TestiTabella& other) const;

    /// Overwrites `row` with row `fromRow` of `from`, which may be this table.
    void copyRow(int row, const TestiTabella& from, int fromRow);
    /// Rotates the rows `first` to `last` - 1 so that row `middle` comes first. Columns before `firstColumn` stay.
    void rotate(int first, int middle, int last, int firstColumn);
    void clearRow(int row, int firstColumn);
    /// Makes all cells blank; the number of rows stays.
    void clear() { columns_.clear(); }
    /// Clears `column` and all columns after it.
    void cutColumns(int column);

  private:
    static const QString none;

    int rows_ = 0;
    std::vector<QList<QString>> columns_; ///< `rows_` texts each; empty while the column was never written
};

/// One row of a table, for writing.
class RigaDiTesti {
  public:
    RigaDiTesti(TestiTabella& table, int row) : table_(table), row_(row) {}
    [[nodiscard]] const QString& text(int column) const { return table_.text(row_, column); }
    [[nodiscard]] QString& operator[](int column) { return table_.at(row_, column); }

  private:
    TestiTabella& table_;
    int row_;
};

} // namespace vanzer
