// SPDX-License-Identifier: MIT
#include <array>

#include <gtest/gtest.h>

#include "guide/entries.h"
#include "schedule/stops.h"

using namespace vanzer;
using namespace Qt::StringLiterals;

namespace {

TEST(GuideCategory, IsFoundByNameAndByCode) {
    const std::array<QString, 7> names{u"Zero"_s,   u"Ottimo"_s, u"Vedibile"_s, u"Carte/Guide"_s,
                                       u"Ottimo"_s, {},          u"Città"_s};
    const std::pair<QString, int> codes[] = {{u"carte/guide"_s, 3}, {u"OTTIMO"_s, 4}, {u"CITTÀ"_s, 6},
                                             {u"Citta"_s, -1},      {u"Zero"_s, -1},  {u""_s, -1}};
    for (const auto& [name, code] : codes)
        EXPECT_EQ(CodiceTipoGuida(names, name), code) << name.toStdString();
    EXPECT_EQ(nomeTipoGuida(names, u"02"_s), u"Vedibile");
    for (const QString& code : {u"05"_s, u"00"_s, u"07"_s, u"-1"_s, u" "_s})
        EXPECT_EQ(nomeTipoGuida(names, code), u"") << code.toStdString();
}

TEST(GuideGroup, BlankAndZeroAreNone) {
    EXPECT_TRUE(stessoGruppo(u" 0 "_s, u""_s) && stessoGruppo(u"a-b"_s, u"A-B "_s));
    EXPECT_FALSE(stessoGruppo(u""_s, u"A"_s) || stessoGruppo(u"0"_s, u"00"_s));
}

TEST(GuideTime, ShowsInItsBoxesWhatTheyOffer) {
    const QString rows[][3] = {{u"02:30"_s, u"02"_s, u"30"_s}, {u"g2:00"_s, u"g2"_s, u"00"_s},
                               {u"G9:00"_s, u"00"_s, u"00"_s}, {u"G0:45"_s, u"00"_s, u"45"_s},
                               {u":"_s, u"00"_s, u"00"_s},     {u"1:5"_s, u"01"_s, u"00"_s}};
    for (const auto& [time, hours, minutes] : rows)
        EXPECT_EQ(oreMostrate(time) + u':' + minutiMostrati(time), hours + u':' + minutes) << time.toStdString();
}

TEST(GuideEntry, RowKeysStayInsideTheGrid) {
    constexpr int keys[][3] = {{5, 38, 4}, {1, 38, 1},  {5, 40, 6},  {17, 40, 17}, {14, 33, 2},
                               {5, 33, 1}, {3, 34, 15}, {9, 34, 17}, {5, 13, 5}};
    for (const auto& [row, key, next] : keys)
        EXPECT_EQ(rigaDopoTasto(row, key, 18), next) << row << ' ' << key;
}

TEST(GuideStops, AreAddedToTheLegsStop) {
    const struct {
        QString stop;
        std::vector<QString> times;
        float visitingDay;
        QString result;
    } rows[] = {
        {{}, {u"01:30"_s, u"00:45"_s}, 800, u"00:02:15"_s},
        {u"*00:02:00"_s, {u"01:00"_s}, 900, u"00:03:00"_s}, // the mark of the end of the day is lost
        {u"01:01:00"_s, {u"07:30"_s}, 850, u"02:00:00"_s},  // a day has the length of the visiting time
        {u"01:01:00"_s, {u"23:00"_s}, 0, u"02:00:00"_s},    // no visiting time: a day of 24 hours
        {u"00:01:00"_s, {u"G2:30"_s}, 900, u"00:01:30"_s},  // "G2" is no hour
    };
    for (const auto& row : rows)
        EXPECT_EQ(sostaConGuida(row.stop, row.times, row.visitingDay), row.result) << row.stop.toStdString();
}

} // namespace
