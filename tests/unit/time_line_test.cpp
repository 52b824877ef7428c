// The trip as a line of time, and what other programs get of it.
#include <gtest/gtest.h>

#include "core/time_values.h"
#include "reports/calendar_file.h"
#include "reports/csv_file.h"
#include "schedule/time_line.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

/// 100 km/h; 1 January 2001 is a Monday.
ParametriSimulazione ordinaryDay() {
    ParametriSimulazione p;
    p.oraColazione = 800;
    p.oraPranzo = 1200;
    p.durataPranzo = 100;
    p.oraCena = 1900;
    p.durataCena = 100;
    p.oraNotte = 2200;
    p.inizioVisita = 900;
    p.fineVisita = 1800;
    p.oreVisitaGiorno = 900;
    p.oreGuidaGiorno = 900;
    p.oraInizioViaggio = 800;
    p.giulianoInizio = 730501;
    p.range = 30;
    p.medie = {100, 100, 100, 100};
    return p;
}

RigaDiLavoro drive(const char16_t* place, int km, bool endOfDay = false) {
    RigaDiLavoro row;
    row.nome = QString::fromUtf16(place);
    row.km = km;
    row.fineGiorno = endOfDay;
    row.tappa = 1;
    return row;
}

RigaDiLavoro visit(const char16_t* name, float length, bool endOfDay = false) {
    RigaDiLavoro row;
    row.tipo = RigaDiLavoro::Tipo::SostaGuida;
    row.nome = QString::fromUtf16(name);
    row.sostaGuida = length;
    row.fineGiorno = endOfDay;
    return row;
}

LineaDelTempo lineOf(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& p) {
    return lineaDelTempo(simula(rows, p, 1), rows, p, [](int) { return u"SS1"_s; });
}

TEST(TimeLine, NothingOverlapsAndNoTimeIsLost) {
    ParametriSimulazione p = ordinaryDay();
    p.riposoOre = 2;
    p.riposoMinuti = 25;
    p.riposoGiorno = 1;
    p.riposoDopoGiorni = 3;
    std::vector<RigaDiLavoro> rows{drive(u"ROMA", 0)};
    for (int i = 0; i < 60; ++i) {
        rows.push_back(drive(u"BARI", 17 + 53 * (i % 13), i % 7 == 3));
        if (i % 3 == 0)
            rows.push_back(visit(u"Museo", static_cast<float>(40 + 170 * (i % 9))));
    }
    const LineaDelTempo line = lineOf(rows, p);
    double driven = 0;
    double expected = 0;
    for (const RigaViandoria& row : simula(rows, p, 1).righe)
        expected += static_cast<double>(row.tempo);
    for (std::size_t i = 0; i < line.attivita.size(); ++i) {
        const Attivita& a = line.attivita[i];
        EXPECT_GT(a.durata(), 0) << i;
        if (i > 0) {
            EXPECT_NEAR(a.inizio, line.attivita[i - 1].fine, 2) << i;
        }
        driven += a.tipo == Attivita::Tipo::Guida ? a.durata() : 0;
    }
    EXPECT_NEAR(driven, expected, 1);

    double inDays = 0;
    int km = 0;
    for (const Giornata& day : giornate(line)) {
        inDays += day.guida;
        km += day.km;
        for (const Barra& bar : day.barre) {
            EXPECT_LT(bar.da, bar.a);
            EXPECT_GE(bar.da, 0);
            EXPECT_LE(bar.a, 2400);
        }
    }
    EXPECT_NEAR(inDays, driven, 0.01);
    EXPECT_EQ(km, simula(rows, p, 1).pannello.kmTotali);
}

TEST(TimeLine, AGapThatTheCountingLeavesIsNoFreeTime) {
    ParametriSimulazione p = ordinaryDay();
    p.range = 0;
    for (const auto& [night, between] : {std::pair(902.F, false), std::pair(903.F, true)}) {
        p.oraNotte = night; // two hundredths of an hour, or three, behind the arrival
        const LineaDelTempo line = lineOf({drive(u"ROMA", 0), drive(u"TERNI", 100, true), drive(u"RIETI", 50)}, p);
        ASSERT_GT(line.attivita.size(), 1U);
        EXPECT_EQ(line.attivita[1].tipo == Attivita::Tipo::Libero, between);
        EXPECT_EQ(line.attivita[1].tipo == Attivita::Tipo::Notte, !between);
    }
}

TEST(TimeLine, ADaysSumsAndTheWordsForAnActivity) {
    const LineaDelTempo line = lineOf(
        {drive(u"ROMA", 0), drive(u"TERNI", 100, true), drive(u"RIETI", 50), visit(u"Duomo", 50)}, ordinaryDay());
    const std::vector<Giornata> days = giornate(line);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(days[1].guida, 50);
    EXPECT_EQ(days[1].soste, 50);
    EXPECT_EQ(descrizione(line, line.attivita[0]).toStdString(), "Lun 01/01 08:00 - 09:00  Guida: Terni (SS1, 100 km)");
    EXPECT_EQ(descrizione(line, line.attivita[1]).toStdString(), "Lun 01/01 09:00 - 22:00  Tempo libero");
    EXPECT_EQ(descrizione(line, line.attivita[2]).toStdString(), "Lun 01/01 22:00 - Mar 02/01 08:00  Notte: Terni");
}

