#include <gtest/gtest.h>

#include <QStringList>

#include "itinerary/return_to_start.h"

using namespace vanzer;
using namespace Qt::StringLiterals;

namespace {

Ritorno homeFrom(const QStringList& out) {
    return ritornoAStart({out.begin(), out.end()});
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
        const Ritorno result = homeFrom(row.out);
        QStringList home;
        for (const PassoRitorno& leg : result.passi)
            home << row.out[leg.luogo - 1];
        EXPECT_EQ(result.riga, row.join) << row.out.join(u' ').toStdString();
        EXPECT_EQ(home, row.home) << row.out.join(u' ').toStdString();
    }
}

TEST(ReturnToStart, DrivesTheSameRoads) {
    const std::vector<PassoRitorno> expected{{3, 4}, {2, 3}, {1, 2}};
    EXPECT_EQ(homeFrom({u"A"_s, u"B"_s, u"C"_s, u"D"_s, u"E"_s, u"D"_s}).passi, expected);
}

} // namespace
