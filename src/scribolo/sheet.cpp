// SPDX-License-Identifier: MIT
#include "scribolo/sheet.h"

#include <algorithm>

#include <QList>

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

constexpr double smallestShare = 0.8; // smallest share of its size to which a text is shrunk
constexpr double tick = 3.6;          // mm, the side of a box to tick
constexpr double headingHeight = 5.5; // mm
constexpr Style label{};

Punto at(QPointF place) {
    return {place.x(), place.y()};
}

paper::Path outlineOf(const QRectF& box) {
    return paper::Path::rectangle(at(box.topLeft()), {box.width(), box.height()});
}

QRectF inner(const QRectF& box) {
    return box.adjusted(inset, 0, -inset, 0);
}

} // namespace

Sheet::Sheet(paper::Page& page, paper::Fonts& fonts) : page_(page), fonts_(fonts) {}

paper::Font Sheet::font(const Style& style, double size) const {
    return {.family = u"Liberation Sans"_s, .bold = style.bold, .points = size / paper::mmPerPoint};
}

double Sheet::width(const QString& text, const paper::Font& font) const {
    return fonts_.width(text, font);
}

/// The text, cut to `width` (mm) with dots at the end if it is too long.
QString Sheet::elided(const QString& text, const paper::Font& font, double width) const {
    constexpr double tolerance = 0.01; // mm
    const double most = width + tolerance;
    if (this->width(text, font) <= most)
        return text;
    QList<uint> letters = text.toUcs4();
    QString part;
    do {
        letters.removeLast();
        part = QString::fromUcs4(reinterpret_cast<const char32_t*>(letters.constData()), letters.size()) + u'…';
    } while (!letters.isEmpty() && this->width(part, font) > most);
    return part;
}

void Sheet::drawLine(const QRectF& box, const QString& text, const paper::Font& font, const Style& style) {
    const QString shown = elided(text, font, box.width());
    const double free = box.width() - width(shown, font);
    const double share = style.where == Qt::AlignRight ? 1 : style.where == Qt::AlignHCenter ? 0.5 : 0;
    const double top = box.center().y() - fonts_.height(font) / 2;
    page_.emplace_back(
        paper::DrawnText{{box.left() + free * share, top + fonts_.ascent(font)}, shown, font, style.colour});
}

void Sheet::text(const QRectF& box, const QString& text, const Style& style) {
    const double needed = width(text, font(style, style.size));
    constexpr double spare = 0.98; // the width doesn't shrink exactly in proportion
    const double share = needed > box.width() ? std::max(box.width() / needed * spare, smallestShare) : 1;
    drawLine(box, text, font(style, style.size * share), style);
}

QStringList Sheet::wrapped(const QString& text, const paper::Font& font, double width, int lines) const {
    QStringList result{{}};
    for (const QString& word : text.split(u' ')) {
        const QString longer = result.last().isEmpty() ? word : result.last() + u' ' + word;
        if (result.last().isEmpty() || result.size() == lines || this->width(longer, font) <= width)
            result.last() = longer;
        else
            result.append(word);
    }
    return result;
}

/// Wraps a text into the narrowest column that needs no more lines than `width` does.
QStringList Sheet::balanced(const QString& text, const paper::Font& font, double width, int lines) const {
    constexpr int steps = 60;
    QStringList best = wrapped(text, font, width, lines);
    const auto longest = [&](const QStringList& rows) {
        double most = 0;
        for (const QString& row : rows)
            most = std::max(most, this->width(row, font));
        return most;
    };
    for (int step = 1; step < steps; ++step) {
        const QStringList rows = wrapped(text, font, width * (steps - step) / steps, lines);
        if (rows.size() == best.size() && longest(rows) < longest(best))
            best = rows;
    }
    return best;
}

