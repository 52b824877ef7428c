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
    const struct {
        QString out;
        int join;
        QString home;
    } rows[] = {
        {u"A|B|C|D|B"_s, 2, u"A"_s},
        {u"A|B|C|B|D|B"_s, 4, u"C|B|A"_s}, // the nearest, not the first
        {u"A|B|A"_s, 1, {}},               // home already
        {u"A|B|C"_s, 0, {}},
        {u"Roma|Bari|BARILE|Lecce|bari"_s, 3, u"Bari|Roma"_s}, // a beginning matches
        {u"X [Start]|Roma (Est)|Y|ROMA (Nord) [End]"_s, 2, u"X [Start]"_s},
        {u"X|Roma (Est)|Y|Roma [End] (x)"_s, 2, u"X"_s},
        {u"A"_s, 0, {}},
    };
    for (const auto& row : rows) {
        const QStringList out = row.out.split(u'|');
        const Ritorno result = homeFrom(out);
        QStringList home;
        for (const PassoRitorno& leg : result.passi)
            home << out[leg.luogo - 1];
        EXPECT_EQ(result.riga, row.join) << row.out.toStdString();
        EXPECT_EQ(home.join(u'|'), row.home) << row.out.toStdString();
    }
    EXPECT_EQ(homeFrom({}).riga, 0);
}

} // namespace
