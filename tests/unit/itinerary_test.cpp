// Legs as rows and records, the rules of the leg editor, destinations.
#include <gtest/gtest.h>

#include "core/text.h"
#include "itinerary/leg_editor.h"
#include "itinerary/leg_table.h"
#include "window/destination.h"

namespace vanzer {

using namespace Qt::StringLiterals;

TEST(TabellaTappe, ALongLegIsSeveralRecords) {
    const struct {
        int km;
        std::vector<const char16_t*> pieces;
    } cases[] = {{0, {u"0"}}, {999, {u"999"}}, {1000, {u"999", u"1"}}, {2500, {u"999", u"999", u"502"}}};
    for (const auto& c : cases) {
        const auto records = recordDellaRiga({u"ROMA"_s, u"A1"_s, c.km, u"A"_s, u"*00:02:00"_s}, u"00:01:00"_s, 30);
        ASSERT_EQ(records.size(), c.pieces.size()) << c.km;
        EXPECT_EQ(numeroRecord(c.km), static_cast<int>(records.size()));
        for (std::size_t i = 0; i < records.size(); ++i) {
            EXPECT_EQ(records[i].chilometri, QString::fromUtf16(c.pieces[i]));
            EXPECT_EQ(records[i].sostaGuidaCitta, i == 0 ? u"00:01:00"_s : u" "_s);
            EXPECT_EQ(records[i].tempoSosta, u"00:02:00");
            EXPECT_TRUE(records[i].fineGiorno);
        }
    }
    EXPECT_EQ(numeroRecord(2'147'483'647), 2'149'634);
}

TEST(TabellaTappe, NoStoredTextIsEmptyOrTooLong) {
    const RecordTappa r = recordDellaRiga({u"PAESE DAL NOME LUNGHISSIMO [Start]"_s, {}, 0, {}, u"*"_s}, {}, 30).front();
    EXPECT_EQ(r.localita, u"PAESE DAL NOME LUNGHISSIMO [S");
    EXPECT_EQ(r.nomeStrada, u" ");
    EXPECT_EQ(r.tipoStrada, u" ");
    EXPECT_EQ(r.tempoSosta, u" ");
    EXPECT_EQ(r.sostaGuidaCitta, u" ");
    EXPECT_EQ(sostaDelRecord(u"1"_s, u" "_s), u"*");
    EXPECT_EQ(sostaDelRecord(u"0"_s, u"00:02:00"_s), u"00:02:00");
}

TEST(TabellaTappe, WhichLegsReadTheGuide) {
    TrattoDellaGuida stretch;
    const struct {
        const char16_t* place;
        const char16_t* read; ///< null: nothing is read
    } legs[] = {
        {u"PISA", nullptr},
        {u"LUCCA (x) [Start]", nullptr},
        {u"ROMA [Start]", u"Roma"},
        {u"ROMA", u"Roma"},
        {u"roma", nullptr},
        {u"ORTE (svincolo)", u"Orte"},
        {u"BARI [End]", u"Bari"},
        {u"FOGGIA", nullptr},
        {u"PISA [Start] [End]", u"Pisa"},
        {u"LUCCA", nullptr}, // the end was met before
    };
    for (const auto& leg : legs) {
        const auto step = stretch.prossimo(QString::fromUtf16(leg.place));
        EXPECT_EQ(step.leggere, leg.read != nullptr) << QString::fromUtf16(leg.place).toStdString();
        EXPECT_EQ(step.luogo, leg.read == nullptr ? QString() : QString::fromUtf16(leg.read));
    }
}

TEST(EditorTappe, WhatIsRefusedAndWhatIsKept) {
    struct Caso {
        const char* what;
        TappaDigitata typed;
        Rifiuto refused;
        const char16_t* km;
        const char16_t* letter;
        const char16_t* stop;
    };
    const auto typed = [](int row, const char16_t* km, double above = 0) {
        TappaDigitata t;
        t.riga = row;
        t.luogo = u"ROMA"_s;
        t.km = QString::fromUtf16(km);
        t.lettera = u"A"_s;
        t.sosta = u"00:00:00"_s;
        t.kmPrecedenti = above;
        t.kmComeTotale = true;
        return t;
    };
    const auto with = [](TappaDigitata t, auto change) {
        change(t);
        return t;
    };
    using enum Rifiuto;
    const Caso cases[] = {
        {"departure without anything", typed(1, u"0"), Nessuno, u"0", u"", u""},
        {"row 2 without anything", typed(2, u"0"), NienteDaSegnare, u"0", u"", u""},
        {"row 2 with an end of day", with(typed(2, u"0"), [](auto& t) { t.fineGiornata = true; }), Nessuno, u"0", u"",
         u"*"},
        {"row 2 with a ferry", with(typed(2, u"0"), [](auto& t) { t.strada = u"tragh bari"_s; }), Nessuno, u"0", u"",
         u""},
        {"stop and end of day",
         with(typed(3, u"10"),
              [](auto& t) {
                  t.sosta = u"00:01:30"_s;
                  t.fineGiornata = true;
              }),
         Nessuno, u"10", u"A", u"*00:01:30"},
        {"running total", typed(5, u"1250", 1000), Nessuno, u"250", u"A", u""},
        {"switched off", with(typed(5, u"950", 900), [](auto& t) { t.kmComeTotale = false; }), Nessuno, u"950", u"A",
         u""},
        {"no running total up to 100", typed(5, u"120", 100), Nessuno, u"120", u"A", u""},
        {"no running total on row 2", typed(2, u"250", 200), Nessuno, u"250", u"A", u""},
        {"too far", typed(3, u"1000", 50), KmTroppi, u"1000", u"A", u""},
        {"no place", with(typed(3, u"10"), [](auto& t) { t.luogo = u"  "_s; }), LuogoMancante, u"10", u"A", u""},
        {"both", with(typed(3, u"1000"), [](auto& t) { t.luogo.clear(); }), KmELuogo, u"1000", u"A", u""},
    };
    for (const Caso& c : cases) {
        const TappaControllata row = controllaTappa(c.typed);
        EXPECT_EQ(row.rifiuto, c.refused) << c.what;
        EXPECT_EQ(row.km, QString::fromUtf16(c.km)) << c.what;
        EXPECT_EQ(row.lettera, QString::fromUtf16(c.letter)) << c.what;
        EXPECT_EQ(row.sosta, QString::fromUtf16(c.stop)) << c.what;
    }
    EXPECT_EQ(controllaTappa(with(typed(1, u"0"), [](auto& t) { t.primaMeta = t.ultimaMeta = true; })).luogo,
              u"ROMA [Start] [End]");
}

TEST(EditorTappe, MarksComeOffAName) {
    const LuogoConMarche both = separaMarche(u" ROMA [start] [END] "_s);
    EXPECT_EQ(both.nome, u"ROMA");
    EXPECT_TRUE(both.start);
    EXPECT_FALSE(both.end) << "what stands behind the first mark goes with it";
    EXPECT_TRUE(separaMarche(u"BARI [End]"_s).end);
    EXPECT_EQ(senzaMarca(u"ROMA [Start] [END] [end]"_s, u"[End]"), u"ROMA [Start]");
}

TEST(Meta, CodeOfANewOne) {
    const struct {
        std::vector<int> stored;
        const char16_t* code;
    } cases[] = {
        {{}, u"000001"}, {{1, 2, 3}, u"000004"}, {{1, 2, 4}, u"000003"}, {{2, 3}, u"000001"}, {{5}, u"000001"}};
    for (const auto& c : cases)
        EXPECT_EQ(codiceNuovaMeta(c.stored), QString::fromUtf16(c.code));
}

TEST(Meta, SameNameUpToTheBracket) {
    EXPECT_TRUE(stessaMeta(u"ROMA (X)"_s, u"Roma (Y)"_s));
    EXPECT_TRUE(stessaMeta(u"ROMA"_s, u"roma (estate)"_s));
    EXPECT_FALSE(stessaMeta(u"ROMA"_s, u"ROMA NORD"_s));
    EXPECT_EQ(elencoRicerca({u"autostrada A1"_s, u"Bari"_s, u"L'Autostrada"_s, u"Zara"_s}),
              (QStringList{u"Bari"_s, u"Zara"_s, u"autostrada A1"_s, u"L'Autostrada"_s}));
}

} // namespace vanzer