double Sheet::paragraph(const QRectF& box, const QString& text, const Style& style, double smallest, int lines) {
    constexpr double step = 0.5; // mm
    constexpr double leading = 1.25;
    double size = style.size;
    paper::Font chosen = font(style, size);
    QStringList rows = wrapped(text, chosen, box.width(), lines);
    const auto fits = [&](const QString& row) { return width(row, chosen) <= box.width(); };
    while (size - step >= smallest && !std::all_of(rows.begin(), rows.end(), fits)) {
        size -= step;
        chosen = font(style, size);
        rows = wrapped(text, chosen, box.width(), lines);
    }
    rows = balanced(text, chosen, box.width(), lines);
    QRectF row(box.topLeft(), QSizeF(box.width(), size * leading));
    for (const QString& words : rows) {
        drawLine(row, words, chosen, style);
        row.translate(0, row.height());
    }
    return row.top() - box.top();
}

void Sheet::line(QPointF from, QPointF to, Colour colour, double width) {
    page_.emplace_back(paper::DrawnLine{at(from), at(to), width, colour});
}

void Sheet::fill(const QRectF& box, Colour colour) {
    shape(outlineOf(box), colour);
}

void Sheet::frame(const QRectF& box) {
    curve(outlineOf(box), rule, {.width = 0.2});
}

void Sheet::shape(const paper::Path& path, Colour colour) {
    page_.emplace_back(paper::DrawnPath{path, colour});
}

void Sheet::curve(const paper::Path& path, Colour colour, const paper::Stroke& stroke) {
    page_.emplace_back(paper::DrawnPath{path, colour, stroke});
}

double Sheet::title(QPointF topLeft, double width, const QString& text) {
    this->text({topLeft, QSizeF(width, titleHeight)}, text, {.size = 3.7, .colour = accent, .bold = true});
    return topLeft.y() + titleHeight;
}

void Sheet::tickBoxes(const QRectF& box, const QStringList& labels) {
    constexpr double gap = 1.2; // mm between a box and its label
    Style style{.size = 3.1, .colour = ink};
    const auto needed = [&] {
        double sum = 0;
        for (const QString& label : labels)
            sum += tick + gap + width(label, font(style, style.size));
        return sum;
    };
    const double least = box.width() - static_cast<double>(labels.size() - 1); // leave at least a mm between two boxes
    if (needed() > least)
        style.size *= smallestShare;
    const double apart = (box.width() - needed()) / static_cast<double>(labels.size());
    double x = box.left();
    for (const QString& label : labels) {
        const QRectF square(x, box.center().y() - tick / 2, tick, tick);
        curve(outlineOf(square), faintInk, {.width = 0.25});
        const QRectF place(square.right() + gap, box.top(), width(label, font(style, style.size)), box.height());
        text(place, label, style);
        x = place.right() + apart;
    }
}

void Sheet::field(const QRectF& box, const QString& label, const QString& unit, const Style& style) {
    frame(box);
    text(inner(box), label, style);
    Style behind = style;
    behind.where = Qt::AlignRight;
    text(inner(box), unit, behind);
}

void Sheet::ruledLines(const QRectF& box) {
    const int count = static_cast<int>(box.height() / writingRow);
    for (int i = 1; i <= count; ++i) {
        const double y = box.top() + box.height() * i / count;
        line({box.left(), y}, {box.right(), y});
    }
}

double Sheet::table(QPointF topLeft, const std::vector<Column>& columns, int rows, double rowHeight) {
    const double height = headingHeight + rows * rowHeight;
    QRectF column(topLeft, QSizeF(0, height));
    for (const auto& [heading, columnWidth] : columns) {
        column.setWidth(columnWidth);
        const QRectF head(column.topLeft(), QSizeF(columnWidth, headingHeight));
        fill(head, ground);
        text(inner(head), heading, label);
        frame(column);
        column.moveLeft(column.right());
    }
    for (int row = 0; row < rows; ++row) {
        const double y = topLeft.y() + headingHeight + row * rowHeight;
        line({topLeft.x(), y}, {column.left(), y});
    }
    return topLeft.y() + height;
}

} // namespace vanzer::scribolo
