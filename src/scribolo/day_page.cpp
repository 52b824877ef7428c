// SPDX-License-Identifier: MIT
#include "scribolo/page_parts.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

constexpr double gap = 3.5;       // mm between two groups of fields
constexpr double costsWidth = 62; // mm, at the right edge
constexpr double leftWidth = fullWidth - costsWidth - 6;
constexpr Style rowName{.size = 3.3, .colour = ink, .bold = true};

/// Draws departure and arrival, the day's kilometres and the weather. Like the functions below, returns where the next
/// group may begin, in mm from the top.
double drawDrive(Sheet& sheet, double top) {
    constexpr double row = 9; // mm
    const std::vector<Column> columns{{{}, 25}, {u"Luogo"_s, 82}, {u"Ora"_s, 26}, {u"Contachilometri"_s, 42}};
    const double end = sheet.table({leftEdge, top}, columns, 3, row);
    QRectF name(leftEdge + inset, end - 3 * row, columns[0].width - 2 * inset, row);
    for (const QString& text : {u"Partenza"_s, u"Arrivo"_s, u"Meteo"_s}) {
        sheet.text(name, text, rowName);
        sheet.text({rightEdge - columns[3].width, name.top(), columns[3].width - inset, row}, u"km"_s,
                   {.where = Qt::AlignRight});
        name.translate(0, row);
    }
    const QRectF weather(leftEdge + columns[0].width, end - row, columns[1].width, row);
    sheet.tickBoxes(weather.adjusted(2, 0, 0, 0), {u"sole"_s, u"nuvole"_s, u"pioggia"_s, u"vento"_s, u"neve"_s});
    sheet.text({weather.right() + inset, weather.top(), columns[2].width - 2 * inset, row}, u"Km del giorno"_s,
               rowName);
    return end + gap;
}

double drawPlaces(Sheet& sheet, double top) {
    constexpr int rows = 8;
    const double below = sheet.title({leftEdge, top}, fullWidth, u"Luoghi della giornata"_s);
    return sheet.table({leftEdge, below}, {{u"Luogo"_s, 63}, {u"Arrivo"_s, 20}, {u"Partenza"_s, 20}, {u"Note"_s, 72}},
                       rows) +
           gap;
}

void drawFuel(Sheet& sheet, double top) {
    constexpr int rows = 2;
    constexpr double quarter = leftWidth / 4;
    const double below = sheet.title({leftEdge, top}, leftWidth, u"Carburante"_s);
    sheet.table({leftEdge, below},
                {{u"Km"_s, quarter}, {u"Litri"_s, quarter}, {u"Prezzo €/l"_s, quarter}, {u"Totale €"_s, quarter}},
                rows);
}

/// Draws the marks 1 to 5, one of which is to be ringed.
void drawMarks(Sheet& sheet, const QRectF& box) {
    constexpr int best = 5;
    constexpr double side = 5.4; // mm, diameter of a circle
    const double step = box.width() / best;
    for (int mark = 1; mark <= best; ++mark) {
        const QRectF around(box.left() + (mark - 0.5) * step - side / 2, box.center().y() - side / 2, side, side);
        sheet.curve(paper::Path::circle({around.center().x(), around.center().y()}, side / 2), rule, {.width = 0.25});
        sheet.text(around, QString::number(mark), {.where = Qt::AlignHCenter});
    }
}

/// Draws the night's fields, with their lower edge at `bottom` (mm).
void drawNight(Sheet& sheet, double bottom) {
    constexpr double half = leftWidth / 2;
    const double top = bottom - 3 * writingRow - titleHeight;
    const QRectF place(leftEdge, sheet.title({leftEdge, top}, leftWidth, u"Dove abbiamo dormito"_s), leftWidth,
                       writingRow);
    const QRectF kind = place.translated(0, writingRow);
    const QRectF cost(leftEdge, kind.bottom(), half, writingRow);
    const QRectF mark = cost.translated(half, 0);
    sheet.field(place, u"Luogo"_s);
    sheet.field(kind, u"Tipo"_s);
    sheet.tickBoxes(kind.adjusted(18, 0, 0, 0), {u"camping"_s, u"area"_s, u"libera"_s});
    sheet.field(cost, u"Costo"_s, u"€"_s);
    sheet.field(mark, u"Voto"_s);
    drawMarks(sheet, mark.adjusted(12, 0, -1, 0));
}

/// Draws the costs and returns where they end, in mm from the top.
double drawCosts(Sheet& sheet, double top) {
    const double left = rightEdge - costsWidth;
    QRectF row(left, sheet.title({left, top}, costsWidth, u"Costi"_s), costsWidth, writingRow);
    for (const QString& cost : {u"Pedaggi"_s, u"Traghetti"_s, u"Ingressi"_s, u"Pasti"_s, u"Spesa"_s, u"Altro"_s}) {
        sheet.field(row, cost, u"€"_s);
        row.translate(0, writingRow);
    }
    sheet.fill(row, ground);
    sheet.field(row, {}, u"€"_s);
    sheet.text(row.adjusted(inset, 0, 0, 0), u"Totale"_s, rowName);
    return row.bottom();
}

} // namespace

void drawDay(Sheet& sheet) {
    const double middle = drawPlaces(sheet, drawDrive(sheet, bodyTop));
    const double bottom = drawCosts(sheet, middle);
    drawFuel(sheet, middle);
    drawNight(sheet, bottom);
    drawNotes(sheet, bottom + gap, u"Note"_s);
}

} // namespace vanzer::scribolo
