// SPDX-License-Identifier: MIT
// The days of a trip: where the search for the wanted days begins.
#include <gtest/gtest.h>

#include "schedule/fitting.h"

namespace vanzer {

TEST(Adeguamento, StartOfAFreshSearch) {
    EXPECT_EQ(coefficienteDiPartenza({0, 2, 1000, 0}, 2), 1) << "one day of stops at most is there";
    EXPECT_EQ(coefficienteDiPartenza({0, 1, 1000, 4000}, 3), 1) << "the ratio is below 1";
    EXPECT_EQ(coefficienteDiPartenza({0, 2, 1000, 2000}, 8), 2);
    EXPECT_EQ(giorniDiGuida(0, 925), 1);
    EXPECT_EQ(giorniDiGuida(926, 925), 1) << "a hundredth of a day is forgiven";
    EXPECT_EQ(giorniDiGuida(940, 925), 2);
}

TEST(Adeguamento, AFreshSearchTakesTheDayAsTheParametersGiveItThen) {
    Adeguamento search({0.5, 1, 925, 500});
    search.startSeries(1000);
    EXPECT_EQ(search.prossimo(0, 5, true), Adeguamento::Passo::Prova);
    EXPECT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::NuovaSerie);
    search.startSeries(1000);
    EXPECT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::Prova);
    EXPECT_NEAR(search.coefficiente(), 5.0 * 1000 / 1500, 1e-6);
}

} // namespace vanzer
