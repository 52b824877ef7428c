// Road types for a stretch, and stretches copied from another destination.
#include <limits>

#include <gtest/gtest.h>

#include "itinerary/copy.h"
#include "itinerary/stretch.h"

namespace vanzer {

namespace {

using namespace Qt::StringLiterals;

TEST(Stretch, ItsEndsNeverStandTheWrongWayRound) {
    const struct {
        QString first, last; ///< before
        bool asFirst;
        QString chosen, after;
    } cases[] = {
        {{}, {}, true, u"0007"_s, u"0007-0007: 1"_s},
        {{}, {}, false, u"0007"_s, u"0007-0007: 1"_s},
        {u"0003"_s, u"0003"_s, false, u"0007"_s, u"0003-0007: 5"_s},
        {u"0001"_s, u"0005"_s, true, u"0009"_s, u"0009-0009: 1"_s},
        {u"0008"_s, u"0009"_s, false, u"0003"_s, u"0003-0003: 1"_s},
        {u"0008"_s, u"0009"_s, true, u"0003"_s, u"0003-0009: 7"_s},
    };
    for (const auto& c : cases) {
        TrattoScelto stretch{c.first, c.last};
        stretch.choose(c.asFirst, c.chosen);
        EXPECT_EQ(stretch.prima + u'-' + stretch.ultima + u": %1"_s.arg(stretch.tappe()), c.after);
    }
    EXPECT_EQ(TrattoScelto().tappe(), 0);
    // What was typed may name rows that no table has.
    const TrattoScelto nowhere{u"-2147483648"_s, u"99999999999"_s};
    EXPECT_EQ(std::pair(nowhere.daRiga(), nowhere.aRiga()), std::pair(0, 999'999));
    EXPECT_EQ(copyStretch({}, 1, std::numeric_limits<int>::max(), false).size(), 10'000U);
}

TEST(Stretch, ChangesAreKeptRowByRow) {
    EXPECT_EQ(conModifiche(u"01100"_s, 5, 5), u"01101");
    EXPECT_EQ(conModifiche(u"0"_s, 3, 4), u"0011");
    EXPECT_EQ(conModifiche(u"000"_s, 0, 2), u"110");
}

} // namespace

} // namespace vanzer
