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
    [[nodiscard]] ReportViandoria report(std::vector<Cells> rows) {
        rows_ = std::move(rows);
        sheet.imposta();
        return {sheet, trip, {u"05/07/2003"_s, u"Vanzer"_s}, [this](int row, int column) -> const QString& {
                    static const QString none;
                    const auto r = static_cast<std::size_t>(row - 1);
                    if (r >= rows_.size())
                        return none;
                    const auto found = rows_[r].find(column);
                    return found == rows_[r].end() ? none : found->second;
                }};
    }

    void printAll(ReportViandoria& report) {
        for (int r = 1; r <= static_cast<int>(rows_.size()); ++r) {
            report.preparaPagina(r);
            report.StampaRiga(r);
        }
        report.finePagina();
    }

    /// The pages drawn so far.
    [[nodiscard]] std::vector<std::vector<std::string>> pages() {
        std::vector<std::vector<std::string>> result;
        const QJsonArray drawn = printer.take()["pages"].toArray();
        for (const QJsonValue& page : drawn)
            result.push_back(told(page));
        return result;
    }

    /// What is drawn for one row, from its first operation on, without the head of its page.
    [[nodiscard]] std::vector<std::string> row(const Cells& cells, const Cells& next = {}) {
        ReportViandoria one = report({cells, next});
        one.preparaPagina(1);
        (void)printer.take();
        one.StampaRiga(1);
        return pages().at(0);
    }

    static bool holds(const std::vector<std::string>& page, const std::string& line) {
        return std::find(page.begin(), page.end(), line) != page.end();
    }

    batch::QueuedDialogs dialogs;
    batch::RecordingPrinter printer{dialogs};
    Foglio sheet{printer};
    DatiViandoria trip{.localita = u"Parigi 2003"_s,
                       .nazione = u"Francia"_s,
                       .giornoInizio = u"Sab"_s,
                       .inizio = {u"05"_s, u"07"_s, u"2003"_s},
                       .oraInizio = {u"08"_s, u"15"_s},
                       .giornoFine = u"Dom"_s,
                       .fine = {u"13"_s, u"07"_s, u"2003"_s},
                       .oraFine = {u"19"_s, u"30"_s},
                       .giorni = u"9"_s,
                       .kmTotali = u" 1.234"_s,
                       .strade = {{{u"Autostrada"_s, u"90"_s, u"1.000"_s, u"11:06"_s},
                                   {u"Superstrada"_s, u"75"_s, u""_s, u""_s},
                                   {u"Principale"_s, u"60"_s, u"0"_s, u""_s},
                                   {u"Locale"_s, u"45"_s, u"234"_s, u"05:12"_s}}},
                       .traghetti = {},
                       .orari = {},
                       .range = u"15"_s,
                       .riposoMinuti = u"15"_s,
                       .riposoOre = u"03"_s,
                       .riposoGiorni = u"01"_s,
                       .riposoDopoGiorni = u"05"_s};

  private:
    std::vector<Cells> rows_;
};

