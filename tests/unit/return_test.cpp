#include <gtest/gtest.h>

#include <QStringList>

#include "itinerary/return_to_start.h"

using namespace vanzer;
using namespace Qt::StringLiterals;

namespace {

/// Legs of these places; road and kilometres tell by which row they came.
std::vector<RigaRitorno> legs(const QStringList& places) {
    std::vector<RigaRitorno> made;
    for (const QString& place : places) {
        const QString n = QString::number(made.size() + 1);
        made.push_back({place, u"SS"_s + n, n + u"0"_s, u"S"_s});
    }
    return made;
}

TEST(ReturnToStart, JoinsAtTheNearestEarlierPassage) {
    struct Row {
        QStringList out;
        int join;
        QStringList home;
    };
    const std::vector<Row> rows{
        {{u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"B"_s}, 2, {u"A"_s}},
        {{u"A"_s, u"B"_s, u"C"_s, u"B"_s}, 2, {u"A"_s}},
        {{u"A"_s, u"B"_s, u"C"_s, u"B"_s, u"D"_s, u"B"_s}, 4, {u"C"_s, u"B"_s, u"A"_s}}, // the nearest, not the first
        {{u"A"_s, u"B"_s, u"A"_s}, 1, {}},                                               // home already
        {{u"A"_s, u"B"_s, u"C"_s}, 0, {}},
        {{u"Roma"_s, u"Bari"_s, u"BARILE"_s, u"Lecce"_s, u"bari"_s}, 3, {u"Bari"_s, u"Roma"_s}}, // a beginning matches
        {{u"X [Start]"_s, u"Roma (Est)"_s, u"Y"_s, u"ROMA (Nord) [End]"_s}, 2, {u"X [Start]"_s}},
        {{u"X"_s, u"Roma (Est)"_s, u"Y"_s, u"Roma [End] (x)"_s}, 2, {u"X"_s}},
        {{u"A"_s}, 0, {}},
        {{}, 0, {}},
    };
    for (const Row& row : rows) {
        const Ritorno result = ritornoAStart(legs(row.out));
        QStringList home;
        for (const RigaRitorno& leg : result.righe)
            home << leg.luogo;
        EXPECT_EQ(result.riga, row.join) << row.out.join(u' ').toStdString();
        EXPECT_EQ(home, row.home) << row.out.join(u' ').toStdString();
    }
}

TEST(ReturnToStart, DrivesTheSameRoads) {
    std::vector<RigaRitorno> out = legs({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s, u"D"_s});
    out[2] = {u"C"_s, u"TRAGHETTO"_s, u"0"_s, u"A"_s};
    const std::vector<RigaRitorno> expected{
        {u"C"_s, u"SS4"_s, u"40"_s, u"S"_s},
        {u"B"_s, u"TRAGHETTO"_s, u"0"_s, u"A"_s},
        {u"A"_s, u"SS2"_s, u"20"_s, u"S"_s},
    };
    EXPECT_EQ(ritornoAStart(out).righe, expected);
}

} // namespace
