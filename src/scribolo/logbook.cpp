// SPDX-License-Identifier: MIT
#include "scribolo/logbook.h"

#include "scribolo/page_parts.h"

namespace vanzer::scribolo {

namespace {

using namespace Qt::StringLiterals;

/// The texts in the head of a page.
struct Head {
    QString left;
    QString right;
};

Head headOf(const Trip& trip, const Page& page) {
    if (page.kind == Page::Kind::Day)
        return {dateWithWeekday(dayDate(trip, page.firstDay)), u"giorno %1 di %2"_s.arg(page.firstDay).arg(trip.days)};
    const QString days = page.firstDay == page.lastDay ? u"giorno %1"_s.arg(page.firstDay)
                                                       : u"giorni %1–%2"_s.arg(page.firstDay).arg(page.lastDay);
    return {u"Riepilogo del viaggio"_s, days};
}

void drawHead(Sheet& sheet, const Trip& trip, const Page& page) {
    constexpr double rightPart = 45; // mm
    const Head head = headOf(trip, page);
    sheet.text({leftEdge, topEdge, fullWidth, 5}, trip.name, {.size = 3.6});
    const double top = topEdge + 5;
    sheet.text({leftEdge, top, fullWidth - rightPart, 9}, head.left, {.size = 6.2, .colour = ink, .bold = true});
    sheet.text({rightEdge - rightPart, top, rightPart, 9}, head.right,
               {.size = 4.6, .colour = accent, .bold = true, .where = Qt::AlignRight});
    sheet.line({leftEdge, top + 10}, {rightEdge, top + 10}, accent, 0.7);
}

void drawFoot(Sheet& sheet, const QString& name, std::size_t number, std::size_t count) {
    constexpr double pagePart = 35; // mm
    sheet.line({leftEdge, footLine}, {rightEdge, footLine});
    sheet.text({leftEdge, footLine, fullWidth - pagePart, 6}, u"Diario di bordo – "_s + name);
    sheet.text({rightEdge - pagePart, footLine, pagePart, 6}, u"pagina %1 di %2"_s.arg(number).arg(count),
               {.where = Qt::AlignRight});
}

} // namespace

void drawNotes(Sheet& sheet, double top, const QString& title) {
    const double below = sheet.title({leftEdge, top}, fullWidth, title) - 2;
    sheet.ruledLines({leftEdge, below, fullWidth, footLine - below});
}

paper::Page drawnPage(const Trip& trip, const std::vector<Page>& pages, std::size_t index, paper::Fonts& fonts) {
    paper::Page drawn;
    Sheet sheet(drawn, fonts);
    const Page& page = pages.at(index);
    if (page.kind == Page::Kind::Cover) {
        drawCover(sheet, trip);
        return drawn;
    }
    drawHead(sheet, trip, page);
    if (page.kind == Page::Kind::Day)
        drawDay(sheet);
    else
        drawSummary(sheet, trip, page);
    drawFoot(sheet, trip.name, index + 1, pages.size());
    return drawn;
}

} // namespace vanzer::scribolo
