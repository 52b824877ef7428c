// What the reports draw, told by the recording printer, and the lines of their text files.
#include <gtest/gtest.h>

#include <map>

#include <QJsonArray>
#include <QJsonDocument>

#include "batch/queue_ports.h"
#include "batch/recording_printer.h"
#include "guide/entries.h"
#include "reports/guide_report.h"
#include "reports/schedule_report.h"
#include "reports/text_files.h"
#include "reports/time_line_report.h"
#include "schedule/rows.h"

namespace vanzer {

using namespace Qt::StringLiterals;

namespace {

using Cells = std::map<int, QString>;

/// What was drawn on a page: "text x y size style|text", "line …", "box …", "picture …".
std::vector<std::string> told(const QJsonValue& page) {
    std::vector<std::string> lines;
    const auto number = [](const QJsonValue& v) { return QString::number(v.toDouble()); };
    for (const QJsonValue& drawn : page.toArray()) {
        const QJsonObject o = drawn.toObject();
        const QString kind = o["op"].toString();
        QString line = kind;
        for (const char* key : {"x", "y", "x1", "y1", "x2", "y2", "w", "h", "size", "width"}) {
            if (o.contains(QLatin1StringView(key)))
                line += u' ' + number(o[QLatin1StringView(key)]);
        }
        if (kind == u"text")
            line += QString(o["bold"].toBool() ? u" b"_s : u""_s) + QString(o["italic"].toBool() ? u" i"_s : u""_s) +
                    u'|' + o["text"].toString();
        if (kind == u"box" && !o["fill"].isNull())
            line += u' ' + o["fill"].toString();
        lines.push_back(line.toStdString());
    }
    return lines;
}

class Reports : public testing::Test {
  protected:
    /// The pages drawn so far.
    [[nodiscard]] std::vector<std::vector<std::string>> pages() {
        std::vector<std::vector<std::string>> result;
        const QJsonArray drawn = printer.take()["pages"].toArray();
        for (const QJsonValue& page : drawn)
            result.push_back(told(page));
        return result;
    }

    static bool holds(const std::vector<std::string>& page, const std::string& line) {
        return std::find(page.begin(), page.end(), line) != page.end();
    }

