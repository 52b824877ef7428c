// SPDX-License-Identifier: MIT
#include "scribolo/page_parts.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

const std::vector<Column>& columns() {
    static const std::vector<Column> all{{{}, 9},
                                         {u"Data"_s, 22},
                                         {u"Tappa"_s, 48},
                                         {u"Km"_s, 16},
                                         {u"Carburante €"_s, 22},
                                         {u"Notte €"_s, 17},
                                         {u"Altri costi €"_s, 20},
                                         {u"Totale €"_s, 21}};
    return all;
}
constexpr double namesWidth = 9 + 22 + 48; // mm, the columns before the figures

/// Draws a row of sums: a cell for its name, then cells for the figures. Returns where it ends, in mm from the top.
double sumRow(Sheet& sheet, double top, const QString& name) {
    QRectF cell(leftEdge, top, namesWidth, writingRow);
    sheet.fill({leftEdge, top, fullWidth, writingRow}, ground);
    sheet.frame(cell);
    sheet.text(cell.adjusted(1.6, 0, -1.6, 0), name,
               {.size = 3.3, .colour = ink, .bold = true, .where = Qt::AlignRight});
    for (std::size_t i = 3; i < columns().size(); ++i) {
        cell = QRectF(cell.right(), top, columns()[i].width, writingRow);
        sheet.frame(cell);
    }
    return cell.bottom();
}

} // namespace

void drawSummary(Sheet& sheet, const Trip& trip, const Page& page) {
    const bool first = page.firstDay == 1;
    const bool last = page.lastDay == trip.days;
    const int rows = page.lastDay - page.firstDay + (first ? 1 : 2);
    const double end = sheet.table({leftEdge, bodyTop}, columns(), rows);
    double y = end - rows * writingRow;
    if (!first)
        y = sumRow(sheet, y, u"Riporto"_s);
    for (int day = page.firstDay; day <= page.lastDay; ++day) {
        sheet.text({leftEdge, y, columns()[0].width - 1.6, writingRow}, QString::number(day),
                   {.size = 3.3, .colour = ink, .bold = true, .where = Qt::AlignRight});
        sheet.text({leftEdge + columns()[0].width + 1.6, y, columns()[1].width - 3, writingRow},
                   shortDate(dayDate(trip, day)), {.size = 3.3, .colour = ink});
        y += writingRow;
    }
    const double below = sumRow(sheet, end, last ? u"Totale del viaggio"_s : u"Da riportare"_s) + 5;
    constexpr double worthwhile = 4 * writingRow;
    if (footLine - below > worthwhile)
        drawNotes(sheet, below, u"Da ricordare"_s);
}

} // namespace vanzer::scribolo
