#include "core/table_texts.h"

#include <algorithm>
#include <utility>

namespace vanzer {

const QString TestiTabella::none;

void TestiTabella::setRows(int rows) {
    rows_ = rows;
    for (auto& column : columns_) {
        if (!column.empty())
            column.resize(static_cast<std::size_t>(rows));
    }
}

int TestiTabella::addRow() {
    setRows(rows_ + 1);
    return rows_ - 1;
}

void TestiTabella::removeRow(int row) {
    --rows_;
    for (auto& column : columns_) {
        if (!column.empty())
            column.erase(column.begin() + row);
    }
}

void TestiTabella::keepRows(const std::vector<int>& rows) {
    for (auto& column : columns_) {
        if (column.empty())
            continue;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            if (const auto from = static_cast<std::size_t>(rows[i]); from != i)
                column[i] = std::move(column[from]);
        }
    }
    setRows(static_cast<int>(rows.size()));
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

void TestiTabella::makeColumn(std::size_t column) {
    if (column >= columns_.size())
        columns_.resize(column + 1);
    constexpr std::size_t spare = 8; // for the few rows that come behind a table that is made whole
    columns_[column].reserve(static_cast<std::size_t>(rows_) + spare);
    columns_[column].resize(static_cast<std::size_t>(rows_));
}

bool TestiTabella::blank(int row) const {
    return std::all_of(columns_.begin(), columns_.end(), [row](const std::vector<QString>& column) {
        return column.empty() || column[static_cast<std::size_t>(row)].isEmpty();
    });
}

void TestiTabella::moveRow(int row, TestiTabella& from, int fromRow) {
    for (std::size_t c = 0; c < from.columns_.size(); ++c) {
        if (!from.columns_[c].empty())
            at(row, static_cast<int>(c)) = std::move(from.columns_[c][static_cast<std::size_t>(fromRow)]);
    }
}

void TestiTabella::rotate(int first, int middle, int last, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        auto& column = columns_[c];
        if (!column.empty())
            std::rotate(column.begin() + first, column.begin() + middle, column.begin() + last);
    }
}

void TestiTabella::clearRow(int row, int firstColumn) {
    for (std::size_t c = static_cast<std::size_t>(firstColumn); c < columns_.size(); ++c) {
        if (!columns_[c].empty())
            columns_[c][static_cast<std::size_t>(row)].clear();
    }
}

void TestiTabella::cutColumns(int column) {
    columns_.resize(std::min(columns_.size(), static_cast<std::size_t>(column)));
}

} // namespace vanzer