    batch::QueuedDialogs dialogs;
    batch::RecordingPrinter printer{dialogs};
    Foglio sheet{printer};
    const Piede foot{u"05/07/2003"_s, u"Vanzer"_s};
};

TEST_F(Reports, AScheduleFillsItsPages) {
    constexpr int rows = 110;
    sheet.imposta();
    const DatiViandoria trip{};
    ReportViandoria schedule(sheet, trip, foot, [](int row, int column) -> const QString& {
        static const QString place = u"ROMA"_s;
        static const QString none;
        return column == colTappa && row <= rows ? place : none;
    });
    for (int row = 1; row <= rows; ++row) {
        schedule.preparaPagina(row);
        schedule.StampaRiga(row);
    }
    schedule.finePagina();
    const auto drawn = pages();
    ASSERT_EQ(drawn.size(), 4U) << "three pages, and the one behind the last foot";
    for (const char* line : {"box 10 44 200 50 3 #c0ffc0", "text 18 51.72 9|Roma", "line 10 55.5 200 55.5 1",
                             "line 10 285 200 285 1", "text 12 286.98 6 i|05/07/2003"})
        EXPECT_TRUE(holds(drawn[0], line)) << line;
    EXPECT_FALSE(holds(drawn[0], "line 10 289.5 200 289.5 1"));
    EXPECT_EQ(drawn[0].back(), "box 10 51 200 285 3");
    for (const char* line :
         {"box 10 22 200 28 3 #c0ffc0", "text 18 29.72 9|Roma", "line 10 281 200 281 1", "box 10 29 200 281 3"})
        EXPECT_TRUE(holds(drawn[1], line)) << line;
    EXPECT_TRUE(holds(drawn[2], "line 10 33.5 200 33.5 1"));
    EXPECT_TRUE(holds(drawn[2], "box 10 29 200 38 3"));
    EXPECT_TRUE(drawn[3].empty());
}

TEST_F(Reports, TheGuideByNamesAndByEntries) {
    ReportGuida names(sheet, DettaglioGuida::Nomi, u"Guida Città: - Località - Tutte"_s, foot);
    EXPECT_FALSE(names.chiude());
    for (int i = 1; i <= 6; ++i)
        names.StampaRigaGuidaCitta({u"Luogo %1"_s.arg(i), {}, {}, {}, {}});
    EXPECT_TRUE(names.chiude());
    auto drawn = pages();
    ASSERT_EQ(drawn.size(), 2U);
    for (const char* line : {"box 3 17.5 195 23.5 3 #c0ffc0", "text 157 25.64 8|Luogo 5", "line 3 29 195 29 1",
                             "text 5 30.14 8|Luogo 6", "line 42 24 42 33.5 1", "box 3 24 195 33.5 3"})
        EXPECT_TRUE(holds(drawn[0], line)) << line;
    EXPECT_FALSE(holds(drawn[0], "line 3 33.5 195 33.5 1")) << "the last line isn't full";

    ReportGuida entries(sheet, DettaglioGuida::Voci, {}, foot);
    for (int i = 0; i < 57; ++i)
        entries.StampaRigaGuidaCitta({u"Roma"_s, u"Ottimo"_s, u"A"_s, u"Foro"_s, u"01:30"_s});
    EXPECT_TRUE(entries.chiude());
    drawn = pages();
    ASSERT_EQ(drawn.size(), 3U) << "56 rows fit a page";
    for (const char* line :
         {"text 5 25.64 8|Roma", "text 45 25.64 8|Ottimo", "text 65.74 25.64 8|A", "text 75 25.64 8|Foro",
          "text 187.7 25.64 8|01:30", "line 3 276.5 200 276.5 1", "box 3 24 200 276.5 3"})
        EXPECT_TRUE(holds(drawn[0], line)) << line;
    EXPECT_TRUE(holds(drawn[1], "box 3 24 200 29 3"));
}

TEST_F(Reports, TheDaysOfATimeLineShareAPageWhileTheyCanBeToldApart) {
    const struct {
        int days;
        std::size_t pages;
        std::string underTheFirst;
    } cases[] = {{24, 1, "line 12 46 200 46 1"},
                 {50, 1, "line 12 40.96 200 40.96 1"},
                 {99, 1, "line 12 38.51 200 38.51 1"},
                 {100, 2, "line 12 38.5 200 38.5 1"}};
    for (const auto& c : cases) {
        LineaDelTempo line;
        line.attivita.emplace_back().fine = 2400.0 * c.days;
        sheet.imposta();
        stampaLinea(sheet, u"GIRO"_s, line, foot);
        const auto drawn = pages();
        EXPECT_EQ(drawn.size(), c.pages) << c.days;
        EXPECT_TRUE(holds(drawn[0], c.underTheFirst)) << c.days;
    }
}

TEST(PrintedFiles, TableAndPlaces) {
    const std::vector<Cells> rows{
        {{colNumero, u"1"_s}, {colTappa, u" ROMA NORD "_s}, {colKm, u"12"_s}, {colOra, u"9"_s}},
        {{colTappa, u" > Foro"_s}},
        {{colTappa, u"ANCONA"_s}},
        {{colTappa, u"INGRESSO IN AUSTRIA"_s}},
        {{colTappa, u"BUDAPEST"_s}},
        {{colTappa, u"Verso: Graz"_s}},
        {{colTappa, titoloTotali.toString()}},
        {{colTappa, u"Percorso specifico:\t"_s}}};
    const CellaViandoria cell = [&rows](int row, int column) -> const QString& {
        static const QString none;
        const Cells& cells = rows.at(static_cast<std::size_t>(row - 1));
        const auto found = cells.find(column);
        return found == cells.end() ? none : found->second;
    };
    EXPECT_EQ(rigaTabella(1, cell), u"1\tROMA NORD\t\t12\t\t\t\t\t\t\t\t");
    EXPECT_EQ(listaLocalita(static_cast<int>(rows.size()) + 1, cell),
              (QStringList{u"'Nazione\tLocalità"_s, u"Italia\tROMA "_s, u"AUSTRIA\tBUDAP"_s}));
    EXPECT_EQ(intestazioneTabella(u"GIRO"_s).size(), 3);
    EXPECT_EQ(comandoModuli(u"/viaggi"_s, viaggioPerModuli(u"Parigi, 2003"_s, {u"01"_s, u"02"_s, u"2003"_s},
                                                           {u"03"_s, u"02"_s, u"2003"_s})),
              u"/viaggi\\Scribolo.exe Parigi, 2003,01/02/2003,03/02/2003");
}

} // namespace

} // namespace vanzer
