// SPDX-License-Identifier: MIT
// Running kilometres and times of a table. Updated by differences, they equal those that are worked out anew.
#include <gtest/gtest.h>

#include "trip/totals.h"

namespace vanzer {

TEST(RunningTotals, ByDifferenceOnlyWhereNothingIsLost) {
    constexpr Medie speeds{80, 65, 50, 30};
    const struct {
        const char* what;
        std::optional<Tratto> changed;
        bool byDifference;
    } cases[] = {{"another length", Tratto{70, 1, false}, true},
                 {"a ferry", Tratto{0, 0, true}, true},
                 {"no leg any more", {}, true},
                 {"negative", Tratto{-5, 0, false}, false},
                 {"more than single precision counts", Tratto{17'000'000, 0, false}, false}};
    for (const auto& c : cases) {
        const TotaliTabella::Righe rows{{}, Tratto{100, 0, false}, Tratto{50, 3, true}, Tratto{3, 2, false}};
        TotaliTabella totals;
        totals.recalculate(rows, speeds);
        EXPECT_EQ(totals.change(2, c.changed), c.byDifference) << c.what;
        TotaliTabella::Righe expectedRows = rows;
        if (c.byDifference)
            expectedRows[2] = c.changed;
        TotaliTabella expected;
        expected.recalculate(expectedRows, speeds);
        EXPECT_EQ(totals.totali().km, expected.totali().km) << c.what;
        EXPECT_EQ(totals.totali().tempo, expected.totali().tempo) << c.what;
        EXPECT_EQ(totals.totali().traghetti, expected.totali().traghetti) << c.what;
    }
}

} // namespace vanzer
