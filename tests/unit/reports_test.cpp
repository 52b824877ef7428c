// SPDX-License-Identifier: MIT
// Where reports begin a new page, according to the recording printer.
#include <algorithm>

#include <gtest/gtest.h>

#include <QJsonArray>

#include "batch/recording_printer.h"
#include "guide/entries.h"
#include "reports/guide_report.h"
#include "reports/time_line_report.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

class Reports : public testing::Test {
  protected:
    [[nodiscard]] QJsonArray pages() { return printer.takePages(); }

    /// Whether something on the page has all these values.
    static bool holds(const QJsonValue& page, const QJsonObject& part) {
        return std::ranges::any_of(page.toArray(), [&part](const QJsonValue& drawn) {
            return std::ranges::all_of(part.keys(), [&](const QString& key) { return drawn[key] == part[key]; });
        });
    }

    batch::RecordingPrinter printer;
    Foglio sheet{printer};
    const Piede foot{u"05/07/2003"_s, u"Vanzer"_s};
};

TEST_F(Reports, AGuideWithoutEntriesHasNoPage) {
    ReportGuida names(sheet, DettaglioGuida::Nomi, u"Guida Città: - Località - Tutte"_s, foot);
    EXPECT_FALSE(names.chiude());
    ReportGuida entries(sheet, DettaglioGuida::Voci, {}, foot);
    for (int i = 0; i < 57; ++i)
        entries.StampaRigaGuidaCitta({u"Roma"_s, u"Ottimo"_s, u"A"_s, u"Foro"_s, u"01:30"_s});
    EXPECT_TRUE(entries.chiude());
    const QJsonArray drawn = pages();
    ASSERT_EQ(drawn.size(), 3) << "56 rows fit a page";
    EXPECT_TRUE(holds(drawn[0], {{"op", "box"}, {"y1", 24}, {"y2", 276.5}}));
    EXPECT_TRUE(holds(drawn[1], {{"op", "box"}, {"y1", 24}, {"y2", 29}}));
}

TEST_F(Reports, TheDaysOfATimeLineShareAPageWhileTheyCanBeToldApart) {
    const struct {
        int days, pages;
        double underTheFirst; ///< mm
    } cases[] = {{24, 1, 46}, {50, 1, 40.96}, {99, 1, 38.51}, {100, 2, 38.5}};
    for (const auto& c : cases) {
        LineaDelTempo line;
        line.attivita.emplace_back().fine = 2400.0 * c.days;
        sheet.setUp();
        printTimeLine(sheet, u"GIRO"_s, line, foot);
        const QJsonArray drawn = pages();
        EXPECT_EQ(drawn.size(), c.pages) << c.days;
        EXPECT_TRUE(holds(drawn[0], {{"op", "line"}, {"x1", 12}, {"y1", c.underTheFirst}})) << c.days;
    }
}

} // namespace

} // namespace vanzer
