// SPDX-License-Identifier: MIT
#include "toolkit/grid.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "toolkit/grid_model.h"

namespace vanzer {

namespace {

constexpr qint64 cellsPerRow = 64; // for cellKey(); no grid has more columns

qint64 cellKey(int row, int column) {
    return static_cast<qint64>(row) * cellsPerRow + column;
}

const QString emptyCell;

} // namespace

Grid::Grid(QString baseName, int index, Frame* frame, int rows, int columns)
    : Control(std::move(baseName), index, frame), head_(static_cast<std::size_t>(columns)), columns_(columns),
      widths_(static_cast<std::size_t>(columns), 960),
      alignments_(static_cast<std::size_t>(columns), Allineamento::Sinistra),
      model_(std::make_unique<GridModel>(*this)) {
    setRows(rows);
}

Grid::~Grid() = default;

QAbstractTableModel& Grid::model() {
    return *model_;
}

void Grid::keepInside() {
    const int last = rows() - 1;
    const int first = std::min(1, last);
    row_ = std::clamp(row_, first, last);
    rowSel_ = std::clamp(rowSel_, first, last);
    rowAtHand_ = std::clamp(rowAtHand_, first, last);
    topRow_ = std::clamp(topRow_, first, last);
}

void Grid::setRows(int rows) {
    rows = std::max(rows, 1);
    const int old = this->rows();
    if (rows == old)
        return;
    const bool tell = redrawOff_ == 0;
    if (rows > old) {
        if (tell)
            model_->beginInsertRows({}, old - 1, rows - 2);
        cells_.setRows(rows - 1);
        keepInside();
        if (tell)
            model_->endInsertRows();
        return;
    }
    if (tell)
        model_->beginRemoveRows({}, rows - 1, old - 2);
    for (int row = rows; row < old; ++row)
        noteChange(row);
    cells_.setRows(rows - 1);
    std::erase_if(marked_, [rows](qint64 key) { return key / cellsPerRow >= rows; });
    keepInside();
    if (tell)
        model_->endRemoveRows();
}

void Grid::setColumns(int columns) {
    if (columns == columns_)
        return;
    forgetChangedRows();
    setRedraw(false);
    columns_ = columns;
    head_.resize(static_cast<std::size_t>(columns));
    cells_.cutColumns(columns);
    widths_.resize(static_cast<std::size_t>(columns), 960);
    alignments_.resize(static_cast<std::size_t>(columns), Allineamento::Sinistra);
    col_ = std::min(col_, columns - 1);
    colSel_ = std::min(colSel_, columns - 1);
    setRedraw(true);
}

const QString& Grid::cell(int row, int column) const {
    if (row < 0 || row >= rows() || column < 0)
        return emptyCell;
    if (row == 0)
        return column < columns_ ? head_[static_cast<std::size_t>(column)] : emptyCell;
    return cells_.text(row - 1, column);
}

void Grid::setCell(int row, int column, QString text) {
    if (row < 0 || row >= rows() || column < 0 || column >= columns_)
        return;
    if (cell(row, column) == text)
        return;
    noteChange(row);
    (row == 0 ? head_[static_cast<std::size_t>(column)] : cells_.at(row - 1, column)) = std::move(text);
    if (redrawOff_ != 0)
        return;
    if (row == 0)
        emit model_->headerDataChanged(Qt::Horizontal, column, column);
    else
        emit model_->dataChanged(model_->index(row - 1, column), model_->index(row - 1, column));
}

void Grid::noteChange(int row) {
    constexpr std::size_t few = 32;
    if (!changed_ || row == 0 || (!changed_->empty() && changed_->back() == row))
        return;
    if (changed_->size() == few)
        changed_.reset();
    else
        changed_->push_back(row);
}

std::optional<std::vector<int>> Grid::takeChangedRows() {
    std::optional<std::vector<int>> changed = std::exchange(changed_, std::vector<int>());
    if (changed) {
        std::sort(changed->begin(), changed->end());
        changed->erase(std::unique(changed->begin(), changed->end()), changed->end());
    }
    return changed;
}

void Grid::copyRow(int from, int to, int firstColumn) {
    for (int c = firstColumn; c < columns_; ++c)
        setCell(to, c, cell(from, c));
}

void Grid::clearRow(int row, int firstColumn) {
    for (int c = firstColumn; c < columns_; ++c)
        setCell(row, c, {});
}

bool Grid::shiftRows(int first, int last, int by) {
    const int top = std::min(first, first + by);
    const int bottom = std::max(last, last + by);
    if (by == 0 || first > last || top < 1 || bottom >= rows())
        return false;
    forgetChangedRows();
    setRedraw(false);
    cells_.rotate(top - 1, by > 0 ? last : first - 1, bottom, 1);
    const int blank = by > 0 ? top : last + 1 + by;
    for (int row = blank; row < blank + std::abs(by); ++row)
        cells_.clearRow(row - 1, 1);
    setRedraw(true);
    return true;
}

void Grid::removeRow(int row) {
    if (row < 1 || row >= rows())
        return;
    forgetChangedRows();
    setRedraw(false);
    cells_.removeRow(row - 1);
    cells_.addRow();
    std::unordered_set<qint64> moved;
    for (const qint64 key : marked_) {
        if (key / cellsPerRow != row)
            moved.insert(key / cellsPerRow > row ? key - cellsPerRow : key);
    }
    marked_ = std::move(moved);
    setRedraw(true);
}

void Grid::clearCells() {
    forgetChangedRows();
    setRedraw(false);
    std::fill(head_.begin(), head_.end(), QString());
    cells_.clear();
    marked_.clear();
    setRedraw(true);
}

TestiTabella Grid::takeContents() {
    forgetChangedRows();
    setRedraw(false);
    TestiTabella rows = std::exchange(cells_, TestiTabella());
    marked_.clear();
    keepInside();
    setRedraw(true);
    return rows;
}

void Grid::setContents(TestiTabella&& rows) {
    forgetChangedRows();
    setRedraw(false);
    cells_ = std::move(rows);
    keepInside();
    setRedraw(true);
}

void Grid::setCurrent(int row, int column) {
    select(row, column, row, column);
}

void Grid::select(int row, int column, int rowSel, int colSel) {
    row_ = row;
    rowSel_ = rowSel;
    col_ = std::clamp(column, 0, columns_ - 1);
    colSel_ = std::clamp(colSel, 0, columns_ - 1);
    rowAtHand_ = row;
    keepInside();
    emit selectionChanged();
}

void Grid::setRowAtHand(int row) {
    rowAtHand_ = row;
    keepInside();
    emit selectionChanged();
}

void Grid::setTopRow(int row) {
    topRow_ = row;
    keepInside();
    emit selectionChanged();
}

int Grid::columnWidth(int column) const {
    return widths_[static_cast<std::size_t>(column)];
}

void Grid::setColumnWidth(int column, int twips) {
    assign(widths_[static_cast<std::size_t>(column)], twips);
}

Allineamento Grid::alignment(int column) const {
    return alignments_[static_cast<std::size_t>(column)];
}

void Grid::setAlignment(int column, Allineamento alignment) {
    assign(alignments_[static_cast<std::size_t>(column)], alignment);
}

void Grid::setMarked(int row, int column, bool on) {
    if (on)
        marked_.insert(cellKey(row, column));
    else
        marked_.erase(cellKey(row, column));
    if (redrawOff_ == 0 && row > 0 && row < rows())
        emit model_->dataChanged(model_->index(row - 1, column), model_->index(row - 1, column));
}

bool Grid::marked(int row, int column) const {
    return marked_.contains(cellKey(row, column));
}

void Grid::setRedraw(bool on) {
    if (!on) {
        if (redrawOff_++ == 0)
            model_->beginResetModel();
        return;
    }
    if (redrawOff_ > 0 && --redrawOff_ == 0) {
        model_->endResetModel();
        emit selectionChanged();
    }
}

void Grid::clickRow(int row) {
    select(row, col_, row, colSel_);
    if (onClick)
        onClick();
}

void Grid::markRow(int row) {
    setCurrent(row, col_);
    if (onMark)
        onMark();
}

void Grid::doubleClick() {
    if (onDblClick)
        onDblClick();
}

void Grid::pressKey(int code) {
    if (onKeyPress)
        onKeyPress(code);
}

int GridModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_.rows() - 1;
}

int GridModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : grid_.columns();
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
    const int row = index.row() + 1;
    const int column = index.column();
    if (role == Qt::DisplayRole)
        return grid_.cell(row, column);
    if (role == MarkedRole)
        return grid_.marked(row, column);
    if (role != Qt::TextAlignmentRole)
        return {};
    switch (grid_.alignment(column)) {
    case Allineamento::Sinistra: return QVariant::fromValue(Qt::AlignLeft | Qt::AlignVCenter);
    case Allineamento::Centro: return QVariant::fromValue(Qt::AlignCenter);
    default: return QVariant::fromValue(Qt::AlignRight | Qt::AlignVCenter);
    }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole)
        return {};
    return orientation == Qt::Horizontal ? grid_.cell(0, section) : grid_.cell(section + 1, 0);
}

} // namespace vanzer
