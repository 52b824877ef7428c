// SPDX-License-Identifier: MIT
#include "desktop/table_view.h"

#include <algorithm>

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QToolTip>

#include "desktop/key_codes.h"
#include "desktop/plain_text.h"
#include "desktop/row_delegate.h"

namespace vanzer::desktop {

namespace {

constexpr int cellPadding = 12;
/// Left-aligned columns of at least this width share the spare room, in twips.
constexpr int flexibleTwips = 900;
/// Width of a digit in the font of the grid's layouts, in twips.
constexpr int digitTwips = 90;

} // namespace

TableView::TableView(QWidget* parent) : QTableView(parent), tints_(palette()) {
    setItemDelegate(new RowDelegate(*this));
    setEditTriggers(NoEditTriggers);
    setSelectionMode(NoSelection);
    setSelectionBehavior(SelectRows);
    setVerticalScrollMode(ScrollPerItem);
    setHorizontalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setTabKeyNavigation(false);
    setShowGrid(false);
    setWordWrap(false);
    verticalHeader()->hide();
    verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setMinimumSectionSize(8);
    fitRows();
    connect(this, &QTableView::clicked, this, [this](const QModelIndex& at) { emit rowClicked(at.row() + 1); });
    connect(this, &QTableView::doubleClicked, this,
            [this](const QModelIndex& at) { emit rowDoubleClicked(at.row() + 1); });
    connect(verticalScrollBar(), &QScrollBar::valueChanged, this, [this](int value) {
        if (!showing_)
            emit scrolledTo(value + 1);
    });
}

void TableView::setGrid(Grid& grid, std::span<const QString> categories) {
    grid_ = &grid;
    categories_ = categories;
    setModel(&grid.model());
    const auto forget = [this] {
        looksKnown_ = false;
        textWidths_.clear();
    };
    connect(model(), &QAbstractItemModel::dataChanged, this, forget);
    connect(model(), &QAbstractItemModel::rowsInserted, this, forget);
    connect(model(), &QAbstractItemModel::rowsRemoved, this, forget);
    connect(model(), &QAbstractItemModel::modelReset, this, forget);
    connect(model(), &QAbstractItemModel::modelReset, this, [this] { topShown_ = -1; });
}

const AspettoRiga& TableView::look(int row) const {
    if (!looksKnown_) {
        looks_ = aspettoRighe(
            grid_->rows(), [this](int r, int column) -> const QString& { return grid_->cell(r, column); }, categories_);
        looksKnown_ = true;
    }
    return looks_[static_cast<std::size_t>(row)];
}

void TableView::showLayout() {
    fitColumns();
    spanTotals();
}

/// Makes the last rows of a schedule, the totals, span all columns.
void TableView::spanTotals() {
    if (spanned_ > 0)
        clearSpans();
    spanned_ = 0;
    for (int row = grid_->rows() - 1; row >= 1; --row) {
        const AspettoRiga::Tipo kind = look(row).tipo;
        if (kind == AspettoRiga::Tipo::Vuota)
            continue;
        if (kind != AspettoRiga::Tipo::Totale && kind != AspettoRiga::Tipo::TitoloTotale)
            break;
        setSpan(row - 1, 1, 1, grid_->columns() - 1);
        ++spanned_;
    }
}

void TableView::showSelection() {
    const int row = grid_->row();
    showing_ = true;
    if (topShown_ != grid_->topRow()) {
        topShown_ = grid_->topRow();
        verticalScrollBar()->setValue(topShown_ - 1);
    }
    selectionModel()->clearSelection();
    if (row >= 1) {
        const QModelIndex first = model()->index(grid_->rowAtHand() - 1, std::max(grid_->col(), 1));
        const bool moved = currentIndex().row() != first.row();
        selectionModel()->setCurrentIndex(first, QItemSelectionModel::NoUpdate);
        const QItemSelection rows(model()->index(std::min(row, grid_->rowSel()) - 1, 0),
                                  model()->index(std::max(row, grid_->rowSel()) - 1, grid_->columns() - 1));
        selectionModel()->select(rows, QItemSelectionModel::Select);
        if (moved)
            scrollTo(first);
        viewport()->update();
    }
    showing_ = false;
}

bool TableView::flexible(int column) const {
    return grid_->alignment(column) == Allineamento::Sinistra && grid_->columnWidth(column) >= flexibleTwips;
}

/// Estimates the width of the widest text of each column. Only the first few different texts of the greatest length are
/// measured, and in a long table only some of the rows. Rows of totals don't count: they span the table.
void TableView::measureTexts() const {
    constexpr int measuredPerLength = 8;
    constexpr int rowsLookedAt = 500;
    struct Longest {
        QString last;
        int measured = 0;
    };
    const QFontMetrics metrics(font());
    std::vector<Longest> longest(static_cast<std::size_t>(grid_->columns()));
    textWidths_.assign(longest.size(), 0);
    const int step = grid_->rows() / rowsLookedAt + 1;
    for (int row = 1; row < grid_->rows(); row += step) {
        for (std::size_t c = 0; c < longest.size(); ++c) {
            const QString& text = grid_->cell(row, static_cast<int>(c));
            Longest& best = longest[c];
            if (text.size() < best.last.size() || text == best.last || text.startsWith(u'\t'))
                continue;
            if (text.size() > best.last.size())
                best.measured = 0;
            best.last = text;
            if (++best.measured <= measuredPerLength)
                textWidths_[c] = std::max(textWidths_[c], metrics.horizontalAdvance(text));
        }
    }
}

int TableView::textWidth(int column) const {
    if (textWidths_.empty())
        measureTexts();
    return textWidths_[static_cast<std::size_t>(column)];
}

int TableView::headWidth(int column) const {
    return horizontalHeader()->fontMetrics().horizontalAdvance(grid_->cell(0, column)) + cellPadding;
}

/// The layout's width of a column in pixels, scaled to the font, and up to half as much more if a text needs it.
int TableView::ownWidth(int column) const {
    const int laidOut = grid_->columnWidth(column) * QFontMetrics(font()).horizontalAdvance(u'0') / digitTwips;
    return std::max({laidOut, headWidth(column), std::min(textWidth(column) + cellPadding, laidOut * 3 / 2)});
}

/// The least width in pixels of a column of long texts. If there is less room, the table scrolls. A list to choose from
/// may shrink to its headings.
int TableView::leastWidth(int column) const {
    if (choosing())
        return headWidth(column);
    constexpr int characters = 14;
    const int legible = QFontMetrics(font()).horizontalAdvance(u'0') * characters + cellPadding;
    return std::max(headWidth(column), std::min(textWidth(column) + cellPadding, legible));
}

/// Sets the column widths. Columns get the widths of the layout, scaled to the font. Columns of long texts share the
/// rest by what their texts need. A list to choose from uses the layout alone, so that nothing jumps when rows come and
/// go.
void TableView::fitColumns() {
    if (grid_ == nullptr)
        return;
    int room = viewport()->width();
    std::vector<std::pair<int, int>> wishes;
    int wished = 0;
    for (int c = 0; c < grid_->columns(); ++c) {
        setColumnHidden(c, grid_->columnWidth(c) == 0);
        if (isColumnHidden(c))
            continue;
        if (flexible(c)) {
            wishes.emplace_back(c, choosing() ? grid_->columnWidth(c)
                                              : std::max(textWidth(c) + 3 * cellPadding, headWidth(c)));
            wished += wishes.back().second;
        } else {
            setColumnWidth(c, ownWidth(c));
            room -= columnWidth(c);
        }
    }
    int leastBehind = 0;
    for (const auto& [column, wish] : wishes)
        leastBehind += leastWidth(column);
    for (std::size_t i = 0; i < wishes.size(); ++i) {
        const auto& [column, wish] = wishes[i];
        const int least = leastWidth(column);
        leastBehind -= least;
        const bool last = i + 1 == wishes.size();
        const int part = last ? room : std::min(room * wish / std::max(wished, 1), room - leastBehind);
        setColumnWidth(column, std::max(part, least));
        room -= columnWidth(column);
        wished -= wish;
    }
}

void TableView::fitRows() {
    verticalHeader()->setMinimumSectionSize(8);
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
}

void TableView::resizeEvent(QResizeEvent* event) {
    QTableView::resizeEvent(event);
    fitColumns();
}

void TableView::changeEvent(QEvent* event) {
    QTableView::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        tints_ = Tints(palette());
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        textWidths_.clear();
        fitRows();
        fitColumns();
    }
}

