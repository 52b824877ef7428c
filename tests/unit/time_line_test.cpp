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

std::string clockOf(double hundredths) {
    return QString::number(hundredths / 100).toStdString();
}

/// "Guida 8-12 Roma | ..." with hours from the first midnight.
std::string told(const LineaDelTempo& line) {
    std::string text;
    for (const Attivita& a : line.attivita) {
        text += text.empty() ? "" : " | ";
        text += nomeAttivita(a.tipo).toStdString() + ' ' + clockOf(a.inizio) + '-' + clockOf(a.fine);
        if (a.tipo != Attivita::Tipo::Libero && a.tipo != Attivita::Tipo::Pasto)
            text += ' ' + a.nome.toStdString();
    }
    return text;
}

TEST(TimeLine, FillsWhatLiesBetweenTheRows) {
    struct Case {
        const char* idea;
        std::vector<RigaDiLavoro> rows;
        void (*change)(ParametriSimulazione&);
        const char* line;
    };
    const auto asIs = [](ParametriSimulazione&) {};
    const Case cases[] = {
        {"a departure takes no time", {drive(u"ROMA [Start]", 0)}, asIs, ""},
        {"lunch cuts a drive",
         {drive(u"ROMA", 0), drive(u"BARI", 500)},
         asIs,
         "Guida 8-12 verso Bari | Pasto 12-13 | Guida 13-14 Bari"},
        {"an ordered end of the day: free until the night",
         {drive(u"ROMA", 0), drive(u"TERNI", 100, true), drive(u"PERUGIA", 100)},
         asIs,
         "Guida 8-9 Terni | Tempo libero 9-22 | Notte 22-32 Terni | Guida 32-33 Perugia"},
        {"a stop that is too late waits for the visits of the next day",
         {drive(u"ROMA", 0), drive(u"BARI", 400), drive(u"LECCE", 550), visit(u"Duomo", 200)},
         asIs,
         "Guida 8-12 Bari | Pasto 12-13 | Guida 13-18.5 Lecce | Tempo libero 18.5-22 | Notte 22-32 Lecce | Tempo "
         "libero 32-33 | Sosta 33-35 Duomo"},
        {"a stop of more than a day has a piece for each",
         {drive(u"ROMA", 0), drive(u"TERNI", 100), visit(u"01 * Cascate", 1200)},
         asIs,
         "Guida 8-9 Terni | Sosta 9-18 01 * Cascate | Tempo libero 18-22 | Notte 22-32 Terni | Tempo libero 32-33 | "
         "Sosta 33-36 01 * Cascate"},
        {"the night begins with the arrival that reaches it, and the trip ends behind it",
         {drive(u"ROMA", 0), drive(u"BARI", 400), drive(u"LECCE", 600), drive(u"OTRANTO", 200)},
         [](ParametriSimulazione& p) { p.oraCena = 2600; },
         "Guida 8-12 Bari | Pasto 12-13 | Guida 13-19 Lecce | Guida 19-21 Otranto"},
        {"breaks",
         {drive(u"ROMA", 0), drive(u"TERNI", 300)},
         [](ParametriSimulazione& p) {
             p.riposoOre = 2;
             p.riposoMinuti = 50;
         },
         "Guida 8-10 verso Terni | Riposo 10-10.5 Riposo | Guida 10.5-11.5 Terni"},
    };
    for (const Case& c : cases) {
        ParametriSimulazione p = ordinaryDay();
        c.change(p);
        EXPECT_EQ(told(lineOf(c.rows, p)), c.line) << c.idea;
    }
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

TEST(TimeLine, DaysAreCutAtMidnight) {
    const ParametriSimulazione p = ordinaryDay();
    const LineaDelTempo line =
        lineOf({drive(u"ROMA", 0), drive(u"TERNI", 100, true), drive(u"RIETI", 50), visit(u"Duomo", 50)}, p);
    const std::vector<Giornata> days = giornate(line);
    ASSERT_EQ(days.size(), 2U);
    EXPECT_EQ(days[0].data.toStdString(), "Lun 01/01");
    EXPECT_EQ(days[1].data.toStdString(), "Mar 02/01");
    EXPECT_EQ(days[0].km, 100);
    EXPECT_EQ(days[1].guida, 50);
    EXPECT_EQ(days[1].soste, 50);
    ASSERT_FALSE(days[1].barre.empty());
    EXPECT_EQ(days[0].barre.back().a, 2400);
    EXPECT_EQ(days[1].barre.front().da, 0);
    EXPECT_EQ(descrizione(line, line.attivita[0]).toStdString(), "Lun 01/01 08:00 - 09:00  Guida: Terni (SS1, 100 km)");
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

TEST(Calendar, HasOneEventForEachDriveStopAndNight) {
    const ParametriSimulazione p = ordinaryDay();
    const LineaDelTempo line = lineOf({drive(u"ROMA", 0), drive(u"TERNI", 100), visit(u"Cascate, belle; \"!\"", 1200),
                                       drive(u"RIETI", 20), visit(u"Duomo", 50)},
                                      p);
    const QByteArray file = calendario(u"UMBRIA"_s, line, {QDate(2026, 1, 2), QTime(3, 4), Qt::UTC});
    EXPECT_EQ(linesOf(file, u"SUMMARY").join(u'|').toStdString(),
              "Guida: Terni|Cascate\\, belle\\; \"!\"|Notte: Terni|Guida: Rieti|Duomo");
    EXPECT_EQ(linesOf(file, u"DTSTART")[1].toStdString(), "20010101T090000");
    EXPECT_EQ(linesOf(file, u"DTEND")[1].toStdString(), "20010102T120000");
    EXPECT_EQ(linesOf(file, u"DESCRIPTION")[0].toStdString(), "SS1\\, 100 km\\, ore 01:00");
    EXPECT_EQ(linesOf(file, u"DTSTAMP")[0].toStdString(), "20260102T030400Z");
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
    const QString name = u"Città è già più là "_s.repeated(12);
    const QByteArray file = calendario(name, lineOf({drive(u"ROMA", 0), drive(u"TERNI", 100)}, ordinaryDay()),
                                       QDateTime::currentDateTime());
    for (const QByteArray& line : file.split('\n'))
        EXPECT_LE(line.size(), 76) << line.toStdString(); // 75 and the CR
    EXPECT_EQ(linesOf(file, u"X-WR-CALNAME").value(0), name);
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
