// SPDX-License-Identifier: MIT
#include "desktop/row_delegate.h"

#include <array>

#include <QPainter>

#include "desktop/table_view.h"
#include "desktop/tints.h"
#include "guide/entries.h"
#include "schedule/rows.h"
#include "toolkit/grid_model.h"

namespace vanzer::desktop {

namespace {

using Tipo = AspettoRiga::Tipo;

constexpr int sideMargin = 5;
constexpr int stopIndent = 18;
/// Where kilometres, driving and stops begin in a line of totals, in widths of a digit from its left edge.
constexpr std::array<int, 3> totalColumns{2, 18, 56};

bool isTotal(const AspettoRiga& look) {
    return look.tipo == Tipo::Totale || look.tipo == Tipo::TitoloTotale;
}

} // namespace

struct RowDelegate::Cell {
    const QStyleOptionViewItem& option;
    const AspettoRiga& look;
    int column;
    QString text;
    Qt::Alignment across;
    bool marked;
    bool selected;
    const Tints& tints;

    [[nodiscard]] QColor ink() const {
        if (selected)
            return option.palette.color(QPalette::Active, QPalette::HighlightedText);
        const bool standsBack = look.tipo == Tipo::NuovoGiorno || (look.tipo == Tipo::Voce && column == guidaLuogo);
        return standsBack ? tints.faint : option.palette.color(QPalette::Active, QPalette::Text);
    }
    [[nodiscard]] QRect textRect() const {
        const bool inset = column == colTappa &&
                           (look.tipo == Tipo::Sosta || look.tipo == Tipo::NuovoGiorno || look.tipo == Tipo::Voce);
        return option.rect.adjusted(sideMargin + (inset ? stopIndent : 0), 0, -sideMargin, 0);
    }
};

RowDelegate::RowDelegate(TableView& view) : QStyledItemDelegate(&view), view_(view) {}

void RowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const {
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    const Cell cell{.option = option,
                    .look = view_.look(index.row() + 1),
                    .column = index.column(),
                    .text = index.data().toString(),
                    .across = index.data(Qt::TextAlignmentRole).value<Qt::Alignment>(),
                    .marked = chosen || index.data(GridModel::MarkedRole).toBool(),
                    .selected = chosen && view_.standsOut(index.row() + 1),
                    .tints = view_.tints()};
    painter->save();
    painter->setClipRect(option.rect);
    drawGround(*painter, cell);
    painter->setPen(cell.ink());
    QFont font = option.font;
    font.setBold(cell.look.tipo == Tipo::TitoloTotale || (cell.look.tipo == Tipo::Luogo && cell.column == guidaLuogo));
    font.setItalic(cell.look.tipo == Tipo::NuovoGiorno);
    painter->setFont(font);
    if (cell.look.tipo == Tipo::Totale)
        drawTotal(*painter, cell);
    else if (cell.look.tipo == Tipo::Voce && cell.column == guidaTipo)
        drawCategory(*painter, cell);
    else
        drawText(*painter, cell);
    painter->restore();
}

void RowDelegate::drawGround(QPainter& painter, const Cell& cell) const {
    const QRect& rect = cell.option.rect;
    QColor ground = cell.option.palette.color(QPalette::Active, QPalette::Base);
    if (cell.selected)
        ground = cell.option.palette.color(QPalette::Active, QPalette::Highlight);
    else if (isTotal(cell.look))
        ground = cell.tints.total;
    else if (cell.look.tipo == Tipo::Luogo)
        ground = cell.tints.place;
    else if (cell.marked)
        ground = cell.tints.marked;
    else if (cell.look.viandoria && cell.look.giorno % 2 == 1)
        ground = cell.tints.band;
    painter.fillRect(rect, ground);
    painter.setPen(cell.look.fineGiornata ? cell.tints.rule : cell.tints.computed);
    painter.drawLine(rect.bottomLeft(), rect.bottomRight());
    if (!isTotal(cell.look)) {
        painter.setPen(cell.tints.computed);
        painter.drawLine(rect.topRight(), rect.bottomRight() - QPoint(0, 1));
    }
}

void RowDelegate::drawText(QPainter& painter, const Cell& cell) const {
    if (cell.text.isEmpty())
        return;
    const QRect rect = cell.textRect();
    const Qt::Alignment across = isTotal(cell.look) ? Qt::Alignment(Qt::AlignLeft) : cell.across;
    const QString text = cell.text.trimmed();
    const QFontMetrics metrics = painter.fontMetrics();
    const bool fits = text.size() * metrics.maxWidth() <= rect.width();
    painter.drawText(rect, static_cast<int>((across & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter),
                     fits ? text : metrics.elidedText(text, Qt::ElideRight, rect.width()));
}

/// Draws kilometres, driving and stops, which are separated by tabs, at the same places in every line.
void RowDelegate::drawTotal(QPainter& painter, const Cell& cell) const {
    const int digit = painter.fontMetrics().horizontalAdvance(u'0');
    const QStringList parts = cell.text.split(u'\t', Qt::SkipEmptyParts);
    std::size_t place = 0;
    for (const QString& part : parts) {
        if (place == totalColumns.size())
            break;
        const QRect rect = cell.textRect().adjusted(totalColumns[place++] * digit, 0, 0, 0);
        painter.drawText(rect, Qt::AlignLeft | Qt::AlignVCenter, part.trimmed());
    }
}

/// Draws the first letter of the category on the category's colour, and its name.
void RowDelegate::drawCategory(QPainter& painter, const Cell& cell) const {
    const QString name = cell.text.trimmed();
    const QFontMetrics metrics = painter.fontMetrics();
    const QRect rect = cell.textRect();
    QRect badge(0, 0, metrics.height() + 4, metrics.height());
    badge.moveCenter(rect.center());
    badge.moveLeft(rect.left());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(cell.selected ? cell.ink() : Qt::transparent);
    painter.setBrush(coloreCategoria(cell.look.categoria));
    painter.drawRoundedRect(badge, 4, 4);
    painter.setPen(Qt::white);
    painter.drawText(badge, Qt::AlignCenter, name.left(1).toUpper());
    painter.setPen(cell.ink());
    const QRect beside = rect.adjusted(badge.width() + sideMargin, 0, 0, 0);
    painter.drawText(beside, Qt::AlignLeft | Qt::AlignVCenter,
                     metrics.elidedText(name, Qt::ElideRight, beside.width()));
}

} // namespace vanzer::desktop