/// The unfolded lines of all events, without their identifiers and stamps.
QStringList linesOf(const QByteArray& file, QStringView name) {
    QStringList found;
    QString text = QString::fromUtf8(file);
    for (const QString& line : text.replace(u"\r\n "_s, QString()).split(u"\r\n"_s)) {
        if (line.startsWith(name.toString() + u':'))
            found << line.mid(name.size() + 1);
    }
    return found;
}

TEST(Calendar, EventsKeepTheirIdentifiers) {
    ParametriSimulazione p = ordinaryDay();
    std::vector<RigaDiLavoro> rows{drive(u"ROMA", 0), drive(u"TERNI", 100), drive(u"RIETI", 50), drive(u"TERNI", 50)};
    const auto identifiers = [&](const QString& trip) {
        return linesOf(calendario(trip, lineOf(rows, p), QDateTime::currentDateTime()), u"UID");
    };
    const QStringList before = identifiers(u"UMBRIA"_s);
    EXPECT_EQ(QSet<QString>(before.begin(), before.end()).size(), 3);
    p.oraInizioViaggio = 900;
    rows.insert(rows.begin() + 1, drive(u"NARNI", 20));
    QStringList after = identifiers(u"UMBRIA"_s);
    after.removeFirst();
    EXPECT_EQ(after, before);
    EXPECT_NE(identifiers(u"LAZIO"_s).value(1), before.value(0));
}

TEST(Calendar, LongLinesAreFoldedBetweenCharacters) {
    const QString name = u"Città è già più là 🚐"_s.repeated(12);
    const QByteArray file = calendario(name, lineOf({drive(u"ROMA", 0), drive(u"TERNI", 100)}, ordinaryDay()),
                                       QDateTime::currentDateTime());
    for (const QByteArray& line : file.split('\n'))
        EXPECT_TRUE(line.size() <= 76 && line.isValidUtf8()) << line.toStdString(); // 75 and the CR
    EXPECT_EQ(linesOf(file, u"X-WR-CALNAME").value(0), name);
}

TEST(Calendar, LinesEndWhereTheyAreWritten) {
    using namespace Qt::StringLiterals;
    const QString odd = u"A\u2028B\u2029C\u0085D\vE\fF\rG\r\nH"_s + QChar(u'\0') + u"\u001B[1mI\tJ;K"_s;
    const QByteArray file = calendario(odd, lineOf({drive(u"ROMA", 0), drive(u"TERNI\u2028\fA", 100)}, ordinaryDay()),
                                       QDateTime::currentDateTime());
    const QString text = QString::fromUtf8(file).remove(u"\r\n"_s);
    for (const QChar c : text)
        EXPECT_FALSE(c.category() == QChar::Other_Control || c == u'\u2028' || c == u'\u2029') << int{c.unicode()};
    EXPECT_EQ(linesOf(file, u"X-WR-CALNAME").value(0), u"A\\nB\\nC\\nD\\nE\\nF\\nG\\nH[1mI J\\;K"_s);
}

TEST(SeparatedValues, RunInNoCalculatingProgram) {
    const struct {
        QString text;
        const char* written;
    } cases[] = {
        {u"=1+2"_s, "'=1+2"},
        {u"+39 06 5555"_s, "'+39 06 5555"},
        {u"-A1(3)"_s, "'-A1(3)"},
        {u"@SUM(A1,2)"_s, "\"'@SUM(A1,2)\""},
        {u"\t\t =1"_s, "'\t\t =1"},
        {u"\r=1"_s, "\"'\r=1\""},
        {u"-"_s, "'-"},
        {u"-3"_s, "-3"},
        {u"+1.234,5"_s, "\"+1.234,5\""},
        {u"-01:30"_s, "-01:30"},
        {u"\t\tKm. 841"_s, "\t\tKm. 841"},
        {u"A=B"_s, "A=B"},
    };
    for (const auto& c : cases) {
        const QByteArray file = valoriSeparati(1, 1, [&c](int, int) -> const QString& { return c.text; });
        EXPECT_EQ(file.toStdString(), c.written + std::string("\r\n"));
    }
}

TEST(SeparatedValues, QuotesWhatWouldSplit) {
    const std::vector<std::vector<QString>> cells{{u"a"_s, u"b,c"_s},
                                                  {u"d \"e\""_s, u"f\ng"_s},
                                                  {QString(), QString()},
                                                  {u"è"_s, QString()},
                                                  {QString(), QString()}};
    const QByteArray file = valoriSeparati(5, 2, [&cells](int r, int c) -> const QString& {
        return cells[static_cast<std::size_t>(r)][static_cast<std::size_t>(c)];
    });
    EXPECT_EQ(file.toStdString(), "a,\"b,c\"\r\n\"d \"\"e\"\"\",\"f\ng\"\r\n,\r\nè,\r\n");
}

} // namespace

} // namespace vanzer