TEST_F(Reports, AScheduleFillsItsPages) {
    ReportViandoria schedule = report(std::vector<Cells>(110, Cells{{colTappa, u"ROMA"_s}}));
    schedule.frontespizioViandoria();
    printAll(schedule);
    const auto drawn = pages();
    ASSERT_EQ(drawn.size(), 5U) << "the cover, three pages, and the one behind the last foot";
    for (const char* line : {"box 15 15 195 280 1", "picture 22 20 15 15", "picture 170 19 18 18",
                             "text 74.26 114.84 48 b|Parigi", "text 84.34 134.84 48 b|2003",
                             "text 69.98 214.88 36 b|Viandoria", "text 51.58 249.92 24 b|05/07/2003-13/07/2003"})
        EXPECT_TRUE(holds(drawn[0], line)) << line;
    for (const char* line :
         {"box 40 10 130 20 3 #c0ffc0", "text 71.3 13.38 11 b|Parigi 2003", "box 10 22 70 43 3", "box 75 22 125 43 2",
          "box 130 22 200 43 2", "box 10 44 200 50 3 #c0ffc0", "text 18 45.22 9 b|Località", "line 17 44 17 50 1",
          "text 18 51.72 9|Roma", "line 10 55.5 200 55.5 1", "line 10 285 200 285 1", "box 10 51 200 285 3"})
        EXPECT_TRUE(holds(drawn[1], line)) << line;
    EXPECT_EQ(std::count(drawn[1].begin(), drawn[1].end(), "line 10 289.5 200 289.5 1"), 0);
    EXPECT_EQ(drawn[1].back(), "box 10 51 200 285 3");
    EXPECT_TRUE(holds(drawn[1], "text 12 286.98 6 i|05/07/2003"));
    for (const char* line :
         {"box 10 22 200 28 3 #c0ffc0", "text 18 29.72 9|Roma", "line 10 281 200 281 1", "box 10 29 200 281 3"})
        EXPECT_TRUE(holds(drawn[2], line)) << line;
    EXPECT_TRUE(holds(drawn[3], "line 10 33.5 200 33.5 1"));
    EXPECT_TRUE(holds(drawn[3], "box 10 29 200 38 3"));
    EXPECT_TRUE(drawn[4].empty());
}

TEST_F(Reports, RowsOfTheSchedule) {
    const auto leg = [](const char16_t* place) {
        return Cells{{colNumero, u"7"_s}, {colTappa, QString::fromUtf16(place)}, {colData, u"05/07"_s}};
    };
    using Lines = std::vector<std::string>;
    const struct {
        const char* what;
        Cells cells;
        Cells next;
        Lines drawn; ///< texts with their places, and the separators' positions
    } cases[] = {
        {"a name runs over the empty columns, no separator stands before the eighth",
         {{colTappa, u"> a Roma"_s}},
         {},
         {"text 18 51.72 9|> a Roma"}},
        {"a place that opens a run of stops",
         leg(u"ROMA [Start]"),
         {{colTappa, u" > Foro"_s}},
         {"text 13.29 51.72 9|7", "text 18 51.72 9 b|ROMA [START]", "text 144.51 52.41 7.35|05/07"}},
        {"the same without a date", {{colTappa, u"ROMA"_s}}, {{colTappa, u" > Foro"_s}}, {"text 18 51.72 9|Roma"}},
        {"the group of an entry",
         {{colTappa, u"> A-B * Foro"_s}},
         {},
         {"text 192.7 51.3 10 b|A-B", "text 18 51.72 9|> Foro"}},
        {"the word of a ferry goes",
         {{colTappa, u"ANCONA (Tragh. Spalato) PORTO"_s}},
         {},
         {"text 18 51.72 9|Ancona Spalato) Porto"}},
        {"a road on one line, and one that shrinks", {{colStrada, u"A22"_s}}, {}, {"text 71.44 51.32 9|A22"}},
        {"a road on two lines, wider than its column",
         {{colStrada, u"A1 VARIANTE DI VALICO PER FIRENZE"_s}},
         {},
         {"text 59.35 51.2 5.84|A1 VARIANTE DI VALICO", "text 64.21 52.97 6.5|PER FIRENZE"}},
        {"a road without a blank is cut in its middle",
         {{colStrada, u"ABCDEFGHIJKLMNOPQRSTUVWXYZ1"_s}},
         {},
         {"text 65.97 50.92 6.5|ABCDEFGHIJKLM", "text 65.79 53.11 6.17|NOPQRSTUVWXYZ1"}},
        {"a note in italics", {{colNote, u"Riposo 15'"_s}}, {}, {"text 161 51.72 9 i|Riposo 15'"}},
        {"a short summary",
         {{colNote, u"Pranzo [Km 20; 1]"_s}},
         {},
         {"text 161 51.3 10|Pranzo", "text 174 52.14 8|Km 20; 1"}},
        {"a long summary on two lines",
         {{colNote, u"[Km 75 in ore 01:00; soste per ore 00:30]"_s}},
         {},
         {"text 163 50.66 7|Km 75 in ore 01:00", "text 163 52.86 7|soste per ore 00:30"}},
    };
    for (const auto& c : cases) {
        Lines texts;
        for (const std::string& line : row(c.cells, c.next)) {
            if (line.starts_with("text"))
                texts.push_back(line);
        }
        EXPECT_EQ(texts, c.drawn) << c.what;
    }
}

