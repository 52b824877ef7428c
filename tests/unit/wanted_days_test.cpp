// The days of a trip: which numbers are offered, and where the search for a wanted one begins.
#include <gtest/gtest.h>

#include "schedule/fitting.h"
#include "trip/totals.h"

namespace vanzer {

using namespace Qt::StringLiterals;

TEST(Totali, LeastDaysAndTheirList) {
    const struct {
        const char16_t* time;
        int days;
    } cases[] = {{u"03:00:00", 3}, {u"03:00:01", 4}, {u"00:08:00", 1}, {u"", 0}};
    for (const auto& c : cases)
        EXPECT_EQ(giorniMinimi(QString::fromUtf16(c.time)), c.days);
    const QStringList days = giorniOfferti(4, true);
    EXPECT_EQ(days.size(), 1 + 31 + 18);
    EXPECT_EQ(days[1], u"004");
    EXPECT_EQ(days[31], u"034");
    EXPECT_EQ(days[32], u"030");
    EXPECT_EQ(days.last(), u"200");
    EXPECT_EQ(giorniOfferti(0, false), QStringList{u"000"_s});
}

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
    search.iniziaSerie(1000);
    EXPECT_EQ(search.prossimo(0, 5, true), Adeguamento::Passo::Prova);
    EXPECT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::NuovaSerie);
    search.iniziaSerie(1000);
    EXPECT_EQ(search.prossimo(2, 5, true), Adeguamento::Passo::Prova);
    EXPECT_NEAR(search.coefficiente(), 5.0 * 1000 / 1500, 1e-6);
}

} // namespace vanzer
