// SPDX-License-Identifier: MIT
// Legs as rows and records. What a user sees is tested by scenarios.
#include <limits>

#include <gtest/gtest.h>

#include <QStringList>

#include "itinerary/copy.h"
#include "itinerary/leg_editor.h"
#include "itinerary/stretch.h"
#include "trip/leg_table.h"

namespace vanzer {

using namespace Qt::StringLiterals;

TEST(TabellaTappe, ALongLegIsSeveralRecords) {
    const std::pair<int, QStringList> cases[] = {
        {0, {u"0"_s}}, {999, {u"999"_s}}, {1000, {u"999"_s, u"1"_s}}, {2500, {u"999"_s, u"999"_s, u"502"_s}}};
    for (const auto& [km, pieces] : cases) {
        const auto records = recordDellaRiga({u"ROMA"_s, u"A1"_s, km, u"A"_s, u"*00:02:00"_s}, u"00:01:00"_s, 30);
        EXPECT_EQ(numeroRecord(km), static_cast<int>(records.size()));
        QStringList written;
        for (const RecordTappa& record : records) {
            EXPECT_EQ(record.sostaGuidaCitta, written.isEmpty() ? u"00:01:00"_s : u" "_s);
            EXPECT_TRUE(record.tempoSosta == u"00:02:00" && record.fineGiorno);
            written += record.chilometri;
        }
        EXPECT_EQ(written, pieces) << km;
    }
}

TEST(TabellaTappe, APlaceThatComesAgainIsNotReadAgain) {
    TrattoDellaGuida stretch;
    QStringList read;
    for (const QString& leg : {u"PISA"_s, u"ROMA [Start]"_s, u"ROMA"_s, u"roma"_s, u"BARI [End]"_s, u"FOGGIA"_s})
        read += stretch.prossimo(leg).luogo;
    EXPECT_EQ(read.join(u'|'), u"|Roma|Roma||Bari|"_s);
}

TEST(EditorTappe, OnTheSecondRowNothingIsATotal) {
    const auto km = [](int row) {
        return checkLeg({.riga = row,
                         .luogo = u"ROMA"_s,
                         .km = u"250"_s,
                         .strada = {},
                         .lettera = u"A"_s,
                         .sosta = {},
                         .kmPrecedenti = 200,
                         .kmComeTotale = true})
            .km;
    };
    EXPECT_EQ(km(2) + km(3), u"25050"_s);
}

TEST(EditorTappe, MarksComeOffANameHoweverTheyAreWritten) {
    EXPECT_EQ(senzaMarca(u"ROMA [Start] [END] [end]"_s, u"[End]"), u"ROMA [Start]");
}

TEST(Stretch, ChangesAreKeptRowByRow) {
    EXPECT_EQ(conModifiche(u"01100"_s, 5, 5) + conModifiche(u"0"_s, 3, 4) + conModifiche(u"000"_s, 0, 2),
              u"011010011110");
}

TEST(Stretch, ItsEndsMayNameRowsThatNoTableHas) {
    const TrattoScelto nowhere{u"-2147483648"_s, u"99999999999"_s};
    EXPECT_EQ(std::pair(nowhere.daRiga(), nowhere.aRiga()), std::pair(0, 999'999));
    EXPECT_EQ(copyStretch({}, 1, std::numeric_limits<int>::max(), false).size(), 10'000U);
}

} // namespace vanzer
