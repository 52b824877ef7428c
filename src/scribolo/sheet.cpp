#include "scribolo/sheet.h"

#include <algorithm>
#include <cmath>

#include <QFontMetricsF>

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

/// The painter's own unit is this part of a millimetre: sizes of fonts are whole numbers of it.
constexpr double units = 100;
constexpr double smallestShare = 0.8; // of its size, that a text is shrunk to
constexpr double tick = 3.6;          // mm, the side of a box to tick
constexpr double headingHeight = 5.5; // mm
constexpr Style label{};

QRectF scaled(const QRectF& box) {
    return {box.topLeft() * units, box.size() * units};
}

QRectF inner(const QRectF& box) {
    return box.adjusted(inset, 0, -inset, 0);
}

} // namespace

Sheet::Sheet(QPainter& painter) : painter_(painter) {
    painter_.setWindow(0, 0, static_cast<int>(sheetWidth * units), static_cast<int>(sheetHeight * units));
    painter_.setRenderHint(QPainter::Antialiasing);
}

QFont Sheet::font(const Style& style, double size) const {
    QFont font;
    font.setFamilies({u"Liberation Sans"_s, u"DejaVu Sans"_s});
    font.setStyleHint(QFont::SansSerif);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setBold(style.bold);
    font.setPixelSize(static_cast<int>(std::lround(size * units)));
    return font;
}

double Sheet::width(const QString& text, const QFont& font) const {
    return QFontMetricsF(font, painter_.device()).horizontalAdvance(text) / units;
}

void Sheet::drawLine(const QRectF& box, const QString& text, const QFont& font, const Style& style) {
    const QFontMetricsF metrics(font, painter_.device());
    painter_.setFont(font);
    painter_.setPen(QColor::fromRgb(style.colour));
    painter_.drawText(scaled(box), static_cast<int>(style.where | Qt::AlignVCenter) | Qt::TextSingleLine,
                      metrics.elidedText(text, Qt::ElideRight, box.width() * units + 1));
}

void Sheet::text(const QRectF& box, const QString& text, const Style& style) {
    const double needed = width(text, font(style, style.size));
    constexpr double spare = 0.98; // letters don't shrink quite evenly
    const double share = needed > box.width() ? std::max(box.width() / needed * spare, smallestShare) : 1;
    drawLine(box, text, font(style, style.size * share), style);
}

QStringList Sheet::wrapped(const QString& text, const QFont& font, double width, int lines) const {
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

/// As many lines as wrapping needs, in the narrowest column that needs no more.
QStringList Sheet::balanced(const QString& text, const QFont& font, double width, int lines) const {
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
    QFont chosen = font(style, size);
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

void Sheet::line(QPointF from, QPointF to, QRgb colour, double width) {
    painter_.setPen(QPen(QColor::fromRgb(colour), width * units, Qt::SolidLine, Qt::FlatCap));
    painter_.drawLine(from * units, to * units);
}

void Sheet::fill(const QRectF& box, QRgb colour) {
    painter_.fillRect(scaled(box), QColor::fromRgb(colour));
}

void Sheet::outline(const QRectF& box, QRgb colour, double width) {
    painter_.setPen(QPen(QColor::fromRgb(colour), width * units, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter_.setBrush(Qt::NoBrush);
    painter_.drawRect(scaled(box));
}

void Sheet::frame(const QRectF& box) {
    outline(box, rule, 0.2);
}

void Sheet::shape(const QPainterPath& path, QRgb colour) {
    painter_.fillPath(QTransform::fromScale(units, units).map(path), QColor::fromRgb(colour));
}

void Sheet::curve(const QPainterPath& path, QRgb colour, double width, const QList<double>& dashes) {
    QPen pen(QColor::fromRgb(colour), width * units, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin);
    if (!dashes.isEmpty()) {
        QList<qreal> inWidths; // how a pen counts them
        for (const double dash : dashes)
            inWidths.append(dash / width);
        pen.setDashPattern(inWidths);
    }
    painter_.strokePath(QTransform::fromScale(units, units).map(path), pen);
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
    const double least = box.width() - static_cast<double>(labels.size() - 1); // a millimetre between two
    if (needed() > least)
        style.size *= smallestShare;
    const double apart = (box.width() - needed()) / static_cast<double>(labels.size());
    double x = box.left();
    for (const QString& label : labels) {
        const QRectF square(x, box.center().y() - tick / 2, tick, tick);
        outline(square, faintInk, 0.25);
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
