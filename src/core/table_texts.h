// The texts of a table's cells, column by column: what goes through a column of a long table finds its texts side by
// side, and a column that nobody writes into takes no memory.
#pragma once

#include <vector>

#include <QList>
#include <QString>

namespace vanzer {

/// Rows and columns count from 0. There are as many columns as are asked for. A copy shares the columns until one of
/// the two is written.
class TestiTabella {
  public:
    [[nodiscard]] int rows() const { return rows_; }
    /// Cuts rows at the end, or adds blank ones.
    void setRows(int rows);
    /// Adds a blank row; its number.
    int addRow();
    void removeRow(int row);

    /// Empty where nothing was written.
    [[nodiscard]] const QString& text(int row, int column) const {
        const auto c = static_cast<std::size_t>(column);
        return c < columns_.size() && row < columns_[c].size() ? columns_[c].at(row) : none;
    }
    /// To be written. It stays where it is until another row of its column is written, or the number of rows changes.
    [[nodiscard]] QString& at(int row, int column) {
        const auto c = static_cast<std::size_t>(column);
        if (c >= columns_.size())
            columns_.resize(c + 1);
        if (columns_[c].isEmpty())
            columns_[c] = QList<QString>(rows_);
        return columns_[c][row];
    }
    [[nodiscard]] bool operator==(const TestiTabella& other) const;

    /// Copies a row of a table, be it this one, over a row of this one.
    void copyRow(int row, const TestiTabella& from, int fromRow);
    /// The rows from `middle` on come before those from `first` on, up to but without `last`; columns before
    /// `firstColumn` stay.
    void rotate(int first, int middle, int last, int firstColumn);
    void clearRow(int row, int firstColumn);
    /// Blanks all rows.
    void clear() { columns_.clear(); }
    /// Forgets the columns from there on.
    void cutColumns(int column);

  private:
    static const QString none;

    int rows_ = 0;
    std::vector<QList<QString>> columns_; ///< as long as the table; empty while nothing was written
};

/// A row that is being written.
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
