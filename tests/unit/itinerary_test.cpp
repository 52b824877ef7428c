// Legs as rows and records, the rules of the leg editor, destinations.
#include <gtest/gtest.h>

#include "core/place_name.h"
#include "core/text.h"
#include "itinerary/leg_editor.h"
#include "trip/destination.h"
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
    EXPECT_EQ(numeroRecord(2'147'483'647), 2'149'634);
}

TEST(TabellaTappe, WhichLegsReadTheGuide) {
    TrattoDellaGuida stretch;
    const std::pair<QString, QString> legs[] = {
        {u"PISA"_s, {}},
        {u"LUCCA (x) [Start]"_s, {}},
        {u"ROMA [Start]"_s, u"Roma"_s},
        {u"ROMA"_s, u"Roma"_s},
        {u"roma"_s, {}},
        {u"ORTE (svincolo)"_s, u"Orte"_s},
        {u"BARI [End]"_s, u"Bari"_s},
        {u"FOGGIA"_s, {}},
        {u"PISA [Start] [End]"_s, u"Pisa"_s},
        {u"LUCCA"_s, {}}, // the end was met before
    };
    for (const auto& [leg, read] : legs) {
        const auto step = stretch.prossimo(leg);
        EXPECT_EQ(step.leggere, !read.isEmpty()) << leg.toStdString();
        EXPECT_EQ(step.luogo, read);
    }
}

TEST(EditorTappe, WhatIsRefusedAndWhatIsKept) {
    const auto typed = [](int row, const QString& km, double above = 0) {
        return TappaDigitata{.riga = row,
                             .luogo = u"ROMA"_s,
                             .km = km,
                             .strada = {},
                             .lettera = u"A"_s,
                             .sosta = u"00:00:00"_s,
                             .kmPrecedenti = above,
                             .kmComeTotale = true};
    };
    TappaDigitata endOfDay = typed(2, u"0"_s);
    endOfDay.fineGiornata = true;
    TappaDigitata ferry = typed(2, u"0"_s);
    ferry.strada = u"tragh bari"_s;
    TappaDigitata switchedOff = typed(5, u"950"_s, 900);
    switchedOff.kmComeTotale = false;
    using enum Rifiuto;
    const struct {
        TappaDigitata typed;
        Rifiuto refused;
        QString kept; ///< kilometres, letter, stop
    } cases[] = {
        {typed(1, u"0"_s), Nessuno, u"0||"_s},
        {typed(2, u"0"_s), NienteDaSegnare, u"0||"_s},
        {endOfDay, Nessuno, u"0||*"_s},
        {ferry, Nessuno, u"0||"_s},
        {typed(5, u"1250"_s, 1000), Nessuno, u"250|A|"_s},
        {switchedOff, Nessuno, u"950|A|"_s},
        {typed(5, u"120"_s, 100), Nessuno, u"120|A|"_s}, // no running total up to 100
        {typed(2, u"250"_s, 200), Nessuno, u"250|A|"_s}, // nor on row 2
        {typed(3, u"1000"_s, 50), KmTroppi, u"1000|A|"_s},
    };
    for (const auto& c : cases) {
        const TappaControllata row = checkLeg(c.typed);
        EXPECT_EQ(row.rifiuto, c.refused) << c.typed.km.toStdString();
        EXPECT_EQ(row.km + u'|' + row.lettera + u'|' + row.sosta, c.kept);
    }
}

TEST(EditorTappe, MarksComeOffAName) {
    const LuogoConMarche both = splitMarks(u" ROMA [start] [END] "_s);
    EXPECT_EQ(both.nome, u"ROMA");
    EXPECT_TRUE(both.start);
    EXPECT_FALSE(both.end) << "what stands behind the first mark goes with it";
    EXPECT_TRUE(splitMarks(u"BARI [End]"_s).end);
    EXPECT_EQ(senzaMarca(u"ROMA [Start] [END] [end]"_s, u"[End]"), u"ROMA [Start]");
}

TEST(Meta, CodeOfANewOne) {
    const std::pair<std::vector<int>, QString> cases[] = {
        {{}, u"000001"_s}, {{1, 2, 3}, u"000004"_s}, {{1, 2, 4}, u"000003"_s}, {{5}, u"000001"_s}};
    for (const auto& [stored, code] : cases)
        EXPECT_EQ(codiceNuovaMeta(stored), code);
}

TEST(Meta, SameNameUpToTheBracket) {
    EXPECT_TRUE(stessaMeta(u"ROMA (X)"_s, u"Roma (Y)"_s));
    EXPECT_TRUE(stessaMeta(u"ROMA"_s, u"roma (estate)"_s));
    EXPECT_FALSE(stessaMeta(u"ROMA"_s, u"ROMA NORD"_s));
    EXPECT_EQ(elencoRicerca({u"autostrada A1"_s, u"Bari"_s, u"L'Autostrada"_s, u"Zara"_s}),
              (QStringList{u"Bari"_s, u"Zara"_s, u"autostrada A1"_s, u"L'Autostrada"_s}));
}

} // namespace vanzer
