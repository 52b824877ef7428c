#include "core/table_texts.h"

#include <algorithm>
#include <utility>

namespace vanzer {

const QString TestiTabella::none;

void TestiTabella::setRows(int rows) {
    rows_ = rows;
    for (auto& column : columns_) {
        if (column.size() > rows)
            column.resize(rows);
    }
}

int TestiTabella::addRow() {
    setRows(rows_ + 1);
    return rows_ - 1;
}

void TestiTabella::removeRow(int row) {
    --rows_;
    for (auto& column : columns_) {
        if (row < column.size())
            column.removeAt(row);
    }
}

bool TestiTabella::operator==(const TestiTabella& other) const {
    const auto columns = static_cast<int>(std::max(columns_.size(), other.columns_.size()));
    for (int row = 0; row < rows_ && rows_ == other.rows_; ++row) {
        for (int column = 0; column < columns; ++column) {
            if (text(row, column) != other.text(row, column))
                return false;
        }
    }
    return rows_ == other.rows_;
}

/// Room for the whole table is taken at once, its memory as far as rows are written.
void TestiTabella::lengthen(std::size_t column, int row) {
    constexpr int spare = 8; // for the few rows that come behind a table that is made whole
    constexpr int step = 64;
    if (column >= columns_.size())
        columns_.resize(column + 1);
    QList<QString>& texts = columns_[column];
    if (texts.isEmpty())
        texts.reserve(rows_ + spare);
    texts.resize(std::max(row + 1, std::min(rows_, row + step)));
}

bool TestiTabella::blank(int row) const {
    return std::all_of(columns_.begin(), columns_.end(), [row](const QList<QString>& column) {
        return row >= column.size() || column.at(row).isEmpty();
    });
}

void TestiTabella::moveRow(int row, TestiTabella& from, int fromRow) {
    for (std::size_t c = 0; c < from.columns_.size(); ++c) {
        if (fromRow < from.columns_[c].size())
            at(row, static_cast<int>(c)) = std::move(from.columns_[c][fromRow]);
        else if (c < columns_.size() && row < columns_[c].size())
            columns_[c][row].clear();
    }
}

void TestiTabella::rotate(int first, int middle, int last, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        auto& column = columns_[c];
        if (column.size() <= first)
            continue;
        column.resize(std::max<qsizetype>(column.size(), last));
        if (last - middle == 1) { // a row comes in: what lies below moves as a whole
            column.insert(first, column.takeAt(last - 1));
        } else if (middle - first == 1) {
            column.insert(last - 1, column.takeAt(first));
        } else {
            std::rotate(column.begin() + first, column.begin() + middle, column.begin() + last);
        }
    }
}

void TestiTabella::clearRow(int row, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        if (row < columns_[c].size())
            columns_[c][row].clear();
    }
}

void TestiTabella::cutColumns(int column) {
    columns_.resize(std::min(columns_.size(), static_cast<std::size_t>(column)));
}

} // namespace vanzer
