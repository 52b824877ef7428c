// Road types for a stretch, and stretches copied from another destination.
#include <limits>

#include <gtest/gtest.h>

#include "itinerary/copy.h"
#include "itinerary/stretch.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

TEST(Stretch, AnEndShowsNumberTypeAndPlace) {
    EXPECT_EQ(testoEstremo(7, u"7"_s, u"A"_s, u"ASTI"_s), u"0007 A ASTI");
    EXPECT_EQ(testoEstremo(8, {}, {}, {}), u"0008  ");
    EXPECT_EQ(testoEstremo(12345, u"12345"_s, u"P"_s, u"ASTI"_s), u"12345 P ASTI");
    const TrattoScelto far{u"9999 A X"_s, u"12345 P Y"_s};
    EXPECT_EQ(far.daRiga(), 9999);
    EXPECT_EQ(far.aRiga(), 12345);
    // What was typed may name rows that no table has.
    const TrattoScelto nowhere{u"-2147483648"_s, u"99999999999"_s};
    EXPECT_EQ(nowhere.daRiga(), 0);
    EXPECT_EQ(nowhere.aRiga(), 999'999);
}

TEST(Stretch, ItsEndsNeverStandTheWrongWayRound) {
    const struct {
        const char* what;
        QString first, last; ///< before
        bool asFirst;
        QString chosen;
        QString firstAfter, lastAfter;
        int legs;
    } cases[] = {
        {"the first press fills both", {}, {}, true, u"0007"_s, u"0007"_s, u"0007"_s, 1},
        {"of the last leg too", {}, {}, false, u"0007"_s, u"0007"_s, u"0007"_s, 1},
        {"a later last leg", u"0003"_s, u"0003"_s, false, u"0007"_s, u"0003"_s, u"0007"_s, 5},
        {"a first leg behind the last", u"0001"_s, u"0005"_s, true, u"0009"_s, u"0009"_s, u"0009"_s, 1},
        {"a last leg before the first", u"0008"_s, u"0009"_s, false, u"0003"_s, u"0003"_s, u"0003"_s, 1},
        {"an earlier first leg", u"0008"_s, u"0009"_s, true, u"0003"_s, u"0003"_s, u"0009"_s, 7},
    };
    for (const auto& c : cases) {
        TrattoScelto stretch{c.first, c.last};
        stretch.sceglie(c.asFirst, c.chosen);
        EXPECT_EQ(stretch.prima, c.firstAfter) << c.what;
        EXPECT_EQ(stretch.ultima, c.lastAfter) << c.what;
        EXPECT_EQ(stretch.tappe(), c.legs) << c.what;
    }
    // Whatever was typed into the fields: no row lies that far out.
    EXPECT_EQ(copiaTratto({}, 1, std::numeric_limits<int>::max(), false).size(), 10'000U);
    EXPECT_EQ(TrattoScelto().tappe(), 0);
    EXPECT_FALSE(TrattoScelto().scelto());
}

TEST(Stretch, ChangesAreKeptRowByRow) {
    EXPECT_EQ(conModifiche(u"00000"_s, 2, 3), u"01100");
    EXPECT_EQ(conModifiche(u"01100"_s, 5, 5), u"01101");
    EXPECT_EQ(conModifiche(u"0"_s, 3, 4), u"0011");
    EXPECT_EQ(conModifiche(u"000"_s, 0, 2), u"110");
}

TEST(Copy, WhatTheWindowNeverAsksFor) {
    using Legs = std::vector<RigaSorgente>;
    const Legs source{{u"A"_s, {}, {}, {}, {}}, {u"B"_s, u"A1"_s, u"10"_s, u"A"_s, u"*01:00:00"_s}};
    EXPECT_EQ(copiaTratto(source, 1, 3, true),
              (Legs{source[0], {u"B"_s, u"A1"_s, u"10"_s, u"A"_s, u"01:00:00"_s}, {}}));
    EXPECT_EQ(copiaTratto(source, 3, 2, false), (Legs{{}, {u"B"_s, {}, {}, {}, {}}}));
}

} // namespace

} // namespace vanzer
