// SPDX-License-Identifier: MIT
// The trip as a line of time, and the files made of it for other programs.
#include <gtest/gtest.h>

#include "core/time_values.h"
#include "reports/calendar_file.h"
#include "reports/csv_file.h"
#include "schedule/time_line.h"
#include "support/plain_day.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

RigaDiLavoro visit(const QString& name, float length) {
    RigaDiLavoro row = guideStop(length);
    row.nome = u" > "_s + name;
    return row;
}

LineaDelTempo lineOf(const std::vector<RigaDiLavoro>& rows, const ParametriSimulazione& p) {
    return lineaDelTempo(simulate(rows, p, 1), rows, p, [](int) { return u"SS1"_s; });
}

TEST(TimeLine, NothingOverlapsAndNoTimeIsLost) {
    ParametriSimulazione p = plainDay();
    p.riposoOre = 2;
    p.riposoMinuti = 25;
    p.riposoGiorno = 1;
    p.riposoDopoGiorni = 3;
    std::vector<RigaDiLavoro> rows{drive(u"ROMA"_s, 0)};
    for (int i = 0; i < 60; ++i) {
        rows.push_back(drive(u"BARI"_s, 17 + 53 * (i % 13), i % 7 == 3));
        if (i % 3 == 0)
            rows.push_back(visit(u"Museo"_s, static_cast<float>(40 + 170 * (i % 9))));
    }
    const LineaDelTempo line = lineOf(rows, p);
    double driven = 0;
    for (std::size_t i = 0; i < line.attivita.size(); ++i) {
        const Attivita& a = line.attivita[i];
        EXPECT_GT(a.durata(), 0) << i;
        EXPECT_NEAR(a.inizio, i > 0 ? line.attivita[i - 1].fine : a.inizio, 2) << i;
        driven += a.tipo == Attivita::Tipo::Guida ? a.durata() : 0;
    }
    for (const RigaViandoria& row : simulate(rows, p, 1).righe)
        driven -= static_cast<double>(row.tempo);
    EXPECT_NEAR(driven, 0, 1);
}

TEST(TimeLine, AGapThatTheCountingLeavesIsNoFreeTime) {
    ParametriSimulazione p = plainDay();
    p.range = 0;
    for (const auto& [night, between] : {std::pair(1002.F, false), std::pair(1003.F, true)}) {
        p.oraNotte = night; // two or three hundredths of an hour after the arrival
        const LineaDelTempo line =
            lineOf({drive(u"ROMA"_s, 0), drive(u"TERNI"_s, 100, true), drive(u"RIETI"_s, 50)}, p);
        ASSERT_GT(line.attivita.size(), 1U);
        EXPECT_EQ(line.attivita[1].tipo == Attivita::Tipo::Libero, between);
        EXPECT_EQ(line.attivita[1].tipo == Attivita::Tipo::Notte, !between);
    }
}

TEST(TimeLine, ADaysSumsAndTheWordsForAnActivity) {
    const LineaDelTempo line = lineOf(
        {drive(u"ROMA"_s, 0), drive(u"TERNI"_s, 100, true), drive(u"RIETI"_s, 50), visit(u"Duomo"_s, 50)}, plainDay());
    const std::vector<Giornata> days = giornate(line);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(days[1].guida, 50);
    EXPECT_EQ(days[1].soste, 50);
    EXPECT_EQ(descrizione(line, line.attivita[0]).toStdString(), "Sab 05/07 09:00 - 10:00  Guida: Terni (SS1, 100 km)");
    EXPECT_EQ(descrizione(line, line.attivita[1]).toStdString(), "Sab 05/07 10:00 - 22:30  Tempo libero");
    EXPECT_EQ(descrizione(line, line.attivita[2]).toStdString(), "Sab 05/07 22:30 - Dom 06/07 09:00  Notte: Terni");
}

TEST(Calendar, LongLinesAreFoldedBetweenCharactersAndEndWhereTheyAreWritten) {
    const QString name = u"Città è già più là 🚐"_s.repeated(12);
    const QString odd = u"A\u2028B\u2029C\u0085D\vE\fF\rG\r\nH"_s + QChar(u'\0') + u"\u001B[1mI\tJ;K"_s;
    const std::pair<QString, QString> names[] = {{name, name}, {odd, u"A\\nB\\nC\\nD\\nE\\nF\\nG\\nH[1mI J\\;K"_s}};
    for (const auto& [trip, written] : names) {
        const QByteArray file =
            calendario(trip, lineOf({drive(u"ROMA"_s, 0), drive(u"TERNI\u2028\fA"_s, 100)}, plainDay()),
                       QDateTime::currentDateTime());
        for (const QByteArray& line : file.split('\n'))
            EXPECT_TRUE(line.size() <= 76 && line.isValidUtf8()) << line.toStdString(); // 75 bytes and the CR
        const QString text = QString::fromUtf8(file).remove(u"\r\n"_s);
        for (const QChar c : text)
            EXPECT_FALSE(c.category() == QChar::Other_Control || c == u'\u2028' || c == u'\u2029') << int{c.unicode()};
        EXPECT_TRUE(QString::fromUtf8(file).remove(u"\r\n "_s).contains(u"X-WR-CALNAME:"_s + written + u"\r\n"_s));
    }
}

TEST(SeparatedValues, ALineEndIsQuotedAndHidesNoFormula) {
    const QString text = u"\r=1"_s;
    EXPECT_EQ(valoriSeparati(1, 1, [&text](int, int) -> const QString& { return text; }), "\"'\r=1\"\r\n");
}

} // namespace

} // namespace vanzer