bool TableView::standsOut(int row) const {
    return !choosing() || row == grid_->rowAtHand();
}

bool TableView::choosing() const {
    return property("sceglie").toBool();
}

/// Arrow, page, Home and End keys move the mark. Enter and Space act as a click on the marked row. Other keys go to the
/// window.
void TableView::pressChoosingKey(QKeyEvent& event) {
    const int last = grid_->rows() - 1;
    const int page = std::max(viewport()->height() / std::max(verticalHeader()->defaultSectionSize(), 1) - 1, 1);
    int row = grid_->rowAtHand();
    switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
    case Qt::Key_Space: emit rowClicked(row); return;
    case Qt::Key_Up: --row; break;
    case Qt::Key_Down: ++row; break;
    case Qt::Key_PageUp: row -= page; break;
    case Qt::Key_PageDown: row += page; break;
    case Qt::Key_Home: row = 1; break;
    case Qt::Key_End: row = last; break;
    default: event.ignore(); return;
    }
    emit rowMarked(std::clamp(row, 1, std::max(last, 1)));
}

void TableView::keyPressEvent(QKeyEvent* event) {
    if (choosing()) {
        pressChoosingKey(*event);
        return;
    }
    const int moving = rowKeyCode(event->key());
    event->setAccepted(moving != 0);
    if (moving != 0)
        emit keyCode(moving);
}

/// Shows a tool tip with the text of a cell that is too narrow for it.
void TableView::tellCell(const QPoint& at) {
    const QModelIndex index = indexAt(at);
    const QString text = index.data().toString();
    const bool cut = fontMetrics().horizontalAdvance(text) + cellPadding > columnWidth(index.column());
    const QString told = index.isValid() && cut ? text.trimmed() : QString();
    QToolTip::showText(viewport()->mapToGlobal(at), testoSemplice(told), viewport());
}

bool TableView::viewportEvent(QEvent* event) {
    if (event->type() == QEvent::ToolTip) {
        tellCell(static_cast<QHelpEvent*>(event)->pos());
        return true;
    }
    return QTableView::viewportEvent(event);
}

} // namespace vanzer::desktop
