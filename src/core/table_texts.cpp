// SPDX-License-Identifier: MIT
#include "core/table_texts.h"

#include <algorithm>

namespace vanzer {

const QString TestiTabella::none;

void TestiTabella::setRows(int rows) {
    rows_ = rows;
    for (auto& column : columns_) {
        if (!column.isEmpty())
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
        if (!column.isEmpty())
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

void TestiTabella::copyRow(int row, const TestiTabella& from, int fromRow) {
    const auto columns = static_cast<int>(std::max(columns_.size(), from.columns_.size()));
    for (int column = 0; column < columns; ++column) {
        if (const QString& copied = from.text(fromRow, column); text(row, column) != copied)
            at(row, column) = copied;
    }
}

void TestiTabella::rotate(int first, int middle, int last, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        auto& column = columns_[c];
        if (!column.isEmpty())
            std::rotate(column.begin() + first, column.begin() + middle, column.begin() + last);
    }
}

void TestiTabella::clearRow(int row, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        if (!columns_[c].isEmpty())
            columns_[c][row].clear();
    }
}

void TestiTabella::cutColumns(int column) {
    columns_.resize(std::min(columns_.size(), static_cast<std::size_t>(column)));
}

} // namespace vanzer