TEST_F(Reports, SeparatorsBeginWithTheFirstFilledColumn) {
    const auto separators = [this](const Cells& cells) {
        std::string at;
        for (const std::string& line : row(cells)) {
            if (line.starts_with("line") && line.find(" 51 ") != std::string::npos)
                at += line.substr(5, line.find(' ', 5) - 5) + ' ';
        }
        return at;
    };
    EXPECT_EQ(separators({{colTappa, u"ROMA"_s}}), "17 116 126 136 144 152 160 ");
    EXPECT_EQ(separators({{colTappa, u"ROMA"_s}, {colTipo, u"A"_s}}), "17 91 96 106 116 126 136 144 152 160 ");
    EXPECT_EQ(separators({{colNote, u"Pranzo"_s}}), "17 116 126 136 144 152 160 ");
}

TEST_F(Reports, BoxesOfTheFirstPage) {
    const auto firstPage = [this] {
        ReportViandoria one = report({{{colTappa, u"ROMA"_s}}});
        one.preparaPagina(1);
        return pages().at(0);
    };
    const auto plain = firstPage();
    for (const char* line : {"text 10.84 33.06 7.01|Sab - 05/07/2003", "text 38.2 40.47 6.02|dopo 9 giorni e 1.234 Km.",
                             "line 10 27 35 27 3", "line 35 27 35 43 1", "text 76 27.74 8 b i|A",
                             "text 79 27.74 8 i|Autostrada", "text 103.4 27.74 8|1.000", "line 75 31.2 125 31.2 2",
                             "line 95 22 95 43.1 2", "text 132 22.77 7.68 b i|Tempi tecnici giornalieri/Riposi/Visite:",
                             "line 130 31.22 165 31.22 2", "text 185.53 39.7 6.67|ogni 05 gg."})
        EXPECT_TRUE(holds(plain, line)) << line;
    EXPECT_FALSE(holds(plain, "line 75 43.2 125 43.2 2")) << "no rule under the last road";
    trip.traghetti = u"2"_s;
    const auto ferries = firstPage();
    EXPECT_TRUE(holds(ferries, "line 75 40 125 40 2"));
    EXPECT_TRUE(holds(ferries, "text 79.48 39.74 8|(sono previsti 2 traghetti)"));
}

TEST_F(Reports, TitlesOfTheCover) {
    const struct {
        const char16_t* name;
        std::vector<std::string> titles;
    } cases[] = {
        {u"Capo Nord", {"Capo Nord"}},
        {u"Capo Nord 1.234", {"Capo Nord", "1.234"}},
        {u"2003", {"2003"}},
        {u"Dalla Bretagna alla Provenza 2003", {"Dalla Bretagna", "alla Provenza", "2003"}},
        {u"Dallabretagnaallaprovenza", {"Dallabretag", "naallaprovenza"}}, // 25 letters: one less in front
    };
    for (const auto& c : cases) {
        trip.localita = QString::fromUtf16(c.name);
        ReportViandoria one = report({});
        one.frontespizioGenerale({true, false, false, true});
        std::vector<std::string> large;
        const auto drawn = pages();
        for (const std::string& line : drawn.at(0)) {
            if (line.find(" b|") != std::string::npos && line.find(" 24 b|") == std::string::npos)
                large.push_back(line.substr(line.find('|') + 1));
        }
        std::vector<std::string> expected = c.titles;
        expected.emplace_back("Mappe città");
        expected.emplace_back("Viandoria");
        EXPECT_EQ(large, expected);
    }
}

TEST_F(Reports, TheGuideByNamesAndByEntries) {
    const Piede foot{u"05/07/2003"_s, u"Vanzer"_s};
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
        stampaLinea(sheet, u"GIRO"_s, line, {u"05/07/2003"_s, u"Vanzer"_s});
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
